# SPDX-License-Identifier: MIT
# The ```cpp blocks of a page, in their order, as one source file; everything else becomes empty lines, so that a
# compiler's complaint names the line of the page.
#
#   cmake -DPAGE=page.md -DSOURCE=page.cpp -P extract_code.cmake
file(READ "${PAGE}" text)
string(REPLACE ";" "\\;" text "${text}")
string(REPLACE "[" "<bracket>" text "${text}")
string(REPLACE "]" "</bracket>" text "${text}")
string(REPLACE "\n" ";" lines "${text}")
set(code "// SPDX-License-Identifier: MIT\n#line 1 \"${PAGE}\"\n")
set(inside OFF)
foreach(line IN LISTS lines)
  if(line STREQUAL "```cpp")
    set(inside ON)
    set(line "")
  elseif(line STREQUAL "```")
    set(inside OFF)
  endif()
  if(NOT inside)
    set(line "")
  endif()
  string(APPEND code "${line}\n")
endforeach()
string(REPLACE "</bracket>" "]" code "${code}")
string(REPLACE "<bracket>" "[" code "${code}")
file(WRITE "${SOURCE}" "${code}")
