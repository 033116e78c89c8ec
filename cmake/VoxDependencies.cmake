# SPDX-License-Identifier: MIT
# Packages from outside. The contracts and the library need none, but for a host from outside (VoxHost.cmake).

if(VOX_BUILD_VOXBENCH)
  find_package(CLI11 CONFIG REQUIRED)
  find_package(nlohmann_json CONFIG REQUIRED)
  find_package(fmt CONFIG REQUIRED)
  find_package(ZLIB REQUIRED)
  find_package(SQLite3 REQUIRED)
endif()

if(VOX_BUILD_TESTS)
  find_package(GTest CONFIG REQUIRED)
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

if(VOX_BUILD_BENCHMARKS)
  find_package(benchmark CONFIG REQUIRED)
endif()
