#!/usr/bin/env bash
# The last line of ./test: counted from what ctest says of each test, never green by accident.
set -euo pipefail
source_root=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
mkdir -p "$work/house/build/debug"
cp -r "$source_root/scripts" "$work/house/scripts"

# expect STATUS LAST_LINE CTEST_STATUS CTEST_LINE...
expect() {
  local status=$1 last=$2 ctest_status=$3 said=0 line
  shift 3
  mkdir -p "$work/bin"
  {
    echo '#!/bin/sh'
    for line in "$@"; do printf "echo '%s'\n" "$line"; done
    echo "exit $ctest_status"
  } >"$work/bin/ctest"
  chmod +x "$work/bin/ctest"
  PATH=$work/bin:$PATH "$work/house/scripts/run_ctest" debug >"$work/out" 2>&1 || said=$?
  if [[ $said -ne $status || $(tail -n 1 "$work/out") != "$last" ]]; then
    echo "FAILED: wanted status $status and '$last', got status $said and:"
    sed 's/^/    /' "$work/out"
    failures=$((failures + 1))
  fi
}

good='1/2 Test  #1: store.Seek ..............   Passed    0.01 sec'
expect 0 "2 passed, 0 failed" 0 "$good" '2/2 Test #12: forms.Click/Failed ...   Passed   12.10 sec'
expect 1 "1 passed, 1 failed" 8 "$good" '2/2 Test  #2: a ................***Failed    0.02 sec' 'why it failed'
expect 1 "1 passed, 1 failed" 8 "$good" '2/2 Test  #2: a ................***Exception: SegFault  0.50 sec'
expect 1 "1 passed, 1 failed" 8 "$good" '2/2 Test  #2: a ................***Timeout 300.02 sec'
expect 1 "1 passed, 1 failed" 8 "$good" '2/2 Test  #2: a ................***Not Run   0.00 sec'
expect 0 "1 passed, 0 failed" 0 "$good" '2/2 Test  #2: a ................***Skipped   0.00 sec'
expect 1 "0 passed, 1 failed" 8 'No tests were found!!!'
expect 1 "1 passed, 1 failed" 8 "$good"
exit "$((failures > 0))"
