# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that build. Expects the project's folder as the current one.

# What a build needs.
build_packages=(cmake ninja-build g++ libc6-dev rapidjson-dev)
# What the packages need besides.
package_packages=(dpkg-dev scdoc)
# What the tests need besides.
test_packages=(bash-completion clang-format dpkg-dev fakeroot fish jq libgtest-dev man-db mandoc python3 scdoc strace tmux
  valgrind zsh)

# Runs a command in silence, and shows on standard error what it said where it fails.
quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 || status=$?
  if ((status != 0)); then
    cat "$log" >&2
  fi
  rm -f "$log"
  return "$status"
}

# Configures build/FOLDER from a preset, with further arguments for CMake, where that was not done.
configure() {
  local folder=$1 preset=$2
  shift 2
  [[ -f build/$folder/build.ninja ]] || quietly cmake --preset "$preset" -B "build/$folder" "$@"
}

# Brings the targets of build/FOLDER up to date, or everything without a target.
build() {
  local folder=$1
  shift
  quietly cmake --build "build/$folder" ${1:+--target "$@"}
}

# Brings the targets of a preset up to date, or everything without a target.
build_preset() {
  configure "$1" "$1" && build "$@"
}

# Runs the tests of build/FOLDER. Further arguments are for ctest.
run_tests() {
  local folder=$1
  shift
  ctest --test-dir "build/$folder" --output-on-failure --parallel 2 "$@"
}
