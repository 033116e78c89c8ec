# SPDX-License-Identifier: MIT
# How a topic under benchmarks/ declares its executables. `./dev bench` builds and runs them all.

add_custom_target(vox_benchmarks)

# vox_add_benchmark(<name> SOURCES <file>... [LIBS <target>...])
#   An executable <name> that measures its ratios in one run and exits with a failure when a limit is not met.
function(vox_add_benchmark name)
  cmake_parse_arguments(PARSE_ARGV 1 bench "" "" "SOURCES;LIBS")
  if(bench_UNPARSED_ARGUMENTS OR NOT bench_SOURCES)
    message(FATAL_ERROR "vox_add_benchmark(${name}): give SOURCES or LIBS; got ${bench_UNPARSED_ARGUMENTS}")
  endif()
  add_executable(${name} ${bench_SOURCES})
  target_link_libraries(${name} PRIVATE ${bench_LIBS} benchmark::benchmark vox::warnings)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/benchmarks/bin)
  add_dependencies(vox_benchmarks ${name})
endfunction()
