# The same bytes on every processor: numbers are loaded and written by the arithmetic of doubles and of 64-bit integers.
include(CheckCXXSourceCompiles)

# Fused operations round once where two would round twice.
target_compile_options(kovalt_build INTERFACE -ffp-contract=off)
set(CMAKE_REQUIRED_FLAGS -ffp-contract=off)
# The x87 of i386 holds more digits than a double.
check_cxx_source_compiles("#ifndef __i386__\n#error\n#endif\nint main() {}" KOVALT_I386)
if(KOVALT_I386)
  target_compile_options(kovalt_build INTERFACE -msse2 -mfpmath=sse)
  string(APPEND CMAKE_REQUIRED_FLAGS " -msse2 -mfpmath=sse")
endif()
check_cxx_source_compiles(
  "#include <cfloat>
   #include <climits>
   #include <limits>
   static_assert(CHAR_BIT == 8 && sizeof(int) == 4 && sizeof(long long) == 8, \"other integers\");
   static_assert(std::numeric_limits<double>::is_iec559 && DBL_MANT_DIG == 53, \"other doubles\");
   static_assert(FLT_EVAL_METHOD == 0, \"doubles are calculated with other digits than they have\");
   #ifdef __FAST_MATH__
   #error
   #endif
   int main() {}"
  KOVALT_SAME_BYTES)
if(NOT KOVALT_SAME_BYTES)
  message(FATAL_ERROR "${CMAKE_CXX_COMPILER} with \"${CMAKE_CXX_FLAGS}\" calculates in another way than the other "
                      "processors, so numbers could be written differently")
endif()
unset(CMAKE_REQUIRED_FLAGS)
