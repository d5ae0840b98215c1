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

install_packages() {
  command -v apt-get >/dev/null || fail "apt-get is not here. Install by hand: $ZNKT_PACKAGES"
  local missing sudo=
  missing=$(missing_packages)
  [ -n "$missing" ] || return 0
  step "installing: $missing"
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || fail "these packages are missing and sudo is not here. As root: apt-get install $missing"
    sudo=sudo
  fi
  $sudo apt-get update -qq || fail "the package list could not be read. Is the network up?"
  # shellcheck disable=SC2086
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null ||
    fail "apt-get could not install: $missing"
}

configure_and_build() {
  step "configuring"
  cmake --preset bundled -S "$ZNKT_ROOT" -B "$ZNKT_BUILD" >"$ZNKT_BUILD.configure.log" 2>&1 ||
    { cat "$ZNKT_BUILD.configure.log" >&2; fail "cmake could not configure (log above)"; }
  rm -f "$ZNKT_BUILD.configure.log"
  step "building"
  cmake --build "$ZNKT_BUILD" -- "$@" || fail "the build failed (messages above)"
}
