#!/usr/bin/env bash
# Every excerpt in docs/ stands, line for line, in the file that it names, a fenced block directly behind one of
#
#   <!-- from: DECK FILE -->   an approved output
#   <!-- deck: FILE -->        a file of this repository, such as a deck
#   <!-- run: DECK -->         what tervak-run and then tervak-report print of this deck, run in /home/you/piles
#   <!-- run: commands -->     what the blocks behind <!-- commands --> print, run there after all decks
#   <!-- check: DECK -->       what tervak-check prints of this deck and, with --explain, of the log of its approved outputs
#
# Line ends and blanks at the ends of lines do not count.   excerpts_test.sh [DIRECTORY_OF_THE_PROGRAMS]
# Without the programs the last two kinds are not looked at.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
programs=${1:+$(realpath "$1")}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

run() { # deck; leaves what is printed in $work/run
  local name
  name=$(basename "$1" .inp)
  mkdir -p "$work/piles" "$work/run/$(dirname "$1")"
  cp "$root/$1" "$work/piles"
  (cd "$work/piles" && { "$programs/tervak-run" "$name.inp"; "$programs/tervak-report" --units kN,m -o "$name.html" "$name/TERVAK.RIF"; } 2>&1) |
    sed "s,$work/piles,/home/you/piles," >"$work/run/$1"
}

checked() { # deck; leaves what tervak-check prints in $work/check
  local name
  name=$(basename "$1" .inp)
  mkdir -p "$work/check/$(dirname "$1")"
  (cd "$root/$(dirname "$1")" && "$programs/tervak-check" "$name.inp"
    "$programs/tervak-check" --explain "$root/tests/golden/approved/$name/TERVAK.MLG" "$name.inp") >"$work/check/$1" || true
}

check() { # directory of approved outputs, documents; prints what is wrong, then the number of excerpts
  local directory=$1
  shift
  awk -v directory="$directory" -v root="$root" -v run="${programs:+$work/run}" -v checked="$work/check" '
    function stripped(line) { sub(/[ \r]+$/, "", line); return line "\n" }
    function whole(file,    text, line) {
      text = "\n"
      while ((getline line < file) > 0) text = text stripped(line)
      close(file)
      return text
    }
    function fault(what) { print FILENAME ":" start ": " what }
    FNR == 1 && state { fault("the excerpt is not closed"); state = 0 }
    state == 1 && !/^```/ { fault("no fenced block behind this line"); state = 0 }
    state == 2 && /^```/ {
      ++count
      if (block == "\n" || index(whole(file), block) == 0) fault("does not stand in " file)
      state = 0
      next
    }
    state == 2 { block = block stripped($0) }
    state == 1 { state = 2 }
    /^<!-- (from|deck|run|check): / {
      if (($2 == "run:" || $2 == "check:") && run == "") next
      state = 1
      start = FNR
      block = "\n"
      file = $2 == "from:" ? directory "/" $3 "/" $4 : ($2 == "deck:" ? root : $2 == "run:" ? run : checked) "/" $3
    }
    END {
      if (state) fault("the excerpt is not closed")
      print count + 0 " excerpts"
    }' "$@"
}

# The check sees a changed line, and a block that lost a line in its middle.
mkdir "$work/deck"
printf 'one  \r\n two\r\nthree\r\n' >"$work/deck/FILE"
excerpt() { printf '<!-- from: deck FILE -->\n```\n%b\n```\n' "$1" >"$work/excerpt.md"; check "$work" "$work/excerpt.md" | wc -l; }
[ "$(excerpt 'one\n two')$(excerpt 'two\nthree')$(excerpt ' two\nthree')$(excerpt 'one\nthree')" = 1212 ] ||
  { echo "the check itself is at fault"; exit 1; }

if [ -n "$programs" ]; then
  for deck in $(sed -n 's/^<!-- run: \([^ ]*\.inp\) .*/\1/p' "$root"/docs/*.md | sort -u); do run "$deck"; done
  awk '/^<!-- commands -->/ { state = 2 } /^```/ { --state; next } state == 1' state=0 "$root"/docs/*.md >"$work/commands"
  (cd "$work/piles" && PATH=$programs:$PATH bash "$work/commands") >"$work/run/commands" 2>&1 || true
  for deck in $(sed -n 's/^<!-- check: \([^ ]*\) .*/\1/p' "$root"/docs/*.md | sort -u); do checked "$deck"; done
fi
check "$root/tests/golden/approved" "$root/README.md" "$root"/docs/*.md >"$work/result"
cat "$work/result"
[ "$(wc -l <"$work/result")" = 1 ] && [ "$(cat "$work/result")" != "0 excerpts" ]
