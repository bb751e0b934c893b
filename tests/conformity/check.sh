#!/bin/bash
# check.sh CONFORMITY: what holds passes, and what is wrong fails, each with its line. Found coordinates are left out of
# the comparison: their last digits are the processor's.
set -uo pipefail
cd "$(dirname "$0")/data" || exit 1
for file in right.gie right.tsv wrong.gie wrong.tsv empty.gie missing.gie; do
    "$1" "$file"
    printf 'status %s\n' $?
done | sed -E 's/: [^ ]+ [^ ]+ instead/: ... instead/; s/[^ ]+ away/... away/; s/off by .*/off by .../' |
    diff --label expected --label printed -u ../expected.txt -
