# shellcheck shell=bash disable=SC2154
# Sourced by scripts/prove. Builds everything with each compiler that Debian offers, with GCC's standard library and
# with LLVM's.

# Prints the package of LLVM's library for a compiler: that of the same version if it is complete enough, and for GCC
# the newest that supports it.
libcxx_of() {
  case $1 in
    # Version 13 has no std::to_chars for floating-point numbers.
    g++-11 | clang-13) echo libc++-14 ;;
    g++-12) echo libc++-16 ;;
    clang-*) echo "libc++-${1#clang-}" ;;
  esac
}

# Unpacks a version of LLVM's library and prints its folder. Packages of two versions cannot be installed together.
unpack_libcxx() {
  local version=${1#libc++-} folder=$PWD/build/compilers/$1
  mkdir -p "$folder"
  (cd "$folder" && apt-get download --quiet=2 "libc++-$version-dev" "libc++abi-$version-dev" >&2)
  find "$folder" -name '*.deb' -exec dpkg-deb --extract '{}' "$folder" \;
  echo "$folder/usr/lib/llvm-$version"
}

# Builds everything with a compiler and a library, and fails if there is a warning.
build_with() {
  local compiler=$1 library=$2 folder=compilers/$1-$2 command=${1/clang-/clang++-} off root settings
  rm -rf "build/$folder"
  settings=("-DCMAKE_CXX_COMPILER=$command")
  # GCC finds some warnings only while it optimises. clang finds all of its warnings without, and builds faster then.
  [[ $compiler != clang-* ]] || settings+=(-DCMAKE_BUILD_TYPE=)
  if [[ $library != libstdc++ ]]; then
    root=$(unpack_libcxx "$library")
    # In LLVM's unordered_map, GCC misses that __chash is set on each path to its use.
    off='-Wno-unknown-warning-option -Wno-unused-command-line-argument -Wno-maybe-uninitialized'
    # Linked before GCC's library, which then supplies nothing.
    settings+=("-DCMAKE_CXX_FLAGS=$off -nostdinc++ -isystem $root/include/c++/v1"
      "-DCMAKE_CXX_STANDARD_LIBRARIES=-L$root/lib -l:libc++.a -l:libc++abi.a")
    # The packaged GoogleTest needs GCC's library.
    build_googletest "$folder/googletest" "${settings[@]}"
    settings+=("-DCMAKE_PREFIX_PATH=$PWD/build/$folder/googletest/root")
  fi
  configure "$folder" test -DCMAKE_COMPILE_WARNING_AS_ERROR=OFF "${settings[@]}"
  cmake --build "build/$folder" | tee "build/$folder/log"
  if grep 'warning:' "build/$folder/log"; then
    return 1
  fi
  figure "$("$command" --version | head -n 1) with $library" "no warning"
}

prove_compilers() {
  local compiler compilers
  mapfile -t compilers < <(apt-cache search --names-only '^(g\+\+|clang)-[0-9]+$' | cut -d ' ' -f 1 | sort --version-sort)
  require_packages "${compilers[@]}" googletest
  for compiler in "${compilers[@]}"; do
    build_with "$compiler" libstdc++
    build_with "$compiler" "$(libcxx_of "$compiler")"
  done
}
