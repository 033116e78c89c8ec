# SPDX-License-Identifier: MIT
# Fills PLACE/HOW from the build folder BUILD: prefix, moved-prefix or packages.
set(target ${PLACE}/${HOW})
file(REMOVE_RECURSE ${target})

if(HOW STREQUAL "packages")
  file(REMOVE_RECURSE ${BUILD}/packages)
  execute_process(COMMAND ${CMAKE_CPACK_COMMAND} -G DEB -C ${CONFIG} WORKING_DIRECTORY ${BUILD} COMMAND_ERROR_IS_FATAL ANY)
  file(GLOB packages ${BUILD}/packages/*.deb)
  foreach(package IN LISTS packages)
    execute_process(COMMAND dpkg-deb --extract ${package} ${target} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
else()
  set(first ${target})
  if(HOW STREQUAL "moved-prefix")
    set(first ${PLACE}/before-the-move)
    file(REMOVE_RECURSE ${first})
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${first}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  if(NOT first STREQUAL target)
    file(RENAME ${first} ${target})
  endif()
endif()
