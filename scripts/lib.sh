# Shared by the scripts: the project's root, and Debian packages installed when they are missing.
# Sourced, not run.
set -euo pipefail

journal_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
journal_jobs=$(nproc)

# need_packages NAME...: installs those that are missing. Needs root or sudo only then.
need_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f '${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing ${missing[*]}" >&2
  local log
  log=$(mktemp)
  if ! {
    "${as_root[@]}" apt-get update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
  } >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    echo "Could not install ${missing[*]}" >&2
    exit 1
  fi
  rm -f "$log"
}

# quietly COMMAND...: shows what it printed only when it fails.
quietly() {
  local log
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
