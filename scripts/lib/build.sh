# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that build. Expects the project's folder as the current one, and stage.sh.

# What a build needs.
build_packages=(cmake ninja-build g++ libc6-dev rapidjson-dev)
# What the packages need besides.
package_packages=(dpkg-dev rpm scdoc)
# What the tests need besides.
test_packages=(bash-completion clang-format dpkg-dev fakeroot fish gnuplot-nox jq libgtest-dev man-db mandoc python3 scdoc
  strace tmux valgrind zsh)

# Configures build/FOLDER from a preset, with further arguments for CMake, where that was not done in this place: a
# checkout that was copied or moved brings the build folders of the old one.
configure() {
  local folder=$1 preset=$2 home
  shift 2
  if [[ -f build/$folder/build.ninja ]]; then
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "build/$folder/CMakeCache.txt")
    if [[ $home -ef . ]]; then
      return
    fi
  fi
  run_stage "Configuring $folder" cmake --fresh --preset "$preset" -B "build/$folder" "$@"
}

# Brings the targets of build/FOLDER up to date, or everything without a target.
build() {
  local folder=$1
  shift
  run_build_stage "Building $folder" cmake --build "build/$folder" ${1:+--target "$@"}
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

# Builds GoogleTest from the sources that the package googletest brings, with settings for CMake, and installs it into
# the folder root of build/FOLDER.
make_googletest() {
  local folder=$PWD/build/$1
  shift
  cmake -G Ninja -S /usr/src/googletest -B "$folder" -DBUILD_GMOCK=OFF -DCMAKE_INSTALL_PREFIX="$folder/root" "$@"
  cmake --build "$folder" --target install
}
