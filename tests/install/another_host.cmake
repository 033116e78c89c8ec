# SPDX-License-Identifier: MIT
# Builds a second host by itself against the installed contracts, then the library and its tests against that host, and
# runs them. Called with BUILD (this build tree), SOURCES (this source tree), PLACE (a folder to work in), CXX and
# LAUNCHER.
set(ENV{CTEST_OUTPUT_ON_FAILURE} 1)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
endfunction()

# Quick to compile matters more than quick to run.
set(common -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})

file(REMOVE_RECURSE ${PLACE}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD} --component contracts --prefix ${PLACE}/prefix)

run(${CMAKE_COMMAND} -S ${SOURCES}/tests/install/otherhost -B ${PLACE}/otherhost ${common}
    -DCMAKE_PREFIX_PATH=${PLACE}/prefix -DCMAKE_INSTALL_PREFIX=${PLACE}/prefix)
run(${CMAKE_COMMAND} --build ${PLACE}/otherhost --parallel 2 --target install)

run(${CMAKE_COMMAND} -S ${SOURCES} -B ${PLACE}/library ${common} -DVOX_WERROR=ON -DVOX_BUILD_TESTS=ON
    -DVOX_HOST=otherhost::host -DVOX_HOST_PACKAGE=otherhost -DCMAKE_PREFIX_PATH=${PLACE}/prefix
    -DVOX_TEST_HOST=${SOURCES}/tests/install/otherhost/TestHost.cpp)
run(${CMAKE_COMMAND} --build ${PLACE}/library --parallel 2)

# That headers compile alone is no matter of the host.
run(${CMAKE_CTEST_COMMAND} --test-dir ${PLACE}/library --no-tests=error --parallel 2 -LE "headers|slow")

# Installed beside that host, the library is found with it.
run(${CMAKE_COMMAND} --install ${PLACE}/library --prefix ${PLACE}/prefix)
run(${CMAKE_COMMAND} -S ${SOURCES}/tests/install/on_another_host -B ${PLACE}/user ${common}
    -DCMAKE_PREFIX_PATH=${PLACE}/prefix)
run(${CMAKE_COMMAND} --build ${PLACE}/user)
run(${CMAKE_CTEST_COMMAND} --test-dir ${PLACE}/user --no-tests=error)
