#!/bin/sh
# Runs a program and expects an exit code and a text (a regular expression) in its output.
# usage: expect.sh CODE TEXT PROGRAM [ARGUMENT...]
code=$1
text=$2
shift 2
output=$("$@" 2>&1)
got=$?
printf '%s\n' "$output"
if [ "$got" -ne "$code" ]; then
  echo "expected exit code $code, got $got" >&2
  exit 1
fi
if ! printf '%s\n' "$output" | grep -q -e "$text"; then
  echo "expected in the output: $text" >&2
  exit 1
fi
