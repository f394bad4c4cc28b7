#!/usr/bin/env bash
# One application id: the three files of packaging/ and the program agree on it.
set -euo pipefail
root=$1 id=$2
failures=0

check() {
  if ! grep -rqF -- "$2" "${@:3}"; then
    echo "'$2' ($1) is not in ${*:3}"
    failures=$((failures + 1))
  fi
}

check "the icon's name" "Icon=$id" "$root/packaging/$id.desktop"
check "the component" "<id>$id</id>" "$root/packaging/$id.metainfo.xml"
check "the launcher" ">$id.desktop<" "$root/packaging/$id.metainfo.xml"
check "the program's own name for its window" "\"$id\"" "$root/platform/forms/Application.cpp" "$root/app"
check "the icon is drawn" "<svg" "$root/packaging/$id.svg"

# The program that the files start is the one that is built.
check "the program" "add_executable($(sed -n 's/^Exec=//p' "$root/packaging/$id.desktop")" "$root/app/CMakeLists.txt"
exit "$((failures > 0))"
