#!/usr/bin/env bash
# The decks of examples/ touch together every keyword of the deck, every curve code of each revision and every
# capacity method in clay and in sand. The table of examples/README.md names all of them, with decks that touch them.
set -eu
methods=$(realpath "$1")  # prints the tables of methods
cd "$(dirname "$0")/../../examples"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

list() { sed -n "/ $2\[\] = /,/};/p" "../src/TervakExchange/$1" | grep -oE "$3[A-Z0-9]+" | grep -oE '[A-Z0-9]+$'; }
{
  list deck_scalars.cpp SCALARS '\{"'; list deck_curves.cpp CURVES '\{"'; list deck_tables.cpp TABLES '&'
  "$methods" codes | while read -r family code revisions _; do
    if [ "$family" = Method ]; then printf "METHOD $code %s\n" clay sand; continue; fi
    for revision in 4 5; do case $revisions in *$revision*) echo "$family $code revision $revision" ;; esac; done
  done
} >"$work/wanted"

check() { # decks, the page; prints what no deck touches, and what the page has wrong
  awk -v wanted="$work/wanted" '
    function touch(what, kind) { touched[what] = touched[what, FILENAME] = touched[what " " kind] = 1 }
    FILENAME == "README.md" { if (/^\| `/) page[++rows] = $0; next }
    FNR == 1 || (heading && !/^([*Cc]|[ \t\r]*$)/) { heading = 0; next }
    /^END/ { heading = 1 }
    heading || /^[*Cc]/ { next }
    { sub(/[!\r].*/, "") }
    toupper($1) == "REVISION" { revision = "revision " $2 }
    $1 ~ /^[A-Za-z]/ && $1 != "AT" { touch(table = toupper($1)); next }
    table == "MAINLAYERS" { soil[$1] = $8 + $9 > 0 ? "clay" : "sand" }
    table == "SKINFRICTION" { touch("METHOD " $2, soil[$1]) }
    table == "SUBDIVISION" { touch("P-Y " $4, revision); touch("T-Z " $5, revision); touch("Q-Z " $6, revision) }
    table == "LAYERS" { touch("P-Y " $5, revision); touch("T-Z " $6, revision); touch("Q-Z " $7, revision) }
    END {
      for (r = 1; r <= rows; ++r) {
        split(page[r], cell, "|")
        n = split(cell[2], words, "`")
        for (i = 2; i <= n; i += 2) named[words[i]] = 1
        for (rest = cell[3]; match(rest, /\([^)]+\)/); rest = substr(rest, RSTART + RLENGTH))
          for (i = 2; i <= n; i += 2) {
            deck = substr(rest, RSTART + 1, RLENGTH - 2)
            if (!((words[i], deck) in touched)) print "not so: " words[i] " in " deck
          }
      }
      while ((getline what < wanted) > 0) {
        if (!touched[what]) print "in no example: " what
        sub(/ (revision .|clay|sand)$/, "", what)
        if (FILENAME == "README.md" && !named[what]++) print "not on the page: " what
      }
    }' "$@"
}
# The check sees what is in no example; here the decks in folders are left out.
check ./*.inp | grep -qx 'in no example: NUMPIL' &&
  [ "$(grep -cxE 'Q-Z 293 revision 4|P-Y 600 revision 5|METHOD 3 sand|MODIFYBSY' "$work/wanted")" = 4 ] ||
  { echo "the check itself is at fault"; exit 1; }
check *.inp $(ls -- */*.inp | grep -v '^faults/') README.md | tee "$work/faults"
[ ! -s "$work/faults" ]
