# shellcheck shell=bash disable=SC2154
# Sourced by scripts/prove: runs the program and its tests for other processors, each under an emulator.

# The rows of the process tests that cannot run under an emulator.
not_emulated=()

# Prints the name of the emulator for an architecture.
emulator() {
  case $1 in
    arm64) echo qemu-aarch64-static ;;
    armhf) echo qemu-arm-static ;;
    *) echo "qemu-$1-static" ;;
  esac
}

# Runs the rows of the process tests, whose program is the one of this machine, with that of an architecture.
run_rows_under() {
  local emulator=$1 program=$2 folder status=0 excluded
  excluded=$(IFS=: && echo "${not_emulated[*]}")
  # Open to the user without privileges that some rows run as.
  folder=$(mktemp -d)
  cp "$program" "$folder/Kovalt"
  printf '#!/bin/sh\nexec %s -0 Kovalt %s "$@"\n' "$emulator" "$folder/Kovalt" >"$folder/emulated"
  chmod -R a+rX,a+x "$folder"
  KOVALT_TEST_PROGRAM=$folder/emulated build/test/tests/process_tests --gtest_brief=1 --gtest_filter="*-$excluded" ||
    status=$?
  rm -r "$folder"
  return "$status"
}

# Builds for an architecture and runs all there is for it.
emulate() {
  local architecture=$1 folder=architectures/$1 emulator settings target targets
  emulator=$(emulator "$architecture")
  mapfile -t settings < <(architecture_settings "$architecture")
  run_stage "Building GoogleTest for $architecture" make_googletest "$folder/googletest" "${settings[@]}"
  configure "$folder" test "${settings[@]}" -DCMAKE_PREFIX_PATH="$PWD/build/$folder/googletest/root"
  build "$folder" Kovalt unit_tests fuzz/all
  # The libraries of the cross compiler. With those for i386 the emulator hangs where a death test forks; with the ones of
  # this machine it does not.
  QEMU_LD_PREFIX=/usr/$(gnu_type "$architecture")
  [[ $architecture == i386 ]] || export QEMU_LD_PREFIX

  cmp <(build/test/src/app/Kovalt --file "$logs/numbers.json") \
    <("$emulator" "build/$folder/src/app/Kovalt" --file "$logs/numbers.json")
  figure "$architecture: numbers loaded and printed" "200,000 the same as here"
  "$emulator" "build/$folder/tests/unit_tests" --gtest_brief=1 | tee "$logs/unit_tests"
  figure "$architecture: unit tests" "$(sed -n 's/^\[  PASSED  \] \([0-9]*\) .*/\1 passed/p' "$logs/unit_tests")"
  targets=("build/$folder"/fuzz/fuzz_*)
  for target in "${targets[@]}"; do
    target=${target##*/fuzz_}
    "$emulator" "build/$folder/fuzz/fuzz_$target" "fuzz/corpus/$target" "$(find "fuzz/corpus/$target" -type f | wc -l)"
  done
  figure "$architecture: fuzz targets whose saved inputs hold" "${#targets[@]}"
  run_rows_under "$emulator" "build/$folder/src/app/Kovalt" | tee "$logs/rows"
  figure "$architecture: process tests" \
    "$(sed -n 's/^\[  PASSED  \] \([0-9]*\) .*/\1 passed/p' "$logs/rows"), ${#not_emulated[@]} cannot run there"
}

prove_architectures() {
  local others architecture compilers failures=0
  mapfile -t others < <(printf '%s\n' "${architectures[@]}" | grep --invert-match --line-regexp "$(native_architecture)")
  mapfile -t compilers < <(compiler_packages "${others[@]}")
  require_packages googletest qemu-user-static lib32stdc++6 "${compilers[@]}"
  build_preset test Kovalt process_tests
  tests/architectures/make-numbers >"$logs/numbers.json"
  for architecture in "${others[@]}"; do
    attempt emulate "$architecture"
  done
  ((failures == 0))
}
