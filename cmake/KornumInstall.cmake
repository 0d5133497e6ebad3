include(CMakePackageConfigHelpers)

set(kornum_libraries kornum_base_rt kornum_stats_rt)
if(KORNUM_BUILD_PROGRAM)
  list(APPEND kornum_libraries kornum_canvas)
endif()
install(TARGETS ${kornum_libraries} EXPORT kornumTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(KORNUM_BUILD_PROGRAM)
  install(TARGETS kornum RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(KORNUM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kornum)
install(EXPORT kornumTargets NAMESPACE kornum:: DESTINATION ${KORNUM_CMAKE_DIR})
configure_package_config_file(cmake/kornumConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/kornumConfig.cmake
  INSTALL_DESTINATION ${KORNUM_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/kornumConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kornumConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/kornumConfigVersion.cmake
        DESTINATION ${KORNUM_CMAKE_DIR})
