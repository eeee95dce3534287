#!/bin/sh
# Builds the fuzz targets with clang in build/fuzz and runs each for the given
# number of seconds (default 10), printing how many inputs each one ran.
set -eu
seconds=${1:-10}
root=$(cd "$(dirname "$0")/../.." && pwd)
build="$root/build/fuzz"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_CXX_COMPILER=clang++ -DQS_BUILD_FUZZ=ON -DQS_BUILD_TESTS=OFF -DQS_BUILD_BENCH=OFF >/dev/null
ninja -C "$build" -j2 fuzz_record_reader fuzz_list_reader fuzz_family_readers
status=0
for target in fuzz_record_reader fuzz_list_reader fuzz_family_readers; do
  corpus="$build/corpus/$target"
  mkdir -p "$corpus"
  log="$build/$target.log"
  if "$build/tests/fuzz/$target" "$corpus" -max_total_time="$seconds" -max_len=4096 -rss_limit_mb=1024 -timeout=10 >"$log" 2>&1; then
    result=ok
  else
    result=FAILED
    status=1
  fi
  runs=$(grep -o 'Done [0-9]* runs' "$log" | tail -1 | grep -o '[0-9]*' || echo "?")
  echo "$target: $result, $runs runs in ${seconds} s"
done
exit $status
