#!/usr/bin/env bash
# Compares what a shared library exports with the list of what it means to export.
#   check_exports.sh LIBRARY [LIST]   LIST is exports.txt beside this script unless given.
# Prints each symbol that is missing or too many and exits 1 if there is any, 2 if it can't look.
#
# The standard library and boost mark their templates as visible, and an instantiation over their own types alone
# keeps that mark: it comes out as a weak symbol whatever the library's own visibility is. Weak symbols of these
# namespaces are passed over; a strong one, or a weak one of any other name, is reported.
set -euo pipefail
export LC_ALL=C

if [ $# -lt 1 ] || [ $# -gt 2 ]; then
    echo "usage: check_exports.sh LIBRARY [LIST]" >&2
    exit 2
fi
library=$1
list=${2:-$(dirname "$0")/exports.txt}
for file in "$library" "$list"; do
    if [ ! -r "$file" ]; then
        echo "check_exports.sh: can't read $file" >&2
        exit 2
    fi
done

# Mangled names: Z, TV, TI, GV ... open symbols that belong to an entity, N a nested name, St and its like stand
# for std; the placement forms of new and delete are inline functions of the same kind.
passed_over='^_Z((Z|T[VTIS]|GV|GR)*(N[KVrRO]*)?(St|S[absiod]|9__gnu_cxx|5boost)|n[wa]mPv$|d[la]PvS_$)'

symbols=$(nm -D --defined-only --format=posix "$library") || exit 2
if [ -z "$symbols" ]; then
    echo "check_exports.sh: $library exports nothing" >&2
    exit 1
fi
exported=$(awk -v pattern="$passed_over" '!($2 ~ /^[WVwvu]$/ && $1 ~ pattern) { print $1 }' <<<"$symbols" | c++filt | sort -u)
expected=$(sed -e '/^#/d' -e '/^[[:space:]]*$/d' "$list" | sort -u)

missing=$(comm -13 <(echo "$exported") <(echo "$expected"))
extra=$(comm -23 <(echo "$exported") <(echo "$expected"))
[ -z "$missing" ] || sed 's/^/missing: /' <<<"$missing"
[ -z "$extra" ] || sed 's/^/not in the list: /' <<<"$extra"
[ -z "$missing" ] && [ -z "$extra" ]
