#!/usr/bin/env bash
# Builds the project and runs its tests. The last line is "N passed, N failed"; the exit code is 1 if anything failed.
#   test.sh [CTEST ARGUMENT...]   debug build with the default compiler, every test (or those that the arguments choose)
#   test.sh --all                 what CI runs: every test on the release build, each header on its own, format and tidy,
#                                 and with the second compiler every test under the sanitizers, the fuzz targets, and
#                                 parsers on several threads under the thread sanitizer
set -uo pipefail

top=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
cd "$top" || exit 1
jobs=$(nproc)
passed=0
failed=0

# tally <passed> <failed>
tally() {
    passed=$((passed + $1))
    failed=$((failed + $2))
}

finish() {
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
    exit
}

# run_logged <name> <command...>: one line about how it went, the whole output only when it failed.
run_logged() {
    local name=$1 log=build/logs/${1// /-}.log begin=$SECONDS
    shift
    if "$@" >"$log" 2>&1 </dev/null; then
        printf '%-24s ok      %4d s\n' "$name" $((SECONDS - begin))
        return 0
    fi
    cat "$log"
    printf '%-24s FAILED  %4d s\n' "$name" $((SECONDS - begin))
    return 1
}

# check <name> <command...>: a logged run that counts as one test.
check() {
    if run_logged "$@"; then tally 1 0; else tally 0 1; fi
}

configure() {
    local preset=$1 out=build/$1 launcher=()
    # A tree that was copied or moved carries a build folder that belongs to the old place.
    if [ -f "$out/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$top" "$out/CMakeCache.txt"; then
        rm -rf "$out"
    fi
    if command -v ccache >/dev/null; then
        launcher=(-D CMAKE_C_COMPILER_LAUNCHER=ccache -D CMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    [ -f "$out/build.ninja" ] || cmake --preset "$preset" "${launcher[@]}"
}

# Sanitizers map their shadow at fixed addresses, which the kernel's randomisation may have taken. Where the machine
# lets us, such programs run without it.
unrandomised=()
if setarch "$(uname -m)" -R true 2>/dev/null; then
    unrandomised=(setarch "$(uname -m)" -R)
fi

# build <preset> [target...]
build() {
    local preset=$1
    shift
    configure "$preset" && "${unrandomised[@]}" ninja -C "build/$preset" "${@:-all}"
}

# run_tests <preset> [ctest argument...]: every test of the preset counts for itself.
run_tests() {
    local preset=$1 out=build/$1 log=build/logs/test-$1.log begin=$SECONDS report counts
    shift
    report=$top/$out/junit.xml
    rm -f "$report"
    "${unrandomised[@]}" ctest --test-dir "$out" -j "$jobs" --output-on-failure --no-tests=error \
        --output-junit "$report" "$@" >"$log" 2>&1 </dev/null
    local code=$?
    # <testsuite ... tests="12" failures="1" disabled="0" skipped="0" ...>, an attribute a line
    counts=$(sed -n -E 's/^\s*(tests|failures|disabled|skipped)="([0-9]+)".*/\1=\2/p' "$report" 2>/dev/null | head -n 4)
    local tests=0 failures=0 disabled=0 skipped=0
    eval "$counts"
    if [ $code -ne 0 ]; then
        grep -vE '^ *Start +[0-9]+:|Passed +[0-9.]+ sec' "$log"
        # A run that broke off without a report is a failure too.
        [ "$failures" -gt 0 ] || failures=1
    fi
    [ $((disabled + skipped)) -eq 0 ] || echo "test $preset: $((disabled + skipped)) tests were skipped"
    local good=$((tests - failures - disabled - skipped))
    [ $good -ge 0 ] || good=0
    tally $good "$failures"
    printf '%-24s %d of %d %4d s\n' "test $preset" "$good" "$tests" $((SECONDS - begin))
}

# build_and_test <preset> [ctest argument...]
build_and_test() {
    if run_logged "build $1" build "$1"; then run_tests "$@"; else tally 0 1; fi
}

# list_code <name pattern...>: the project's own files of these names, build folders aside.
list_code() {
    local names=(-name "$1")
    for pattern in "${@:2}"; do names+=(-o -name "$pattern"); done
    find . \( -path ./build -o -path ./.git \) -prune -o -type f \( "${names[@]}" \) -print
}

check_format() {
    list_code '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
}

# The sources of the product, with the flags that build/ci compiles them with. Tables of facts hold nothing to tidy.
check_tidy() {
    list_code '*.cpp' | grep -vE '^\./(Tests|Benchmarks|Catalogue/(Types/(DataTypes|TypeMapping)|Identifiers/ReservedWords))/' |
        xargs -n 1 -P "$jobs" clang-tidy --quiet -p build/ci 2>&1 | sed '/ warnings\{0,1\} generated\.$/d'
}

everything=false
if [ "${1:-}" = --all ]; then
    everything=true
    shift
fi

./cmake/packages.sh test || { tally 0 1; finish; }
mkdir -p build/logs

if ! $everything; then
    build_and_test dev "$@"
    finish
fi

check "format" check_format
build_and_test shipped
check "headers (clang)" build ci all_verify_interface_header_sets
check "tidy" check_tidy
# Clang's build: every test under the sanitizers, and the fuzz targets, which are tests of this preset too.
build_and_test asan
if run_logged "build tsan" build tsan parser_threads_test; then run_tests tsan -R '^ParserThreads'; else tally 0 1; fi
finish
