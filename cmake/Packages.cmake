# What `cpack` makes of the build folder:
#   cpack -G DEB                                  Debian packages: the libraries, what builds with them, the tool, and the
#                                                 window where it is built
#   cpack --config CPackSourceConfig.cmake -G TGZ an archive of the files that are committed
# A package's files lie below /usr.

string(TOLOWER ${PROJECT_NAME} CPACK_PACKAGE_NAME)
set(CPACK_PACKAGE_VENDOR "styleproperties developers")
set(CPACK_PACKAGE_CONTACT "styleproperties developers <styleproperties@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime dev tools)
if(TARGET styleprops-desktop)
    list(APPEND CPACK_COMPONENTS_ALL desktop)
endif()
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_THREADS 2)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The tools need the library of the same build, which is not installed while they are packed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libstyleproperties0)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "For whatever is selected in a vector drawing, the library answers row by row:
what is the value, does it differ, is it set locally or inherited, and from
which style? This package has the library and a host that works on
OpenDocument drawings.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libstyleproperties-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "libstyleproperties0 (= ${PROJECT_VERSION}), libpugixml-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "styleprops, cmake, pkg-config, libgmock-dev")
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "What one needs to write a panel, a host or a program with the library:
headers, static libraries, a CMake package and pkg-config files.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME styleprops)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "libstyleproperties0 (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
    "For each shape of an OpenDocument drawing, styleprops shows which values are
local, inherited or ambiguous, and it changes them: values, overrides, named
styles and presets. The panels of the library come with it.")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME styleprops-desktop)
set(CPACK_DEBIAN_DESKTOP_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS "styleprops (= ${PROJECT_VERSION})")
# The dialogs of the toolkit speak German with it.
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_DESKTOP_DESCRIPTION
    "A window on an OpenDocument drawing: it shows for the selected shapes which
values are local, inherited or ambiguous, and where they come from, and changes
them. Its panels are those of the command line tool.")

# Debian wants the licence where each package keeps its words.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
        RENAME copyright COMPONENT ${component})
endforeach()

set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION})
set(CPACK_SOURCE_INSTALLED_DIRECTORIES "${PROJECT_BINARY_DIR}/committed;/")
# The source archive's name of its folder; a script of cpack fills "committed" when the archive is made.
configure_file(cmake/CommittedFiles.cmake.in ${PROJECT_BINARY_DIR}/CommittedFiles.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/CommittedFiles.cmake)

include(CPack)
