#!/usr/bin/env bash
# Every excerpt of a result in docs/ stands, line for line, in the approved output that it names:
#
#   <!-- from: DECK FILE -->   and directly behind it a fenced block
#
# Line ends and blanks at the ends of lines do not count.   excerpts_test.sh [APPROVED_DIRECTORY]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
approved=${1:-$root/tests/golden/approved}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

check() { # approved directory, documents; prints what is wrong, then the number of excerpts
  local directory=$1
  shift
  awk -v directory="$directory" '
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
    /^<!-- from: / { state = 1; start = FNR; file = directory "/" $3 "/" $4; block = "\n" }
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

check "$approved" "$root"/docs/*.md >"$work/result"
cat "$work/result"
[ "$(wc -l <"$work/result")" = 1 ] && [ "$(cat "$work/result")" != "0 excerpts" ]
