# find_package(zelm) gives zelm::zelm: the library for the pointer size that the project is compiled for. The 32-bit
# one (t7) and the 64-bit one (x64) may share this folder.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(_zelm_target t7)
else()
  set(_zelm_target x64)
endif()

if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/zelm-${_zelm_target}-targets.cmake)
  include(${CMAKE_CURRENT_LIST_DIR}/zelm-${_zelm_target}-targets.cmake)
else()
  set(zelm_FOUND FALSE)
  set(zelm_NOT_FOUND_MESSAGE "The target '${_zelm_target}' of zelm, which this project's pointer size needs, is not\
 installed beside ${CMAKE_CURRENT_LIST_FILE}")
endif()
unset(_zelm_target)
