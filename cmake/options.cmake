# How everything is compiled: `Quillet::options`, which every target of ours links.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
find_program(LLD ld.lld)
if(LLD)
    add_link_options(-fuse-ld=lld)
endif()

add_library(quillet-options INTERFACE)
add_library(Quillet::options ALIAS quillet-options)
target_include_directories(quillet-options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quillet-options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-align -Wformat=2 -Wextra-semi
    # A designated initialiser names what differs from the default; the rest is meant to be left out.
    -Wno-missing-field-initializers)
target_compile_definitions(quillet-options INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_JAVA_STYLE_ITERATORS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(QUILLET_DURCIR)
    # What is not of this processor, or of this compiler, is left out; `packaging/essai-debian` sees what the program got.
    include(CheckCXXCompilerFlag)
    foreach(protection stack-protector-strong stack-clash-protection cf-protection)
        check_cxx_compiler_flag(-f${protection} A_${protection})
        if(A_${protection})
            target_compile_options(quillet-options INTERFACE -f${protection})
        endif()
    endforeach()
    target_compile_options(quillet-options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS)
endif()

if(QUILLET_SANITIZE)
    set(sanitiseurs -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # GCC loses track of initialisation in sanitized code and warns where nothing is wrong.
    target_compile_options(quillet-options INTERFACE ${sanitiseurs} $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(quillet-options INTERFACE ${sanitiseurs})
endif()

if(QUILLET_FUZZ)
    # Says which edges an input takes; only the fuzzed programs get libFuzzer's own `main`.
    target_compile_options(quillet-options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(quillet-options INTERFACE -fsanitize=fuzzer-no-link)
endif()
