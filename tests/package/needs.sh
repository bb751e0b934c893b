#!/bin/bash
# needs.sh LIBRARY: at run time the library needs nothing beyond the C and C++ libraries.
set -euo pipefail
needed=$(readelf --dynamic --wide "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
[[ $needed == *libc.so* ]] || { echo "cannot read what $1 needs"; exit 1; }
if grep -v -E '^(libstdc\+\+|libm|libc|libgcc_s|ld-linux[-a-z0-9_]*)\.so\.' <<<"$needed"; then
    echo "^ needed beyond the C and C++ libraries"
    exit 1
fi
