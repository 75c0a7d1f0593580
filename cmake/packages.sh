#!/usr/bin/env bash
# Installs the Debian packages that the project needs and that this machine lacks.
#   packages.sh build   what run.sh needs: compiler, libraries, table generators
#   packages.sh test    the above, the test libraries and the tools of the checks
# Says nothing and needs no rights when nothing is missing. Elsewhere than on Debian it leaves the machine alone;
# CMake then names what it can't find.
set -euo pipefail

build=(
    g++ cmake lld ninja-build flex bison python3 unicode-data
    libboost-dev libboost-filesystem-dev libboost-program-options-dev libboost-regex-dev libboost-system-dev
    libxml2-dev libxslt1-dev zlib1g-dev libpcre3-dev nlohmann-json3-dev
)
test=(
    binutils strace
    fp-compiler gnucobol3
    libbenchmark-dev libecpg-dev libgtest-dev libgmock-dev libmariadb-dev libpg-query-dev libxml2-utils
    clang clang-format clang-tidy libclang-rt-14-dev llvm
    mariadb-client-core mariadb-server-core postgresql python3-jsonschema sqlite3
)

case "${1:-}" in
build) wanted=("${build[@]}") ;;
test) wanted=("${build[@]}" "${test[@]}") ;;
*)
    echo "usage: packages.sh build|test" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null; then
    exit 0
fi

# dpkg-query answers non-zero as soon as one name is unknown to it, which is the very case looked for.
present=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
    if ! grep -qxF "installed $package" <<<"$present"; then
        missing+=("$package")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null; then
    as_root=(sudo)
else
    echo "packages.sh: missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
    exit 1
fi

echo "packages.sh: installing ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends install "${missing[@]}"
}
# Package lists may be absent or older than the archive: the first failure fetches them and tries again.
if ! install >"$log" 2>&1 </dev/null; then
    if ! { "${as_root[@]}" apt-get -qq update && install; } >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        echo "packages.sh: could not install ${missing[*]}" >&2
        exit 1
    fi
fi
