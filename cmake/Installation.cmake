# What `cmake --install` puts where. Everything finds everything else by relative paths, so that the installed folder
# can be moved. Panel modules install themselves, see panels/CMakeLists.txt.
#
# Four installation components: "runtime" has the shared libraries, "dev" what one needs to build with them, "tools" the
# command line tool with the panels, and "desktop", where it is built, the window.

include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/styleproperties)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/StyleProperties)

if(APPLE)
    set(origin "@loader_path")
else()
    set(origin "$ORIGIN")
endif()
file(RELATIVE_PATH librariesFromPrograms /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})

# The libraries: a package of four components, each with its export set.
set_target_properties(styleproperties_host PROPERTIES EXPORT_NAME Host)
set_target_properties(styleproperties PROPERTIES EXPORT_NAME Library INSTALL_RPATH "${origin}")
set_target_properties(styleproperties_reference_host PROPERTIES EXPORT_NAME ReferenceHost INSTALL_RPATH "${origin}")
add_library(StyleProperties::Host ALIAS styleproperties_host)
add_library(StyleProperties::Library ALIAS styleproperties)
set_target_properties(styleproperties_panels PROPERTIES EXPORT_NAME Panels)
set_target_properties(styleproperties_workbench PROPERTIES EXPORT_NAME Workbench)
add_library(StyleProperties::ReferenceHost ALIAS styleproperties_reference_host)
add_library(StyleProperties::Panels ALIAS styleproperties_panels)
add_library(StyleProperties::Workbench ALIAS styleproperties_workbench)

# What one needs to use the reference host as it is; how it is made stays here.
target_sources(styleproperties_reference_host PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    reference_host/data_binding/DataSourceLifetime.h
    reference_host/data_binding/UiThread.h
    reference_host/document/DocumentError.h
    reference_host/document/Drawing.h
    reference_host/document/DrawingObject.h
    reference_host/document/DrawingPage.h
    reference_host/document/OverwriteRefusal.h
    reference_host/document/Progress.h
    reference_host/document/PropertyMapping.h
    reference_host/document/TextUnit.h
    reference_host/document/picture/Definitions.h
    reference_host/document/picture/DrawingPicture.h
    reference_host/document/picture/Geometry.h
    reference_host/history/History.h
    reference_host/preset_store/PresetPicture.h
    reference_host/preset_store/PresetReports.h
    reference_host/resources/Language.h
    reference_host/services/ActiveStyleSource.h
    reference_host/services/Application.h
    reference_host/services/DataContext.h
    reference_host/services/DocumentStylesSource.h
    reference_host/services/HostObject.h
    reference_host/services/DialogService.h
    reference_host/services/IDialogFrontEnd.h
    reference_host/services/IDocumentEditor.h
    reference_host/services/IDocumentStyles.h
    reference_host/services/Idle.h
    reference_host/services/LoadedModule.h
    reference_host/services/PresetManager.h
    reference_host/services/StylesApplication.h
    reference_host/services/UserFolders.h
    reference_host/services/UserInterface.h
    reference_host/style_model/CategoryRegistry.h
    reference_host/style_model/IStyleJournal.h
    reference_host/style_model/NamedStyleSheet.h)

# What a panel is made of.
target_sources(styleproperties_panels PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    panels/PanelDatasource.h
    panels/PanelInterface.h
    panels/PanelRegistration.h
    panels/PanelRow.h
    panels/PresetSubscription.h
    panels/SourceGroup.h
    panels/ValueOrigin.h)

# What a program needs to open a drawing with its panels; how they are put together stays here.
target_sources(styleproperties_workbench PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    apps/workbench/Change.h
    apps/workbench/DrawingStyles.h
    apps/workbench/EditError.h
    apps/workbench/Editor.h
    apps/workbench/IDialogAnswers.h
    apps/workbench/LibraryIntroduction.h
    apps/workbench/NamedStyleEditor.h
    apps/workbench/Panel.h
    apps/workbench/PanelDescription.h
    apps/workbench/PanelDialogs.h
    apps/workbench/PanelFolder.h
    apps/workbench/PanelModule.h
    apps/workbench/PanelReading.h
    apps/workbench/Report.h
    apps/workbench/Selection.h
    apps/workbench/SelectionSearch.h
    apps/workbench/Selector.h
    apps/workbench/Session.h
    apps/workbench/StyleList.h
    apps/workbench/StylePick.h
    apps/workbench/TargetHandover.h
    apps/workbench/UsageError.h)

# styleproperties_install_library(COMPONENT TARGET...): as the component of the CMake package with that name.
function(styleproperties_install_library component)
    install(TARGETS ${ARGN} EXPORT StyleProperties${component}
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT dev
        RUNTIME COMPONENT runtime
        ARCHIVE COMPONENT dev
        FILE_SET HEADERS DESTINATION ${headers} COMPONENT dev)
    install(EXPORT StyleProperties${component} NAMESPACE StyleProperties:: DESTINATION ${package} COMPONENT dev)
endfunction()

styleproperties_install_library(Library styleproperties_host styleproperties)
styleproperties_install_library(ReferenceHost styleproperties_reference_host)
styleproperties_install_library(Panels styleproperties_panels)
styleproperties_install_library(Workbench styleproperties_workbench)

set(panels ${CMAKE_INSTALL_LIBDIR}/styleproperties/panels)
configure_package_config_file(cmake/StylePropertiesConfig.cmake.in ${PROJECT_BINARY_DIR}/StylePropertiesConfig.cmake
    INSTALL_DESTINATION ${package})
# Before 1.0.0 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/StylePropertiesConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/StylePropertiesConfig.cmake
    ${PROJECT_BINARY_DIR}/StylePropertiesConfigVersion.cmake
    cmake/StylePropertiesAddPanel.cmake
    panels/PanelExports.map
    DESTINATION ${package} COMPONENT dev)

# The same for pkg-config.
file(RELATIVE_PATH prefixFromPkgConfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(name styleproperties styleproperties-reference-host styleproperties-panels styleproperties-workbench)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endforeach()

# The texts by their keys, for whoever writes a host: here they are compiled in.
install(FILES
    ${PROJECT_SOURCE_DIR}/reference_host/resources/catalogues/en.catalogue
    ${PROJECT_SOURCE_DIR}/reference_host/resources/catalogues/de.catalogue
    DESTINATION ${CMAKE_INSTALL_DATADIR}/styleproperties/catalogues COMPONENT dev)

# The programs.
function(styleproperties_install_program program component)
    if(TARGET ${program})
        set_target_properties(${program} PROPERTIES INSTALL_RPATH "${origin}/${librariesFromPrograms}")
        install(TARGETS ${program} RUNTIME COMPONENT ${component})
    endif()
endfunction()

styleproperties_install_program(styleprops tools)
styleproperties_install_program(styleprops-desktop desktop)
