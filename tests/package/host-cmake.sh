#!/bin/bash
# host-cmake.sh CMAKE COMPILER HOST_DIR BUILD_DIR PREFIX: builds the small host with find_package(ZrProj) and runs it.
set -euo pipefail
cmake=$1 compiler=$2 host=$3 build=$4 prefix=$5
rm -rf "$build"
"$cmake" -G Ninja -S "$host" -B "$build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
"$cmake" --build "$build"
"$build/host"
