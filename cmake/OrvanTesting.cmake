# orvan_add_test(NAME <name> SOURCES <files...> [LIBS <targets...>] [APPLICATION widgets|core])
#
# APPLICATION gives the program one QApplication (widgets, offscreen) or one
# QCoreApplication for all its tests.
#
# A GoogleTest program whose cases ctest lists one by one. Every test runs
# with the offscreen Qt platform, knows the source and build trees (fixtures,
# the plug-in folder) and gets its own temporary folders from the test itself.
function(orvan_add_test)
    cmake_parse_arguments(ARG "" "NAME;APPLICATION" "SOURCES;LIBS" ${ARGN})
    if(ARG_APPLICATION)
        list(APPEND ARG_SOURCES ${CMAKE_SOURCE_DIR}/tests/support/TestApplication.cpp)
    endif()
    add_executable(${ARG_NAME} ${ARG_SOURCES})
    if(ARG_APPLICATION STREQUAL "core")
        target_compile_definitions(${ARG_NAME} PRIVATE ORVAN_TEST_APPLICATION_CORE)
    endif()
    target_link_libraries(${ARG_NAME} PRIVATE GTest::gtest GTest::gtest_main GTest::gmock ${ARG_LIBS})
    target_compile_definitions(${ARG_NAME} PRIVATE
        ORVAN_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        ORVAN_BINARY_DIR="${CMAKE_BINARY_DIR}"
        ORVAN_PLUGIN_DIR="${ORVAN_PLUGIN_BUILD_DIR}")
    set_target_properties(${ARG_NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    # Tests read the plug-in folder (Info.plist, string tables, resources).
    add_dependencies(${ARG_NAME} orvan_bundle)
    gtest_discover_tests(${ARG_NAME}
        DISCOVERY_MODE PRE_TEST
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
        DISCOVERY_TIMEOUT 60)
endfunction()
