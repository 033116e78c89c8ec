# SPDX-License-Identifier: MIT
# What `cmake --install` puts where. Everything below a prefix finds the rest of it by relative paths: a prefix can be moved.
#
# Install components, and what find_package(VOXAnalysisResources CONFIG COMPONENTS ...) calls them:
#   contracts            contracts   headers of what any host supplies, and the package's own files
#   host, host_dev       host        the reference host, when it is the host of this build
#   library, library_dev library     the adaptors
#   tools                workbench   voxbench, its manual and its completions
#   doc                  -           what is read beside the code
include(CMakePackageConfigHelpers)

set(voxHeaders ${CMAKE_INSTALL_INCLUDEDIR}/vox)
set(voxPackage ${CMAKE_INSTALL_LIBDIR}/cmake/VOXAnalysisResources)

# vox_install_target(<target> <component> <name in find_package>): a library or a program, and its export.
function(vox_install_target target component package)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    set(dev ${component})
  else()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    set(dev ${component}_dev)
  endif()
  install(
    TARGETS ${target}
    EXPORT ${package}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component} NAMELINK_COMPONENT ${dev})
  install(EXPORT ${package} FILE VOXAnalysisResources-${package}.cmake NAMESPACE vox:: DESTINATION ${voxPackage}
          COMPONENT ${dev})
endfunction()

function(vox_install_headers folder destination component)
  install(DIRECTORY ${folder}/ DESTINATION ${voxHeaders}/${destination} COMPONENT ${component} FILES_MATCHING
          PATTERN "*.h")
endfunction()

# vox_install_pkgconfig(<template> <name> <component>): the file finds its prefix from where it stands itself.
function(vox_install_pkgconfig template name component)
  file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" prefix "${prefix}")
  configure_file(${PROJECT_SOURCE_DIR}/cmake/install/${template}.pc.in ${PROJECT_BINARY_DIR}/install/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/install/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
          COMPONENT ${component})
endfunction()

# The contracts, and the package's own files.
set_target_properties(vox_contracts PROPERTIES EXPORT_NAME contracts)
install(TARGETS vox_contracts EXPORT contracts)
install(EXPORT contracts FILE VOXAnalysisResources-contracts.cmake NAMESPACE vox:: DESTINATION ${voxPackage}
        COMPONENT contracts)
vox_install_headers(${PROJECT_SOURCE_DIR}/contracts contracts contracts)
vox_install_pkgconfig(contracts VOXAnalysisResources-contracts contracts)
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/install/VOXAnalysisResourcesConfig.cmake.in
  ${PROJECT_BINARY_DIR}/install/VOXAnalysisResourcesConfig.cmake
  INSTALL_DESTINATION ${voxPackage}
  NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# Until 1.0.0 a minor version may change what compiles.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/install/VOXAnalysisResourcesConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/install/VOXAnalysisResourcesConfig.cmake
              ${PROJECT_BINARY_DIR}/install/VOXAnalysisResourcesConfigVersion.cmake DESTINATION ${voxPackage}
        COMPONENT contracts)

# The reference host. Another host comes in a package of its own.
if(TARGET vox_host)
  set_target_properties(vox_host PROPERTIES EXPORT_NAME host)
  vox_install_target(vox_host host host)
  vox_install_headers(${PROJECT_SOURCE_DIR}/host host host_dev)
  vox_install_pkgconfig(host VOXAnalysisResources-host host_dev)
endif()

vox_install_target(VOXAnalysisResources library library)
vox_install_headers(${PROJECT_SOURCE_DIR}/VOXAnalysisResources/include VOXAnalysisResources library_dev)
vox_install_pkgconfig(library VOXAnalysisResources library_dev)

if(TARGET voxbench)
  vox_install_target(voxbench tools workbench)
endif()

install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
              ${PROJECT_SOURCE_DIR}/LICENSE
        DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT doc FILES_MATCHING
        PATTERN "*.md")
