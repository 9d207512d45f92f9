# Installs the build to a prefix and moves the prefix, as a package or an archive would: what is found in it afterwards
# can't hang on the place where it was installed.
cmake_minimum_required(VERSION 3.25)

set(first ${PREFIX}.installed)
file(REMOVE_RECURSE ${PREFIX} ${first})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${first} COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${first} ${PREFIX})

file(GLOB_RECURSE found RELATIVE ${PREFIX} ${PREFIX}/*)
list(SORT found)
foreach(file include/zelm.h include/zelm/types.h ${LIBDIR}/libzelm${TARGET}.so ${LIBDIR}/pkgconfig/zelm-${TARGET}.pc
        ${LIBDIR}/cmake/zelm/zelm-config.cmake share/zelm/zelm-grid.json)
  if(NOT file IN_LIST found)
    message(FATAL_ERROR "${file} was not installed; found: ${found}")
  endif()
endforeach()
list(FILTER found EXCLUDE REGEX "^include/zelm(\\.h|/[a-z]+\\.h)$|/(libzelm|zelm-)[^/]*$|^share/doc/zelm/copyright$")
if(found)
  message(FATAL_ERROR "installed without being asked: ${found}")
endif()
