# SPDX-License-Identifier: MIT
# Rooms: the folders of the repository that build something.

# vox_add_room(<folder> [CXX_STANDARD <n>])
#   Adds the folder once, when it has a CMakeLists.txt. CXX_STANDARD is the room's default language standard.
function(vox_add_room folder)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "CXX_STANDARD" "")
  cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} OUTPUT_VARIABLE path)
  get_property(added GLOBAL PROPERTY VOX_ROOMS)
  if(path IN_LIST added OR NOT EXISTS ${path}/CMakeLists.txt)
    return()
  endif()
  set_property(GLOBAL APPEND PROPERTY VOX_ROOMS ${path})
  if(room_CXX_STANDARD)
    set(CMAKE_CXX_STANDARD ${room_CXX_STANDARD})
  endif()
  add_subdirectory(${path})
endfunction()

# vox_add_rooms_below()
#   Adds every folder of the current one that has a CMakeLists.txt: a new folder needs no entry in a list.
function(vox_add_rooms_below)
  file(GLOB lists CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*/CMakeLists.txt)
  foreach(list IN LISTS lists)
    cmake_path(GET list PARENT_PATH folder)
    vox_add_room(${folder})
  endforeach()
endfunction()

# vox_compile_together(<target>): sources of the target in batches, when VOX_UNITY asks for it. Names in their unnamed
# namespaces must not meet.
function(vox_compile_together target)
  if(VOX_UNITY)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
  endif()
endfunction()
