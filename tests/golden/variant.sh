#!/usr/bin/env bash
# Builds the program with another compiler or optimisation level and runs the golden decks with it: the same deck
# gives the same bytes.   variant.sh SOURCE_DIR BUILD_DIR COMPILER BUILD_TYPE
set -eu
source=$1 build=$2 compiler=$3 type=$4
command -v "$compiler" >/dev/null || { echo "$compiler is not installed"; exit 77; }
cmake -G Ninja -S "$source" -B "$build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE="$type" \
  -DTERVAK_TESTS=OFF -DCMAKE_UNITY_BUILD=ON >/dev/null
cmake --build "$build" --target tervak >"$build/build.log" 2>&1 || { tail -n 40 "$build/build.log"; exit 1; }
exec "$source/tests/golden/golden.sh" "$build/tervak"
