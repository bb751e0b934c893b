#!/bin/bash
# generated-page.sh GENERATOR SOURCE_DIR: docs/projection-types.md is what ./dev docs would write.
set -euo pipefail
page=$2/docs/projection-types.md
"$1" "$2/src/formulas" "$2/docs/generator/speeds.txt" | diff --label "$page" --label generated -u "$page" -
