#!/usr/bin/env bash
# docs/messages.md holds every message that stands in the source, and no message that does not.
#
# A message is a string literal that begins with "(" and quotes a text: a format. The documents show it in the first
# column of a table: each record in backquotes, records separated by <br>, several messages in one cell by <br>or<br>.
# A format prints one or more records of a message that follow one another: its quoted texts, taken away from them in
# their order, must leave nothing but placeholders (N, X, T). Each record of a message belongs to a format.
# The monopile findings are put together from pieces; each of their pieces must stand in some first column.
#
# Left out, by file, because their formats are pages and not messages: the listing's pages (IO/PRINT*), the export's
# heading and layer rows (IO/G2USFOS_soilchar.cpp), banner and stamps (Control/identification.cpp).
set -eu
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

literals() { for file in "$@"; do awk -f "$here/literals.awk" "$file"; done; }

check() { # document, file of formats, file of monopile pieces; prints what is wrong
  awk -F '\t' -v document="$1" -v monopile="$3" '
    function trim(text) { gsub(/^ +| +$/, "", text); return text }
    function add(piece) { if (piece ~ /[A-Za-z]/) pieces[++count] = trim(piece) }
    # The quoted texts of a format; "a","b" side by side are one text.
    function split_format(format,    i, c, piece, quoted) {
      count = 0
      for (i = 2; i <= length(format); ++i) {
        c = substr(format, i, 1)
        if (!quoted) {
          if (c == "\047") { quoted = 1; piece = "" }
        } else if (c != "\047") {
          piece = piece c
        } else if (substr(format, i + 1, 1) == "\047") {
          piece = piece substr(format, ++i, 1)
        } else if (substr(format, i + 1, 2) == ",\047") {
          i += 2
        } else {
          quoted = 0
          add(piece)
        }
      }
      if (quoted) add(piece)
    }
    # Whether the format prints the records `from` to `to`; marks them when it does.
    function shows(message, from, to,    i, at, rest, text) {
      text = records[message, from]
      for (i = from + 1; i <= to; ++i) text = text "<br>" records[message, i]
      rest = ""
      for (i = 1; i <= count; ++i) {
        at = index(text, pieces[i])
        if (at == 0) return 0
        rest = rest substr(text, 1, at - 1)
        text = substr(text, at + length(pieces[i]))
      }
      rest = rest text
      gsub(/<br>|[`" NXT]/, "", rest)
      if (rest != "") return 0
      for (i = from; i <= to; ++i) used[message, i] = 1
      return 1
    }
    BEGIN {
      while ((getline line < document) > 0) {
        if (line !~ /^\| `/) continue
        split(line, cells, /\|/)
        n = split(cells[2], parts, /<br>or<br>/)
        for (i = 1; i <= n; ++i) {
          messages[++total] = trim(parts[i])
          size[total] = split(messages[total], lines, /<br>/)
          for (k = 1; k <= size[total]; ++k) records[total, k] = lines[k]
        }
        all = all cells[2] "\n"
      }
      while ((getline line < monopile) > 0) {
        split(line, cells, /\t/)
        if (cells[2] ~ /[A-Za-z]/ && index(all, trim(cells[2])) == 0) print "missing: " line
      }
    }
    $2 ~ /^\(/ {
      split_format($2)
      if (count == 0) next
      found = 0
      for (i = 1; i <= total; ++i) {
        if (index(messages[i], pieces[1]) == 0) continue
        for (k = 1; k <= size[i]; ++k)
          for (j = k; j <= size[i]; ++j)
            if (shows(i, k, j)) found = 1
      }
      if (!found) print "missing: " $0
    }
    END {
      for (i = 1; i <= total; ++i)
        for (k = 1; k <= size[i]; ++k)
          if (!used[i, k] && messages[i] ~ /^`(\*+ SR\/|\*+ [EW]|-+ |\++ |WARNING)/)
            print "not in the source: " records[i, k]
    }' "$2"
}

cd "$root"
mapfile -t files < <(find src -name '*.[ch]pp' ! -path '*/IO/listing/PRINT*' ! -name G2USFOS_soilchar.cpp ! -name identification.cpp | sort)
literals "${files[@]}" >"$work/formats"
literals src/SoilCurves/monopile/*.[ch]pp | grep -v '	(' >"$work/monopile"
[ -s "$work/monopile" ] || { echo "no monopile texts found"; exit 1; }

# The check sees a message that no document holds, a changed word, and a message or a record that has left the source.
printf '%s\n' '// "(no format'"'"')"' 'const char x = '"'"'"'"'"';' 'f("(/,'"'"' **** SR/MADEUP : "' \
  '  "\"A\" IS'"'"','"'"' WRONG  N='"'"',i5)", 1'"'"'000);' >"$work/made_up.cpp"
literals "$work/made_up.cpp" >"$work/made_up"
says() { [ "$(check "$1" "$work/made_up" /dev/null | cut -c 1-8)" = "$2" ]; }
printf '| `**** SR/MADEUP : "A" IS WRONG  N= N` | |\n' >"$work/good.md"
sed 's/WRONG/RIGHT/' "$work/good.md" >"$work/changed.md"
sed 's/N`/N`<br>`GONE`/' "$work/good.md" >"$work/longer.md"
: >"$work/none.md"
says "$work/good.md" "" && says "$work/none.md" "missing:" && says "$work/longer.md" "not in t" && says "$work/changed.md" "missing:
not in t" || { echo "the check itself is at fault"; exit 1; }

check docs/messages.md "$work/formats" "$work/monopile" >"$work/faults"
cat "$work/faults"
[ ! -s "$work/faults" ]
