#!/bin/sh
# short_run.sh FUZZER ROUNDS: from its own seeds alone, always the same rounds.
set -eu
corpus=$(mktemp -d)
trap 'rm -rf "$corpus"' EXIT
cd "$corpus" # where libFuzzer leaves the input of a finding
mkdir seeds
"$1" seeds -runs="$2" -seed=1 -timeout=20 -artifact_prefix=/tmp/
