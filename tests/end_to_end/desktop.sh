# Sourced by the tests of the real window: a screen of its own with a window manager, a program
# directory and user's directories of its own, and what a user does by keys.
# Expects the directory of the programs as $1.
programs=$(realpath "${1:?directory of the programs}")
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait; rm -rf "$work"' EXIT

fail() {
  echo "$*" >&2
  cat "$work/log" >&2
  exit 1
}

# A program directory of its own: the window writes its settings there.
mkdir "$work/program"
cp "$programs/orb" "$work/program"
ln -s "$programs"/*.dat "$programs"/*.bmp "$programs"/*.txt "$work/program"
export XDG_CONFIG_HOME="$work/config" XDG_STATE_HOME="$work/state" QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8

mkfifo "$work/display"
# Between two calls of xdotool nobody may be connected: a reset would drop who connects next.
Xvfb -noreset -displayfd 3 -screen 0 1280x800x24 3> "$work/display" 2> "$work/log" &
read -r number < "$work/display"
export DISPLAY=":$number"

# await COMMAND...: waits until the command succeeds. xdotool's own waiting can miss an event.
await() {
  for _ in $(seq 600); do
    if "$@"; then return; fi
    sleep 0.1
  done
  fail "waited in vain: $*"
}

desktop_is_there() { xdotool get_desktop > /dev/null 2>> "$work/log"; }

# The program's boxes are called as it is, and may be there before its window.
window_is_there() {
  for window in $(xdotool search --onlyvisible --name '^ORB v' 2>> "$work/log"); do
    local height
    height=$(xdotool getwindowgeometry --shell "$window" 2>> "$work/log" | sed -n 's/^HEIGHT=//p')
    if ((${height:-0} > 400)); then return; fi
  done
  return 1
}

window_takes_keys() { [[ $(xdotool getactivewindow 2>> "$work/log") == "$window" ]]; }

window_is_activated() {
  xdotool windowactivate "$window" 2>> "$work/log"
  window_takes_keys
}

# The title has the system's mark of what is not saved.
game_is_changed() { [[ $(xdotool getwindowname "$window" 2>> "$work/log") == *'*'* ]]; }

dialog_takes_keys() {
  local active
  active=$(xdotool getactivewindow 2>> "$work/log") && [[ "$active" != "$window" ]]
}

# launch [GAME]: starts the program, for a user of $language, and waits for its window.
launch() {
  (cd "${folder:-$work}" && exec env LC_ALL="${language:-C.UTF-8}" "$work/program/orb" "$@") 2>> "$work/log" &
  program=$!
  await window_is_there
}

# start [GAME]: the same, and its window has the keyboard.
start() {
  launch "$@"
  await window_is_activated
}

# end: closes the window and waits for the end of the program.
end() {
  xdotool key --clearmodifiers ctrl+q
  wait "$program" || fail "the program ended with status $?"
}

# shows FILE TEXT: whether the saved game's report has a line with the text.
shows() {
  local report
  report=$("$programs/orbctl" show "$1" 2>> "$work/log") && grep -qF -- "$2" <<< "$report"
}

keys() { xdotool key --clearmodifiers --delay 60 "$@"; }
order() { xdotool type --clearmodifiers --delay 15 "$1" && keys Return; }

openbox >> "$work/log" 2>&1 &
await desktop_is_there
