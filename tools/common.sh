# Shared by run, test, bench and the tools: places, progress lines, what a machine needs.
# Sourced, never run.

ZNKT_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
ZNKT_BUILD=${ZNKT_BUILD:-$ZNKT_ROOT/build}
ZNKT_STARTED=${ZNKT_STARTED:-$SECONDS}
ZNKT_PACKAGES="cmake ninja-build ccache g++-mingw-w64-x86-64-posix wine wine64 fonts-wine fonts-wqy-microhei
  xvfb xauth netpbm googletest librecad-data clang clang-format git ca-certificates"

step() { printf '==> [%3ds] %s\n' "$((SECONDS - ZNKT_STARTED))" "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# Packages that dpkg does not know as installed.
missing_packages() {
  local package
  for package in $ZNKT_PACKAGES; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
  done
}

# What is needed and not here, for machines whose packages are not Debian's.
missing_programs() {
  local program
  for program in cmake ninja x86_64-w64-mingw32-g++-posix Xvfb flock; do
    command -v "$program" >/dev/null || printf '%s ' "$program"
  done
  [ -x /usr/lib/wine/wine64 ] || command -v wine64 >/dev/null || command -v wine >/dev/null || printf 'wine '
  [ -d /usr/src/googletest ] || printf '/usr/src/googletest '
}

install_packages() {
  local missing sudo=
  if ! command -v apt-get >/dev/null; then
    missing=$(missing_programs)
    [ -z "$missing" ] || fail "this machine has no apt-get, and these are missing: ${missing% }. Install them by hand; Debian's packages are: $(echo $ZNKT_PACKAGES)"
    return 0
  fi
  missing=$(missing_packages)
  [ -n "$missing" ] || return 0
  missing=${missing% }
  step "installing: $missing"
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || fail "these packages are missing and sudo is not here. As root: apt-get install $missing"
    sudo -v || fail "sudo does not let you install packages. As root: apt-get install $missing"
    sudo=sudo
  fi
  # Whether the lists could be read shows in what can be installed: apt-get may have old ones.
  $sudo apt-get update -qq || step "the package lists could not be read"
  # shellcheck disable=SC2086
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null ||
    fail "apt-get could not install: $missing (its messages are above). Is the network up? The names are those of Debian 12."
}

# Words to add to a failure when the disk is the likely reason.
disk_hint() {
  local free
  free=$(df -Pm "$ZNKT_BUILD" 2>/dev/null | awk 'NR == 2 { print $4 }')
  [ "${free:-1000}" -ge 100 ] || printf ' The disk is nearly full: %s MB are left for %s.' "$free" "$ZNKT_BUILD"
}

# writable_folder PATH [hint]: makes the folder; a run that cannot write must not end in the middle.
writable_folder() {
  { mkdir -p "$1" && [ -w "$1" ]; } 2>/dev/null || fail "cannot write into $1.${2:+ $2}$(disk_hint)"
}

need_cmake() {
  local least=3.22 version
  version=$(cmake --version | sed -n 's/^cmake version //p')
  printf '%s\n%s\n' "$least" "$version" | sort -VC ||
    fail "cmake $least or newer is needed, this is $version ($(command -v cmake)). Debian 12 and Ubuntu 22.04 have a newer one."
}

configure_and_build() {
  need_cmake
  writable_folder "$ZNKT_BUILD" "Work in a folder of your own, or name another build folder: ZNKT_BUILD=/path $0"
  # Two runs would build into each other's files.
  exec 7>"$ZNKT_BUILD/build.lock"
  flock -n 7 || { step "waiting for another run that builds in $ZNKT_BUILD"; flock 7; }
  step "configuring"
  cmake --preset bundled -S "$ZNKT_ROOT" -B "$ZNKT_BUILD" >"$ZNKT_BUILD/configure.log" 2>&1 7>&- ||
    { cat "$ZNKT_BUILD/configure.log" >&2; fail "cmake could not configure (log above).$(disk_hint)"; }
  rm -f "$ZNKT_BUILD/configure.log"
  step "building"
  cmake --build "$ZNKT_BUILD" -- "$@" 7>&- || fail "the build failed (messages above).$(disk_hint)"
  exec 7>&-
}
