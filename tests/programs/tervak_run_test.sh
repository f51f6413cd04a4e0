#!/usr/bin/env bash
# tervak_run_test.sh TERVAK TERVAK_RUN EXAMPLES: what tervak-run says of good, refused, stopped, killed and odd runs, and what it
# refuses to write over.
set -u
tervak=$1 examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/scratch"
cp "$2" "$work/bin/tervak-run"
cd "$work" || exit 1
export TMPDIR=$work/scratch
failures=0

program() { # what stands beside tervak-run in place of the program
  rm -f bin/tervak  # a link to the real program, maybe
  printf '#!/bin/sh\n%s\n' "$1" >bin/tervak
  chmod +x bin/tervak
}
real() { rm -f bin/tervak && ln -s "$tervak" bin/tervak; }
check() { # name, command
  local name=$1
  shift
  if "$@"; then echo "ok      $name"; else echo "FAILED  $name: $answer"; failures=$((failures + 1)); fi
}
answers() { # status, text that must stand in the answer, text that must not; then the words of the call
  local status=$1 has=$2 lacks=$3
  shift 3
  answer=$(timeout 60 bin/tervak-run "$@" 2>&1)
  local got=$?
  answer="status $got, expected $status; \"$has\" without \"$lacks\" in:"$'\n'$answer
  [ $got = "$status" ] && printf '%s' "$answer" | tail -n +2 | grep -qF -- "$has" &&
    { [ -z "$lacks" ] || ! printf '%s' "$answer" | tail -n +2 | grep -qF -- "$lacks"; }
}
expect() { local name=$1; shift; check "$name" answers "$@"; }
# Nothing but the names in the directory, each with its bytes or the place that it leads to.
state() { (cd "$1" && find . \( -type l -printf '%p %l\n' \) -o \( -type f -exec cksum {} \; \) -o -print | sort); }
refuses() { # directory, text; whatever is in the directory stays as it is
  local before after
  before=$(state "$1")
  answers 2 "$2" "The run is" "$deck" "$1" || return 1
  after=$(state "$1")
  [ "$before" = "$after" ] || { answer="$before became $after"; return 1; }
}

deck=$examples/small-clay.inp  # it has one warning
GOOD="The run is good"
real
expect "a good run" 0 "$GOOD; 1 warning." "not whole" "$deck" run
expect "one without a warning" 0 "$GOOD." "warning" "$examples/tutorial/tutorial.inp" run
expect "warnings of the deck and of the log" 0 "$GOOD; 3 warnings." "" "$examples/layered-scour.inp" run
expect "those of both are told once" 0 "$GOOD; 2 warnings." "run log:" "$examples/tutorial/tutorial-no-method.inp" run
expect "pile nodes come along" 0 "$GOOD" "" "$examples/pile-nodes/pile-nodes.inp"
check "into the default directory" [ -f pile-nodes/PILEPLOT.TXT ]
expect "and go with a deck that has none" 0 "$GOOD" "pile nodes:" "$deck" pile-nodes
check "as they came" [ ! -e pile-nodes/PILEPLOT.TXT ]
cp "$examples/pile-nodes/pile-nodes.inp" . && cp "$examples/pile-nodes/PILEPLOT.TXT" pile-nodes
expect "those of the directory are told of" 0 "pile nodes: PILEPLOT.TXT of this directory" "" pile-nodes.inp
expect "a refused deck, with the place and the earlier file" 1 "misspelt-keyword.inp:9:1: unknown keyword" "run log:" "$examples/faults/misspelt-keyword.inp" run
check "called one of another run" grep -q 'TERVAK.RIF: not whole: is of another run' <<<"$answer"
expect "a missing deck" 2 "no such deck: nowhere.inp" "" nowhere.inp
expect "too many words" 2 "found 3 words" "" a b c
sed -e "s/^DIAM .*/DIAM $(seq -s ' ' 1 0.1 3.0)/; s/12.0      6/12.0     40/; s/50.0      8/50.0     40/" "$deck" >many.inp
expect "more materials than the exports take" 1 "the USFOS exports are not whole. TERVAK.RIF is whole." "$GOOD" many.inp
check "named file by file" grep -q 'soil_70.fem: not whole: the deck has more than 5,000 materials' <<<"$answer"
for odd in ./-n.inp .inp ..inp .hidden.inp $'two\nlines "and" quotes \'.inp'; do
  cp "$deck" "$odd"
  expect "a deck called $odd" 0 "$GOOD; 1 warning." "" "${odd#./}"
done

