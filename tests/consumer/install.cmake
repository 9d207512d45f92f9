# Installs the build to a prefix and moves the prefix, as a package or an archive would: what is found in it afterwards
# can't hang on the place where it was installed.
cmake_minimum_required(VERSION 3.25)

set(first ${PREFIX}.installed)
file(REMOVE_RECURSE ${PREFIX} ${first})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${first} COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${first} ${PREFIX})

file(GLOB_RECURSE found RELATIVE ${PREFIX} ${PREFIX}/*)
list(SORT found)
set(files ${LIBDIR}/libzelm${TARGET}.so)
if("${TARGET}" STREQUAL "x64")
  list(APPEND files ${LIBDIR}/libzelmx64.so.4 ${LIBDIR}/pkgconfig/zelm.pc)
endif()
foreach(file IN LISTS files ITEMS include/zelm.h include/zelm.hpp include/zelm/types.h ${LIBDIR}/pkgconfig/zelm-${TARGET}.pc
        ${LIBDIR}/cmake/zelm/zelm-config.cmake share/zelm/zelm-grid.json)
  if(NOT file IN_LIST found)
    message(FATAL_ERROR "${file} was not installed; found: ${found}")
  endif()
endforeach()
list(FILTER found EXCLUDE REGEX "^include/zelm(/[a-z_]+)?\\.h(pp)?$|/(libzelm|zelm-)[^/]*$|/pkgconfig/zelm\\.pc$|^share/doc/zelm/LICENSE$")
if(found)
  message(FATAL_ERROR "installed without being asked: ${found}")
endif()
