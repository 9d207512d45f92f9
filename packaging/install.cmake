# What `cmake --install` puts where. Both targets may go into one prefix: their libraries, pkg-config files and
# exported CMake targets have names of their own, and everything else is the same file in both.

set(ZELM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zelm)
set(ZELM_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS zelm EXPORT zelm-${ZELM_TARGET}-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT zelm)
install(FILES ${PROJECT_SOURCE_DIR}/include/zelm.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT zelm)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zelm DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT zelm
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/cpp/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT zelm
  FILES_MATCHING PATTERN "*.hpp")
install(FILES ${PROJECT_BINARY_DIR}/generated/zelm-grid.json DESTINATION ${CMAKE_INSTALL_DATADIR}/zelm COMPONENT zelm)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zelm RENAME copyright
  COMPONENT zelm)

# find_package(zelm): zelm::zelm, for the consumer's pointer size.
install(EXPORT zelm-${ZELM_TARGET}-targets NAMESPACE zelm:: DESTINATION ${ZELM_CMAKE_DIR} COMPONENT zelm)
include(CMakePackageConfigHelpers)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/zelm-config-version.cmake
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/zelm-config.cmake ${PROJECT_BINARY_DIR}/packaging/zelm-config-version.cmake
  DESTINATION ${ZELM_CMAKE_DIR} COMPONENT zelm)

# pkg-config zelm-t7, zelm-x64: paths relative to the file itself, so that the tree can be moved.
file(RELATIVE_PATH ZELM_PREFIX_FROM_PKGCONFIG /prefix/${ZELM_PKGCONFIG_DIR} /prefix)
string(REGEX REPLACE "/$" "" ZELM_PREFIX_FROM_PKGCONFIG "${ZELM_PREFIX_FROM_PKGCONFIG}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/zelm.pc.in ${PROJECT_BINARY_DIR}/packaging/zelm-${ZELM_TARGET}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/zelm-${ZELM_TARGET}.pc DESTINATION ${ZELM_PKGCONFIG_DIR}
  COMPONENT zelm)

# `cpack` in the build tree: a Debian package, i386 for t7 and amd64 for x64. CMake 3.31 and newer mark them as
# Multi-Arch: same, so that both can be installed side by side. The library goes in as it was tested, not stripped.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelm)
set(CPACK_PACKAGE_CONTACT "zelm maintainers <zelm@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL zelm)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_MULTIARCH same)
if(ZELM_TARGET STREQUAL "t7")
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
else()
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
endif()
include(CPack)
