# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that build. Expects the project's folder as the current one.

# What a build needs.
build_packages=(cmake ninja-build g++ libc6-dev rapidjson-dev)
# What the packages need besides.
package_packages=(dpkg-dev scdoc)
# What the tests need besides.
test_packages=(bash-completion clang-format dpkg-dev fakeroot fish jq libgtest-dev man-db mandoc python3 scdoc strace tmux
  valgrind zsh)

# Brings one target of a preset up to date, or everything without a target. Silent unless it fails.
build_preset() {
  local preset=$1 log
  shift
  log=$(mktemp)
  if ! { [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset"; } >"$log" 2>&1 ||
    ! cmake --build --preset "$preset" ${1:+--target "$1"} >>"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
