# The programs parse untrusted files, so a defect should abort them instead of helping an attacker. CONTRIBUTING.md
# lists the options that are left out, with reasons.
include(CheckLinkerFlag)
add_library(kovalt_hardened INTERFACE)
target_link_libraries(kovalt_program INTERFACE kovalt_hardened)
# Only the released programs are hardened. The dynamically linked builds are for tests, some under sanitizers.
if(NOT KOVALT_STATIC)
  return()
endif()

# GCC 11 supports levels up to 2.
set(level $<IF:$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,12>>,2,3>)
target_compile_options(
  kovalt_hardened
  INTERFACE -fPIE -fstack-protector-strong -fstack-clash-protection -fno-delete-null-pointer-checks -fno-strict-overflow
            -fno-strict-aliasing -D_GLIBCXX_ASSERTIONS -U_FORTIFY_SOURCE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=${level}>)
if(CMAKE_SYSTEM_PROCESSOR MATCHES 86)
  target_compile_options(kovalt_hardened INTERFACE -fcf-protection=full)
elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
  target_compile_options(kovalt_hardened INTERFACE -mbranch-protection=standard)
endif()

# Not every C library has start-up code for a static position-independent program. The relocations of such a program are
# packed, because unpacked ones add a fifth to the instructions of its start. A linker that cannot pack them warns.
check_linker_flag(CXX -static-pie KOVALT_STATIC_PIE)
check_linker_flag(CXX "-static-pie;-Wl,--fatal-warnings,-z,pack-relative-relocs" KOVALT_PACKED_RELOCATIONS)
target_link_options(
  kovalt_program INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack,-z,separate-code
                           $<IF:$<BOOL:${KOVALT_STATIC_PIE}>,-static-pie,-static;-no-pie>
                           $<$<BOOL:${KOVALT_PACKED_RELOCATIONS}>:-Wl,-z,pack-relative-relocs>)
