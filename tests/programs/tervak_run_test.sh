#!/usr/bin/env bash
# tervak_run_test.sh TERVAK TERVAK_RUN EXAMPLES: what tervak-run says of good, refused, stopped, killed and odd runs.
set -u
tervak=$1 script=$2 examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin"
cp "$script" "$work/bin/tervak-run"
cd "$work" || exit 1
failures=0

program() { # what stands beside the script in place of the program
  rm -f bin/tervak  # a link to the real program, maybe
  printf '#!/bin/sh\n%s\n' "$1" >bin/tervak
  chmod +x bin/tervak
}
real() { rm -f bin/tervak && ln -s "$tervak" bin/tervak; }
expect() { # name, status, text that must stand in the answer, text that must not; then the words of the call
  local name=$1 status=$2 has=$3 lacks=$4
  shift 4
  answer=$(bin/tervak-run "$@" 2>&1)
  local got=$?
  if [ $got != "$status" ] || ! printf '%s' "$answer" | grep -qF -- "$has" ||
     { [ -n "$lacks" ] && printf '%s' "$answer" | grep -qF -- "$lacks"; }; then
    printf 'FAILED  %s: status %s, expected %s; "%s" without "%s" in:\n%s\n' "$name" $got "$status" "$has" "$lacks" "$answer"
    failures=$((failures + 1))
  else
    echo "ok      $name"
  fi
}

GOOD="The run is good: it ended with NORMAL EXIT and status 0."
real
expect "a good run" 0 "$GOOD" "stale" "$examples/small-clay.inp" run
expect "its warnings are shown" 0 "PILE TIP TENSION ALLOWED" "" "$examples/layered-scour.inp" other
expect "the whole of a warning" 0 "No calculation cmn.method specified" "----------" "$examples/tutorial/tutorial-no-method.inp" third
expect "pile nodes come along" 0 "$GOOD" "" "$examples/pile-nodes/pile-nodes.inp"
cp "$examples/pile-nodes/pile-nodes.inp" ./-n.inp
expect "and those that lie in the directory are told of" 0 "pile nodes: PILEPLOT.TXT of this directory" "" -n.inp pile-nodes
[ -f pile-nodes/PILEPLOT.TXT ] || { echo "FAILED  no PILEPLOT.TXT in the default directory"; failures=$((failures + 1)); }
sleep 0.1
expect "a refused deck, with the earlier file called stale" 1 "TERVAK.RIF is stale" "$GOOD" "$examples/faults/misspelt-keyword.inp" run
expect "the place of the fault is shown" 1 "tervak.inp:9:1: unknown keyword" "" "$examples/faults/misspelt-keyword.inp" run
expect "a missing deck" 2 "no such deck: nowhere.inp" "" nowhere.inp
expect "too many words" 2 "found 3 words" "" a b c
program 'exit 0'
expect "a program that does nothing" 1 "it made no run log" "$GOOD" "$examples/small-clay.inp" run
program 'printf " NORMAL EXIT FROM TERVAK\r\n" >TERVAK.MLG'
expect "NORMAL EXIT without results of this run" 1 "older than the run" "$GOOD" "$examples/small-clay.inp" run
program 'printf " ERROR EXIT FROM TERVAK\r\n" >TERVAK.MLG; touch TERVAK.LIS TERVAK.RIF soil_halde.fem soil_70.fem'
expect "ERROR EXIT with status 0" 1 "of this run and not whole" "$GOOD" "$examples/small-clay.inp" run
program 'printf " **** Run was stopped by SR/NGI11\r\n" >TERVAK.MLG; exit 255'
expect "a stop, with its last message" 1 "Its last message: **** Run was stopped by SR/NGI11" "$GOOD" "$examples/small-clay.inp" run
program 'echo " a page" >TERVAK.MLG; exit 255'
expect "a stop without a message" 1 "with too few curves in MANUALPY" "$GOOD" "$examples/small-clay.inp" run
program 'kill -9 $$'
expect "a killed program" 1 "killed by signal 9" "$GOOD" "$examples/small-clay.inp" run
exit $failures
