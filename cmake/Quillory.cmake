# What every target of the project shares, and one-line helpers to declare them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
# The target `autogen` makes what moc makes, without waiting for any library: clang-tidy needs that
# and nothing else of a build.
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

add_library(quillory_options INTERFACE)
target_include_directories(quillory_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quillory_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
target_compile_definitions(quillory_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QUILLORY_VERSION="${PROJECT_VERSION}")
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Defaulted three-way comparisons of C++20 confuse clang 14's view of Qt 6.4's operators.
    target_compile_options(quillory_options INTERFACE -Wno-ambiguous-reversed-operator)
endif()
if(QUILLORY_SANITIZE)
    target_compile_options(quillory_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    target_link_options(quillory_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUILLORY_FUZZ)
    target_compile_options(quillory_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(quillory_options INTERFACE -fsanitize=address,undefined)
endif()

if(QUILLORY_SANITIZE OR QUILLORY_FUZZ)
    target_compile_definitions(quillory_options INTERFACE QUILLORY_SANITIZED)
endif()

# quillory_add_library(NAME SOURCES file... LINKS target... [PRIVATE_LINKS target...])
# One static library for one folder; its target is quillory_NAME.
function(quillory_add_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(quillory_${name} STATIC ${arg_SOURCES})
    target_link_libraries(quillory_${name}
        PUBLIC quillory_options ${arg_LINKS}
        PRIVATE ${arg_PRIVATE_LINKS})
endfunction()

# What tests run under: no display, no locale of the machine's, and known leaks of libraries aside.
set(QUILLORY_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")

# quillory_add_test(NAME target...) declares tests/NAME.cpp, a Qt Test, linked to the targets.
function(quillory_add_test name)
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE quillory_options Qt6::Test ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "${QUILLORY_TEST_ENVIRONMENT}")
endfunction()
