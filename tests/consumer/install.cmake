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
set(selftest zelm-selftest)
if("${TARGET}" STREQUAL "t7")
  set(selftest zelm-selftest-t7)
endif()
foreach(file IN LISTS files ITEMS bin/${selftest} include/zelm.h include/zelm.hpp include/zelm/types.h ${LIBDIR}/pkgconfig/zelm-${TARGET}.pc
        ${LIBDIR}/cmake/zelm/zelm-config.cmake share/zelm/zelm-grid.json)
  if(NOT file IN_LIST found)
    message(FATAL_ERROR "${file} was not installed; found: ${found}")
  endif()
endforeach()
list(REMOVE_ITEM found bin/${selftest})
list(FILTER found EXCLUDE REGEX "^include/zelm(/[a-z_]+)?\\.h(pp)?$|/(libzelm|zelm-)[^/]*$|/pkgconfig/zelm\\.pc$|^share/doc/zelm/LICENSE$|^share/man/man1/${selftest}\\.1$")
if(found)
  message(FATAL_ERROR "installed without being asked: ${found}")
endif()

# The installed check finds the library of its own prefix, and it is as it should be.
execute_process(COMMAND ${PREFIX}/bin/${selftest} OUTPUT_VARIABLE said RESULT_VARIABLE status)
file(REAL_PATH ${PREFIX}/${LIBDIR}/libzelm${TARGET}.so library)
string(FIND "${said}" "library: ${library}\n" found)
if(NOT status EQUAL 0 OR NOT found EQUAL 0)
  message(FATAL_ERROR "${selftest} ended with ${status}: ${said}")
endif()
