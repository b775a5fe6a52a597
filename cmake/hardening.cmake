# The programs read files that others wrote, so a defect should end them rather than serve somebody. CONTRIBUTING.md says
# what is left out. Not with the sanitizers, which find more.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
add_library(kovalt_hardened_code INTERFACE)
add_library(kovalt_hardened INTERFACE)
target_link_libraries(kovalt_hardened INTERFACE kovalt_hardened_code)
if(KOVALT_STATIC AND NOT KOVALT_SANITIZE)
  # The second level is the highest that GCC 11 knows.
  set(fortified $<IF:$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,12>>,2,3>)
  target_compile_options(
    kovalt_hardened_code
    INTERFACE -fPIE -fstack-protector-strong -fstack-clash-protection -fno-delete-null-pointer-checks -fno-strict-overflow
              -fno-strict-aliasing -D_GLIBCXX_ASSERTIONS -U_FORTIFY_SOURCE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=${fortified}>)
  # Each processor has at most one of them. Clang takes the other one too, with a warning.
  set(CMAKE_REQUIRED_FLAGS -Werror)
  foreach(flag -fcf-protection=full -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "KOVALT_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      target_compile_options(kovalt_hardened_code INTERFACE ${flag})
    endif()
  endforeach()
  unset(CMAKE_REQUIRED_FLAGS)
  target_link_options(kovalt_hardened INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack,-z,separate-code)
  # Not every C library brings what starts a static program that can stand anywhere.
  check_linker_flag(CXX -static-pie KOVALT_STATIC_PIE)
  target_link_options(kovalt_hardened INTERFACE $<IF:$<BOOL:${KOVALT_STATIC_PIE}>,-static-pie,-static;-no-pie>)
  # Unpacked, its relocations take as long again as the rest of the start. Not every linker packs them.
  set(CMAKE_REQUIRED_LINK_OPTIONS -static-pie -Wl,-z,pack-relative-relocs)
  check_cxx_source_compiles("int main() {}" KOVALT_PACKED_RELOCATIONS FAIL_REGEX ignored)
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
  if(KOVALT_PACKED_RELOCATIONS)
    target_link_options(kovalt_hardened INTERFACE -Wl,-z,pack-relative-relocs)
  endif()
endif()
