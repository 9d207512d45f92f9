# What `cmake --install` puts where. Both targets may go into one prefix: their libraries, pkg-config files and
# exported CMake targets have names of their own, and everything else is the same file in both. Three components, so that
# a distribution can package them apart: runtime, development and tools.

# A wide build is the library file alone, for the folder in which the loader looks first.
if(ZELM_ISA_LEVEL)
  install(TARGETS zelm LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/glibc-hwcaps/x86-64-${ZELM_ISA_LEVEL}
    COMPONENT runtime NAMELINK_SKIP)
  return()
endif()

set(ZELM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/zelm)
set(ZELM_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS zelm EXPORT zelm-${ZELM_TARGET}-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
if(ZELM_BUILD_STATIC)
  install(TARGETS zelm_static EXPORT zelm-${ZELM_TARGET}-targets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/include/zelm.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/zelm DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/cpp/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
  FILES_MATCHING PATTERN "*.hpp")
install(FILES ${ZELM_GENERATED_DIR}/zelm-grid.json DESTINATION ${CMAKE_INSTALL_DATADIR}/zelm COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)

# The program that checks the installed library. Missing where only the library was built.
if(ZELM_BUILD_SELFTEST)
  install(TARGETS zelm-selftest RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools OPTIONAL)
  install(FILES ${PROJECT_BINARY_DIR}/selftest/${ZELM_SELFTEST}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
endif()

# find_package(zelm): zelm::zelm, for the consumer's pointer size.
install(EXPORT zelm-${ZELM_TARGET}-targets NAMESPACE zelm:: DESTINATION ${ZELM_CMAKE_DIR} COMPONENT development)
include(CMakePackageConfigHelpers)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/zelm-config-version.cmake
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/zelm-config.cmake ${PROJECT_BINARY_DIR}/packaging/zelm-config-version.cmake
  DESTINATION ${ZELM_CMAKE_DIR} COMPONENT development)

# pkg-config zelm-t7, zelm-x64: paths relative to the file itself, so that the tree can be moved, unless the folders
# were given as absolute paths.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR libdir_is_absolute)
if(libdir_is_absolute)
  set(ZELM_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH up /prefix/${ZELM_PKGCONFIG_DIR} /prefix)
  string(REGEX REPLACE "/$" "" up "${up}")
  set(ZELM_PC_PREFIX "\${pcfiledir}/${up}")
endif()
foreach(folder LIBDIR INCLUDEDIR)
  set(ZELM_PC_${folder} ${CMAKE_INSTALL_${folder}})
  cmake_path(ABSOLUTE_PATH ZELM_PC_${folder} BASE_DIRECTORY "\${prefix}")
endforeach()

# The machine's own target can be had without its name: `pkg-config zelm`. What a 64-bit compiler makes with -m32 isn't it,
# unless it makes it for a 32-bit machine.
set(pc_files zelm-${ZELM_TARGET})
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -dumpmachine OUTPUT_VARIABLE machine ERROR_QUIET)
if(ZELM_TARGET STREQUAL "x64" OR NOT machine MATCHES "^(x86_64|amd64)" OR CMAKE_SYSTEM_PROCESSOR MATCHES "^i[3-6]86$")
  list(APPEND pc_files zelm)
endif()
foreach(ZELM_PC_NAME IN LISTS pc_files)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/zelm.pc.in ${PROJECT_BINARY_DIR}/packaging/${ZELM_PC_NAME}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/packaging/${ZELM_PC_NAME}.pc DESTINATION ${ZELM_PKGCONFIG_DIR}
    COMPONENT development)
endforeach()

if(PROJECT_IS_TOP_LEVEL)
  add_custom_target(uninstall COMMENT "Removing what was installed last from this build tree"
    COMMAND ${CMAKE_COMMAND} -D MANIFEST=${PROJECT_BINARY_DIR}/install_manifest.txt
      -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake VERBATIM)
endif()
