#!/usr/bin/env bash
# Runs decks through the built program and compares every file that a run leaves with its approved bytes.
#
#   golden.sh PROGRAM [DECK...]             compare; without decks: all of examples/ and tests/golden/
#   golden.sh --approve PROGRAM [DECK...]   take the present outputs over, to be looked at with git diff
#
# What differs from run to run is masked by mask.sh.
set -u
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
approve=no
if [ "${1:-}" = --approve ]; then
  approve=yes
  shift
fi
program=$(realpath "${1:?usage: golden.sh [--approve] PROGRAM [DECK...]}")
shift
[ $# -gt 0 ] || set -- "$root"/examples/*.inp "$root"/examples/*/*.inp "$here"/*.inp "$here"/*/*.inp

. "$here/mask.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
for deck in "$@"; do
  case $deck in */faults/*) continue ;; esac
  [ -f "$deck" ] || continue
  name=$(basename "$deck" .inp)
  run=$work/$name
  mkdir "$run"
  cp "$deck" "$run/TERVAK.INP"
  cp "$deck" "$run/tervak.inp"
  pileplot=$(dirname "$deck")/PILEPLOT.TXT
  if [ -f "$pileplot" ]; then cp "$pileplot" "$run"; fi
  (cd "$run" && "$program" >stdout 2>stderr; echo $? >status)
  rm -f "$run/TERVAK.INP" "$run/tervak.inp" "$run/PILEPLOT.TXT"
  for file in "$run"/*; do mask "$file"; done
  approved=$here/approved/$name
  if [ $approve = yes ]; then
    mkdir -p "$here/approved"
    rm -rf "$approved"
    cp -r "$run" "$approved"
    echo "approved $name"
  elif diff -r "$approved" "$run" >"$work/diff" 2>&1; then
    echo "ok       $name"
  else
    echo "DIFFERS  $name"
    head -n 40 "$work/diff"
    failed=1
  fi
  rm -rf "$run"
done
exit $failed
