# quillet_bibliotheque(<name> <sources>... LIENS <libraries>...): the static library quillet-<name>, linked as Quillet::<name>:
# a slip of the pen in such a name stops CMake, instead of reaching the linker. Whoever links it links LIENS too.
function(quillet_bibliotheque nom)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" LIENS)
    add_library(quillet-${nom} STATIC ${arg_UNPARSED_ARGUMENTS})
    add_library(Quillet::${nom} ALIAS quillet-${nom})
    target_link_libraries(quillet-${nom} PUBLIC Quillet::options ${arg_LIENS})
endfunction()

# What only some checks need: they are left out where it is missing, unless all are wanted.
if(QUILLET_TOUT_VERIFIER)
    set(QUILLET_EXIGE REQUIRED)
endif()

# quillet_outil(<variable> <program>): the path of a program that checks need.
function(quillet_outil variable programme)
    find_program(${variable} ${programme} ${QUILLET_EXIGE})
    if(NOT ${variable})
        message(STATUS "${programme} is missing: what it checks will be left out")
    endif()
endfunction()

# What Qt 6.8 has for tests to wait, QTRY_VERIFY and the like, narrows a duration by itself. Tests write a text as it reads.
add_library(quillet-options-test INTERFACE)
add_library(Quillet::options-test ALIAS quillet-options-test)
target_compile_options(quillet-options-test INTERFACE -Wno-conversion -UQT_NO_CAST_FROM_ASCII)

# quillet_donnees_de_test(<target>): where QFINDTESTDATA starts from when the compiler was given relative paths, as ccache may.
function(quillet_donnees_de_test cible)
    set_target_properties(${cible} PROPERTIES QT_TESTCASE_BUILDDIR ${PROJECT_BINARY_DIR})
endfunction()

# quillet_test(<name> <sources>... LIENS <libraries>...): a Qt Test program that ctest runs.
function(quillet_test nom)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" LIENS)
    add_executable(${nom} ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${nom} PRIVATE Quillet::options Quillet::options-test Qt6::Test ${arg_LIENS})
    quillet_donnees_de_test(${nom})
    add_test(NAME ${nom} COMMAND ${nom})
endfunction()
