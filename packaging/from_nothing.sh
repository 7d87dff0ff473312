#!/bin/sh
# Measures how long ./run, ./test and the packages take in a fresh clone. Stops at the first failure.
cd "$(dirname "$(dirname "$(readlink -f "$0")")")" || exit 1

timed() {
  begin=$(date +%s)
  "$@" || exit 1
  took=$(($(date +%s) - begin))
  echo "from_nothing: $*: $((took / 60)) min $((took % 60)) s"
}

# --version needs no display, but ./run asks for one.
timed env DISPLAY=:none ./run --version
timed ./test
cd build/release && timed cpack
