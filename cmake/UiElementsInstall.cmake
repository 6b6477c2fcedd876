# What is installed besides the library and its headers: the data, and the two descriptions of the library by which hosts
# find it. Both work out their paths from where they lie, so an installed tree may be moved as a whole.

include(CMakePackageConfigHelpers)

set(UIELEMENTS_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/UiElements)
set(UIELEMENTS_INSTALL_CONFIGDIR ${UIELEMENTS_INSTALL_DATADIR}/config)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/UiElements)

# --- data

install(DIRECTORY ${PROJECT_SOURCE_DIR}/common-head/visuals/config/
    DESTINATION ${UIELEMENTS_INSTALL_CONFIGDIR} COMPONENT runtime
    FILES_MATCHING PATTERN "*.json")
install(FILES ${PROJECT_SOURCE_DIR}/packaging/60-uielements-fonts.conf
    DESTINATION ${UIELEMENTS_INSTALL_DATADIR}/fontconfig COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/LICENSES DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT dev)

# --- find_package(UiElements)

# Before 1.0 every minor version may break its hosts.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(compatibility SameMinorVersion)
else()
    set(compatibility SameMajorVersion)
endif()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/UiElementsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/UiElementsConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS UIELEMENTS_INSTALL_DATADIR UIELEMENTS_INSTALL_CONFIGDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/UiElementsConfigVersion.cmake
    COMPATIBILITY ${compatibility})
install(FILES
    ${PROJECT_BINARY_DIR}/UiElementsConfig.cmake
    ${PROJECT_BINARY_DIR}/UiElementsConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT dev)
install(EXPORT UiElementsTargets NAMESPACE UiElements:: DESTINATION ${package_dir} COMPONENT dev)

# --- pkg-config

# A folder given as an absolute path stays where it is; every other one moves with the tree.
function(uielements_pkgconfig_path result dir)
    if(IS_ABSOLUTE "${dir}")
        set(${result} "${dir}" PARENT_SCOPE)
    else()
        set(${result} "\${prefix}/${dir}" PARENT_SCOPE)
    endif()
endfunction()
uielements_pkgconfig_path(PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
uielements_pkgconfig_path(PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
uielements_pkgconfig_path(PC_DATADIR "${UIELEMENTS_INSTALL_DATADIR}")
uielements_pkgconfig_path(PC_CONFIGDIR "${UIELEMENTS_INSTALL_CONFIGDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
    file(RELATIVE_PATH PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    string(REGEX REPLACE "/$" "" PC_PREFIX "\${pcfiledir}/${PC_PREFIX}")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/UiElements.pc.in ${PROJECT_BINARY_DIR}/UiElements.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/UiElements.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
