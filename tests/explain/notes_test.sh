#!/usr/bin/env bash
# Notes of six decks against their approved text, and what tervak-explain says and leaves in other cases.
#
#   notes_test.sh PROGRAM             compare
#   notes_test.sh --approve PROGRAM   take the present notes over, to be looked at with git diff
set -u
here=$(cd "$(dirname "$0")" && pwd)
approve=no
if [ "${1:-}" = --approve ]; then
  approve=yes
  shift
fi
program=$(realpath "${1:?usage: notes_test.sh [--approve] PROGRAM}")
cd "$here/../../examples" || exit 1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work/scratch
mkdir "$TMPDIR"
failed=0
bad() {
  echo "$*"
  failed=1
}
expect() { # status, what the answer has, arguments
  local status=$1 text=$2
  shift 2
  "$program" "$@" >"$work/answer" 2>&1
  local found=$?
  [ $found = "$status" ] || bad "status $found, expected $status: $*"
  [ -z "$text" ] || grep -qF -- "$text" "$work/answer" || { bad "'$text' is not in the answer to: $*"; head -n 5 "$work/answer"; }
}

while read -r name arguments; do
  # shellcheck disable=SC2086
  "$program" "${name%%:*}.inp" $arguments >"$work/note" 2>&1 || bad "status $? of $name"
  if [ $approve = yes ]; then
    cp "$work/note" "$here/approved/$name.txt"
  else
    diff "$here/approved/$name.txt" "$work/note" >"$work/diff" || { bad "DIFFERS $name"; head -n 20 "$work/diff"; }
  fi
done <<'NOTES'
all-py-codes
automatic-manual --diameter 1
capacity-methods --family axial
layered-scour --layer 3
rev4-mixed --diameter 1
sand-cpt --family py
NOTES

expect 2 "misspelt-keyword.inp:" faults/misspelt-keyword.inp
expect 2 "expected a layer from 1 to" small-clay.inp --layer 499
expect 2 "expected py, tz, qz or axial" small-clay.inp --family xy
expect 2 "is the deck" small-clay.inp -o ./small-clay.inp
expect 2 "no-such-deck.inp" no-such-deck.inp
# A negative strength stops the layer build: the note goes up to there and has the log's line.
sed 's/1   17.0   0.0   5.0  255.0/1   17.0   0.0   5.0 -255.0/' rev4-clay.inp >"$work/stop.inp"
expect 1 "**** SR/BUILD : NEGATIVE SU VALUE CALCULATED" "$work/stop.inp" --layer 2
grep -q "Su = -2.54" "$work/answer" || bad "the note does not show the strength that stopped the run"
expect 0 "" pile-nodes/pile-nodes.inp -o "$work/note.html"
for text in 'id="p1-l1-d1-py"' '<svg' '</html>'; do
  grep -qF "$text" "$work/note.html" || bad "no $text in the page"
done
[ -z "$(ls -A "$TMPDIR")" ] || bad "left behind: $(ls -A "$TMPDIR")"
[ -z "$(git ls-files --others -- . 2>/dev/null)" ] || bad "left in examples: $(git ls-files --others -- .)"
exit $failed
