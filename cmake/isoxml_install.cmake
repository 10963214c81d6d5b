# Installation: library, headers, tool, XML Schema, CMake package `isoxml` and pkg-config file. Nothing installed
# names the prefix, so an installed tree may be moved.

include(CMakePackageConfigHelpers)

set(isoxml_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/isoxml)
set(isoxml_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS isoxml EXPORT isoxmlTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/isoxml)
install(FILES ${PROJECT_SOURCE_DIR}/schema/isoxml.xsd DESTINATION ${CMAKE_INSTALL_DATADIR}/isoxml)
if(TARGET isoxml_tool)
  file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(isoxml_tool PROPERTIES INSTALL_RPATH $ORIGIN/${bin_to_lib})
  install(TARGETS isoxml_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

install(EXPORT isoxmlTargets NAMESPACE isoxml:: DESTINATION ${isoxml_CMAKEDIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/isoxmlConfig.cmake.in
  ${PROJECT_BINARY_DIR}/isoxmlConfig.cmake INSTALL_DESTINATION ${isoxml_CMAKEDIR})
# Before 1.0 a minor version may break its users.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/isoxmlConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/isoxmlConfig.cmake ${PROJECT_BINARY_DIR}/isoxmlConfigVersion.cmake
  DESTINATION ${isoxml_CMAKEDIR})

file(RELATIVE_PATH pkgconfig_to_prefix ${CMAKE_INSTALL_PREFIX}/${isoxml_PKGCONFIGDIR} ${CMAKE_INSTALL_PREFIX})
configure_file(${PROJECT_SOURCE_DIR}/cmake/isoxml.pc.in ${PROJECT_BINARY_DIR}/isoxml.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/isoxml.pc DESTINATION ${isoxml_PKGCONFIGDIR})
