#!/bin/bash
# installed.sh C_COMPILER CXX_COMPILER WORK_DIR PREFIX: builds the hosts on zrproj/c.h against the installed package by
# pkg-config and runs them.
set -euo pipefail
here=$(dirname "$0") c=$1 cxx=$2 work=$3 prefix=$4
library=$(dirname "$(find "$prefix" -name libzrproj.so)")
export PKG_CONFIG_PATH=$library/pkgconfig LD_LIBRARY_PATH=$library
read -ra flags <<<"$(pkg-config --cflags --libs zrproj)"
mkdir -p "$work"
"$c" -std=c99 -pthread "$here/door.c" -o "$work/installed-c" "${flags[@]}"
"$cxx" -std=c++11 -pthread "$here/door.cpp" -o "$work/installed-cpp" "${flags[@]}"
for host in "$work"/installed-c "$work"/installed-cpp; do
    "$here/check.sh" "$host" "$work"
done
