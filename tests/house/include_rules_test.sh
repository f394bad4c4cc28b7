#!/usr/bin/env bash
# The include checker itself: each line is one include in one file, and whether it may stand.
set -euo pipefail
checker=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# Every header that the lines below name.
headers="platform/run_time/R.h platform/run_time/Locale.h platform/record_store/S.h platform/record_store/Text_Order.h
  platform/forms/F.h platform/files/D.h core/C.h core/tables/B.h
  links/L.h screens/N.h cellar/W.h media/M.h search/X.h app/A.h tools/T.h
  tests/support/U.h"

for header in $headers; do
  mkdir -p "$work/tree/$(dirname "$header")"
  echo '#pragma once' >"$work/tree/$header"
done

expect() {
  local verdict=$1 file=$2 include=$3 said=no
  mkdir -p "$work/tree/$(dirname "$file")"
  printf '#pragma once\n#include %s\n' "$include" >"$work/tree/$file"
  "$checker" "$work/tree" >"$work/out" && said=yes
  if [[ $said != "$verdict" ]]; then
    echo "$file with $include: expected $verdict, the checker says $said"
    failures=$((failures + 1))
  fi
  if [[ $verdict == no ]] && ! grep -q -F -e "$file:2:" "$work/out"; then
    echo "$file with $include: the place is not named"
    failures=$((failures + 1))
  fi
  rm "$work/tree/$file"
}

while read -r verdict file include; do
  [[ -z $verdict ]] || expect "$verdict" "$file" "$include"
done <<'TABLE'
yes app/main.cpp "cellar/W.h"
yes app/main.cpp <QApplication>
yes cellar/A.cpp "core/C.h"
yes cellar/A.cpp "cellar/W.h"
yes cellar/A.cpp "screens/N.h"
yes screens/A.cpp "links/L.h"
yes links/A.cpp "core/C.h"
yes core/A.cpp "core/tables/B.h"
yes core/A.cpp "platform/forms/F.h"
yes core/A.cpp "platform/record_store/S.h"
yes platform/forms/A.cpp "platform/record_store/Text_Order.h"
yes platform/forms/A.h <QtWidgets/QWidget>
yes platform/run_time/A.cpp <QLocale>
yes platform/record_store/A.cpp "platform/run_time/R.h"
yes platform/record_store/A.cpp <sqlcipher/sqlite3.h>
yes tests/record_store/A.cpp <sqlite3.h>
yes tests/core/A.cpp "cellar/W.h"
yes tests/forms/A.cpp <QTest>
yes bench/record_store_scan.cpp <sqlite3.h>
yes tools/A.cpp "core/C.h"
yes tools/screens/A.cpp "media/M.h"
yes core/A.cpp <vector>
no  cellar/A.cpp "app/A.h"
no  cellar/A.cpp "media/M.h"
no  cellar/A.cpp <QString>
no  cellar/A.cpp "tests/support/U.h"
no  core/tables/A.cpp "core/C.h"
no  core/A.cpp "links/L.h"
no  links/A.cpp "screens/N.h"
no  screens/A.cpp "cellar/W.h"
no  core/A.cpp "search/X.h"
no  core/A.cpp "tools/T.h"
no  core/A.cpp <QtCore/QString>
no  core/A.cpp <sqlite3.h>
no  core/A.cpp "C.h"
no  core/A.cpp "core/Gone.h"
no  platform/run_time/A.h <QString>
no  platform/run_time/A.cpp "platform/record_store/S.h"
no  platform/record_store/A.cpp "platform/forms/F.h"
no  platform/record_store/A.cpp <QFile>
no  platform/forms/A.cpp "platform/record_store/S.h"
no  platform/forms/A.cpp "core/C.h"
no  platform/files/A.cpp "platform/forms/F.h"
no  tools/A.cpp "media/M.h"
yes tools/A.cpp <QImage>
no  tools/A.h <QImage>
no  core/A.cpp "platform/run_time/Locale.h"
no  tests/core/A.cpp <sqlcipher/sqlite3.h>
no  platform/run_time/Self.h "platform/run_time/Self.h"
TABLE

# A ring of two headers.
rm -rf "$work/tree"
mkdir -p "$work/tree/core"
echo '#include "core/Two.h"' >"$work/tree/core/One.h"
echo '#include "core/One.h"' >"$work/tree/core/Two.h"
if "$checker" "$work/tree" >"$work/out" || ! grep -q 'core/One.h' "$work/out"; then
  echo "a ring of headers is not reported"
  failures=$((failures + 1))
fi
exit "$((failures > 0))"
