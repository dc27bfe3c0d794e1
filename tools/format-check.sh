#!/bin/bash
# Says which C++ files clang-format would change. Exit code 0: none, or clang-format is not installed.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
if ! command -v clang-format >/dev/null; then
  echo "clang-format is not installed; nothing was checked"
  exit
fi
find include src host tests bench fuzz -name '*.h' -o -name '*.hpp' -o -name '*.cpp' | sort | xargs clang-format --dry-run --Werror
