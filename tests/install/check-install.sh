#!/usr/bin/env bash
# Installs the build tree into a temporary prefix and builds one small program against it
# with pkg-config and another with find_package(Velmor); both must run and print their text.
set -euo pipefail
build_dir=$1
source_dir=$2
flags=${3:-}
emulator=${4:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
libdir=$(find "$work/prefix" -name libvelmor.so -printf '%h\n' | head -n 1)
test -f "$work/prefix/share/velmor/velqel.cat"

# pkg-config
export PKG_CONFIG_PATH="$libdir/pkgconfig"
# shellcheck disable=SC2046
g++ -std=c++17 $flags "$source_dir/consumer.cpp" -o "$work/consumer-pc" \
    $(pkg-config --cflags --libs velmor) -Wl,-rpath,"$libdir"
out=$($emulator "$work/consumer-pc")
test "$out" = "QelCoNullPointerException thrown at Consumer::run(): input is a null pointer."

# CMake package
mkdir -p "$work/cm"
cmake -S "$source_dir" -B "$work/cm" -DCMAKE_PREFIX_PATH="$work/prefix" \
      -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" >/dev/null
cmake --build "$work/cm" >/dev/null
out=$($emulator "$work/cm/consumer")
test "$out" = "QelCoNullPointerException thrown at Consumer::run(): input is a null pointer."
echo "installed tree: pkg-config and find_package consumers passed"
