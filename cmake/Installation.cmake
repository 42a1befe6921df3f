# What `cmake --install` puts where. Everything finds everything else by relative paths, so that the installed folder
# can be moved. Panels install themselves, see panels/CMakeLists.txt.

include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/styleproperties)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/StyleProperties)

if(APPLE)
    set(origin "@loader_path")
else()
    set(origin "$ORIGIN")
endif()
file(RELATIVE_PATH librariesFromPrograms /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})

# The libraries: a package of two components, each with its export set.
set_target_properties(styleproperties_host PROPERTIES EXPORT_NAME Host)
set_target_properties(styleproperties PROPERTIES EXPORT_NAME Library INSTALL_RPATH "${origin}")
set_target_properties(styleproperties_reference_host PROPERTIES EXPORT_NAME ReferenceHost INSTALL_RPATH "${origin}")
add_library(StyleProperties::Host ALIAS styleproperties_host)
add_library(StyleProperties::Library ALIAS styleproperties)
add_library(StyleProperties::ReferenceHost ALIAS styleproperties_reference_host)

# What one needs to use the reference host as it is; how it is made stays here.
target_sources(styleproperties_reference_host PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    reference_host/data_binding/DataSourceLifetime.h
    reference_host/data_binding/UiThread.h
    reference_host/document/DocumentError.h
    reference_host/document/Drawing.h
    reference_host/document/DrawingObject.h
    reference_host/document/DrawingPage.h
    reference_host/document/PropertyMapping.h
    reference_host/document/TextUnit.h
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

install(TARGETS styleproperties_host styleproperties EXPORT StylePropertiesLibrary
    FILE_SET HEADERS DESTINATION ${headers})
install(TARGETS styleproperties_reference_host EXPORT StylePropertiesReferenceHost
    FILE_SET HEADERS DESTINATION ${headers})
foreach(component Library ReferenceHost)
    install(EXPORT StyleProperties${component} NAMESPACE StyleProperties:: DESTINATION ${package})
endforeach()

configure_package_config_file(cmake/StylePropertiesConfig.cmake.in ${PROJECT_BINARY_DIR}/StylePropertiesConfig.cmake
    INSTALL_DESTINATION ${package})
# Before 1.0.0 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/StylePropertiesConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/StylePropertiesConfig.cmake
    ${PROJECT_BINARY_DIR}/StylePropertiesConfigVersion.cmake
    DESTINATION ${package})

# The same for pkg-config.
file(RELATIVE_PATH prefixFromPkgConfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(name styleproperties styleproperties-reference-host)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

# The programs.
if(TARGET styleprops)
    set_target_properties(styleprops PROPERTIES INSTALL_RPATH "${origin}/${librariesFromPrograms}")
    install(TARGETS styleprops)
endif()
