# Common ground of ./run and ./test, to be sourced: where things are, and how steps tell of themselves.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
logs=$build/logs
mkdir -p "$logs"

# What ccache asks for where precompiled headers are used; else it keeps nothing that includes one.
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

say() { printf '%s\n' "$*"; }

# one_at_a_time ARGUMENT...: starts the script again under the lock of this tree. The lock is held by the waiting flock
# alone: servers that outlive the script do not inherit it.
one_at_a_time() {
  [ -n "${NEMPDF_TREE_LOCKED-}" ] && return
  flock --nonblock "$build/lock" true || say "another ./run or ./test is at work in this tree: waiting for it"
  NEMPDF_TREE_LOCKED=1 exec flock --close "$build/lock" "$0" "$@"
}

# seconds_since START: for START=$EPOCHREALTIME; one decimal, whatever the locale writes between the digits.
seconds_since() {
  local now=${EPOCHREALTIME//[!0-9]/} start=${1//[!0-9]/}
  local tenths=$(((now - start) / 100000))
  printf '%d.%d s' $((tenths / 10)) $((tenths % 10))
}

# explain_failure TITLE LOG: which step failed, and why: ninja's first failure, or else the end of the log.
explain_failure() {
  local from
  from=$(grep -n -m 1 '^FAILED: ' "$2" | cut -d : -f 1)
  say "FAILED: $1"
  say "  From ${2#"$root/"}:"
  if [ -n "$from" ]; then tail -n "+$from" "$2" | head -n 30; else tail -n 30 "$2"; fi | cut -c 1-400 | sed 's/^/  | /'
}

# step TITLE LOGNAME COMMAND...: runs the command with its output in build/logs/LOGNAME.log and says how long it took.
# When it fails, shows the end of the log and returns the command's exit code.
step() {
  local title=$1 log=$logs/$2.log start=$EPOCHREALTIME code=0
  shift 2
  "$@" >"$log" 2>&1 </dev/null || code=$?
  if [ "$code" = 0 ]; then
    say "$title ($(seconds_since "$start"))"
  else
    explain_failure "$title" "$log"
  fi
  return "$code"
}

# show_progress NAME: from ninja's output, a line at every fifth of a longer build.
show_progress() {
  awk -v name="$1" -F '[][/]' '
    /^\[[0-9]+\/[0-9]+\]/ && $3 >= 20 {
      fifth = int(5 * $2 / $3)
      if (fifth > shown && fifth < 5) {
        printf "  building %s: %d of %d\n", name, $2, $3
        fflush()
      }
      if (fifth > shown) shown = fifth
    }'
}

# cmake_build PRESET [TARGET...]: configures and builds.
cmake_build() {
  local preset=$1 log=$logs/build-$1.log start=$EPOCHREALTIME code
  shift
  step "configured $preset" "configure-$preset" cmake -S "$root" --preset "$preset" || return
  NINJA_STATUS='[%f/%t] ' cmake --build "$build/$preset" ${1:+--target "$@"} 2>&1 </dev/null | tee "$log" |
    show_progress "$preset"
  code=${PIPESTATUS[0]}
  if [ "$code" = 0 ]; then
    say "built $preset ($(seconds_since "$start"))"
  else
    explain_failure "building $preset" "$log"
  fi
  return "$code"
}

# allowed_cpus: the numbers of the processors that this process may run on, one a line.
allowed_cpus() {
  local range
  while read -r -d , range; do
    seq "${range%-*}" "${range#*-}"
  done <<<"$(sed -n 's/^Cpus_allowed_list:\s*//p' /proc/self/status),"
}
