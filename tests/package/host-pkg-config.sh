#!/bin/bash
# host-pkg-config.sh COMPILER HOST_DIR BUILD_DIR PREFIX: builds the small host with pkg-config and runs it.
set -euo pipefail
compiler=$1 host=$2 build=$3 prefix=$4
library=$(dirname "$(find "$prefix" -name libzrproj.so)")
export PKG_CONFIG_PATH=$library/pkgconfig LD_LIBRARY_PATH=$library
read -ra flags <<<"$(pkg-config --cflags --libs zrproj)"
"$compiler" -std=c++11 "$host/host.cpp" -o "$build/host-pkg-config" "${flags[@]}"
"$build/host-pkg-config"
