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

# check_package(NAME DEPENDS PATTERN ... FILES PATTERN ...): each of DEPENDS is depended on; each of
# FILES matches a file, and each file but licence and changelogs matches one of them.
function(check_package name)
    cmake_parse_arguments(PARSE_ARGV 1 expect "" "" "DEPENDS;FILES")
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
    foreach(paper copyright changelog.gz changelog.Debian.gz)
        if(NOT share/doc/${name}/${paper} IN_LIST files)
            message(FATAL_ERROR "${name} lacks its ${paper}")
        endif()
        list(REMOVE_ITEM files share/doc/${name}/${paper})
    endforeach()
    foreach(pattern ${expect_FILES})
        set(others ${files})
        list(FILTER others EXCLUDE REGEX "^(${pattern})$")
        if(others STREQUAL files)
            message(FATAL_ERROR "${name} holds nothing like ${pattern}")
        endif()
        set(files ${others})
    endforeach()
    if(files)
        message(FATAL_ERROR "${name} holds ${files}")
    endif()
    set(checked ${checked} ${package} PARENT_SCOPE)
endfunction()

string(REPLACE "." "\\." version ${ORVANE_VERSION})
set(same_library "liborvanecontrols1 \\(= ${version}-1\\)")
check_package(liborvanecontrols1
    DEPENDS libc6 libstdc\\+\\+6 libqt5core5a libqt5gui5 libqt5widgets5
    FILES "${LIBDIR}/liborvanecontrols\\.so\\.1" "${LIBDIR}/liborvanecontrols\\.so\\.${version}")
step(dpkg-deb --info ${PACKAGE_DIR}/liborvanecontrols1_${ORVANE_VERSION}-1_${architecture}.deb triggers)
if(NOT output MATCHES "activate-noawait ldconfig")
    message(FATAL_ERROR "liborvanecontrols1 does not ask for ldconfig")
endif()
check_package(liborvanecontrols-dev
    DEPENDS ${same_library} qtbase5-dev
    FILES "include/orvanecontrols/[a-z]+\\.h" "${LIBDIR}/liborvanecontrols\\.so"
        "${LIBDIR}/cmake/OrvaneControls/.*\\.cmake" "${LIBDIR}/pkgconfig/orvanecontrols\\.pc"
        "${LIBDIR}/qt5/mkspecs/features/orvanecontrols\\.prf"
        "share/lintian/overrides/liborvanecontrols-dev")
check_package(orvane-tools
    DEPENDS ${same_library} libc6 libqt5core5a libqt5gui5 libqt5widgets5
    FILES "bin/orvane-wall" "bin/orvane-gallery" "share/man/man1/orvane-wall\\.1\\.gz"
        "share/man/man1/orvane-gallery\\.1\\.gz" "share/applications/orvane-wall\\.desktop"
        "share/icons/hicolor/scalable/apps/orvane-wall\\.svg")
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
