# A project of the other pointer size must be told that the installed library isn't for it, and must not link it.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(
  COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR} -G ${GENERATOR} -D CMAKE_PREFIX_PATH=${PREFIX}
    -D CMAKE_C_COMPILER=${C_COMPILER} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_C_FLAGS=${FLAGS} -D CMAKE_CXX_FLAGS=${FLAGS}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
string(REGEX REPLACE "[ \n]+" " " output "${output}")
if(status EQUAL 0 OR NOT output MATCHES "The target '${OTHER_TARGET}' of zelm, which this project's pointer size needs")
  message(FATAL_ERROR "status ${status}:\n${output}")
endif()
