# SPDX-License-Identifier: MIT
# Writes OUTPUT, one source for the compiler of several files of test cases: what they include is read once instead of
# once per file. Each file stands in a namespace of its own, so that their names do not meet.
#
#   cmake -DOUTPUT=batch.cpp "-DSOURCES=a_test.cpp b_test.cpp" -P BatchCases.cmake
separate_arguments(SOURCES)
set(headers "")
set(declared "")
set(files "")
set(number 0)
foreach(source IN LISTS SOURCES)
  cmake_path(GET source PARENT_PATH folder)
  file(STRINGS ${source} lines REGEX "^#include ")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" header "${line}")
    if(EXISTS ${folder}/${header})
      set(line "#include \"${folder}/${header}\"")
    endif()
    list(APPEND headers "${line}")
  endforeach()

  # A namespace that a file opens again finds what the headers have in it.
  set(opened "")
  file(STRINGS ${source} namespaces REGEX "^namespace [A-Za-z_]+$")
  list(REMOVE_DUPLICATES namespaces)
  foreach(line IN LISTS namespaces)
    string(REPLACE "namespace " "" name "${line}")
    string(APPEND opened "namespace ${name}\n{\nusing namespace ::${name};\n}\n")
    string(APPEND declared "namespace ${name}\n{\n}\n")
  endforeach()

  math(EXPR number "${number} + 1")
  string(APPEND files "\nnamespace file_${number}\n{\n${opened}#include \"${source}\"\n}\n")
endforeach()
list(REMOVE_DUPLICATES headers)
list(JOIN headers "\n" headers)
file(WRITE ${OUTPUT} "${headers}\n\n${declared}${files}")
