#!/usr/bin/env bash
# What the script refuses it refuses at once: nothing is built, started or written for it.
set -euo pipefail
dev=$(cd "$(dirname "$0")/../.." && pwd)/dev
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_DATA_HOME="$home"
failed=0

expect() { # exit code, a text that is said, arguments...
  local code=$1 text=$2 said got=0
  shift 2
  said=$("$dev" "$@" 2>&1) || got=$?
  if [ "$got" -ne "$code" ] || [[ $said != *"$text"* ]]; then
    echo "./dev $*: exit $got, said: $said"
    failed=1
  fi
}

expect 2 "run does not know --frsh" run --frsh
expect 2 "run does not know u01" run u01
expect 2 "--type takes an order type" run u01,1111 --type 4
expect 2 "test does not know --asn" test --asn
expect 2 "package does not know --tri" package --tri
expect 2 "there is no command tets" tets
expect 0 "./dev run" help
expect 0 "does not run" doctor
# One version for program and package; the changelog of the package is the only other place.
said=$("$dev" doctor | sed -n 's/^version *//p')
[[ $said =~ ^([0-9.]+),\ in\ the\ changelog\ ([0-9.]+)$ && ${BASH_REMATCH[1]} = "${BASH_REMATCH[2]}" ]] ||
  { echo "versions differ: $said"; failed=1; }
[ -z "$(ls -A "$home")" ] || { echo "left behind: $(ls "$home")"; failed=1; }
exit "$failed"
