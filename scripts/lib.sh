# What the commands share; sourced by them, with the checkout's root in $root.
# shellcheck shell=bash

# shellcheck disable=SC2034,SC2154
program_folder=$root/build/app

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# quietly LOG COMMAND...: keeps the output in LOG and shows its end only if the command fails.
quietly() {
  local log=$1
  shift
  mkdir -p "$(dirname "$log")"
  if "$@" >"$log" 2>&1 </dev/null; then
    return 0
  fi
  printf 'Failed: %s\nThe end of %s:\n' "$*" "$log" >&2
  tail -n 40 "$log" | cut -c1-240 | sed 's/^/    /' >&2
  return 1
}

# The seven languages of a new data file; prints the name as the data writes it.
language_name() {
  local name
  for name in English Spanish French German Italian Japanese Portuguese; do
    if [[ ${1,,} == "${name,,}" ]]; then
      printf '%s\n' "$name"
      return 0
    fi
  done
  fail "No such language: '$1'. Choose English, Spanish, French, German, Italian, Japanese or Portuguese."
}
