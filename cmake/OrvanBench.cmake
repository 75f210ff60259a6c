# orvan_add_benchmark(NAME <name> SOURCES <files...> [LIBS <targets...>])
# A Google Benchmark program; the "bench" target builds and runs them all.
function(orvan_add_benchmark)
    cmake_parse_arguments(ARG "" "NAME" "SOURCES;LIBS" ${ARGN})
    add_executable(${ARG_NAME} ${ARG_SOURCES})
    target_link_libraries(${ARG_NAME} PRIVATE benchmark::benchmark benchmark::benchmark_main ${ARG_LIBS})
    target_compile_definitions(${ARG_NAME} PRIVATE
        ORVAN_SOURCE_DIR="${CMAKE_SOURCE_DIR}" ORVAN_BINARY_DIR="${CMAKE_BINARY_DIR}"
        ORVAN_PLUGIN_DIR="${ORVAN_PLUGIN_BUILD_DIR}")
    set_target_properties(${ARG_NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench)
    add_custom_target(run_${ARG_NAME} COMMAND ${ARG_NAME} DEPENDS ${ARG_NAME} USES_TERMINAL)
    add_dependencies(bench run_${ARG_NAME})
endfunction()
