#!/usr/bin/env bash
# tables_test.sh TERVAK TERVAK_REPORT ROOT: runs the examples and hands their tables to Python.
# Exit status 77 when there is no Python with pandas and matplotlib.
set -eu
for python in python3 /usr/bin/python3 none; do
  "$python" -c 'import matplotlib, pandas' 2>/dev/null && break
done
[ "$python" != none ] || { echo "no Python with pandas and matplotlib here"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for deck in "$3"/examples/*.inp; do
  run=$work/$(basename "$deck" .inp)
  mkdir "$run"
  cp "$deck" "$run/TERVAK.INP"
  ln -s TERVAK.INP "$run/tervak.inp"
  (cd "$run" && "$1" >/dev/null)
done
# A closed output is told, and its message goes into none of the files.
status=0
"$2" --csv "$work/closed" "$run/TERVAK.RIF" >&- 2>"$work/said" || status=$?
[ "$status" = 1 ] && grep -q 'standard output cannot be written' "$work/said" || { echo "closed output: $status"; exit 1; }
"$2" --csv "$work/open" "$run/TERVAK.RIF" >"$work/said"
diff -r "$work/open" "$work/closed"
rm -r "$work/open" "$work/closed" "$work/said"
MPLCONFIGDIR=$work "$python" "$3/tests/programs/tables_test.py" "$2" "$work" "$3/docs/outputs.md"
