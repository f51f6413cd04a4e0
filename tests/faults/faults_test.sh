#!/usr/bin/env bash
# faults_test.sh [--all] TERVAK TERVAK_RUN SHIM EXAMPLES: makes calls of tervak-run and of the tervak that it runs fail, one a run:
# writes, opens, renames, truncations, allocations. Whatever fails, no program ends by a signal, tervak-run says "good" only of the
# files of the run without a fault, and nothing of the user's is lost. Then the same on file systems of many sizes that fill up.
# Of the calls about 400 are taken evenly, all of them with --all.
set -u
cases=400
if [ "$1" = --all ]; then
  cases=0
  shift
fi
tervak=$1 examples=$4
export SHIM=$3
work=$(mktemp -d)
mounted=""
finish() {
  [ -z "$mounted" ] || umount "$mounted"
  rm -rf "$work"
}
trap finish EXIT
cd "$work" || exit 1
mkdir bin scratch scratch/{1,2} free
cp "$2" bin/tervak-run
ln -s "$tervak" bin/tervak
export TMPDIR=$work/scratch

# What each run begins with: a run of an earlier state of the deck, and a file of the user's.
sed 's/lower bound/first estimate/' "$examples/small-clay.inp" >deck.inp
bin/tervak-run deck.inp before >/dev/null || exit 1
rm before/*.LIS before/*.fem before/*.MLG
echo "notes of the user" >before/notes.txt
cp deck.inp old.inp
cp "$examples/small-clay.inp" deck.inp
cp deck.inp new.inp

masked() { # directory: the results without stamps and names
  sed '26,30d' "$1/TERVAK.MLG" && sed -e '/THIS RUN WAS STARTED/d; s/ Time = .*//' "$1/TERVAK.LIS" &&
    sed 4,6d "$1/TERVAK.RIF" && cat "$1/soil_halde.fem" "$1/soil_70.fem"
}
LD_PRELOAD=$SHIM FAULT_COUNTS=$work/counts bin/tervak-run deck.inp free >/dev/null || exit 1
masked free >expected

# One run with a fault, in a directory of the worker's own. Says what is wrong.
judge() { # what was done, directory, status, answer
  [ "$3" -le 2 ] || echo "$1: tervak-run ended with status $3"
  case $4 in *"killed by signal"*) echo "$1: tervak was ended by a signal" ;; esac
  case $3$4 in
    0* | *"The run is good"*) masked "$2" | cmp -s - expected || echo "$1: called good, and is not" ;;
  esac
  cmp -s deck.inp new.inp && [ "$(<"$2/notes.txt")" = "notes of the user" ] || echo "$1: a file of the user's is lost"
  cmp -s "$2/TERVAK.INP" old.inp || cmp -s "$2/TERVAK.INP" new.inp || echo "$1: TERVAK.INP is neither the old nor the new one"
}
one() { # worker, fault
  local directory=worker$1 answer status
  rm -rf "$directory"
  cp -a before "$directory"
  answer=$(TMPDIR=$TMPDIR/$1 LD_PRELOAD=$SHIM FAULT=$2 bin/tervak-run deck.inp "$directory" 2>&1)
  status=$?
  judge "$2" "$directory" $status "$answer"
  case $2 in
    *malloc*) rm -rf "${TMPDIR:?}/$1"/* ;;
    *) [ -z "$(echo "$TMPDIR/$1"/*)" ] || [ "$(echo "$TMPDIR/$1"/*)" = "$TMPDIR/$1/*" ] || echo "$2: a scratch directory is left" ;;
  esac
  echo "status $status"
}
worker() { while IFS= read -r fault; do one "$1" "$fault"; done; }

awk -v cases=$cases '
  { program[NR] = $1; call[NR] = $2; count[NR] = $3 }
  function modes(call) { return call ~ /^write/ ? 3 : 2 }
  END {
    for (i = 1; i <= NR; ++i) total += count[i] * modes(call[i])
    step = cases ? total / cases : 1
    if (step < 1) step = 1
    split("once on short", mode)
    for (i = 1; i <= NR; ++i)
      for (m = 1; m <= modes(call[i]); ++m)
        for (at = 1; at <= count[i]; at += step) print program[i] ":" call[i] ":" int(at) ":" mode[m]
  }' <(sort -u -k 1,2 counts) >faults
[ "$(wc -l <faults)" -gt 100 ] || { echo "only $(wc -l <faults) faults to try"; exit 1; }
awk 'NR % 2' faults | worker 1 >found1 &
awk 'NR % 2 == 0' faults | worker 2 >found2
wait
echo "$(wc -l <faults) faults of $(awk '{n += $3} END {print n}' counts) calls: $(cat found1 found2 | grep '^status' | sort | uniq -c | tr -s ' \n' ' ')"

# A real file system that fills up, for the run and for its second run.
if [ "$(id -u)" = 0 ] && mkdir full && mount -t tmpfs -o size=64k none full 2>/dev/null; then
  mounted=$work/full
  size=$(du -sk free | cut -f 1)
  for ((k = 32; k < 3 * size; k += size / 8)); do
    mount -o "remount,size=${k}k" none full
    # A disk that does not even hold what was there before tells nothing.
    cp -a before full/run 2>/dev/null && mkdir full/tmp && cmp -s old.inp full/run/TERVAK.INP ||
      { rm -rf full/*; continue; }
    answer=$(TMPDIR=$work/full/tmp bin/tervak-run deck.inp full/run 2>&1)
    status=$?
    judge "a disk of $k kB" full/run $status "$answer"
    echo "$k kB: status $status"
    rm -rf full/*
  done >found3
  echo "$(grep -c ' kB: status' found3) sizes of disk: $(grep -c 'status 0' found3) good runs"
  grep -q 'status 0' found3 && grep -q 'status 1' found3 || echo "the disks were all too small, or none was" >>found3
else
  echo "no full disk: a file system can be mounted as root only"
  : >found3
fi
cat found1 found2 found3 | grep -v 'status [0-9]$' | head -n 40
! cat found1 found2 found3 | grep -qv 'status [0-9]$'
