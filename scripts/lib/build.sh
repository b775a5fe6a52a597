# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that build. The current folder must be that of the project.

. scripts/lib/usage.sh

# The Debian packages for a build, and the additional ones for the tests.
build_packages=(cmake ninja-build g++ rapidjson-dev)
test_packages=(bash-completion clang-format dpkg-dev fakeroot fish gnuplot-nox jq libgtest-dev man-db mandoc python3 scdoc
  strace tmux valgrind zsh)
# The architectures that have a toolchain file in cmake/.
architectures=(amd64 arm64 armhf riscv64 i386 s390x)

# Installs those of the given packages that are missing. Without apt-get it does nothing, and CMake reports what it does
# not find.
require_packages() {
  local package missing=() as_root=()
  command -v apt-get >/dev/null || return 0
  for package in "$@"; do
    [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
      missing+=("$package")
  done
  ((${#missing[@]} != 0)) || return 0
  echo "Installing Debian packages: ${missing[*]}" >&2
  ((EUID == 0)) || as_root=(sudo)
  {
    "${as_root[@]}" apt-get update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends "${missing[@]}"
  } >&2 || {
    echo "Could not install them. Run this as root, then try again: apt-get install ${missing[*]}" >&2
    exit 1
  }
}

# Configures build/FOLDER: FOLDER PRESET [CMAKE_ARGUMENT]... Does nothing if that was done before, except in a copied or
# moved checkout, whose build folders refer to the old place.
configure() {
  local folder=$1 preset=$2 home
  if [[ -f build/$folder/build.ninja ]]; then
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "build/$folder/CMakeCache.txt")
    [[ ! $home -ef . ]] || return 0
  fi
  echo "Configuring build/$folder" >&2
  cmake --fresh --preset "$preset" -B "build/$folder" "${@:3}" >/dev/null
}

# Builds targets in build/FOLDER, by default all: FOLDER [TARGET]... Prints the steps on standard error, or nothing if
# all is up to date.
build() {
  cmake --build "build/$1" ${2:+--target "${@:2}"} 2>&1 |
    sed --unbuffered -e '/^ninja: no work to do/d' -e '/^\[0\//d' >&2
}

# The same for a preset, which it configures first: PRESET [TARGET]...
build_preset() {
  configure "$1" "$1"
  build "$@"
}

# Runs the tests of build/FOLDER: FOLDER [CTEST_ARGUMENT]...
run_tests() {
  ctest --test-dir "build/$1" --output-on-failure --parallel 4 "${@:2}"
}

# Sets `toolchain` to the CMake arguments for an architecture, which are none for this machine's own, and installs its
# compiler.
choose_toolchain() {
  local triple
  toolchain=()
  if [[ $1 != "$(dpkg --print-architecture)" ]]; then
    toolchain=(--toolchain "$PWD/cmake/$1.cmake")
    triple=$(sed -n 's/^set(CMAKE_CXX_COMPILER \(.*\)-g++)$/\1/p' "cmake/$1.cmake")
    require_packages "g++-${triple//_/-}"
  fi
}
