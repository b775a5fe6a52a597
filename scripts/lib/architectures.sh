# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that build for other processors.

# The names by which Debian calls them.
architectures=(amd64 arm64 armhf riscv64 i386 s390x)

native_architecture() {
  dpkg --print-architecture
}

# Prints the beginning of the names of the tools for an architecture.
gnu_type() {
  case $1 in
    amd64) echo x86_64-linux-gnu ;;
    arm64) echo aarch64-linux-gnu ;;
    armhf) echo arm-linux-gnueabihf ;;
    i386) echo i686-linux-gnu ;;
    *) echo "$1-linux-gnu" ;;
  esac
}

# Prints the packages of the compilers for some architectures, besides that of this machine.
compiler_packages() {
  local architecture type
  for architecture in "$@"; do
    if [[ $architecture != "$(native_architecture)" ]]; then
      type=$(gnu_type "$architecture")
      echo "g++-${type//_/-}"
    fi
  done
}

# Prints the settings of CMake for an architecture, one a line.
architecture_settings() {
  local rpm=$1
  case $1 in
    amd64) rpm=x86_64 ;;
    arm64) rpm=aarch64 ;;
    armhf) rpm=armv7hl ;;
    i386) rpm=i686 ;;
  esac
  printf '%s\n' "-DCPACK_DEBIAN_PACKAGE_ARCHITECTURE=$1" "-DCPACK_RPM_PACKAGE_ARCHITECTURE=$rpm"
  if [[ $1 != "$(native_architecture)" ]]; then
    printf '%s\n' -DCMAKE_SYSTEM_NAME=Linux "-DCMAKE_CXX_COMPILER=$(gnu_type "$1")-g++"
  fi
}
