# The Debian packages that ./dev package makes by CPack: one a component.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvanecontrols)
set(CPACK_PACKAGE_VENDOR "The OrvaneControls authors")
set(CPACK_PACKAGE_CONTACT "The OrvaneControls authors <authors@orvanecontrols.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
# Each package's description has a first line of its own instead.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# A package depends on the libraries that its files are linked to, and on those of its siblings
# that orvane_package() names, in the same version.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src/libs/orvanecontrols)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# Debian's changelog names the release, and leaves what is new to the project's own.
set(ORVANE_DEBIAN_DIR ${CMAKE_CURRENT_LIST_DIR}/debian)
set(changelogs ${PROJECT_BINARY_DIR}/package)
string(TIMESTAMP build_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${ORVANE_DEBIAN_DIR}/changelog.in ${changelogs}/changelog.Debian @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${changelogs}/changelog COPYONLY)
foreach(changelog changelog changelog.Debian)
    orvane_compress(${changelogs}/${changelog} ${changelogs}/${changelog}.gz)
endforeach()

# orvane_package(COMPONENT PACKAGE SECTION SUMMARY DESCRIPTION [OTHER_COMPONENT ...])
macro(orvane_package component package section summary description)
    string(TOUPPER ${component} key)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section})
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${description}")
    set(CPACK_COMPONENT_${key}_DEPENDS ${ARGN})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} RENAME copyright COMPONENT ${component})
    install(FILES ${changelogs}/changelog.gz ${changelogs}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
endmacro()

orvane_package(Runtime liborvanecontrols${PROJECT_VERSION_MAJOR} libs
    "dark Qt 5 widgets for LED-wall configuration programs"
    "Restyled standard controls and, built on them, the panels on which an LED
wall is laid out. This package holds the shared library.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${ORVANE_DEBIAN_DIR}/triggers)
orvane_package(Development liborvanecontrols-dev libdevel
    "dark Qt 5 widgets for LED-wall configuration programs - development files"
    "Restyled standard controls and, built on them, the panels on which an LED
wall is laid out. This package holds the headers, a CMake package, a pkg-config
file and a qmake feature."
    Runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= 5.14)")
install(FILES ${ORVANE_DEBIAN_DIR}/liborvanecontrols-dev.lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME liborvanecontrols-dev
    COMPONENT Development)
if(ORVANE_BUILD_APPS)
    orvane_package(Tools orvane-tools graphics
        "LED-wall configurator and widget gallery"
        "The program orvane-wall lays out the cabinets of an LED wall on the ports of
its senders; orvane-gallery shows every widget of OrvaneControls in its states."
        Runtime)
    # The faces that the programs put in the place of the ones that the sheets name.
    set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS "fonts-inter, fonts-noto-cjk")
endif()
if(ORVANE_BUILD_DESIGNER)
    orvane_package(Designer liborvanecontrols-designer libdevel
        "dark Qt 5 widgets for LED-wall configuration programs - Qt Designer plugin"
        "Restyled standard controls and, built on them, the panels on which an LED
wall is laid out. This package shows them in the widget box of Qt Designer, and
lets programs load forms that hold them."
        Runtime)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS "qttools5-dev-tools")
endif()

include(CPack)
