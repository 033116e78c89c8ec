# SPDX-License-Identifier: MIT
# The one switch between hosts. VOX_HOST is the target that everything links: the reference host of this tree, or one from
# outside, which the package VOX_HOST_PACKAGE defines or the project around this one.
#
# Built against another host are the contracts, the library, and the tests that need nothing but these two. The workbench,
# the benchmarks and all other tests work with the reference host's own classes and are left out.

set(VOX_TESTS_OF_ANY_HOST contracts abi headers anyhost) # folders of tests/

if(VOX_HOST STREQUAL "vox::host")
  set(VOX_HOST_IS_ANOTHER OFF)
else()
  set(VOX_HOST_IS_ANOTHER ON)
  set(VOX_BUILD_VOXBENCH OFF)
  set(VOX_BUILD_BENCHMARKS OFF)
endif()

# Adds the reference host, or finds the other one. Called behind the contracts, which a host's package refers to.
macro(vox_add_host)
  if(VOX_HOST_IS_ANOTHER)
    if(VOX_HOST_PACKAGE)
      find_package(${VOX_HOST_PACKAGE} CONFIG REQUIRED)
    endif()
    if(NOT TARGET ${VOX_HOST})
      message(
        FATAL_ERROR
          "VOX_HOST names no target: ${VOX_HOST}\n"
          "It must be the target that supplies the host's symbols. Name the package that defines it with "
          "-DVOX_HOST_PACKAGE=<package>, and the folder that the package is installed in with "
          "-DCMAKE_PREFIX_PATH=<folder>. Without -DVOX_HOST the reference host of this tree is taken.")
    endif()
  else()
    vox_add_room(host)
  endif()
endmacro()
