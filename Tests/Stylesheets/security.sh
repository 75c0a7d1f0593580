#!/usr/bin/env bash
# security.sh PROBE [unwatched]: hostile stylesheets and trees fail, and neither read nor write nor connect to anything.
# The probe runs in a folder of its own with rule folders beside it, watched by strace. Unwatched, or without strace or
# the right to use it, the probe's own findings are all, and the test counts as skipped (77).
set -euo pipefail

probe=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cp "$probe" "$folder/probe"
sheet='<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"/>'
for rules in rules rules_KEL crs rulesets; do
    mkdir "$folder/$rules"
    echo '<x/>' >"$folder/$rules/x.xml"
    echo "$sheet" >"$folder/$rules/x.xslt"
done
echo "$sheet" >"$folder/outside.xml"
ln -s ../outside.xml "$folder/rules/link.xml"

check_unwritten() {
    if [ -e "$folder/written.xml" ]; then
        echo "a stylesheet has written a file" >&2
        exit 1
    fi
}

record=$folder/record
if [ "${2:-}" = unwatched ] || ! command -v strace >/dev/null || ! strace -o "$record" true 2>/dev/null; then
    "$folder/probe" "$folder"
    check_unwritten
    echo "nobody watched what was opened: a sanitized build, or strace is missing or not allowed"
    exit 77
fi

strace -f -e trace=open,openat,connect -o "$record" "$folder/probe" "$folder"
check_unwritten

# part NAME: the calls between this mark and the next.
part() {
    awk -v name="/uv-probe/$1" '/\/uv-probe\// { inside = index($0, name) > 0; next } inside' "$record" |
        grep -vE '(\+\+\+|---) ' || true
}

if ! grep -q '/uv-probe/hostile' "$record" || ! part allowed | grep -qF "$folder/rules/x.xml"; then
    echo "the record lacks what the probe is known to open:" >&2
    cat "$record" >&2
    exit 1
fi
found=$(part hostile)
if [ -n "$found" ]; then
    printf 'opened by hostile input:\n%s\n' "$found" >&2
    exit 1
fi
