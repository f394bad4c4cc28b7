#!/usr/bin/env bash
# The screen of its own: reachable for its program, for nobody without its key, from no other
# machine; gone with the program, and after a signal, with everything it made.
set -euo pipefail
own_screen=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY
failures=0

check() {
  local what=$1
  shift
  "$@" || {
    echo "FAILED: $what"
    failures=$((failures + 1))
  }
}

# Lines of /proc/net/tcp are: slot, local address, remote address, state (0A listens), ...
listens_at() { awk -v port="$(printf ':%04X' "$1")" '$4 == "0A" && $2 ~ port "$" {print $2}' /proc/net/tcp /proc/net/tcp6; }
nothing_left() { [[ -z $(find "$work" -maxdepth 1 -name 'wine_cellar.*') ]] && [[ -z $(listens_at "$port") ]]; }
eventually() {
  local i
  for ((i = 0; i < 100; i++)); do
    "$@" && return
    sleep 0.1
  done
  return 1
}

cat >"$work/probe" <<'PROBE'
#!/usr/bin/env bash
xdpyinfo >"$1/inside" 2>&1
XAUTHORITY=/dev/null xdpyinfo >"$1/keyless" 2>&1 && echo open >"$1/open"
echo "$DISPLAY" >"$1/display"
umask >"$1/umask"
stat -c %a "$(dirname "$XAUTHORITY")" "$(dirname "$XAUTHORITY")/password" >"$1/modes"
while [[ ! -e $1/go_on ]]; do sleep 0.1; done
exit 7
PROBE
# Notes its command line, as anybody could, and does what it was called for.
cat >"$work/xauth" <<XAUTH
#!/bin/sh
echo "\$*" >>"$work/command_lines"
exec $(command -v xauth) "\$@"
XAUTH
chmod +x "$work/probe" "$work/xauth"
PATH=$work:$PATH
umask 027

"$own_screen" "$work/probe" "$work" >"$work/out" 2>&1 </dev/null &
screen=$!
eventually test -s "$work/modes" || { cat "$work/out"; exit 1; }
port=$((5900 + $(sed 's/://' "$work/display")))
check "the program has its screen" grep -q '1280x720' "$work/inside"
check "nobody has it without the key" test ! -e "$work/open"
check "it listens on this machine only" test "$(listens_at "$port")" = "0100007F:$(printf '%04X' "$port")"
check "the password is private" test "$(tr '\n' ' ' <"$work/modes")" = "700 600 "
check "the key is in no command line" eval 'test -s "$work/command_lines" && ! grep -Eq "[0-9a-f]{32}" "$work/command_lines"'
check "the program keeps the user's umask" grep -qx 0027 "$work/umask"
check "address and password are told" eval 'grep -q "127.0.0.1:$port" "$work/out" && grep -Eq "Password +[a-z0-9]{8} " "$work/out"'
touch "$work/go_on"
status=0
wait "$screen" || status=$?
check "its end is the program's end (status $status)" test "$status" -eq 7
check "nothing is left" eventually nothing_left

rm "$work/go_on" "$work/modes"
"$own_screen" "$work/probe" "$work" >"$work/out" 2>&1 </dev/null &
screen=$!
eventually test -s "$work/modes"
port=$((5900 + $(sed 's/://' "$work/display")))
kill -TERM "$screen"
check "a signal ends it" eval '! wait "$screen"'
check "nothing is left after a signal" eventually nothing_left
exit "$((failures > 0))"
