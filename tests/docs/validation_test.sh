#!/usr/bin/env bash
# docs/validation.md is what the routines print now, and every row is within its tolerance.   validation_test.sh PROGRAM
set -u
root=$(cd "$(dirname "$0")/../.." && pwd)
page=$(mktemp)
trap 'rm -f "$page"' EXIT
"$1" >"$page" || { echo "a row is outside its tolerance"; cat "$page"; exit 1; }
diff "$root/docs/validation.md" "$page"
