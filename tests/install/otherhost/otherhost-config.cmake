# SPDX-License-Identifier: MIT
# Beside the sources of the library the contracts are there already; anywhere else they are the installed ones.
include(CMakeFindDependencyMacro)
if(NOT TARGET vox::contracts)
  find_dependency(VOXAnalysisResources CONFIG COMPONENTS contracts)
endif()
include(${CMAKE_CURRENT_LIST_DIR}/otherhost-targets.cmake)