# What is the user's stays.
mkdir mine && cp run/TERVAK.INP mine && cp "$deck" other.inp
check "a TERVAK.INP of somebody else" refuses mine "mine/TERVAK.INP is not "
cp "$deck" mine/TERVAK.INP
expect "one that equals the deck" 0 "$GOOD" "" other.inp mine
sed -i 's/lower bound/upper bound/' other.inp
expect "run, correct, run again" 0 "$GOOD" "" other.inp mine
echo '* by hand' >>mine/TERVAK.INP
check "one that was changed since" refuses mine "mine/TERVAK.INP is not "
for name in TERVAK.INP tervak.inp PILEPLOT.TXT TERVAK.MLG TERVAK.LIS.bak TERVAK.RIF fem_io_unit_015 .tervak-run; do
  rm -rf mine && mkdir mine && ln -s ../pile-nodes.inp "mine/$name"
  cp "$examples/pile-nodes/pile-nodes.inp" pile-nodes.inp && cp "$examples/pile-nodes/PILEPLOT.TXT" PILEPLOT.TXT
  deck=other.inp
  check "a link $name" refuses mine "mine/$name"
  rm "mine/$name" && mkfifo "mine/$name"
  check "a FIFO $name" refuses mine "mine/$name"
done
rm -rf mine PILEPLOT.TXT && mkdir mine && touch mine/fem_io_notes.txt
check "a file that the program would delete" refuses mine "rename it"
rm mine/*  && touch mine/fem_io_unit_015 && ln -s TERVAK.INP mine/tervak.inp
expect "leftovers of a stopped run" 0 "$GOOD" "" other.inp mine
cp other.inp mine/TERVAK.LIS.bak && deck=mine/TERVAK.LIS.bak
check "a deck that the run would move" refuses mine "has a name that the run writes or moves"
ln mine/TERVAK.RIF kept.RIF && deck=other.inp
check "results with a second name" refuses mine "2 names"

limited() { answer=$(trap '' XFSZ; ulimit -f 20; bin/tervak-run other.inp limited 2>&1); [ $? = 1 ] && grep -q 'killed by signal' <<<"$answer"; }
check "a limit on the size of files, even where its signal is ignored" limited
closed() { bin/tervak-run other.inp limited >&- 2>/dev/null; [ $? = 1 ] && [ ! -s limited/.tervak-run.lock ]; }
check "a closed output" closed
rm -f limited/tervak.inp && cp other.inp limited/tervak.inp && rm limited/TERVAK.INP
expect "a deck in the directory, under the second name" 0 "$GOOD" "" limited/tervak.inp limited
check "stays what it is" cmp limited/tervak.inp other.inp

program 'exit 0'
expect "a program that does nothing" 1 "it made no run log" "$GOOD" other.inp run
program 'printf " NORMAL EXIT FROM TERVAK\r\n" >TERVAK.MLG'
expect "NORMAL EXIT without results" 1 "TERVAK.RIF: not whole" "$GOOD" other.inp run
program 'printf " ERROR EXIT FROM TERVAK\r\n" >TERVAK.MLG; touch TERVAK.LIS TERVAK.RIF soil_halde.fem soil_70.fem'
expect "ERROR EXIT with status 0" 1 "its log ends with: ERROR EXIT FROM TERVAK" "$GOOD" other.inp run
program 'printf " **** Run \377\033 was stopped by SR/NGI11\r\n" >TERVAK.MLG; exit 255'
expect "a stop, with its last message" 1 $'Its last message: **** Run \377\\x1b was stopped by SR/NGI11' "$GOOD" other.inp run
program 'kill -9 $$'
expect "a killed program" 1 "killed by signal 9" "$GOOD" other.inp run
real
expect "a failed stage, with its place" 1 "tutorial-submerged.inp:8:10: GAMPWP" "$GOOD" "$examples/tutorial/tutorial-submerged.inp" run

# A second run waits for nobody, and a killed one locks nothing.
program "echo >began; exec sleep 60"
bin/tervak-run other.inp locked >/dev/null 2>&1 & runner=$!
for ((i = 0; i < 100; i++)); do [ ! -e locked/began ] || break; sleep 0.1; done
real
expect "a second run in the directory" 2 "another run is at work in locked" "" other.inp locked
kill -KILL $runner && wait $runner 2>/dev/null
expect "after the first was killed" 0 "$GOOD" "" other.inp locked
program 'kill -TERM $PPID; exec sleep 60'
answer=$({ bin/tervak-run other.inp locked >/dev/null; echo "status $?"; } 2>/dev/null)
check "an end on request" [ "$answer" = "status 143" ]
check "leaves no scratch directory" [ -z "$(ls -A scratch)" ]
exit $failures
