# A desktop whose every pixel is known: its fonts, colours and size, a clock that stands, and pictures of its windows
# once nothing moves. Who includes this names the desktop in $desk, and in $home a folder for it.

# desktop FOLDER LOOK: the settings of a desktop whose colours are light or dark, whose caret does not blink, and whose
# letters are the same on every machine, without grey edges where the toolkit can, so that they take little room. Nothing
# of the user's own desktop is left.
desktop() {
  local window=239,240,241 view=255,255,255 text=35,38,41 link=41,128,185 part
  [ "$2" = light ] || window=42,46,50 view=27,30,32 text=252,252,252 link=29,153,243
  mkdir -p "$1/config" "$1/data" "$1/home" "$1/run"
  chmod 700 "$1/run"
  ln -s /usr/share/icons /usr/share/themes "$1/data"
  {
    printf '[KDE]\nCursorBlinkRate=0\nwidgetStyle=Fusion\n[General]\nfont=DejaVu Sans,9\nfixed=DejaVu Sans Mono,9\n'
    for part in Window Button Tooltip; do
      printf '[Colors:%s]\nBackgroundNormal=%s\nForegroundNormal=%s\n' $part $window $text
    done
    printf '[Colors:View]\nBackgroundNormal=%s\nBackgroundAlternate=%s\nForegroundNormal=%s\n' $view $window $text
    printf 'ForegroundLink=%s\nForegroundVisited=%s\n' $link $link
    printf '[Colors:Selection]\nBackgroundNormal=61,174,233\nForegroundNormal=255,255,255\n'
  } >"$1/config/kdeglobals"
  fonts >"$1/fonts.conf"
  unset ${!QT_*} ${!XDG_*} ${!LC_*} LANGUAGE
  export HOME=$1/home XDG_CONFIG_HOME=$1/config XDG_DATA_DIRS=$1/data XDG_RUNTIME_DIR=$1/run
  export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 DBUS_SESSION_BUS_ADDRESS=disabled: CUPS_SERVER=$1/none
  export FONTCONFIG_FILE=$1/fonts.conf LC_ALL=C.UTF-8 TZ=UTC
}

fonts() {
  local alias
  printf '<?xml version="1.0"?>\n<fontconfig>\n<cachedir>%s/fonts</cachedir>\n' "$work"
  printf '<dir>/usr/share/fonts/truetype/%s</dir>\n' dejavu liberation
  for alias in 'sans-serif=DejaVu Sans' 'serif=DejaVu Serif' 'monospace=DejaVu Sans Mono' \
    'Sans Serif=DejaVu Sans' 'Arial=Liberation Sans' 'Times New Roman=Liberation Serif' 'Courier New=Liberation Mono'; do
    printf '<alias binding="same"><family>%s</family><prefer><family>%s</family></prefer></alias>\n' \
      "${alias%=*}" "${alias#*=}"
  done
  printf '<match target="font">\n'
  printf '<edit name="%s" mode="assign">%s</edit>\n' antialias '<bool>false</bool>' hinting '<bool>true</bool>' \
    hintstyle '<const>hintfull</const>' rgba '<const>none</const>' lcdfilter '<const>lcdnone</const>'
  printf '</match>\n</fontconfig>\n'
}

# show_screen WIDTH HEIGHT: a screen of that size, whose pixels are the file $screen, with the pointer out of the way.
show_screen() {
  mkdir -p "$home/screen"
  SCREEN=$1x$2x24 SERVER_OPTIONS="-nocursor -fbdir $home/screen" start_display "$home" 2>/dev/null ||
    fail "no display came up"
  screen=$home/screen/Xvfb_screen0 seen=$home/seen.xwd still=no
  corner=($(($1 - 1)) $(($2 - 1)))
  xdotool mousemove "${corner[@]}"
}

# fail TEXT: the end of this desktop, which leaves what there was to be seen.
fail() {
  [ ! -e "$home/screen/Xvfb_screen0" ] || convert "xwd:$home/screen/Xvfb_screen0" "$result/$desk-failed.png"
  echo "$desk: $1"
  exit 1
}

# idle: nobody on this screen has anything left to do: each thread of the server, the window manager and the program
# waits.
idle() {
  local each
  for each in $(jobs -p); do
    ! grep -qsE '^[0-9]+ \(.*\) [RD] ' /proc/"$each"/task/*/stat || return 1
  done
}

# settled: the screen has stood still while everybody was idle, and is in the file $seen from then on.
readonly STILL_FOR=4 # looks, a tenth of a second apart: longer than the program waits for anything it does by itself
settled() {
  local looks=0 end=$((SECONDS + 60))
  while [ $looks -lt $STILL_FOR ]; do
    [ $SECONDS -lt $end ] || fail "the screen never stood still before $1"
    sleep 0.1
    if idle && cmp -s "$screen" "$seen"; then
      looks=$((looks + 1))
    else
      looks=0
      cp "$screen" "$seen"
    fi
  done
  still=yes
}
changed() { ! cmp -s "$screen" "$seen"; }

# act XDOTOOL-ARGUMENT...: does what the user does once nothing moves, and waits until something comes of it.
act() {
  [ $still = yes ] || settled "$*"
  still=no
  xdotool "$@"
  within 30 changed || fail "nothing came of $*"
}
press() { act key "$@"; }
# click X Y: there in the window on top, in pixels of a usual screen.
click() {
  act mousemove --window "$(xdotool getactivewindow)" $(($1 * QT_SCALE_FACTOR)) $(($2 * QT_SCALE_FACTOR)) click 1 \
    mousemove "${corner[@]}"
}

# came TITLE: a window of that title has come up.
came() {
  within 60 active "$1" || fail "no window \"$1\" came, but \"$(xdotool getactivewindow getwindowname)\""
}

# keep NAME WINDOW: the part of the screen inside a window's frame, as it is, and as it is compared: at two
# scales of a quarter of the size, which still can be read, and in few colours.
keep() {
  local x y width height small=100%
  [ "$QT_SCALE_FACTOR" = 1 ] || small=25%
  [ -n "$2" ] || fail "no window came up for $1"
  read -r x y width height < <(xwininfo -id "$2" |
    awk '/Absolute upper-left|Width:|Height:/ { printf "%s ", $NF } END { print "" }')
  [ ! -e "$home/new/$1.ppm" ] || fail "there are two pictures $1"
  convert "xwd:$seen" -crop "$(printf '%dx%d%+d%+d' "$width" "$height" "$x" "$y")" +repage -write "ppm:$home/whole/$1.ppm" \
    -scale $small -posterize $LEVELS "ppm:$home/new/$1.ppm"
}

# picture NAME TITLE [KEY...]: presses the keys, and keeps the window of that title once it stands still.
picture() {
  local name=$1 title=$2
  shift 2
  [ $# -eq 0 ] || press "$@"
  came "$title"
  settled "$name"
  keep "$name" "$(xdotool getactivewindow)"
}

# popup NAME KEY...: likewise, of a menu, which is a window beside those that are managed.
popup() {
  local name=$1
  shift
  press "$@"
  settled "$name"
  keep "$name" "$(xdotool search --onlyvisible --maxdepth 1 --class tarvik | tail -n 1)"
}
