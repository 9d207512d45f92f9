# The choices of a build, and what holds without any.

set(ZELM_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "GoogleTest's sources, for the tests (Debian's package googletest)")
set(tests_by_default OFF)
if(PROJECT_IS_TOP_LEVEL AND EXISTS ${ZELM_GOOGLETEST_DIR}/CMakeLists.txt)
  set(tests_by_default ON)
endif()

option(ZELM_BUILD_TESTS "Build the tests (if not given: where zelm is the whole project and GoogleTest is there)"
  ${tests_by_default})
option(ZELM_BUILD_STATIC "Build an archive as well" OFF)
option(ZELM_BUILD_SELFTEST "Build the program zelm-selftest, which is installed with the library" ${PROJECT_IS_TOP_LEVEL})
option(ZELM_BUILD_BENCH "Build the benchmark" OFF)
option(ZELM_INSTALL "Install with the project" ${PROJECT_IS_TOP_LEVEL})
option(ZELM_WARNINGS_AS_ERRORS "Take every warning for an error" OFF)
option(ZELM_SLOW_TESTS "Build also the tests that take long to build or to run" OFF)
option(ZELM_SANITIZE "Build everything with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

# Optimised, if nothing else is said.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
