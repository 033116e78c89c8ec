# SPDX-License-Identifier: MIT
# `cpack -G DEB` in a build folder makes Debian packages: runtime, dev, tools and doc.
get_target_property(abi VOXAnalysisResources SOVERSION)

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME voxanalysisresources)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "VOXAnalysisResources authors <voxanalysisresources@users.noreply.invalid>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# vox_describe_package(<group> NAME <package> SECTION <section> SUMMARY <line> TEXT <line>... [DEPENDS <package>...])
function(vox_describe_package group)
  cmake_parse_arguments(PARSE_ARGV 1 package "" "NAME;SECTION;SUMMARY" "TEXT;DEPENDS")
  string(TOUPPER ${group} GROUP)
  list(TRANSFORM package_DEPENDS APPEND " (= ${PROJECT_VERSION})")
  list(JOIN package_DEPENDS ", " depends)
  list(JOIN package_TEXT "\n" text)
  set(CPACK_DEBIAN_${GROUP}_PACKAGE_NAME ${package_NAME} PARENT_SCOPE)
  set(CPACK_DEBIAN_${GROUP}_PACKAGE_SECTION ${package_SECTION} PARENT_SCOPE)
  set(CPACK_DEBIAN_${GROUP}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${GROUP}_DESCRIPTION "${package_SUMMARY}\n${text}" PARENT_SCOPE)
endfunction()

set(runtime libvoxanalysisresources${abi})
vox_describe_package(
  runtime NAME ${runtime} SECTION libs
  SUMMARY "adaptor classes for finite-element analysis features"
  TEXT "VOXAnalysisResources holds the shared logic of the analysis features of a"
       "host: set typing, groups, upgrades, collectors, visibility, selection lists."
       "This package has the library and the reference host that it runs behind.")
vox_describe_package(
  dev NAME libvoxanalysisresources-dev SECTION libdevel DEPENDS ${runtime}
  SUMMARY "adaptor classes for finite-element analysis features (development)"
  TEXT "Headers of the host's contracts, of the adaptors and of the reference host,"
       "with what CMake and pkg-config need to find them.")
vox_describe_package(
  tools NAME voxbench SECTION science DEPENDS ${runtime}
  SUMMARY "workbench for finite-element analysis documents"
  TEXT "voxbench opens finite-element models as analysis documents and lists, checks,"
       "upgrades and reports what is in them, as text or JSON.")
vox_describe_package(
  doc NAME libvoxanalysisresources-doc SECTION doc
  SUMMARY "adaptor classes for finite-element analysis features (documentation)"
  TEXT "Guides for developers of feature types and of hosts, and the format of"
       "analysis documents.")

set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_DOC_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)

# What Debian asks of a package and other installations do without: done to the staged files.
configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/changelog.in ${PROJECT_BINARY_DIR}/install/changelog @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/copyright.in ${PROJECT_BINARY_DIR}/install/copyright @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/cmake/debian/FinishStaging.cmake.in ${PROJECT_BINARY_DIR}/install/FinishStaging.cmake
               @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/install/FinishStaging.cmake)

include(CPack)
cpack_add_component_group(runtime)
cpack_add_component_group(dev)
cpack_add_component_group(tools)
cpack_add_component_group(doc)
cpack_add_component(library GROUP runtime)
cpack_add_component(host GROUP runtime)
cpack_add_component(contracts GROUP dev)
cpack_add_component(library_dev GROUP dev)
cpack_add_component(host_dev GROUP dev)
cpack_add_component(tools GROUP tools)
cpack_add_component(doc GROUP doc)
