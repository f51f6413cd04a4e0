#!/usr/bin/env bash
# The pages of docs/methods and the program agree:   methods_test.sh PROGRAM   (docs/methods_numbers.cpp)
#
# - every equation of the source is on exactly one page, its own, below its typeset form, with its formula and source,
#   and no page has an equation that the source lacks;
# - every block has its worked number as the routines make it now;
# - every block has all its parts in their order;
# - every curve code and every capacity method has its block;
# - the names of methods that the page of tervak-report has are the labels of the tables (it may lack a name).
set -eu
program=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
(cd "$work" && "$program" numbers >numbers)
cd "$(dirname "$0")/../../docs/methods"
pages=$("$program" equations | cut -f 1 | uniq)

equations() { # pages; prints page, id, formula and source of each equation line, and what is wrong with a line
  awk '
    /^\$\$ .* \$\$$/ { typeset = FNR; next }
    /^`[A-Z]+-[A-Z0-9-]+`/ {
      if (!match($0, /^`[A-Z0-9-]+`: `[^`]+` \(.*\)$/)) print FILENAME ":" FNR ": not an equation line"
      if (typeset != FNR - 2) print FILENAME ":" FNR ": no typeset form above"
      split($0, part, "`")
      print FILENAME "\t" part[2] "\t" part[4] "\t" substr(part[5], 3, length(part[5]) - 3)
    }' "$@"
}

shape() { # pages; the parts of each block, in order; Points belongs to the pages of curves
  awk '
    function close_block() {
      want = "Use Symbols Equations " (page ~ /^.z.md|^py.md/ ? "Points " : "") "Constants Defaults Failures Departures Source Worked_number "
      if (block != "" && parts != want) print page ": " block ": has " parts
      block = parts = ""
    }
    FNR == 1 { close_block(); page = FILENAME }
    /^## / { close_block(); block = $0 }
    match($0, /^\*\*[A-Z][a-z ]+\.\*\*/) { part = substr($0, 3, RLENGTH - 5); gsub(" ", "_", part); parts = parts part " " }
    END { close_block() }' "$@"
}

codes() { # pages; prints each code and method that no heading names
  "$program" codes | while read -r family code _; do
    cat "$@" | grep -qE "^## $family .*\b$code\b" || echo "no block: $family $code"
  done
}

names() { # the report's source; prints each name of a method that is not the label in the tables
  sed -nE 's/.*\{curve_kind::(.)., ([0-9]+), "([^"]+)"\}.*/\1 \2 \3/p' "$@" | while read -r family code name; do
    "$program" codes | grep -qE "^${family^}-[YZ] $code [45]+ $name *$" || echo "the report has $family $code $name"
  done
}

# The check sees a changed formula, a line without its typeset form, a block without a part, a code without a block,
# a name that is another's.
printf '%s\n\n%s\n' '$$ a = b $$' '`PY-0-1`: `a = b` (me)' >"$work/good.md"
sed 's/a = b/a = c/' "$work/good.md" | sed 1,2d >"$work/bad.md"
printf '## P-Y 10, 100\n**Use.** x\n**Source.** y\n' >"$work/py.md"
[ "$(equations "$work/good.md" | cut -f 2-)" = $'PY-0-1\ta = b\tme' ] && [ "$(equations "$work/bad.md" | wc -l)" = 2 ] &&
  [ "$(cd "$work" && shape py.md)" = "py.md: ## P-Y 10, 100: has Use Source " ] &&
  [ "$(codes "$work/py.md" | grep -cxE 'no block: (P-Y (100|214)|T-Z 100|Method 3)')" = 3 ] &&
  [ "$(printf '%s\n' '{curve_kind::tz, 293, "API-93"},' '{curve_kind::py, 284, "API-87"}' | names)" = \
    "the report has p 284 API-87" ] ||
  { echo "the check itself is at fault"; exit 1; }

"$program" equations | sort >"$work/source"
# shellcheck disable=SC2086
{
  equations $pages | sort | diff "$work/source" - || true
  cut -f 2 "$work/source" | uniq -d | sed 's/^/twice: /'
  diff "$work/numbers" <(cat $pages | grep -E '^## |^\*\*Worked number') || true
  shape $pages
  codes $pages
  names ../../programs/report/*.cpp
} >"$work/faults"
cat "$work/faults"
[ ! -s "$work/faults" ]
