#!/bin/bash
# Installs what they need, builds the fuzzers, and runs each for some minutes:
#
#   tools/fuzz.sh [MINUTES [FUZZER...]]      1 minute and all fuzzers, if not said otherwise
#
# The seeds are in fuzz/corpus; what a run finds worth keeping is collected in build/fuzz/corpus, and inputs that break
# a rule are kept in build/fuzz/findings. Exit code 0 when there are none.
set -u
export LC_ALL=C.UTF-8
# shellcheck source=tools/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
source "$root/tools/setup.sh"

fuzzer_packages=(clang libclang-rt-dev) # the compiler with libFuzzer and the sanitizers

# last_number WORD LOG: the number behind the last "WORD: " that libFuzzer has printed.
last_number() { grep -o "$1: *[0-9]*" "$2" | tail -n 1 | grep -o '[0-9]*$'; }

# fuzz NAME SECONDS: one fuzzer; a line of figures for it.
fuzz() {
  local name=$1 seconds=$2 log=$logs/fuzz-$1.log corpus=$build/fuzz/corpus/$1 findings=$build/fuzz/findings/$1
  local code=0 count
  mkdir -p "$corpus" "$findings"
  "$build/fuzz/fuzz/$name" -max_total_time="$seconds" -max_len=4096 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="$findings/" "$corpus" "$root/fuzz/corpus/$name" >"$log" 2>&1 </dev/null || code=$?
  count=$(find "$findings" -type f | wc -l)
  printf '  %-18s %10s executions, %6s edges, %7s features, %5s inputs kept, %d findings\n' "$name" \
    "$(last_number 'stat::number_of_executed_units' "$log")" "$(last_number cov "$log")" "$(last_number ft "$log")" \
    "$(find "$corpus" -type f | wc -l)" "$count"
  if [ "$code" != 0 ] || [ "$count" != 0 ]; then
    explain_failure "$name ended with exit code $code; findings are in ${findings#"$root/"}" "$log"
    return 1
  fi
}

minutes=${1:-1}
if ! [[ $minutes =~ ^[0-9]+$ ]] || [ "$minutes" = 0 ]; then
  say "Not a number of minutes: $minutes" >&2
  exit 2
fi
set_up "${fuzzer_packages[@]}" || exit 2
cmake_build fuzz fuzzers || exit 1
names=("${@:2}")
if [ ${#names[@]} = 0 ]; then
  mapfile -t names < <(find "$root/fuzz" -maxdepth 1 -name '*Fuzzer.cpp' -printf '%f\n' | sed 's/\.cpp$//' | sort)
fi
failed=0
for name in "${names[@]}"; do
  fuzz "$name" $((minutes * 60)) || failed=1
done
exit "$failed"
