# Wine prefixes below build/, each with a Windows of its own. To be sourced after common.sh.
#
#   make_prefix wine-null null         no screen at all: the fast one, for tests
#   make_prefix wine-screen screen     draws on a screen of our own, frames and captions included
#   make_prefix wine-desktop desktop   draws on the user's desktop, under its window manager
#   start_prefix wine-null 0       starts its server on processor 0, ready for programs
#   in_prefix wine-null 0 program.exe arguments...
#   stop_prefix wine-null
# shellcheck shell=bash

wine64=/usr/lib/wine/wine64
wineserver64=/usr/lib/wine/wineserver64

# Changes with this recipe and with Wine; a prefix of another one is made anew.
prefix_recipe() { { cat "$root/tools/prefix.sh" && "$wine64" --version; } | sha256sum | cut -d ' ' -f 1; }

# wine_environment NAME COMMAND...: runs the command with the prefix's environment.
# - Crashes end the program with a code of their own, without dialog and debugger.
# - Neither .NET nor a browser engine is offered for download, and nothing enters the user's desktop menus.
# - The prefix has a home folder of its own, so that "My Documents" is not the user's.
wine_environment() {
  local prefix=$build/$1
  shift
  WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=-all HOME=$prefix/home WINELOADER=$wine64 WINESERVER=$wineserver64 \
    WINEDLLOVERRIDES='mscoree=d;mshtml=d;winedbg.exe=d;winemenubuilder.exe=d' "$@"
}

# in_prefix NAME CPU PROGRAM ARGUMENT...: pinned, since Wine is several times faster when the program and its server
# share a processor. Standard output should be a pipe or a file.
in_prefix() {
  local name=$1 cpu=$2
  shift 2
  wine_environment "$name" taskset -c "$cpu" "$wine64" "$@"
}

stop_prefix() {
  [ -d "$build/$1" ] || return 0
  wine_environment "$1" "$wineserver64" -k >/dev/null 2>&1 </dev/null
  wine_environment "$1" "$wineserver64" -w >/dev/null 2>&1 </dev/null
}

# start_prefix NAME CPU: a server that stays until stop_prefix, primed by a first program: else each one starts cold.
start_prefix() {
  stop_prefix "$1"
  wine_environment "$1" taskset -c "$2" setsid "$wineserver64" -p >/dev/null 2>&1 </dev/null
  in_prefix "$1" "$2" cmd /c exit >/dev/null 2>&1 </dev/null
}

set_registry() {
  wine_environment "$1" "$wine64" reg add "${@:2}" /f
}

fill_prefix() {
  local name=$1 graphics=$2 prefix=$build/$1
  mkdir -p "$prefix/home"
  wine_environment "$name" "$wine64" wineboot.exe -i && wine_environment "$name" "$wineserver64" -w || return
  # Tahoma stands for "MS Shell Dlg", with true metrics and Arabic.
  cp /usr/share/wine/fonts/{tahoma,tahomabd,marlett,symbol,webdings,wingding,small_fonts,courier}.ttf \
    "$prefix/drive_c/windows/Fonts/" || return
  set_registry "$name" 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /v Debugger /d false || return
  case $graphics in
    null) set_registry "$name" 'HKCU\Software\Wine\Drivers' /v Graphics /d null ;;
    # Where there is no window manager, Wine would wait for it, two seconds at each window that closes.
    screen) set_registry "$name" 'HKCU\Software\Wine\X11 Driver' /v Managed /d N ;;
  esac
}

# make_prefix NAME null|screen|desktop: makes the prefix, or keeps the one that is there. Its server does not run afterwards.
make_prefix() {
  local prefix=$build/$1 recipe
  recipe=$(prefix_recipe)
  [ "$(cat "$prefix/recipe" 2>/dev/null)" = "$recipe" ] && return
  stop_prefix "$1"
  rm -rf "$prefix"
  step "made the Wine prefix build/$1" "prefix-$1" fill_prefix "$1" "$2" || return
  stop_prefix "$1"
  printf '%s' "$recipe" >"$prefix/recipe"
}
