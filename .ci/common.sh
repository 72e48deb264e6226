# What ./run, ./test and .ci/run share: saying what they do, and installing what is missing.

say() { printf '\n== %s\n' "$*"; }

# Debian's packages: to build, to run, for the tests, and for the checks.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6svg6 libsdl2-dev libwmf-dev breeze-icon-theme
  fonts-liberation cmark-gfm libxxhash-dev libdtl-dev libutf8proc-dev nlohmann-json3-dev libcli11-dev libevdev-dev libxtst-dev)
PICTURE_PACKAGES=(xvfb openbox xdotool imagemagick x11-utils faketime xz-utils fonts-dejavu-core fonts-liberation)
TEST_PACKAGES=(libgtest-dev libgmock-dev fiu-utils poppler-utils dosbox libsm-dev xvfb dbus-daemon nasm)
BENCH_PACKAGES=(libbenchmark-dev)
CHECK_PACKAGES=(clang-format clang-tidy clang libclang-rt-14-dev)
PACKAGE_PACKAGES=(dpkg-dev file librsvg2-bin desktop-file-utils appstream lintian man-db shared-mime-info libglib2.0-bin)

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

# within SECONDS COMMAND...: tries the command until it succeeds; fails when it has not by then.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.2
  done
}

# start_display FOLDER: an X server and a window manager in the background, and DISPLAY set to them.
start_display() {
  # -noreset: the server does not start over when its last client so far leaves it.
  Xvfb -noreset ${SERVER_OPTIONS:-} -displayfd 3 -screen 0 "${SCREEN:-1280x900x24}" 3>"$1/display" 2>/dev/null &
  within 30 test -s "$1/display" || { echo "the virtual display did not start" >&2; return 1; }
  export DISPLAY=":$(cat "$1/display")"
  # A window that comes up while the window manager starts is lost to it: so it says when it is ready.
  openbox --startup "touch '$1/ready'" >"$1/openbox" 2>&1 &
  within 30 test -e "$1/ready" || { echo "the window manager did not start" >&2; return 1; }
}
