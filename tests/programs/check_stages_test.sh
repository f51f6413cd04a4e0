#!/usr/bin/env bash
# Errors of the stages lead back to the deck, by the rows of check_stages.txt; each deck of examples/faults ends with a place; a log
# of any bytes is taken.
#   check_stages_test.sh TERVAK_CHECK TERVAK EXAMPLES
set -eu
data=$(cd "$(dirname "$0")" && pwd)/check_stages.txt
check=$(realpath "$1") tervak=$(realpath "$2") examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$examples"/*.inp "$examples"/tutorial/*.inp "$examples"/pile-nodes/*.inp "$work"
bad=0
fail() { echo "$*"; bad=1; }

run() { # deck; leaves the run's files in $work/run
  rm -rf "$work/run"
  mkdir "$work/run"
  cp "$1" "$work/run/TERVAK.INP"
  ln -s TERVAK.INP "$work/run/tervak.inp"
  (cd "$work/run" && "$tervak") >/dev/null 2>&1 || true
}
explain() { local s=0; "$check" --explain "$work/run/TERVAK.MLG" "$1" >"$work/out" || s=$?; echo "$s"; }

while IFS='|' read -r base message places script; do
  case $base in '#'* | '') continue ;; esac
  sed "$script" "$work/$base.inp" >"$work/deck"
  run "$work/deck"
  status=$(explain "$work/deck")
  # The names of the places in the explanation that holds the message
  found=$(awk -v wanted="$message" -v deck="$work/deck:" '
    function flush(    i) { if (index(text, wanted) && !done) { done = 1; print names } text = names = "" }
    /^(error|warning): / || /^tervak.inp:/ { flush() }
    index($0, deck) == 1 { sub(/^[^:]*:[0-9]*:[0-9]*: /, ""); names = names (names ? ";" : "") $0; next }
    { text = text "\n" $0 }
    END { flush() }' "$work/out")
  [ "$status,$found" = "0,$places" ] || fail "$base, $message: status $status, places '$found', expected '$places'"
done <"$data"

for deck in "$examples"/faults/*.inp; do
  s=0
  "$check" "$deck" >"$work/out" || s=$?
  [ "$s" = 2 ] && head -1 "$work/out" | grep -q "^$deck:[0-9]*:[0-9]*: " || fail "$deck: status $s, no place"
  [ "$(sed "s,^$deck:,tervak.inp:," "$work/out")" = "$(tr -d '\r' <"${deck%inp}expected")" ] || fail "$deck: another text"
  run "$deck"
  [ "$(explain "$deck")" = 0 ] || { fail "$deck: its log is not known"; cat "$work/out"; }
  grep -q "^$deck:[0-9]*:[0-9]*: " "$work/out" || fail "$deck: its log leads to no place"
done

# A message that is not known, bytes that are no text, and files that cannot be read
printf ' +++++ START PROGRAM TERVAK   VERSION = 1 2\r\n **** SR/MADEUP : \033[31m\377\000 N= 5\r\n' >"$work/run/TERVAK.MLG"
[ "$(explain "$work/tutorial.inp")" = 1 ] && grep -q 'SR/MADEUP : ?\[31m?? N= 5' "$work/out" || fail "an unknown message"
LC_ALL=C awk 'BEGIN { srand(7); for (i = 0; i < 100000; ++i) printf "%c", int(256 * rand()) }' >"$work/run/TERVAK.MLG"
[ "$(explain "$work/tutorial.inp")" = 1 ] && ! LC_ALL=C grep -q '[^[:print:]	]' <(iconv -c -f utf-8 -t ascii "$work/out") ||
  fail "a log of random bytes"
[ "$(explain "$work/absent" 2>/dev/null)" = 2 ] || fail "a deck that is not there"
rm "$work/run/TERVAK.MLG"
[ "$(explain "$work/tutorial.inp" 2>/dev/null)" = 2 ] || fail "a log that is not there"
mkfifo "$work/fifo"
s=0
"$check" "$work/fifo" >"$work/out" 2>&1 || s=$?
[ "$s" = 2 ] && grep -q "$work/fifo: " "$work/out" || fail "a FIFO in place of a deck"
s=0
"$check" "$work/small-clay.inp" >&- 2>"$work/out" || s=$?
[ "$s" = 2 ] && grep -q 'standard output cannot be written' "$work/out" || fail "a closed output: status $s, $(cat "$work/out")"
exit $bad
