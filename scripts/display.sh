# A display in memory for scripts that have none. Sourced, not run.

# open_display FOLDER: starts one, with its files in FOLDER, and makes it the DISPLAY.
open_display() {
  exec 8>"$1/display"
  Xvfb -displayfd 8 -screen 0 1600x1000x24 -nolisten tcp -noreset 2>/dev/null &
  display_server=$!
  until [ -s "$1/display" ]; do sleep 0.05; done
  DISPLAY=:$(cat "$1/display")
  export DISPLAY
}

close_display() {
  kill "$display_server"
}
