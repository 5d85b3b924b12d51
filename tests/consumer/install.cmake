# Installs BUILD_DIR into SCRATCH_DIR, moves the tree away from where it was installed, and builds
# the outside projects against it: see installed.cmake for the other arguments.
cmake_minimum_required(VERSION 3.18)
include(${CMAKE_CURRENT_LIST_DIR}/step.cmake)
file(REMOVE_RECURSE ${SCRATCH_DIR})
step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${SCRATCH_DIR}/installed)
file(RENAME ${SCRATCH_DIR}/installed ${SCRATCH_DIR}/moved)
set(PREFIX ${SCRATCH_DIR}/moved)
set(PLACES ${BUILD_DIR} ${SCRATCH_DIR})
set(BINARY_DIR ${SCRATCH_DIR}/build)
include(${CMAKE_CURRENT_LIST_DIR}/installed.cmake)
file(REMOVE_RECURSE ${PREFIX})
