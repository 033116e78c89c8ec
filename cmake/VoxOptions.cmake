# SPDX-License-Identifier: MIT
# What can be chosen when configuring, and the settings that hold for every room.

option(VOX_BUILD_VOXBENCH "Build the workbench and its readers" ${PROJECT_IS_TOP_LEVEL})
option(VOX_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(VOX_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(VOX_INSTALL "Install rules, and packages" ${PROJECT_IS_TOP_LEVEL})
option(VOX_UNITY "Compile sources of a room together: sooner done as a whole, later after a change" ${PROJECT_IS_TOP_LEVEL})
option(VOX_WERROR "Treat compiler warnings as errors" OFF)

set(VOX_SANITIZE "" CACHE STRING "Sanitizers for the whole build, for example address;undefined")
set(VOX_HOST "vox::host" CACHE STRING "Target that supplies the host's symbols: everything links this one")
set(VOX_HOST_PACKAGE "" CACHE STRING "Package that defines VOX_HOST; empty when the target is in this tree")
set(VOX_TEST_HOST "" CACHE FILEPATH "Of another host: source that implements tests/anyhost/TestHost.h for it")

set(decksOfThePackage /usr/share/doc/calculix-ccx-test/examples/test)
set(VOX_DECKS ${decksOfThePackage} CACHE PATH "Folder of the real decks (.inp, .inp.gz) that tests walk")

if(PROJECT_IS_TOP_LEVEL)
  set(CMAKE_CXX_STANDARD 20)
  set(CMAKE_CXX_STANDARD_REQUIRED ON)
  set(CMAKE_CXX_EXTENSIONS OFF)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
  if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
  endif()
endif()
