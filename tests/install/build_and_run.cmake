# SPDX-License-Identifier: MIT
# Builds the project PROJECT against PLACE/HOW in a folder of its own and runs its tests.
cmake_path(GET PROJECT FILENAME name)
set(prefix ${PLACE}/${HOW})
if(HOW STREQUAL "packages")
  set(prefix ${prefix}/usr)
endif()
set(work ${PLACE}/projects/${name}-${HOW})
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})
set(ENV{CXX} ${CXX})
set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR}) # packages lie where the system looks, and have no search paths of their own

if(EXISTS ${PROJECT}/Makefile)
  set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
  execute_process(COMMAND make --no-print-directory -f ${PROJECT}/Makefile SOURCE=${PROJECT}/../program/main.cpp
                  WORKING_DIRECTORY ${work} COMMAND_ERROR_IS_FATAL ANY)
  return()
endif()

if(VOX_SOURCES)
  set(from -DVOX_SOURCES=${VOX_SOURCES} -DVOX_UNITY=ON -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
  unset(ENV{LD_LIBRARY_PATH})
else()
  set(from -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_FIND_USE_SYSTEM_PACKAGE_REGISTRY=OFF)
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -G Ninja -S ${PROJECT} -B ${work} ${from}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${work} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_CTEST_COMMAND} --test-dir ${work} --output-on-failure --no-tests=error
                COMMAND_ERROR_IS_FATAL ANY)
