# shellcheck shell=bash disable=SC2154
# Sourced by scripts/prove. Runs the program and its tests for other processors under emulators.

# Runs the process tests natively, and the PROGRAM that they call in an emulator: PROGRAM EMULATOR [ARGUMENT]...
run_rows() {
  local folder status=0
  # Some rows run as an unprivileged user, who must be able to read the folder.
  folder=$(mktemp -d)
  cp "$1" "$folder/Kovalt"
  printf '#!/bin/sh\nexec %s -0 Kovalt %s "$@"\n' "${*:2}" "$folder/Kovalt" >"$folder/emulated"
  chmod -R a+rX,a+x "$folder"
  KOVALT_TEST_PROGRAM=$folder/emulated build/test/tests/process_tests --gtest_brief=1 || status=$?
  rm -r "$folder"
  return "$status"
}

# Builds for an architecture, and runs the process tests, the unit tests and the fuzz targets on their saved inputs.
emulate() {
  local architecture=$1 folder=architectures/$1 program=build/architectures/$1/src/app/Kovalt emulator
  choose_toolchain "$architecture"
  build_googletest "$folder/googletest" "${toolchain[@]}"
  configure "$folder" test "${toolchain[@]}" "-DCMAKE_PREFIX_PATH=$PWD/build/$folder/googletest/root"
  build "$folder" Kovalt unit_tests fuzz/all
  read -ra emulator < <(sed -n 's/^set(CMAKE_CROSSCOMPILING_EMULATOR \(.*\))$/\1/p' "cmake/$architecture.cmake")

  cmp <(build/test/src/app/Kovalt --file "$logs/numbers.json") <("${emulator[@]}" "$program" --file "$logs/numbers.json")
  figure "$architecture: numbers loaded and printed" "200000, equal to this machine's"
  "${emulator[@]}" "build/$folder/tests/unit_tests" --gtest_brief=1 | tee "$logs/rows"
  figure "$architecture: unit tests" "$(passed <"$logs/rows") passed"
  run_suite "$architecture: fuzz targets on their saved inputs" "$folder" --tests-regex '^fuzz_replay_'
  run_rows "$program" "${emulator[@]}" | tee "$logs/rows"
  figure "$architecture: calls of the program" "$(passed <"$logs/rows") passed"
}

prove_architectures() {
  local architecture
  require_packages googletest qemu-user-static lib32stdc++6
  build_preset test Kovalt process_tests
  tests/architectures/make-numbers >"$logs/numbers.json"
  for architecture in "${architectures[@]}"; do
    [[ $architecture == "$(dpkg --print-architecture)" ]] || emulate "$architecture"
  done
}
