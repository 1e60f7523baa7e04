# velvane_folder(NAME [WIDGETS]
#     DEPENDS folders whose headers this one may include
#     LIBRARIES other libraries
#     SOURCES files with code
#     TESTS   *Tests.cpp beside them
#     TEST_LIBRARIES other libraries of the tests)
#
# WIDGETS gives the test program a QApplication.
# Makes the library NAME and the test program NAME_tests, and notes NAME and DEPENDS for the
# include test, so that the build and the check cannot part.
function(velvane_folder name)
    cmake_parse_arguments(arg
        "WIDGETS" "" "DEPENDS;LIBRARIES;SOURCES;TESTS;TEST_LIBRARIES" ${ARGN})
    list(JOIN arg_DEPENDS " " depends)
    set_property(GLOBAL APPEND PROPERTY velvane_folders "${name}: ${depends}")

    if(arg_SOURCES)
        set(scope PUBLIC)
        add_library(${name} STATIC ${arg_SOURCES})
        velvane_precompile(${name})
    else()
        set(scope INTERFACE)
        add_library(${name} INTERFACE)
    endif()
    target_include_directories(${name} ${scope} ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} ${scope}
        velvane_options Qt6::Core Qt6::Gui ${arg_DEPENDS} ${arg_LIBRARIES})

    if(VELVANE_TESTS AND arg_TESTS)
        add_executable(${name}_tests ${arg_TESTS})
        velvane_precompile(${name}_tests)
        set(support velvane_test_support)
        if(arg_WIDGETS)
            set(support velvane_widget_test_support)
        endif()
        target_link_libraries(${name}_tests PRIVATE ${name} ${support} ${arg_TEST_LIBRARIES})
        add_test(NAME ${name} COMMAND ${name}_tests)
        set_tests_properties(${name} PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;VELVANE_SOURCE=${CMAKE_SOURCE_DIR}")
    endif()
endfunction()

# Compiles a target's files with the headers that nearly all of them include. With g++ one
# precompiled header serves all targets; clang wants one for each set of definitions.
function(velvane_precompile name)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND TARGET velvane_precompiled)
        target_precompile_headers(${name} REUSE_FROM velvane_precompiled)
        return()
    endif()
    target_precompile_headers(${name} PRIVATE
        <QByteArray> <QImage> <QList> <QObject> <QPointF> <QRegion> <QString> <QUuid>
        <algorithm> <chrono> <cmath> <functional> <memory> <optional> <vector>)
endfunction()

# The include test: fails when a file includes against the direction of the folders.
function(velvane_check_includes)
    if(NOT VELVANE_TESTS)
        return()
    endif()
    get_property(folders GLOBAL PROPERTY velvane_folders)
    list(JOIN folders "\n" lines)
    file(WRITE ${CMAKE_BINARY_DIR}/folders.txt "${lines}\n")
    add_test(NAME includes COMMAND python3 ${CMAKE_SOURCE_DIR}/tests/check-includes.py
        ${CMAKE_SOURCE_DIR}/src ${CMAKE_BINARY_DIR}/folders.txt)
endfunction()
