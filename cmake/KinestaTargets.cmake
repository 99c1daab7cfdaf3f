# One target per module. A module links, and so can include, only what src/CMakeLists.txt names.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
if(APPLE)
    # The SDK there may warn of what the checks on Linux cannot know; the first build there should not stop at that.
    set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
endif()
find_package(Threads REQUIRED)

set(KINESTA_SANITIZE "" CACHE STRING "Value for -fsanitize=, empty for none")

add_library(kinesta_options INTERFACE)
target_compile_options(kinesta_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wcast-qual -Wformat=2
    # A recording must give the same gestures on every machine, so products and sums are not fused.
    -ffp-contract=off
    # GCC 12 takes `"literal" + std::string()` for a copy onto itself when it inlines it (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(kinesta_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(KINESTA_SANITIZE)
    # With the sanitizers' code gcc warns of uninitialized variables that are initialized.
    target_compile_options(kinesta_options INTERFACE -Wno-uninitialized
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_compile_options(kinesta_options INTERFACE
        -fsanitize=${KINESTA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kinesta_options INTERFACE -fsanitize=${KINESTA_SANITIZE})
endif()

# The headers that most files include take longer to compile than the files, so they are precompiled. Each file still
# includes what it uses; scripts/tidy compiles without precompiled headers.
string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND ("${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${build_type}}" MATCHES "-O[23sf]"
                                             OR KINESTA_SANITIZE STREQUAL "thread"))
    # When GCC 12 inlines code from a precompiled header, it forgets that this is a system header and warns about
    # std::string. A build without precompiled headers shows these warnings where they are true.
    if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        target_compile_options(kinesta_options INTERFACE -Wno-array-bounds -Wno-stringop-overflow)
    endif()
endif()
set(KINESTA_COMMON_HEADERS
    <algorithm> <array> <chrono> <cmath> <cstdint> <cstdlib> <filesystem> <functional> <map> <memory> <optional> <set>
    <span> <string> <string_view> <system_error> <utility> <variant> <vector>)

# A few of Qt's: all of them take longer to load for each file than what they save.
set(KINESTA_QT_HEADERS
    <QAbstractButton> <QAccessible> <QBoxLayout> <QEvent> <QGuiApplication> <QLabel> <QPainter> <QPushButton> <QString>
    <QWidget>)

# For the first build of a configuration, or for its only one: joins sources to fewer and larger ones, which takes a third
# of the time. A change then compiles more than its file.
option(KINESTA_UNITY_BUILD "Compile several sources of a module at once" OFF)
function(kinesta_join_sources target)
    if(KINESTA_UNITY_BUILD AND NOT APPLE)  # nothing shows on Linux whether the layer's files for a Mac can be joined
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 6)
    endif()
endfunction()

# kinesta_module(NAME [PUBLIC libs...] [PRIVATE libs...]): the static library of src/NAME.
# The macOS layer's Objective-C++ files are compiled with ARC.
function(kinesta_module name)
    cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.mm)
    string(REPLACE "/" "_" target ${name})
    if(sources)
        add_library(kinesta_${target} STATIC ${sources})
        kinesta_join_sources(kinesta_${target})
        if(target STREQUAL "support")
            target_precompile_headers(kinesta_support PRIVATE ${KINESTA_COMMON_HEADERS})
        else()
            target_precompile_headers(kinesta_${target} REUSE_FROM kinesta_support)
        endif()
        set(objective ${sources})
        list(FILTER objective INCLUDE REGEX "[.]mm$")
        set_source_files_properties(${objective} PROPERTIES COMPILE_OPTIONS -fobjc-arc SKIP_PRECOMPILE_HEADERS ON)
        target_link_libraries(kinesta_${target} PUBLIC kinesta_options Threads::Threads ${ARG_PUBLIC}
            PRIVATE ${ARG_PRIVATE})
    else()
        add_library(kinesta_${target} INTERFACE)
        target_link_libraries(kinesta_${target} INTERFACE kinesta_options Threads::Threads ${ARG_PUBLIC})
    endif()
endfunction()

# kinesta_qt_module(NAME [PUBLIC libs...] [PRIVATE libs...]): the same for a module that uses Qt.
function(kinesta_qt_module name)
    cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h)
    list(FILTER sources EXCLUDE REGEX "/ui/models/")  # a module of its own, without Qt
    string(REPLACE "/" "_" target kinesta_${name})
    add_library(${target} STATIC ${sources})
    kinesta_join_sources(${target})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    # CMake 3.25 does not look for Qt objects in a header that was added after the first build.
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
    # Text becomes a QString by name only, and Qt's macros for signals do not take these words from everybody.
    target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
    target_link_libraries(${target} PUBLIC kinesta_options Threads::Threads Qt6::Widgets ${ARG_PUBLIC}
        PRIVATE ${ARG_PRIVATE})
    if(name STREQUAL "platform/qt")
        target_precompile_headers(${target} PRIVATE ${KINESTA_QT_HEADERS} ${KINESTA_COMMON_HEADERS})
    else()
        target_precompile_headers(${target} REUSE_FROM kinesta_platform_qt)
    endif()
endfunction()

# kinesta_test(NAME LIBRARIES libs... [TIMEOUT seconds] [SERIAL] [QT]): the GoogleTest program of tests/NAME, with each
# test known to CTest. SERIAL tests run while no other test runs. QT says that it uses Qt.
function(kinesta_test name)
    cmake_parse_arguments(ARG "SERIAL;QT" "TIMEOUT" "LIBRARIES" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 60)
    endif()
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    if(NOT sources)
        return()
    endif()
    add_executable(test_${name} ${sources})
    target_link_libraries(test_${name} PRIVATE kinesta_test_support kinesta_test_main ${ARG_LIBRARIES})
    if(ARG_QT)  # compiled as Qt demands, so the precompiled headers of the other tests do not fit
        set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
        target_precompile_headers(test_${name} PRIVATE <gtest/gtest.h> ${KINESTA_QT_HEADERS} ${KINESTA_COMMON_HEADERS})
    else()
        target_precompile_headers(test_${name} REUSE_FROM kinesta_test_main)
    endif()
    set(properties TIMEOUT ${ARG_TIMEOUT})
    if(ARG_SERIAL)
        list(APPEND properties RUN_SERIAL TRUE)
    endif()
    gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX ${name}/ PROPERTIES ${properties})
endfunction()
