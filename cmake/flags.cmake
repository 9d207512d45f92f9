# Every compiler and linker flag that the results or the shape of the library depend on, in one place.

# Arithmetic, for the library and for everything that is compared with it bit for bit:
# - SSE arithmetic on t7 too: x87 would round twice, and g++ uses it even with -msse3 unless told otherwise.
# - No contraction into fused operations; no member of -ffast-math is ever used.
# - Nothing newer than SSE3.
add_library(zelm_arithmetic_flags INTERFACE)
target_compile_options(zelm_arithmetic_flags INTERFACE -msse3 -mfpmath=sse -ffp-contract=off)
if(ZELM_TARGET STREQUAL "t7")
  target_compile_options(zelm_arithmetic_flags INTERFACE -march=pentium4 -mtune=generic)
endif()

add_library(zelm_warning_flags INTERFACE)
target_compile_options(zelm_warning_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion
  $<$<BOOL:${ZELM_WARNINGS_AS_ERRORS}>:-Werror>)

# Tests that need no speed compile faster this way.
add_library(zelm_quick_build INTERFACE)
target_compile_options(zelm_quick_build INTERFACE -O0)

if(ZELM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # What is the same with both sizes of pointers is checked on x64; without it t7's library compiles in about half the
  # time. Its addresses are unsigned integers, whose sums may wrap, and not pointers.
  if(ZELM_TARGET STREQUAL "t7")
    add_compile_options(-fno-sanitize=null,object-size,alignment,pointer-overflow)
  endif()
endif()

# The library itself: closed, so that it can be loaded anywhere and loads nothing.
add_library(zelm_library_flags INTERFACE)
target_link_libraries(zelm_library_flags INTERFACE zelm_arithmetic_flags zelm_warning_flags)
# -O3 gains nothing here. Where no build type is given, as in a project that has zelm among its sources, an unoptimised
# library would help nobody.
if(NOT CMAKE_CXX_FLAGS_RELEASE MATCHES "-O2")
  target_compile_options(zelm_library_flags INTERFACE $<$<CONFIG:Release>:-O2>)
endif()
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES AND NOT CMAKE_CXX_FLAGS MATCHES "-O")
  target_compile_options(zelm_library_flags INTERFACE -O2)
endif()
if(ZELM_ISA_LEVEL)
  # Only the library: what its results are compared with stays the same in all builds.
  target_compile_options(zelm_library_flags INTERFACE -march=x86-64-${ZELM_ISA_LEVEL})
  # g++ 12 warns of the undefined halves of its own AVX-512 intrinsics.
  target_compile_options(zelm_library_flags INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<STREQUAL:${ZELM_ISA_LEVEL},v4>>:-Wno-maybe-uninitialized>)
endif()
target_compile_options(zelm_library_flags INTERFACE
  -fPIC -fvisibility=hidden -fvisibility-inlines-hidden
  # Square roots as instructions, not as calls that could set errno. No bit changes.
  -fno-math-errno
  -fno-exceptions -fno-rtti -fno-asynchronous-unwind-tables -fno-unwind-tables
  # The same loop ran up to twice as long where it began in the middle of a line of the instruction cache.
  -falign-functions=64 -falign-loops=32
  # Packs are formed by hand. What the compiler packs together of straight-line code it stores element by element
  # and loads as a whole, which waits for the stores: one 3x3 inverse took twice as long.
  $<$<CXX_COMPILER_ID:GNU>:-fno-tree-slp-vectorize> $<$<CXX_COMPILER_ID:Clang>:-fno-slp-vectorize>
  # Both would be imports: of what happens when they find something.
  -fno-stack-protector -U_FORTIFY_SOURCE
  -fno-plt -fno-ident -fno-threadsafe-statics
  # One branch per tested pointer: g++ would otherwise gather the tests into a value, which costs more than they do.
  $<$<CXX_COMPILER_ID:GNU>:SHELL:--param logical-op-non-short-circuit=0>
  # Instances that serve several layouts are merged by the linker; g++'s clones with split arguments would stand once
  # in each unit, a tenth of the library.
  $<$<CXX_COMPILER_ID:GNU>:-fno-ipa-sra>)
if(ZELM_TARGET STREQUAL "t7")
  # Old callers come with a stack that is aligned to 4 bytes only; without this every kernel that spills vectors
  # would crash for them. Only functions that need it realign; what only calls others, which expect no more, doesn't.
  # A frame on a boundary of 8 bytes, which 64-bit float on the stack would get, takes a register, and no instruction
  # needs it: so it is said to be there. Who needs 16 bytes realigns the stack from either.
  # AddressSanitizer's frames lie on 32 bytes, and g++ puts them there only from a boundary of 16.
  target_compile_options(zelm_library_flags INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:-mincoming-stack-boundary=3>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<BOOL:${ZELM_SANITIZE}>>>:-mpreferred-stack-boundary=2>
    $<$<CXX_COMPILER_ID:Clang>:-mstack-alignment=4>)
endif()
if(ZELM_SANITIZE)
  # AddressSanitizer's tests as calls: two thirds of the time to compile t7, four fifths for x64.
  target_compile_options(zelm_library_flags INTERFACE
    $<$<CXX_COMPILER_ID:GNU>:--param=asan-instrumentation-with-call-threshold=0>)
else()
  # A sanitizer's runtime is a dependency, so the link is closed in all builds but that one.
  target_link_options(zelm_library_flags INTERFACE
    -nostdlib -Wl,-z,defs -Wl,-z,noexecstack -Wl,-z,relro -Wl,-z,now -Wl,-Bsymbolic -Wl,--build-id=sha1
    -Wl,--gc-sections
    # Changes no instruction: tells the loader that the code runs with a shadow stack as well.
    $<$<STREQUAL:${ZELM_TARGET},x64>:-Wl,-z,shstk>)
  target_compile_options(zelm_library_flags INTERFACE -ffunction-sections)
endif()
