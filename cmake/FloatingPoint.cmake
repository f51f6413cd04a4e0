# The same deck gives the same bytes with every compiler and at every optimisation level: no contraction
# into fused operations, no reordering, no x87 registers, and no folding of library functions at compile
# time, since a compiler's own logarithm may differ from the C library's in the last bit.
add_library(tervak_floating_point INTERFACE)
target_compile_options(tervak_floating_point INTERFACE
  -ffp-contract=off -fno-fast-math
  -fno-builtin-sin -fno-builtin-cos -fno-builtin-tan -fno-builtin-atan
  -fno-builtin-exp -fno-builtin-log -fno-builtin-log10 -fno-builtin-pow)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86)$")
  target_compile_options(tervak_floating_point INTERFACE -msse2 -mfpmath=sse)
endif()
