# SPDX-License-Identifier: MIT
# Links the library against a host that lacks one symbol: the linker must say which. Works on what another_host.cmake left
# behind in PLACE; called with CXX.
set(dropped "VOXSamIdentityEnum(char const*, VOXSamPosition&)")

file(GLOB_RECURSE hostObjects ${PLACE}/otherhost/CMakeFiles/otherhost.dir/*.o)
file(GLOB_RECURSE libraryObjects ${PLACE}/library/VOXAnalysisResources/CMakeFiles/VOXAnalysisResources.dir/*.o)
if(NOT hostObjects OR NOT libraryObjects)
  message(FATAL_ERROR "No objects below ${PLACE}: run the test install.another-host-builds-and-passes first.")
endif()

file(WRITE ${PLACE}/lacking/dropped.map "{ local: extern \"C++\" { \"${dropped}\"; }; };\n")
execute_process(
  COMMAND ${CXX} -shared -o ${PLACE}/lacking/libotherhost.so ${hostObjects}
          -Wl,--version-script=${PLACE}/lacking/dropped.map COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${CXX} -shared -Wl,-z,defs -o ${PLACE}/lacking/library.so ${libraryObjects} ${PLACE}/lacking/libotherhost.so
  RESULT_VARIABLE result ERROR_VARIABLE said)
if(result EQUAL 0)
  message(FATAL_ERROR "The library was linked although its host lacks ${dropped}")
endif()

string(REGEX MATCHALL "undefined reference to `[^']*'" missing "${said}")
list(REMOVE_DUPLICATES missing)
if(NOT missing STREQUAL "undefined reference to `${dropped}'")
  message(FATAL_ERROR "Not exactly ${dropped} is said to be missing:\n${said}")
endif()
