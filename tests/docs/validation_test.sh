#!/usr/bin/env bash
# docs/validation.md is what the routines print now, every row is within its tolerance, and its workings are right:
# awk works each step again.   validation_test.sh PROGRAM
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

workings() { # page; prints each step whose value is not its expression's, each row whose expected value is not its last step
  {
    cat <<'AWK'
function f_sin(x) { return sin(x * pi / 180) }
function f_cos(x) { return cos(x * pi / 180) }
function f_tan(x) { return f_sin(x) / f_cos(x) }
function f_atan(x) { return atan2(x, 1) * 180 / pi }
function f_tanh(x) { return (exp(2 * x) - 1) / (exp(2 * x) + 1) }
function f_log10(x) { return log(x) / log(10) }
function f_ln(x) { return log(x) }
function f_min(x, y) { return x < y ? x : y }
function f_max(x, y) { return x > y ? x : y }
function check(what, x, y) { if ((x - y) ^ 2 > (1e-7 * y) ^ 2) print what ": " x " is not " y; ++checks }
BEGIN { pi = 4 * atan2(1, 1)
AWK
    sed -E '/^    /s/\b(sin|cos|tan|atan|tanh|log10|ln|min|max)\(/f_\1(/g' "$1" | awk '
      function row_end() { if (row) printf "check(\"No %d, expected\", %s, %s)\n", row, name, expected[row] }
      /^\| [0-9]+ \|/ { split($0, cell, " *[|] *"); expected[cell[2]] = cell[7] }
      /^No [0-9]+:/ { row_end(); row = $2 + 0 }
      /^    / {
        n = split(substr($0, 5), part, " = ")
        name = part[1]
        print name " = " part[2]
        printf "check(\"No %d, %s\", %s, %s)\n", row, name, name, part[n]
      }
      END { row_end() }'
    echo 'if (checks < 300) print "only " checks " steps checked" }'
  } >"$work/steps.awk"
  awk -f "$work/steps.awk"
}

page=$root/docs/validation.md
# The check sees a wrong step and a wrong expected value.
sed -e '0,/^    pu = \(.*\) = .*/s//    pu = \1 = 1/' -e '/^| 8 |/s/| 225 |/| 226 |/' "$page" >"$work/wrong"
[ "$(workings "$work/wrong" | cut -d : -f 1)" = $'No 1, pu\nNo 8, expected' ] ||
  { echo "the check itself is at fault"; exit 1; }

"$1" >"$work/page" || { echo "a row is outside its tolerance"; exit 1; }
diff "$page" "$work/page"
workings "$page" >"$work/faults"
cat "$work/faults"
[ ! -s "$work/faults" ]
