#!/usr/bin/env bash
# The tables of docs/messages.md are the rows of the catalogue from which tervak-check --explain takes its meanings; those of
# docs/check.md are its rules, and the warnings of the examples.
#
#   tables_test.sh TABLES TERVAK_CHECK [--approve]     TABLES prints the rows; --approve writes them into the pages
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
tables=$(realpath "$1") check=$(realpath "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

warnings() {
  echo '## Warnings of the examples'
  cd "$root/examples"
  for deck in *.inp [!f]*/*.inp; do
    rules=$("$check" "$deck" | sed -n 's/.*: warning: .* \[\([a-z0-9-]*\)\]$/\1/p' | sort | uniq -c |
      awk '{ printf "%s`%s`%s", sep, $2, ($1 > 1 ? " (" $1 ")" : ""); sep = ", " }')
    echo "| [$deck](../examples/$deck) | ${rules:-none} |"
  done
}
"$tables" >"$work/messages.rows"
{ echo '## Rules'; "$tables" --rules; warnings; } >"$work/check.rows"

bad=0
for name in messages check; do
  page=$root/docs/$name.md
  awk -v rows="$work/$name.rows" '
    BEGIN {
      while ((getline line < rows) > 0) {
        if (line ~ /^## /) title = line
        else table[title] = table[title] line "\n"
      }
    }
    /^## / { title = $0; made = 0 }
    made && /^\|/ { next }
    { made = 0; print }
    /^\|---/ && title in table { printf "%s", table[title]; delete table[title]; made = 1 }
    END { for (title in table) print "no table under: " title }' "$page" >"$work/$name.md"
  if [ "${3:-}" = --approve ]; then cp "$work/$name.md" "$page"; fi
  diff "$page" "$work/$name.md" || bad=1
done
exit $bad
