# SPDX-License-Identifier: MIT
# How a folder under tests/ declares its executables.

include(GoogleTest)

set(voxLeakOptions
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/adaptors/deliberate_leaks.supp:print_suppressions=0)

# Everything that `cmake --build` needs to run the tests that both compilers run: see BOTH_COMPILERS below.
add_custom_target(vox_both_compilers)

# vox_add_test(<name> SOURCES <file>... [LIBS <target>...] [ALONE] [SLOW] [BOTH_COMPILERS])
#   An executable <name> of GoogleTest cases, each of them a test of its own under CTest, labelled with its folder's name.
#   ALONE           its sources are compiled one by one, not in batches.
#   SLOW            all its cases carry the label `slow`, and so do the cases of any suite whose name ends in Slow:
#                   `./dev test --quick` leaves them out.
#   BOTH_COMPILERS  its cases run in the plain clang++ build as well (label `both-compilers`): what compiled code relies on.
#                   Under the sanitizers all cases run with clang++.
#   Paths known to the code of the others: VOX_SOURCE_DIR, VOX_DECKS_DIR (overruled at run time by the environment's VOX_DECKS),
#   VOX_TEST_DIR (the folder of the test's CMakeLists.txt), and VOXBENCH_PROGRAM once the workbench is built.
function(vox_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "ALONE;SLOW;BOTH_COMPILERS" "" "SOURCES;LIBS")
  if(test_UNPARSED_ARGUMENTS OR NOT test_SOURCES)
    message(FATAL_ERROR "vox_add_test(${name}): give SOURCES, LIBS, ALONE, SLOW or BOTH_COMPILERS; got ${test_UNPARSED_ARGUMENTS}")
  endif()

  if(NOT test_ALONE)
    vox_batch_cases(${name} test_SOURCES)
  endif()
  add_executable(${name} ${test_SOURCES})
  target_link_libraries(${name} PRIVATE ${test_LIBS} GTest::gmock GTest::gtest_main vox::warnings)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  vox_compile_as_test_code(${name})
  if(NOT test_BOTH_COMPILERS) # what compiled code relies on needs no program
    vox_give_test_paths(${name})
  endif()

  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set(labels ${folder})
  if(test_BOTH_COMPILERS)
    list(APPEND labels both-compilers)
    add_dependencies(vox_both_compilers ${name})
  endif()

  if(VOX_SANITIZE)
    vox_quarter_cases(${name} ${labels})
  elseif(test_SLOW)
    vox_discover_cases(${name} "*" ${labels} slow)
  else()
    vox_discover_cases(${name} "-*Slow.*" ${labels})
    vox_discover_cases(${name} "*Slow.*" ${labels} slow)
  endif()
endfunction()

# Optimised and sanitized whole, a file of cases takes three times as long to compile. What it calls is watched whole.
function(vox_compile_as_test_code target)
  target_compile_options(${target} PRIVATE -O0 $<$<BOOL:${VOX_SANITIZE}>:-fno-sanitize=null,alignment,object-size>)
endfunction()

# vox_batch_cases(<name> <list of sources>): puts sources of eight *_test.cpp each in their place, see BatchCases.cmake.
function(vox_batch_cases name list)
  set(cases ${${list}})
  list(FILTER cases INCLUDE REGEX "_test\\.cpp$")
  list(LENGTH cases count)
  if(count LESS 2)
    return()
  endif()
  list(REMOVE_ITEM ${list} ${cases})
  list(TRANSFORM cases PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  math(EXPR last "${count} - 1")
  foreach(first RANGE 0 ${last} 8)
    list(SUBLIST cases ${first} 8 batch)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}_${first}.cpp)
    list(JOIN batch " " words)
    add_custom_command(
      OUTPUT ${source}
      COMMAND ${CMAKE_COMMAND} -DOUTPUT=${source} -DSOURCES=${words} -P ${PROJECT_SOURCE_DIR}/cmake/BatchCases.cmake
      DEPENDS ${batch} ${PROJECT_SOURCE_DIR}/cmake/BatchCases.cmake
      VERBATIM)
    # g++ takes fixtures of unnamed namespaces for those of a header.
    set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    list(APPEND ${list} ${source})
  endforeach()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# Compile definitions for an executable or a library of the tests that needs to find files.
function(vox_give_test_paths target)
  target_compile_definitions(
    ${target} PRIVATE VOX_SOURCE_DIR="${PROJECT_SOURCE_DIR}" VOX_DECKS_DIR="${VOX_DECKS}"
                      VOX_TEST_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  if(TARGET voxbench)
    target_compile_definitions(${target} PRIVATE VOXBENCH_PROGRAM="$<TARGET_FILE:voxbench>")
    add_dependencies(${target} voxbench)
  endif()
endfunction()

# The cases of an executable that match a GoogleTest filter, with these labels.
function(vox_discover_cases name filter)
  list(TRANSFORM ARGN PREPEND "LABELS;" OUTPUT_VARIABLE labels) # one LABELS each: a list in one would be torn apart
  gtest_discover_tests(${name} TEST_FILTER ${filter} DISCOVERY_TIMEOUT 120 PROPERTIES ${labels}
                       ENVIRONMENT "VOX_DECKS=${VOX_DECKS}")
endfunction()

# All cases of an executable as four tests: a sanitized process takes longer to start and to end than most cases.
function(vox_quarter_cases name)
  foreach(shard RANGE 3)
    add_test(NAME ${name}.quarter-${shard} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(
      ${name}.quarter-${shard}
      PROPERTIES LABELS "${ARGN}" ENVIRONMENT
                 "VOX_DECKS=${VOX_DECKS};GTEST_TOTAL_SHARDS=4;GTEST_SHARD_INDEX=${shard};${voxLeakOptions}")
  endforeach()
endfunction()
