# What ./run, ./test and .ci/run share: saying what they do, and installing what is missing.

say() { printf '\n== %s\n' "$*"; }

# Debian's packages: to build, to run, for the tests, and for the checks.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6svg6 breeze-icon-theme fonts-liberation)
PICTURE_PACKAGES=(xvfb openbox xdotool imagemagick)
TEST_PACKAGES=(libgtest-dev libgmock-dev fiu-utils)
BENCH_PACKAGES=(libbenchmark-dev)
CHECK_PACKAGES=(clang-format clang-tidy clang libclang-rt-14-dev)

# install PACKAGE...: those that are not there yet.
install() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  say "Installing ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET TARGET...: configures where that is needed, and builds.
build() {
  local preset=$1
  shift
  say "Building $* ($preset)"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" --target "$@"
}
