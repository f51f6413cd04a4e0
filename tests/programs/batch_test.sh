#!/usr/bin/env bash
# batch_test.sh TERVAK TERVAK_RUN EXAMPLES: a field of twenty decks with a broken one among them through run-field and field.slurm.
set -u
tervak=$1 examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/bin" "$work/my decks" "$work/other"
ln -s "$tervak" "$work/bin/tervak"
cp "$2" "$examples/batch/run-field" "$examples/batch/field.slurm" "$work/bin"
cd "$work" || exit 1
PATH=$work/bin:$PATH
for n in {1..20}; do sed "s/^BORING .*/BORING   B $n/" "$examples/small-clay.inp" >"my decks/B $n.inp"; done
failures=0

check() { # name, command
  local name=$1
  shift
  if "$@"; then echo "ok      $name"; else echo "FAILED  $name; the answer was:"; cat answer; failures=$((failures + 1)); fi
}
answers() { # status, line that must stand in the answer; then the command
  local status=$1 line=$2 got=0
  shift 2
  "$@" >answer 2>&1 </dev/null || got=$?
  [ $got = "$status" ] && grep -qxF -- "$line" answer
}
task() { SLURM_ARRAY_TASK_ID=$1 bash bin/field.slurm decks.txt "tasks of a field"; }
counted() { [ "$(grep -lx 0 results/*/run.status | wc -l) $(ls -d results/*/TERVAK.RIF | wc -l)" = "19 19" ]; }
stamped() { sed -e 's/STARTED :.*//; s/ Time = .*//' "$1/TERVAK.LIS"; sed 4,6d "$1/TERVAK.RIF"; cat "$1"/*.fem; }
same() { [ "$(stamped "$1" | wc -l)" -gt 500 ] && cmp <(stamped "$1") <(stamped "$2") && grep -q '"B 13 *"' "$1/TERVAK.MLG"; }

check "a good run" answers 0 "1 of 1 runs are good." run-field "my decks/B 7.inp"
sed -i 's/^DIAM/DAIM/' "my decks/B 7.inp"
check "a deck that has changed" answers 1 "          The deck or its PILEPLOT.TXT has changed since its run." run-field --tell "my decks"
check "nineteen of twenty" answers 1 "19 of 20 runs are good." run-field -j 4 "my decks"
check "nineteen have results, the broken one none of its earlier run" counted
check "the broken one by name" grep -qxF "FAILED  B 7  (deck my decks/B 7.inp, answer results/B 7/run.txt)" answer
check "its fault" grep -q '^          my decks/B 7\.inp:[0-9]*:1: unknown keyword "DAIM"' answer
check "the list to run again" cmp results/failed.txt <(echo "my decks/B 7.inp")
rm "results/B 7/run.txt"
check "a failed run that said nothing" answers 1 "          tervak-run ended with status 1 and said nothing." run-field --tell "my decks"
cp "my decks/B 8.inp" "my decks/B 7.inp"
check "the mended one alone" answers 0 "1 of 1 runs are good." run-field -l results/failed.txt
cp "my decks/B 7.inp" "other/b 7.INP"
check "two of one name" answers 2 "run-field: two decks of one name: my decks/B 7.inp and other/b 7.INP; run them in two calls with two -o" \
  run-field "my decks" other

printf 'my decks/B %s.inp\r\n' {1..20} >decks.txt
check "task 13" answers 0 "The run is good; 1 warning." task 13
tervak-run "my decks/B 13.inp" alone >/dev/null
check "task 13 and tervak-run agree" same "tasks of a field/B 13" alone
check "a task beyond the list" answers 2 "field.slurm: task 21 is beyond the list: decks.txt has 20 lines" task 21
check "tasks that have not run" answers 1 "1 of 20 runs are good." run-field --tell -l decks.txt -o "tasks of a field"

rm bin/tervak
printf '#!/bin/sh\nkill -TERM "$FIELD"\nexec sleep 60\n' >bin/tervak && chmod +x bin/tervak
interrupted() { bash -c 'FIELD=$$ exec run-field -j 1 "my decks"'; }
check "an interrupted field" answers 143 "0 of 20 runs are good." interrupted
exit $failures
