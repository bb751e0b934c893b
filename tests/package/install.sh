#!/bin/bash
# install.sh CMAKE BUILD_DIR PREFIX: installs, and moves the result to PREFIX, so that what follows uses a moved copy.
set -euo pipefail
cmake=$1 build=$2 prefix=$3
rm -rf "$prefix" "$prefix.before"
"$cmake" --install "$build" --prefix "$prefix.before" >/dev/null
mv "$prefix.before" "$prefix"
if grep -r -l -F "$prefix.before" "$prefix"; then
    echo "^ would not survive a move"
    exit 1
fi
[[ ! -e $prefix/bin/zrproj ]] || "$prefix/bin/zrproj" --version
