#!/bin/sh
# ./test --all runs this script after the tests. It runs clang-format over all sources, the core and window tests under
# the sanitizers for addresses and undefined behaviour, the core tests under the one for threads, each fuzzer for a
# while, the compiler over each changed test, clang-tidy over the changed sources, and each benchmark once, to check that
# it still works.
root=$(dirname "$(dirname "$(readlink -f "$0")")")
step=check
. "$root/packaging/setup.sh"
fuzz_seconds=20
most_tidied=40    # files; they take some minutes
most_compiled=20
cd "$root" || exit 1

tell "clang-format over all sources"
find src tests fuzz bench tools -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run -Werror >&2 || exit 1

configure_and_build asan core_tests window_tests || exit 1
tell "running the core and window tests under the sanitizers"
# No check for leaks, because Qt and its plug-ins keep some memory until the process ends.
ASAN_OPTIONS=detect_leaks=0 ctest --test-dir build/asan -R '^(core|windows)$' --output-on-failure --no-tests=error \
  --timeout 900 || exit 1

configure_and_build tsan core_tests || exit 1
tell "running the core tests under the sanitizer for threads"
# The sanitizer of GCC 12 can't start where the kernel spreads addresses widely.
fixed_addresses=
setarch -R true 2>/dev/null && fixed_addresses='setarch -R'
$fixed_addresses ctest --test-dir build/tsan -R '^core$' --output-on-failure --no-tests=error --timeout 900 || exit 1

configure_and_build fuzz fuzzers || exit 1
for fuzzer in build/fuzz/fuzz/*_fuzzer; do
  tell "fuzzing with $(basename "$fuzzer") for $fuzz_seconds s"
  log=$fuzzer.log
  if ! "$fuzzer" -max_total_time=$fuzz_seconds -artifact_prefix="$fuzzer-" >"$log" 2>&1; then
    tail -40 "$log" >&2
    exit 1
  fi
done

# Prints the files of the pattern $1 that were changed in the last day, the latest first, at most $2. On a day of many
# changes the oldest are left out; an earlier run has checked them.
changed() {
  git log --since='24 hours ago' --name-only --pretty=format: -- "$1" 2>/dev/null | awk '!seen[$0]++' |
    while read -r file; do [ -n "$file" ] && [ -f "$file" ] && echo "$file"; done | head -n "$2"
}

tests=$(changed 'tests/*_test.cpp' $most_compiled)
if [ -n "$tests" ]; then
  tell "compiling changed tests one by one"
  # Where several sources are compiled as one, a missing include isn't noticed.
  configure_and_build check $(echo "$tests" | sed "s|.*|$root/&^|") || exit 1
fi

sources=$(changed 'src/*.cpp' $most_tidied)
if [ -n "$sources" ]; then
  tell "clang-tidy over $(echo "$sources" | wc -l) changed files"
  # build/tidy has no precompiled headers, because clang can't read those of GCC. Only generated headers are built.
  configure_and_build tidy form_headers pelmar-printer_autogen pelmar-browser_autogen || exit 1
  echo "$sources" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/tidy >&2 || exit 1
fi

for benchmark in build/ci/bench/*_bench; do
  tell "running $(basename "$benchmark") once"
  arguments=--benchmark_min_time=0.001
  case $benchmark in */line_ends_bench) arguments="${TMPDIR:-/tmp} 4" ;; esac
  "$benchmark" $arguments >"$benchmark.log" 2>&1 || {
    cat "$benchmark.log" >&2
    exit 1
  }
done
