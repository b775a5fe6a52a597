# shellcheck shell=bash
# Sourced by the scripts that need Debian packages. Expects stage.sh.

# Installs those of the named packages that are missing, saying so on standard error. Where it cannot, it says what is
# missing and ends the script.
require_packages() {
  local missing=() package as_root=()
  if ! command -v apt-get >/dev/null; then
    require_tools "$@"
    return
  fi
  for package in "$@"; do
    if [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return
  fi
  echo "Installing Debian packages: ${missing[*]}" >&2
  if ((EUID != 0)); then
    command -v sudo >/dev/null || refuse_packages 'There is no sudo here.' "${missing[@]}"
    as_root=(sudo)
  fi
  { run_stage 'Getting the lists of packages' "${as_root[@]}" apt-get update &&
    run_stage 'Installing packages' "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install --yes --no-install-recommends "${missing[@]}"; } ||
    refuse_packages 'That failed.' "${missing[@]}"
}

# Ends the script with the line that installs packages.
refuse_packages() {
  local reason=$1
  shift
  printf '%s Run this as root, then try again:\n  apt-get update && apt-get install --yes --no-install-recommends %s\n' \
    "$reason" "$*" >&2
  exit 1
}

# For systems without apt-get: ends the script, naming what is missing of what the packages hold.
require_tools() {
  local missing=() package name
  for package in "$@"; do
    name=$package
    has_tool "$package" || missing+=("$name")
  done
  if ((${#missing[@]} != 0)); then
    echo 'There is no apt-get here. Install these by the means of this system, then try again:' >&2
    printf '  %s\n' "${missing[@]}" >&2
    exit 1
  fi
}

# Whether what a package holds is there. Sets `name` to what it is called outside Debian.
has_tool() {
  case $1 in
    g++)
      name='a C++17 compiler as c++'
      has_command c++
      ;;
    libc6-dev)
      name='the C and C++ libraries to link statically'
      [[ $(c++ -print-file-name=libc.a 2>/dev/null) == /* && $(c++ -print-file-name=libstdc++.a) == /* ]]
      ;;
    rapidjson-dev)
      name='the RapidJSON headers'
      has_header rapidjson/document.h
      ;;
    libgtest-dev)
      name='GoogleTest'
      has_header gtest/gtest.h
      ;;
    libbenchmark-dev)
      name='Google Benchmark'
      has_header benchmark/benchmark.h
      ;;
    cmake)
      name='CMake 3.25 or newer'
      has_command cmake
      ;;
    ninja-build)
      name=Ninja
      has_command ninja
      ;;
    man-db)
      name='man'
      has_command man
      ;;
    dpkg-dev) has_command dpkg-deb ;;
    gnuplot-nox) has_command gnuplot ;;
    # Parts of the compiler, and of no use without the command that looks for them.
    libclang-rt-* | locales | bash-completion) ;;
    *) has_command "$1" ;;
  esac
}

has_command() {
  command -v "$1" >/dev/null
}

has_header() {
  c++ -E -x c++ -include "$1" /dev/null >/dev/null 2>&1 || [[ -e /usr/include/$1 ]]
}
