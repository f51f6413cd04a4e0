#!/usr/bin/env bash
# The table behind "<!-- look here -->" in docs/outputs.md has the lines that tervak-report prints of the examples, all of
# them, each with a reason.   look_here_test.sh DIRECTORY_OF_THE_PROGRAMS
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
programs=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for deck in "$root"/examples/*.inp "$root"/examples/tutorial/tutorial*.inp "$root"/examples/pile-nodes/*.inp; do
  name=$(basename "$deck" .inp)
  mkdir "$work/$name" && cd "$work/$name"
  "$programs/tervak-run" "$deck" . >/dev/null || continue  # the tutorial has a deck that is refused
  "$programs/tervak-report" | sed -n "s/^look here: /$name | /p"
done | LC_ALL=C sort >"$work/found"
awk -F ' *[|] *' '/^<!-- look here -->/ { on = 1; next } on && !/^\|/ { exit }
  on && ++n > 2 { if ($4 == "") print "no reason: " $0; print $2 " | " $3 }' "$root/docs/outputs.md" | LC_ALL=C sort >"$work/told"
diff "$work/told" "$work/found"
