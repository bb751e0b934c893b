#!/bin/bash
# check.sh HOST WORK_DIR: runs a host on zrproj/c.h and compares what it prints.
set -euo pipefail
"$1" "$2" | diff --label expected --label printed -u "$(dirname "$0")/door.txt" -
