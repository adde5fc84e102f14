#!/usr/bin/env bash
# Installs the build into a folder of its own and builds the outside project against it.
set -euo pipefail
build=$1 outside=$2
cmake=${CMAKE_COMMAND:-cmake}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$cmake" --install "$build" --prefix "$work/prefix" >/dev/null
"$cmake" -G Ninja -S "$outside" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix"
"$cmake" --build "$work/build"
"$work/build/outside"
test -x "$work/prefix/bin/subject-terminal"
test -x "$work/prefix/bin/subject-service"
