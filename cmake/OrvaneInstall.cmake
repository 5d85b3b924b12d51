# What cmake --install puts where, by component: Runtime is the shared library, Development what a
# host is built with, Tools the programs, Designer the Qt Designer plugin. Every installed file
# finds the others from its own place, so an installed tree can be moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ORVANE_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/OrvaneControls CACHE STRING
    "Where the CMake package is installed")
set(ORVANE_INSTALL_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig CACHE STRING
    "Where the pkg-config file is installed")
# In Qt's own prefix this is where its qmake looks, see qmake -query QT_HOST_DATA.
set(ORVANE_INSTALL_QMAKEDIR ${CMAKE_INSTALL_LIBDIR}/qt5/mkspecs/features CACHE STRING
    "Where qmake's feature file is installed")
# In Qt's own prefix this is where Qt Designer looks, see qmake -query QT_INSTALL_PLUGINS.
set(ORVANE_INSTALL_DESIGNERDIR ${CMAKE_INSTALL_LIBDIR}/qt5/plugins/designer CACHE STRING
    "Where the Qt Designer plugin is installed")

foreach(folder BINDIR LIBDIR INCLUDEDIR)
    if(IS_ABSOLUTE ${CMAKE_INSTALL_${folder}})
        message(FATAL_ERROR "CMAKE_INSTALL_${folder} has to be relative to the prefix")
    endif()
endforeach()

# orvane_way(VARIABLE FROM TO): the way from one installed folder to another, as "../../lib".
# Empty and "." mean the prefix itself.
function(orvane_way variable from to)
    file(RELATIVE_PATH way /prefix/${from} /prefix/${to})
    string(REGEX REPLACE "/$" "" way "${way}")
    set(${variable} ${way} PARENT_SCOPE)
endfunction()

# orvane_compress(FILE TARGET): packs what Debian wants packed, with gzip to the same bytes each time.
find_program(ORVANE_GZIP gzip)
function(orvane_compress file target)
    if(ORVANE_GZIP)
        execute_process(COMMAND ${ORVANE_GZIP} -9nc ${file} OUTPUT_FILE ${target})
    else()
        file(ARCHIVE_CREATE OUTPUT ${target} PATHS ${file} FORMAT raw COMPRESSION GZip)
    endif()
endfunction()

# The library
target_include_directories(orvanecontrols PUBLIC
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/orvanecontrols>
)
install(TARGETS orvanecontrols EXPORT OrvaneControls
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
)

# The headers
get_target_property(public_headers orvanecontrols ORVANE_PUBLIC_HEADERS)
list(TRANSFORM public_headers PREPEND ${PROJECT_SOURCE_DIR}/src/libs/orvanecontrols/)
install(FILES ${public_headers}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvanecontrols COMPONENT Development)

# find_package(OrvaneControls 1.0)
set_target_properties(orvanecontrols PROPERTIES EXPORT_NAME OrvaneControls)
install(EXPORT OrvaneControls
    NAMESPACE OrvaneControls:: FILE OrvaneControlsTargets.cmake
    DESTINATION ${ORVANE_INSTALL_CMAKEDIR} COMPONENT Development)
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/OrvaneControlsConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/package/OrvaneControlsConfig.cmake
    INSTALL_DESTINATION ${ORVANE_INSTALL_CMAKEDIR}
    NO_SET_AND_CHECK_MACRO
)
write_basic_package_version_file(
    ${CMAKE_CURRENT_BINARY_DIR}/package/OrvaneControlsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion
)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/package/OrvaneControlsConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/package/OrvaneControlsConfigVersion.cmake
    DESTINATION ${ORVANE_INSTALL_CMAKEDIR} COMPONENT Development)

# pkg-config orvanecontrols
orvane_way(ORVANE_PKGCONFIG_TO_PREFIX ${ORVANE_INSTALL_PKGCONFIGDIR} .)
configure_file(
    ${CMAKE_CURRENT_LIST_DIR}/orvanecontrols.pc.in
    ${CMAKE_CURRENT_BINARY_DIR}/package/orvanecontrols.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/orvanecontrols.pc
    DESTINATION ${ORVANE_INSTALL_PKGCONFIGDIR} COMPONENT Development)

# qmake: CONFIG += orvanecontrols
orvane_way(ORVANE_QMAKE_TO_PREFIX ${ORVANE_INSTALL_QMAKEDIR} .)
configure_file(
    ${CMAKE_CURRENT_LIST_DIR}/orvanecontrols.prf.in
    ${CMAKE_CURRENT_BINARY_DIR}/package/orvanecontrols.prf @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/package/orvanecontrols.prf
    DESTINATION ${ORVANE_INSTALL_QMAKEDIR} COMPONENT Development)

# The programs
if(ORVANE_BUILD_APPS)
    orvane_way(bin_to_lib ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR})
    set_target_properties(gallery orvane-wall PROPERTIES INSTALL_RPATH $ORIGIN/${bin_to_lib})
    install(TARGETS gallery orvane-wall
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Tools)

    foreach(page wall/orvane-wall.1 gallery/orvane-gallery.1)
        set(text ${CMAKE_CURRENT_BINARY_DIR}/package/${page})
        configure_file(${PROJECT_SOURCE_DIR}/src/apps/${page}.in ${text} @ONLY)
        orvane_compress(${text} ${text}.gz)
        install(FILES ${text}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Tools)
    endforeach()
    install(FILES ${PROJECT_SOURCE_DIR}/src/apps/wall/orvane-wall.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Tools)
    install(FILES ${PROJECT_SOURCE_DIR}/src/apps/common/host/logo.svg RENAME orvane-wall.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT Tools)
endif()

# The Qt Designer plugin
if(ORVANE_BUILD_DESIGNER)
    orvane_way(designer_to_lib ${ORVANE_INSTALL_DESIGNERDIR} ${CMAKE_INSTALL_LIBDIR})
    set_target_properties(orvanecontrolsdesigner PROPERTIES INSTALL_RPATH $ORIGIN/${designer_to_lib})
    install(TARGETS orvanecontrolsdesigner
        LIBRARY DESTINATION ${ORVANE_INSTALL_DESIGNERDIR} COMPONENT Designer)
endif()
