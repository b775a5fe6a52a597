# The programs read files that others wrote, so a defect should end them rather than serve somebody. CONTRIBUTING.md says
# what is left out. Not with the sanitizers, which find more.
include(CheckLinkerFlag)
add_library(kovalt_hardened_code INTERFACE)
add_library(kovalt_hardened INTERFACE)
target_link_libraries(kovalt_hardened INTERFACE kovalt_hardened_code)
if(KOVALT_STATIC AND NOT KOVALT_SANITIZE)
  target_compile_options(
    kovalt_hardened_code
    INTERFACE -fPIE -fstack-protector-strong -fstack-clash-protection -fno-delete-null-pointer-checks -fno-strict-overflow
              -fno-strict-aliasing -D_GLIBCXX_ASSERTIONS -U_FORTIFY_SOURCE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=3>)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
    target_compile_options(kovalt_hardened_code INTERFACE -fcf-protection=full)
  elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
    target_compile_options(kovalt_hardened_code INTERFACE -mbranch-protection=standard)
  endif()
  target_link_options(kovalt_hardened INTERFACE -static-pie -Wl,-z,relro,-z,now,-z,noexecstack,-z,separate-code)
  # Without it the start of a program that can stand anywhere takes as long again.
  check_linker_flag(CXX -Wl,-z,pack-relative-relocs KOVALT_PACKED_RELOCATIONS)
  if(KOVALT_PACKED_RELOCATIONS)
    target_link_options(kovalt_hardened INTERFACE -Wl,-z,pack-relative-relocs)
  endif()
endif()
