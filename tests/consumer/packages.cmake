# Looks into the Debian packages of PACKAGE_DIR, unpacks them side by side into SCRATCH_DIR, and
# builds the outside projects against them there: see installed.cmake for the other arguments.
# BUILD_DIR is where they were made.
cmake_minimum_required(VERSION 3.18)
include(${CMAKE_CURRENT_LIST_DIR}/step.cmake)
set(root ${SCRATCH_DIR}/root)
file(REMOVE_RECURSE ${SCRATCH_DIR})
file(MAKE_DIRECTORY ${SCRATCH_DIR})
step(dpkg --print-architecture)
string(STRIP "${output}" architecture)

# check_package(NAME DEPENDS PATTERN ... FILES PATTERN): each of DEPENDS is depended on, and each
# file but the licence matches FILES.
function(check_package name)
    cmake_parse_arguments(PARSE_ARGV 1 expect "" "FILES" "DEPENDS")
    set(package ${PACKAGE_DIR}/${name}_${ORVANE_VERSION}-1_${architecture}.deb)
    step(dpkg-deb --field ${package} Depends)
    string(REGEX REPLACE ", |\n" ";" depends "${output}")
    foreach(pattern ${expect_DEPENDS})
        if(NOT ";${depends};" MATCHES ";${pattern}( \\(>= [^;]*\\))?;")
            message(FATAL_ERROR "${name} does not depend on ${pattern} but on ${depends}")
        endif()
    endforeach()
    step(dpkg-deb --field ${package} Description)
    if(NOT output MATCHES "^[^\n]+\n [^\n]+")
        message(FATAL_ERROR "${name} is described by '${output}'")
    endif()

    step(dpkg-deb --extract ${package} ${SCRATCH_DIR}/${name})
    step(dpkg-deb --extract ${package} ${root})
    file(GLOB_RECURSE files RELATIVE ${SCRATCH_DIR}/${name}/usr ${SCRATCH_DIR}/${name}/*)
    if(NOT share/doc/${name}/copyright IN_LIST files)
        message(FATAL_ERROR "${name} lacks its licence")
    endif()
    list(REMOVE_ITEM files share/doc/${name}/copyright)
    foreach(file ${files})
        if(NOT file MATCHES "^(${expect_FILES})$")
            message(FATAL_ERROR "${name} holds ${file}")
        endif()
    endforeach()
    set(checked ${checked} ${package} PARENT_SCOPE)
endfunction()

string(REPLACE "." "\\." version ${ORVANE_VERSION})
set(same_library "liborvanecontrols1 \\(= ${version}-1\\)")
check_package(liborvanecontrols1
    DEPENDS libc6 libstdc\\+\\+6 libqt5core5a libqt5gui5 libqt5widgets5
    FILES "${LIBDIR}/liborvanecontrols\\.so\\.(1|${version})")
check_package(liborvanecontrols-dev
    DEPENDS ${same_library} qtbase5-dev
    FILES "include/orvanecontrols/[a-z]+\\.h|${LIBDIR}/(liborvanecontrols\\.so|.*\\.(cmake|pc|prf))")
check_package(orvane-tools
    DEPENDS ${same_library} libc6 libqt5core5a libqt5gui5 libqt5widgets5
    FILES "bin/orvane-(wall|gallery)")
check_package(liborvanecontrols-designer
    DEPENDS ${same_library} libc6 libqt5core5a libqt5gui5
    FILES "${LIBDIR}/qt5/plugins/designer/liborvanecontrolsdesigner\\.so")
file(GLOB unknown ${PACKAGE_DIR}/*.deb)
list(REMOVE_ITEM unknown ${checked})
if(unknown)
    message(FATAL_ERROR "nothing is known here about ${unknown}")
endif()

# Nothing in them, programs included, names the place that they were built at.
execute_process(COMMAND grep -rlF -e ${ORVANE_SOURCE_DIR} -e ${BUILD_DIR} ${root}
    RESULT_VARIABLE status OUTPUT_VARIABLE output)
if(NOT status EQUAL 1)
    message(FATAL_ERROR "these name ${ORVANE_SOURCE_DIR}:\n${output}")
endif()

set(PREFIX ${root}/usr)
set(PLACES ${BUILD_DIR} ${SCRATCH_DIR})
set(BINARY_DIR ${SCRATCH_DIR}/build)
set(PROGRAMS ON)
set(DESIGNER ON)
set(RPATH OFF)
include(${CMAKE_CURRENT_LIST_DIR}/installed.cmake)
