#!/bin/sh
# Times what a newcomer does in a fresh clone: ./run, ./test, the packages. Ends at the first that fails.
cd "$(dirname "$(dirname "$(readlink -f "$0")")")" || exit 1

timed() {
  begin=$(date +%s)
  "$@" || exit 1
  took=$(($(date +%s) - begin))
  echo "from_nothing: $*: $((took / 60)) min $((took % 60)) s"
}

# The program prints its version and needs no display for that.
timed env DISPLAY=:none ./run --version
timed ./test
cd build/release && timed cpack
