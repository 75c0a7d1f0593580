#!/usr/bin/env bash
# Builds what uvparse needs and runs it on the arguments, or on the PostgreSQL samples when there are none.
# Paths in the arguments are those of the caller's folder. Nothing but uvparse's results goes to stdout.
set -euo pipefail

top=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
out=$top/build/release

"$top/cmake/packages.sh" build >&2

mkdir -p "$out"
# Two runs at a time must not build into the same folder.
exec {lock}>"$out/.lock"
flock "$lock"

# A tree that was copied or moved carries a build folder that belongs to the old place.
if [ -f "$out/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$top" "$out/CMakeCache.txt"; then
    find "$out" -mindepth 1 ! -name .lock -delete
fi
if [ ! -f "$out/build.ninja" ]; then
    launcher=()
    if command -v ccache >/dev/null; then
        launcher=(-D CMAKE_C_COMPILER_LAUNCHER=ccache -D CMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    echo "run.sh: first build, this takes some minutes" >&2
    if ! (cd "$top" && cmake --preset release -D UV_BENCHMARKS=OFF "${launcher[@]}") >"$out/configure.log" 2>&1; then
        cat "$out/configure.log" >&2
        exit 2
    fi
fi

targets=(uvparse UVParser languages)
if ! ninja -C "$out" -n "${targets[@]}" 2>/dev/null | grep -q 'no work to do'; then
    ninja -C "$out" "${targets[@]}" >&2 || exit 2
fi
exec {lock}>&-

if [ $# -eq 0 ]; then
    set -- "$top"/Languages/PostgreSQL/Samples/*.sql
fi
exec "$out/bin/uvparse" "$@"
