# What hosts find the library by: the CMake package and the pkg-config file. Both
# name everything relative to themselves, so that a prefix may be moved.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ORVTListview)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH ORVT_PREFIX_FROM_PKGCONFIG /prefix/${pkgconfig_dir} /prefix)

configure_package_config_file(cmake/ORVTListviewConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ORVTListviewConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ORVTListviewConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
configure_file(cmake/ORVTListview.pc.in ${PROJECT_BINARY_DIR}/ORVTListview.pc @ONLY)

foreach(targets IN ITEMS ORVTListviewCoreTargets ORVTListviewTargets)
    install(EXPORT ${targets}
        NAMESPACE ORVTListview::
        DESTINATION ${package_dir}
        COMPONENT dev)
endforeach()
install(FILES
    ${PROJECT_BINARY_DIR}/ORVTListviewConfig.cmake
    ${PROJECT_BINARY_DIR}/ORVTListviewConfigVersion.cmake
    DESTINATION ${package_dir}
    COMPONENT dev)
install(FILES ${PROJECT_BINARY_DIR}/ORVTListview.pc
    DESTINATION ${pkgconfig_dir}
    COMPONENT dev)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT doc
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN reference EXCLUDE)
