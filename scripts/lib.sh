# Shared by the scripts. Sourced, not run.
set -euo pipefail

journal_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
journal_jobs=$(nproc)

# The Debian packages of each script and of each stage of scripts/test. Everything that a build
# looks for is listed, because CMake silently leaves out what it does not find.
native='cmake g++ ninja-build libgtest-dev libcli11-dev libfmt-dev rapidjson-dev zlib1g-dev'
emulated='cmake ninja-build googletest qemu-user'
mips="$emulated g++-mips-linux-gnu"
declare -A journal_packages=(
  [check]='clang-format git'
  [release]=$native
  [clang]="$native clang libclang-rt-14-dev"
  [sanitizers]="$native clang libclang-rt-14-dev"
  [threads]="$native clang libclang-rt-14-dev"
  [mips]=$mips
  [complexity]="$native gawk valgrind"
  [costs]="$native $mips gcc python3 valgrind"
  [abi]="$native $mips binutils dpkg-dev dwarves"
  [consumers]="$mips binutils clang g++ make pkg-config"
  [packages]="$native $mips build-essential debhelper doxygen doxygen-awesome-css git lintian
    pkg-config python3"
  [packages-in-roots]='debootstrap git python3'
  [package]='cmake g++ ninja-build build-essential debhelper doxygen doxygen-awesome-css git python3'
  [package-tools]="$native emscripten esbuild nodejs dh-python pybind11-dev python3-dev"
  [package-mips]=$mips
  [demo]='cmake g++ ninja-build libcli11-dev libfmt-dev rapidjson-dev zlib1g-dev'
  [documents]="$native $mips binutils python3"
  [reference]="$native codespell doxygen doxygen-awesome-css groff-base man-db bsdextrautils python3"
  [differential]=$native
  [mips-ubsan]=$mips
  [mips16]=$mips
  [memcheck]="$native valgrind"
  [i686]='cmake ninja-build googletest g++-i686-linux-gnu'
  [mipsel]="$emulated g++-mipsel-linux-gnu"
  [powerpc]="$emulated g++-powerpc-linux-gnu"
  [s390x]="$emulated g++-s390x-linux-gnu"
  [bench]='cmake g++ ninja-build python3 libbenchmark-dev librapidxml-dev libpugixml-dev
    libexpat1-dev libtinyxml2-dev libxml2-dev libprotobuf-dev protobuf-compiler'
  [captures]="$native jq libxml2-utils python3"
  [charts]='gnuplot-nox'
  [coverage]="$native gcovr python3"
  [bare-root]='debootstrap git'
  [fuzz]='cmake clang libclang-rt-14-dev ninja-build rapidjson-dev'
  [python]='cmake g++ ninja-build rapidjson-dev pybind11-dev python3-dev python3-pytest
    python3-hypothesis python3-mypy mypy python3-build python3-setuptools python3-wheel python3-venv'
  [python-oldest]='debootstrap git'
  [python-asan]=rapidjson-dev # and what scripts/python installs
  [web]='cmake emscripten esbuild ninja-build nodejs rapidjson-dev'
  [web-test]="$native chromium nodejs"
  [npm]='npm'
  [mutate]="$native $mips python3"
)

# install_packages NAME...: installs what these need and is missing. Needs root or sudo only then.
install_packages() {
  local name package wanted='' missing=() as_root=()
  for name in "$@"; do wanted+=" ${journal_packages[$name]}"; done
  for package in $(printf '%s\n' $wanted | sort -u); do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing ${missing[*]}" >&2
  quietly "${as_root[@]}" apt-get update
  quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
}

# configure PRESET: from scratch when packages changed since the last time, because CMake remembers
# what it did not find.
configure() {
  local fresh=
  [ "build/$1/CMakeCache.txt" -nt /var/lib/dpkg/status ] || fresh=--fresh
  quietly cmake --preset "$1" $fresh
}

# build PRESET [TARGET...]: configures and builds all of it, or these targets.
build() {
  configure "$1" && quietly cmake --build "build/$1" ${2:+--target "${@:2}"}
}

# version: the project's, which the public header has.
version() {
  sed -n 's/#define JOURNALSERVICEHELPER_VERSION "\(.*\)"/\1/p' \
    "$journal_root/include/JournalServiceHelper.h"
}

# copy_tree FOLDER: the project's files as they are now, committed or not, into a new folder. Reading
# a project of another user, as root does, has to be allowed.
copy_tree() {
  mkdir -p "$1"
  git -C "$journal_root" -c safe.directory="$journal_root" \
    ls-files -z -co --exclude-standard |
    tar -C "$journal_root" -c --null -T - --ignore-failed-read 2>/dev/null |
    tar -C "$1" -x --no-same-owner
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
