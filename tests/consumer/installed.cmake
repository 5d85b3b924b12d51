# Builds and runs outside projects against the library installed in PREFIX, in every way that the
# README shows, and runs the installed programs. PREFIX is not where the library was built for.
#   PREFIX       the installed tree, and LIBDIR the folder of its libraries
#   ORVANE_SOURCE_DIR  this project's sources, and ORVANE_VERSION its version
#   PLACES       where it was built and installed first
#   BINARY_DIR   where the outside projects are built
#   GENERATOR    CMake's generator for them
#   CXX          the compiler, with its FLAGS
#   PROGRAMS     whether the programs are installed: ON or OFF
#   DESIGNER     whether the Qt Designer plugin is installed: ON or OFF
#   RPATH        whether they and the plugin find the library by themselves: ON or OFF
include(${CMAKE_CURRENT_LIST_DIR}/step.cmake)
set(source ${CMAKE_CURRENT_LIST_DIR})
set(lib ${PREFIX}/${LIBDIR})
separate_arguments(flags UNIX_COMMAND "${FLAGS}")

# Every header of the library's folder is public and installed, and nothing else is.
file(GLOB expected RELATIVE ${ORVANE_SOURCE_DIR}/src/libs/orvanecontrols
    ${ORVANE_SOURCE_DIR}/src/libs/orvanecontrols/*.h)
file(GLOB_RECURSE headers RELATIVE ${PREFIX}/include/orvanecontrols ${PREFIX}/include/*)
if(NOT headers STREQUAL expected)
    message(FATAL_ERROR "installed headers: ${headers}\nexpected: ${expected}")
endif()

# No installed text names a place of the machine that it was built on.
file(GLOB_RECURSE texts ${lib}/*.cmake ${lib}/*.pc ${lib}/*.prf ${PREFIX}/include/*.h)
foreach(text ${texts})
    file(READ ${text} content)
    foreach(place ${ORVANE_SOURCE_DIR} ${PLACES})
        string(FIND "${content}" "${place}" at)
        if(NOT at EQUAL -1)
            message(FATAL_ERROR "${text} names ${place}")
        endif()
    endforeach()
endforeach()

file(REMOVE_RECURSE ${BINARY_DIR})
file(MAKE_DIRECTORY ${BINARY_DIR}/pkgconfig ${BINARY_DIR}/qmake)

# find_package; the program finds the library by the path that CMake gives it.
step(${CMAKE_COMMAND} -S ${source} -B ${BINARY_DIR}/cmake -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${PREFIX} -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_CXX_FLAGS=${FLAGS})
load_cache(${BINARY_DIR}/cmake READ_WITH_PREFIX found_ OrvaneControls_DIR)
if(NOT found_OrvaneControls_DIR STREQUAL ${lib}/cmake/OrvaneControls)
    message(FATAL_ERROR "find_package took ${found_OrvaneControls_DIR}")
endif()
step(${CMAKE_COMMAND} --build ${BINARY_DIR}/cmake)
step(${BINARY_DIR}/cmake/host)

# A host that asks for another major version is refused.
file(WRITE ${BINARY_DIR}/refused/CMakeLists.txt
    "cmake_minimum_required(VERSION 3.18)\nproject(refused LANGUAGES NONE)\n"
    "find_package(OrvaneControls 2.0 QUIET PATHS ${lib}/cmake/OrvaneControls NO_DEFAULT_PATH)\n"
    "if(OrvaneControls_FOUND OR NOT OrvaneControls_CONSIDERED_VERSIONS STREQUAL ${ORVANE_VERSION})\n"
    "    message(FATAL_ERROR \"2.0: \${OrvaneControls_CONSIDERED_VERSIONS}\")\nendif()\n")
step(${CMAKE_COMMAND} -S ${BINARY_DIR}/refused -B ${BINARY_DIR}/refused/build -G ${GENERATOR})

set(ENV{LD_LIBRARY_PATH} ${lib})

# pkg-config and one call of the compiler
set(ENV{PKG_CONFIG_PATH} ${lib}/pkgconfig)
step(pkg-config --modversion orvanecontrols)
if(NOT output STREQUAL "${ORVANE_VERSION}\n")
    message(FATAL_ERROR "pkg-config tells the version ${output}")
endif()
step(pkg-config --cflags --libs orvanecontrols)
separate_arguments(package UNIX_COMMAND "${output}")
step(${CXX} ${flags} ${source}/main.cpp -o ${BINARY_DIR}/pkgconfig/host ${package})
step(${BINARY_DIR}/pkgconfig/host)

# Every installed header is complete.
list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n#include <orvanecontrols/\\1>\n"
    OUTPUT_VARIABLE includes)
string(REPLACE ";" "" includes "${includes}")
file(WRITE ${BINARY_DIR}/pkgconfig/headers.cpp "${includes}")
step(${CXX} -fsyntax-only -Wall -Wextra -Werror ${BINARY_DIR}/pkgconfig/headers.cpp ${package})

# qmake
find_program(QMAKE qmake HINTS /usr/lib/qt5/bin)
set(ENV{QMAKEPATH} ${lib}/qt5)
step(${QMAKE} -o ${BINARY_DIR}/qmake/Makefile ${source}/host.pro
    "QMAKE_CXX=${CXX}" "QMAKE_LINK=${CXX}" "QMAKE_CXXFLAGS+=${FLAGS}" "QMAKE_LFLAGS+=${FLAGS}")
step(make -C ${BINARY_DIR}/qmake)
step(${BINARY_DIR}/qmake/host)

# Programs and plugin
if(RPATH)
    unset(ENV{LD_LIBRARY_PATH})
endif()
if(PROGRAMS)
    foreach(program orvane-wall orvane-gallery)
        step(${PREFIX}/bin/${program} --version)
        if(NOT output STREQUAL "${program} ${ORVANE_VERSION}\n")
            message(FATAL_ERROR "${program} tells the version ${output}")
        endif()
        # Its manual page describes each option.
        step(${PREFIX}/bin/${program} --help)
        string(REGEX MATCHALL "--[a-z]+" options "${output}")
        step(gzip -dc ${PREFIX}/share/man/man1/${program}.1.gz)
        string(REPLACE "\\-" "-" page "${output}")
        foreach(option ${options})
            if(NOT page MATCHES "\n[^\n]*${option}")
                message(FATAL_ERROR "the manual page of ${program} lacks ${option}")
            endif()
        endforeach()
    endforeach()
endif()

# A program that is not linked to the library loads a form by the plugin.
if(DESIGNER)
    step(${CMAKE_COMMAND} -S ${source}/formloader -B ${BINARY_DIR}/formloader -G ${GENERATOR}
        -D CMAKE_CXX_COMPILER=${CXX} -D CMAKE_CXX_FLAGS=${FLAGS})
    step(${CMAKE_COMMAND} --build ${BINARY_DIR}/formloader)
    step(${BINARY_DIR}/formloader/formloader ${lib}/qt5/plugins/designer)
    if(NOT output STREQUAL "CheckBoxEx Mirror the wall\n")
        message(FATAL_ERROR "the loaded form holds ${output}")
    endif()
endif()
