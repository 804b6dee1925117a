# What every target of this project has in common: the language, the warnings, the sanitizers, and
# the rule that includes are written from src/ ("platform/date.h").

add_library(pinmora_options INTERFACE)
target_compile_features(pinmora_options INTERFACE cxx_std_20)
target_compile_options(pinmora_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Werror)
# Optimising, GCC 12 sees overlaps and overflows in operator+(const char *, std::string &&) that are
# not there (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(pinmora_options INTERFACE
        "$<$<NOT:$<CONFIG:Debug>>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>")
endif()
# Several source files at a time are none of them the main one, in which GCC lets types be private.
# clang-tidy, which is handed the same options, does not know this one.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(pinmora_options INTERFACE
        -Wno-unknown-warning-option -Wno-subobject-linkage)
endif()
# Every test is a program that holds most of the libraries: linking them is a large part of a build.
find_program(PINMORA_LLD ld.lld)
if(PINMORA_LLD)
    target_link_options(pinmora_options INTERFACE -fuse-ld=lld)
endif()
target_compile_definitions(pinmora_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT QT_NO_KEYWORDS)
target_include_directories(pinmora_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(PINMORA_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(pinmora_options INTERFACE ${sanitizers} -fsanitize=fuzzer-no-link)
    target_link_options(pinmora_options INTERFACE ${sanitizers})
    target_compile_definitions(pinmora_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# pinmora_library(NAME SOURCES file... USES target...): the library of one folder under src/, or of
# a program's folder under apps/, whose headers are included from that folder. All headers of the
# folder are the library's interface, and each compiles alone: a source file includes its own header
# first, and the dev preset compiles those that have no source file, or, PRECOMPILED, whose source
# files have other headers put before them.
function(pinmora_library name)
    cmake_parse_arguments(arg "PRECOMPILED" "" "SOURCES;USES" ${ARGN})
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS *.h)
    set(alone)
    foreach(header IN LISTS headers)
        string(REGEX REPLACE "\\.h$" ".cpp" source "${header}")
        if(arg_PRECOMPILED OR NOT EXISTS "${source}")
            list(APPEND alone "${header}")
        endif()
    endforeach()
    list(REMOVE_ITEM headers ${alone})
    set(base "${CMAKE_SOURCE_DIR}/src")
    cmake_path(IS_PREFIX base "${CMAKE_CURRENT_SOURCE_DIR}" is_room)
    if(NOT is_room)
        set(base "${CMAKE_CURRENT_SOURCE_DIR}")
    endif()
    add_library(pinmora_${name} STATIC ${arg_SOURCES})
    target_sources(pinmora_${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS "${base}" FILES ${headers}
        FILE_SET alone TYPE HEADERS BASE_DIRS "${base}" FILES ${alone})
    set_target_properties(pinmora_${name} PROPERTIES INTERFACE_HEADER_SETS_TO_VERIFY alone)
    target_link_libraries(pinmora_${name} PUBLIC pinmora_options ${arg_USES})
endfunction()

# pinmora_include_mocs(TARGET file...): makes the NAME.moc that each NAME_test.cpp includes at its end.
# AUTOMOC would give each of the many test programs one more source file, which is empty and takes as
# long to compile as the headers that it begins with.
function(pinmora_include_mocs target)
    list(FILTER ARGN INCLUDE REGEX "_test\\.cpp$")
    foreach(source IN LISTS ARGN)
        string(REPLACE ".cpp" ".moc" moc "${CMAKE_CURRENT_BINARY_DIR}/${source}")
        qt_generate_moc("${source}" "${moc}" TARGET ${target})
        target_sources(${target} PRIVATE "${moc}")
    endforeach()
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
endfunction()

# pinmora_test(NAME [WIDGETS] SOURCES file... USES target...): one Qt Test program, run by CTest in a
# home of its own, so that no test reads or writes a person's settings, data or cache. Qt's headers
# are compiled once for all tests, and once more for those with WIDGETS, which saves most of a test's
# compile time; that needs the same macros in all of them, so each links the same of Qt, and Qt's
# folder for test data, which differs, is left out.
function(pinmora_test name)
    cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;USES" ${ARGN})
    if(arg_WIDGETS)
        set(shared pinmora_widget_test_headers)
        set(qt Qt6::Svg Qt6::WebEngineWidgets Qt6::Widgets Qt6::Test)
        set(headers <QtWidgets>)
    else()
        set(shared pinmora_test_headers)
        set(qt Qt6::Network Qt6::Gui Qt6::Test)
        set(headers <QObject> <QTemporaryDir>)
    endif()
    if(NOT TARGET ${shared})
        get_target_property(macros Qt6::Test INTERFACE_COMPILE_DEFINITIONS)
        list(FILTER macros EXCLUDE REGEX QT_TESTCASE_)
        set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${macros}")
        add_executable(${shared} "${CMAKE_SOURCE_DIR}/cmake/test_headers.cpp")
        target_link_libraries(${shared} PRIVATE pinmora_options ${qt})
        target_precompile_headers(${shared} PRIVATE
            ${headers} <QTest> <filesystem> <fstream> <string> <vector>)
        set_target_properties(${shared} PROPERTIES
            RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    endif()
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    pinmora_include_mocs(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE PINMORA_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE pinmora_options ${arg_USES} ${qt})
    target_precompile_headers(${name} REUSE_FROM ${shared})
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/tests/home/${name}")
    file(MAKE_DIRECTORY "${home}")
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "LC_ALL=C.UTF-8;QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache")
endfunction()
