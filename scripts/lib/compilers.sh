# shellcheck shell=bash
# Sourced by scripts/prove: builds the whole tree with every compiler that Debian offers, with GCC's standard library and
# with LLVM's.

# Prints the name of the package of LLVM's library that goes with the package of a compiler: its own where it has
# what the tool uses, and for GCC the newest that supports it.
libcxx_of() {
  case $1 in
    # The library of its own version has no std::to_chars for floating-point numbers.
    clang-13) echo libc++-14 ;;
    clang-*) echo "libc++-${1#clang-}" ;;
    g++-11) echo libc++-14 ;;
    g++-12) echo libc++-16 ;;
  esac
}

# Prints the folder of a version of LLVM's library, unpacked first where that was not done: its packages exclude each other.
unpacked_libcxx() {
  local version=${1#libc++-} folder=$PWD/build/compilers/$1 package
  if [[ ! -d $folder/usr ]]; then
    mkdir -p "$folder"
    for package in "libc++-$version-dev" "libc++abi-$version-dev"; do
      (cd "$folder" && apt-get download --quiet=2 "$package" && dpkg-deb --extract "$package"_*.deb .) >&2
    done
  fi
  echo "$folder/usr/lib/llvm-$version"
}

# Builds the whole tree with a compiler and a library, and prints a figure. Fails where there is a warning.
build_with() {
  local compiler=$1 library=$2 folder=compilers/$1-$2 type=Release flags='' root warnings settings targets=(all)
  local command=${compiler/clang-/clang++-}
  # GCC finds some warnings only where it optimises; the front end of clang finds all of its own.
  if [[ $compiler == clang-* ]]; then
    type=
    flags=-Wno-unused-command-line-argument
  fi
  rm -rf "build/$folder"
  settings=(-DCMAKE_CXX_COMPILER="$command" "-DCMAKE_BUILD_TYPE=$type")
  if [[ $library == libc++-* ]]; then
    root=$(unpacked_libcxx "$library")
    # Linked before the other library, of which nothing is left to take.
    settings+=("-DCMAKE_CXX_FLAGS=$flags -nostdinc++ -isystem $root/include/c++/v1"
      "-DCMAKE_CXX_STANDARD_LIBRARIES=-L$root/lib -l:libc++.a -l:libc++abi.a")
    # The packaged GoogleTest takes the other library.
    run_stage "Building GoogleTest with $compiler and $library" make_googletest "$folder/googletest" "${settings[@]}"
    settings+=(-DCMAKE_PREFIX_PATH="$PWD/build/$folder/googletest/root")
    # So does the library of the benchmarks, of which there are no sources: these are compiled and not linked.
    targets=({src,completion,fuzz,tests}/all bare_json return_zero bench/CMakeFiles/inner_benchmarks.dir/inner_benchmarks.cc.o)
  fi
  configure "$folder" test -DCMAKE_COMPILE_WARNING_AS_ERROR=OFF -DKOVALT_BENCH=ON "${settings[@]}"
  cmake --build "build/$folder" --target "${targets[@]}" | tee "build/$folder/log"
  warnings=$(grep --count 'warning:' "build/$folder/log" || true)
  figure "warnings of $("$command" --version | head -n 1) with $library" "$warnings"
  ((warnings == 0))
}

prove_compilers() {
  local compiler compilers failures=0
  mapfile -t compilers < <(apt-cache search --names-only '^(g\+\+|clang)-[0-9]+$' | cut -d ' ' -f 1 | sort --version-sort)
  require_packages "${compilers[@]}" googletest libbenchmark-dev
  for compiler in "${compilers[@]}"; do
    attempt build_with "$compiler" libstdc++
    attempt build_with "$compiler" "$(libcxx_of "$compiler")"
  done
  ((failures == 0))
}
