# For scripts that test many ways to use the library, one row each. Sourced, not run, behind lib.sh.
# Each row is a function row_NAME. It ends with the first command that fails.

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# same WHAT EXPECTED ACTUAL
same() { [ "$2" = "$3" ] || fail "$1" "  expected: $2" "  actual:   $3"; }

# refused WANTED COMMAND...: the command fails and says what is wanted.
refused() {
  local said
  said=$("${@:2}" 2>&1) && fail "this should fail: ${*:2}"
  [[ $(tr -s ' \n' ' ' <<<"$said") == *"$1"* ]] || fail "\"$1\" is not said, but" "$said"
}

# tree FOLDER: every path in it.
tree() { (cd "$1" && find . | LC_ALL=C sort); }

# rows_named ALL -- ROW...: those that are asked for, or all.
rows_named() {
  local all=() row
  while [ "$1" != -- ]; do
    all+=("$1")
    shift
  done
  shift
  for row in "$@"; do
    [[ " ${all[*]} " == *" $row "* ]] || fail "The rows are: ${all[*]}"
  done
  rows=("$@")
  [ ${#rows[@]} -gt 0 ] || rows=("${all[@]}")
}

# run_rows ROW...: each in a shell of its own, so that it leaves nothing behind.
run_rows() {
  local row started status
  for row in "$@"; do
    started=$SECONDS
    set +e
    (set -e; "row_$row")
    status=$?
    set -e
    [ "$status" -eq 0 ] || fail "$row failed"
    printf '%-22s %3ds\n' "$row" $((SECONDS - started))
  done
}
