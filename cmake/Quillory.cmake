# SPDX-License-Identifier: MIT
# What every target of the project shares, and one-line helpers to declare them.

include(GNUInstallDirs)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# The target `autogen` makes what moc makes, without waiting for any library: clang-tidy needs that
# and nothing else of a build.
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

# Whoever just configures and builds gets what users run.
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")

# Programs are linked so that they can be loaded at any address.
include(CheckPIESupported)
check_pie_supported()

add_library(quillory_options INTERFACE)
target_compile_options(quillory_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${QUILLORY_WERROR}>:-Werror>)
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
    # With what libFuzzer needs, so that its targets share the libraries. On phones `char` has no sign;
    # here every check runs the other way too.
    target_compile_options(quillory_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer -funsigned-char)
    target_compile_definitions(quillory_options INTERFACE QUILLORY_SANITIZED)
    target_link_options(quillory_options INTERFACE -fsanitize=address,undefined)
else()
    # What Debian hardens its own packages by; the sanitizers have checks of their own there.
    target_compile_options(quillory_options INTERFACE
        -fstack-protector-strong -fstack-clash-protection -Wformat -Werror=format-security
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE>
        $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
        target_compile_options(quillory_options INTERFACE -fcf-protection)
    elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
        target_compile_options(quillory_options INTERFACE -mbranch-protection=standard)
    endif()
    target_link_options(quillory_options INTERFACE LINKER:-z,relro LINKER:-z,now)
endif()

# Each layer has one set of precompiled headers, those that most of its sources include.
set(core_headers
    <QByteArray> <QDate> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList>
    <QStringView> <QTemporaryFile> <QTextStream> <QVariant> <QtEndian>
    <algorithm> <array> <cstring> <functional> <limits> <map> <memory> <optional> <set> <span>
    <string> <utility> <vector>)
set(window_headers ${core_headers}
    <QAbstractTableModel> <QAction> <QApplication> <QBoxLayout> <QCheckBox> <QComboBox> <QDialog>
    <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QListView> <QMenu> <QMessageBox> <QMouseEvent>
    <QPainter> <QPushButton> <QScrollArea> <QScrollBar> <QScroller> <QShortcut> <QStyle>
    <QStyledItemDelegate> <QTableView> <QTimer> <QToolButton> <QTreeView> <QWidget>)

# quillory_precompile(LAYER QT_LIBRARY) compiles the headers of a layer, which its targets share.
function(quillory_precompile layer qt)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${layer}_headers.cpp)
    file(TOUCH ${source})
    add_library(quillory_${layer}_headers OBJECT ${source})
    target_link_libraries(quillory_${layer}_headers PRIVATE quillory_options ${qt})
    target_precompile_headers(quillory_${layer}_headers PRIVATE ${${layer}_headers})
endfunction()

quillory_precompile(core Qt6::Core)
quillory_precompile(window Qt6::Widgets)

# quillory_configure(TARGET core|window) is what libraries and programs have in common. Objects with
# signals are the window's, but for one of the command line's.
function(quillory_configure target layer)
    target_link_libraries(${target} PRIVATE quillory_options)
    target_precompile_headers(${target} REUSE_FROM quillory_${layer}_headers)
    if(layer STREQUAL "window")
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
    endif()
endfunction()

# quillory_add_library(NAME core|window SOURCES file... LINKS target... [PRIVATE_LINKS target...])
# One static library for the folder NAME; its target is quillory_NAME. Its headers are found, as
# NAME/header.h, by itself and by what links it, and by nobody else.
function(quillory_add_library name layer)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    foreach(link IN LISTS arg_LINKS arg_PRIVATE_LINKS)
        if(link MATCHES "^quillory_" AND NOT TARGET ${link})
            message(FATAL_ERROR "${name} links ${link}, which is no folder above it")
        endif()
    endforeach()
    add_library(quillory_${name} STATIC ${arg_SOURCES})
    target_link_libraries(quillory_${name} PUBLIC ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
    # A folder of includes that holds nothing but the library's folder.
    set(includes ${PROJECT_BINARY_DIR}/include/${name})
    file(MAKE_DIRECTORY ${includes})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${includes}/${name} SYMBOLIC)
    target_include_directories(quillory_${name} PUBLIC ${includes})
    quillory_configure(quillory_${name} ${layer})
endfunction()

# What tests run under: no display, no locale of the machine's, memory for a disk where there is some,
# and known leaks of libraries aside.
set(QUILLORY_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen
    LC_ALL=C.UTF-8
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0)
if(IS_DIRECTORY /dev/shm)
    list(APPEND QUILLORY_TEST_ENVIRONMENT TMPDIR=/dev/shm)
endif()

# What looks at the program from outside sees all its folders, whatever it links.
add_library(quillory_test_options INTERFACE)
target_include_directories(quillory_test_options INTERFACE ${PROJECT_SOURCE_DIR})
# From 6.8 on the toolkit's own macros for waiting narrow a number of milliseconds.
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8)
    target_compile_options(quillory_test_options INTERFACE -Wno-conversion)
endif()

# quillory_add_test(NAME COMMAND argument...) is a line of ctest's.
function(quillory_add_test name)
    add_test(NAME ${name} ${ARGN})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 600
        ENVIRONMENT "${QUILLORY_TEST_ENVIRONMENT}")
endfunction()

# quillory_add_tests(PROGRAM core|window TESTS source... LINKS target...)
# One program of Qt Tests, each source.cpp a test of its own that runs in its own process.
function(quillory_add_tests program layer)
    cmake_parse_arguments(arg "" "" "TESTS;LINKS" ${ARGN})
    list(TRANSFORM arg_TESTS APPEND .cpp OUTPUT_VARIABLE sources)
    add_executable(${program} test_program.cpp ${sources})
    target_link_libraries(${program} PRIVATE
        quillory_options quillory_test_options Qt6::Test ${arg_LINKS})
    target_precompile_headers(${program} PRIVATE ${${layer}_headers} <QTest>)
    set_target_properties(${program} PROPERTIES AUTOMOC ON)
    foreach(test ${arg_TESTS})
        quillory_add_test(${test} COMMAND ${program} ${test})
    endforeach()
endfunction()
