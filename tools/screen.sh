# A screen of our own, for programs that need one where there is none. To be sourced after common.sh.
# shellcheck shell=bash

screen_pid=

# start_screen [SIZE]: starts Xvfb and sets DISPLAY to it. No window manager: the prefix of kind "screen" needs none.
start_screen() {
  local size=${1:-1280x1024} number pipe
  exec {pipe}<> <(:)
  Xvfb -displayfd "$pipe" -screen 0 "${size}x24" -nolisten tcp >"$logs/screen.log" 2>&1 </dev/null &
  screen_pid=$!
  if ! read -r -t 30 -u "$pipe" number; then
    explain_failure "starting Xvfb" "$logs/screen.log"
    return 1
  fi
  exec {pipe}>&-
  export DISPLAY=:$number
}

stop_screen() {
  [ -n "$screen_pid" ] || return 0
  kill "$screen_pid" 2>/dev/null
  wait "$screen_pid" 2>/dev/null
  screen_pid=
}
