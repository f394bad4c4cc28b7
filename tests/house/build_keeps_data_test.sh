#!/usr/bin/env bash
# The program's folder: a build makes a data file where none stands, in the language asked for, and
# never touches one that stands there. The compiler's part is played by small stand-ins.
set -euo pipefail
source_root=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
file=$work/house/build/app/dbase/Wine_Cellar.mdb

stand_in() {
  mkdir -p "$(dirname "$1")"
  printf '#!/bin/sh\n%s\n' "$2" >"$1"
  chmod +x "$1"
}

new_house() {
  rm -rf "$work/house"
  mkdir -p "$work/house/data"
  cp -r "$source_root/scripts" "$work/house/scripts"
  stand_in "$work/bin/cmake" 'exit 0'
  stand_in "$work/house/build/release/delivered/wine_cellar" 'echo the program'
  stand_in "$work/house/build/release/delivered/dbase/Wine_Cellar.mdb" 'a delivered data file'
  # shellcheck disable=SC2016
  stand_in "$work/house/build/release/tools/data_compiler" 'echo "$3 $4" >"$2"'
}

build() { PATH=$work/bin:$PATH "$work/house/scripts/build" "$@" >"$work/out" 2>&1 </dev/null; }

check() {
  local what=$1
  shift
  if ! "$@"; then
    echo "FAILED: $what"
    sed 's/^/    /' "$work/out"
    failures=$((failures + 1))
  fi
}

holds() { [[ $(cat "$1") == "$2" ]]; }

new_house
check "a first build succeeds" build --language german
check "the new file is in the language asked for" holds "$file" "--language German"
check "the program stands in its folder" "$work/house/build/app/wine_cellar"
check "the folder of the photos is there" test -d "$work/house/build/app/photos"

modes() { stat -c %a "$program/dbase" "$program/photos" "$file" | tr '\n' ' '; }
program=$(dirname "$(dirname "$file")")
chmod 644 "$file"
chmod 755 "$program/dbase" "$program/photos"
echo "my cellar" >"$file"
touch -d '2001-02-03' "$file"
before=$(stat -c '%i %s %Y' "$file")
check "a second build succeeds" build --language Japanese
check "nobody else can read it (modes: $(modes))" test "$(modes)" = "700 700 600 "
check "the data file is kept" holds "$file" "my cellar"
check "it is not even touched" test "$before" = "$(stat -c '%i %s %Y' "$file")"
: >"$file"
check "a build beside an empty data file succeeds" build
check "an empty data file is somebody's too" test ! -s "$file"

mv "$file" "$work/elsewhere"
ln -s "$work/elsewhere" "$file"
rm "$work/elsewhere"
check "a build beside a link to nowhere succeeds" build
check "nothing is written through the link" test ! -e "$work/elsewhere"

rm "$file"
echo "half a handler" >"$file-journal"
check "a journal without its data file stops the build" eval '! build'
check "no data file is made beside it" test ! -e "$file"
check "the journal is kept" holds "$file-journal" "half a handler"

new_house
check "an unknown language stops the build" eval '! build --language Klingon'
check "it is named" grep -q Klingon "$work/out"
stand_in "$work/house/build/release/tools/data_compiler" 'echo "regions.tsv:3: no such country" >&2; exit 1'
check "a data compiler that fails stops the build" eval '! build'
check "its reason is shown" grep -q 'regions.tsv:3' "$work/out"
check "another preset leaves the folder alone" eval 'rm -rf "$work/house/build/app"; build --preset debug && [[ ! -e $work/house/build/app ]]'
exit "$((failures > 0))"
