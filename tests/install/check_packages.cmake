# SPDX-License-Identifier: MIT
# There are four packages, and lintian finds no error in them.
file(GLOB packages ${PACKAGES}/*.deb)
list(LENGTH packages count)
if(NOT count EQUAL 4)
  message(FATAL_ERROR "Expected the packages runtime, dev, tools and doc; got ${packages}")
endif()
execute_process(COMMAND lintian --allow-root --fail-on error --tag-display-limit 0 ${packages} COMMAND_ERROR_IS_FATAL ANY)
