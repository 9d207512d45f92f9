# Which library this build makes: ZELM_TARGET and, for x64, ZELM_ISA_LEVEL.

if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64|i[3-6]86|x86)$")
  message(FATAL_ERROR "zelm is a library for x86 processors, not for ${CMAKE_SYSTEM_PROCESSOR}")
endif()
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(default_target t7)
else()
  set(default_target x64)
endif()

set(ZELM_TARGET ${default_target} CACHE STRING "Processor target: t7 (32-bit x86 with SSE3) or x64")
set_property(CACHE ZELM_TARGET PROPERTY STRINGS t7 x64)
if(NOT ZELM_TARGET MATCHES "^(t7|x64)$")
  message(FATAL_ERROR "ZELM_TARGET is t7 or x64, not '${ZELM_TARGET}'")
endif()
if(NOT ZELM_TARGET STREQUAL default_target)
  message(FATAL_ERROR "The compiler's pointer size is that of ${default_target}: for ${ZELM_TARGET} use the preset "
    "'${ZELM_TARGET}', in a build tree of its own")
endif()

# The same functions with the same results, compiled for newer processors: the dynamic loader takes
# lib/glibc-hwcaps/x86-64-v3/ and x86-64-v4/ ahead of lib/ where the processor has what these levels name.
set(ZELM_ISA_LEVEL "" CACHE STRING "x64 only: empty (SSE3), v3 (AVX2) or v4 (AVX-512), the levels of the x86-64 psABI")
set_property(CACHE ZELM_ISA_LEVEL PROPERTY STRINGS "" v3 v4)
if(NOT ZELM_ISA_LEVEL MATCHES "^(v3|v4)?$")
  message(FATAL_ERROR "ZELM_ISA_LEVEL is empty, v3 or v4, not '${ZELM_ISA_LEVEL}'")
endif()
if(ZELM_ISA_LEVEL AND NOT ZELM_TARGET STREQUAL "x64")
  message(FATAL_ERROR "ZELM_ISA_LEVEL is for x64 only")
endif()
