# What takes pictures of the real program: a start on a sample pair, and windows that stand still.

# start_program FOLDER [INI-LINE...]: installs the program there and starts it on a sample pair, with more lines of the
# settings' last section. The display is there already.
start_program() {
  local work=$1
  shift
  cmake --install build --prefix "$work" >/dev/null
  files=$work/drive_c/tqs/programs
  mkdir -p "$files"
  cp data/samples/* "$files"
  touch -d "1997-12-14 12:00" "$files"/*
  printf '%s\n' '[FileLocations]' FirstTimeUsed=0 ShowTips=0 JoyName=1 ThrottleName=1 '[Miscellaneous]' \
    OpenSingleFileOnly=0 "$@" >"$work/tarvik.ini"
  "$work/tarvik" "$files/strike.b50" 2>/dev/null &
}

active() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; }

# still FILE: the active window, or what WATCHED names, looks as it did the last time, as FILE has it.
still() {
  sleep "${STILL_AFTER:-0.5}"
  import -silent -window "${WATCHED:-$(xdotool getactivewindow)}" "ppm:$1.now"
  local same=no
  cmp -s "$1.now" "$1" && same=yes
  mv "$1.now" "$1"
  [ $same = yes ]
}

# wait_for TITLE FILE: the window of that title is the active one, and its picture is in FILE once it stands still.
wait_for() {
  within 20 active "$1" || { echo "no window \"$1\" came, but \"$(xdotool getactivewindow getwindowname)\"" >&2; return 1; }
  within 20 still "$2" || { echo "the window \"$1\" never stood still" >&2; return 1; }
}
