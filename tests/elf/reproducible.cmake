# Builds the library once more from a copy of its sources and compares the two files byte by byte. The copy is
# refreshed and not made anew, so that a second run without changes builds nothing.
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "'${ARGV}' failed:\n${output}")
  endif()
endfunction()

file(GLOB_RECURSE sources RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/*.h ${SOURCE_DIR}/*.cpp ${SOURCE_DIR}/*.S
  ${SOURCE_DIR}/*.py ${SOURCE_DIR}/*.cmake ${SOURCE_DIR}/*.in ${SOURCE_DIR}/CMakeLists.txt)
list(FILTER sources EXCLUDE REGEX "^(build|tests|bench|examples|docs)/|^\\.")
foreach(source IN LISTS sources)
  get_filename_component(folder ${WORK_DIR}/source/${source} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  file(COPY_FILE ${SOURCE_DIR}/${source} ${WORK_DIR}/source/${source} ONLY_IF_DIFFERENT)
endforeach()
file(COPY_FILE ${SOURCE_DIR}/LICENSE ${WORK_DIR}/source/LICENSE ONLY_IF_DIFFERENT)

set(toolchain "")
if(TOOLCHAIN_FILE)
  set(toolchain -D CMAKE_TOOLCHAIN_FILE=${WORK_DIR}/source/cmake/i386.cmake)
endif()
run(${CMAKE_COMMAND} -S ${WORK_DIR}/source -B ${WORK_DIR}/build -G ${GENERATOR} ${toolchain}
  -D ZELM_TARGET=${TARGET} -D ZELM_BUILD_TESTS=OFF -D CMAKE_BUILD_TYPE=${BUILD_TYPE}
  -D CMAKE_C_COMPILER=${C_COMPILER} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
  "-DCMAKE_C_FLAGS_RELEASE=${C_FLAGS_RELEASE}" "-DCMAKE_CXX_FLAGS_RELEASE=${CXX_FLAGS_RELEASE}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build --target zelm --parallel 2)

get_filename_component(name ${LIBRARY} NAME)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${LIBRARY} ${WORK_DIR}/build/${name} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${LIBRARY} and ${WORK_DIR}/build/${name}, built from the same sources, differ")
endif()
