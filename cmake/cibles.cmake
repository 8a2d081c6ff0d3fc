# quillet_bibliotheque(<floor> <sources>... LIENS <libraries>...): the static library quillet-<floor>.
# Whoever links it links LIENS too.
function(quillet_bibliotheque etage)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" LIENS)
    add_library(quillet-${etage} STATIC ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(quillet-${etage} PUBLIC quillet-options ${arg_LIENS})
endfunction()

# What Qt 6.8 has for tests to wait, QTRY_VERIFY and the like, narrows a duration by itself.
add_library(quillet-options-test INTERFACE)
target_compile_options(quillet-options-test INTERFACE -Wno-conversion)

# quillet_donnees_de_test(<target>): where QFINDTESTDATA starts from when the compiler was given relative paths, as ccache may.
function(quillet_donnees_de_test cible)
    set_target_properties(${cible} PROPERTIES QT_TESTCASE_BUILDDIR ${PROJECT_BINARY_DIR})
endfunction()

# quillet_test(<name> <sources>... LIENS <libraries>...): a Qt Test program that ctest runs.
function(quillet_test nom)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" LIENS)
    add_executable(${nom} ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${nom} PRIVATE quillet-options quillet-options-test Qt6::Test ${arg_LIENS})
    quillet_donnees_de_test(${nom})
    add_test(NAME ${nom} COMMAND ${nom})
endfunction()
