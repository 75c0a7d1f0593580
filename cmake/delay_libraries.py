#!/usr/bin/env python3
"""Writes the C++ source that puts off the loading of libraries until one of their functions is called.

    delay_libraries.py --nm NM --readelf READELF --objects LIST --output FILE LIBRARY...

LIST is a file that names object files, one a line. Each function of a LIBRARY that they call and don't define
becomes an entry of a few instructions, which loads the library at the first call and goes to its function from
then on. A variable can't be put off: one that the objects use is an error.
"""

import argparse
import re
import subprocess
import sys

HEAD = """\
// Entries of libraries that are loaded when the first of their functions is called.
#include <cerrno>
#include <dlfcn.h>
#include <stdexcept>

namespace {

struct SDelayed
{
    const char* library;
    const char* name;
};

const SDelayed kDelayed[] = {
"""

RESOLVER = """\
};

} // namespace

// Called by the entries alone: the function's address.
// Throws: std::runtime_error through the entry to its caller, if the library can't be loaded.
extern "C" __attribute__((visibility("hidden"), used)) void* uv_load_delayed(unsigned long index)
{
    const int error = errno;
    const SDelayed& wanted = kDelayed[index];
    void* const library = dlopen(wanted.library, RTLD_LAZY | RTLD_LOCAL);
    void* const function = library != nullptr ? dlsym(library, wanted.name) : nullptr;
    if (function == nullptr)
        throw std::runtime_error(dlerror());
    errno = error;
    return function;
}

// Registers that carry arguments are as they were when the function is entered. The stack is aligned: its pointer is
// 8 off where a function begins.
__asm__(R"(
    .text
    .type uv_enter_delayed, @function
uv_enter_delayed:
    .cfi_startproc
    .cfi_def_cfa_offset 16
    push %rax
    push %rdi
    push %rsi
    push %rdx
    push %rcx
    push %r8
    push %r9
    push %r10
    sub $128, %rsp
    .cfi_def_cfa_offset 208
    movups %xmm0, (%rsp)
    movups %xmm1, 16(%rsp)
    movups %xmm2, 32(%rsp)
    movups %xmm3, 48(%rsp)
    movups %xmm4, 64(%rsp)
    movups %xmm5, 80(%rsp)
    movups %xmm6, 96(%rsp)
    movups %xmm7, 112(%rsp)
    mov 192(%rsp), %rdi
    call uv_load_delayed
    mov %rax, %r11
    mov 192(%rsp), %rdi
    lea uv_delayed_slots(%rip), %rax
    mov %r11, (%rax,%rdi,8)
    movups (%rsp), %xmm0
    movups 16(%rsp), %xmm1
    movups 32(%rsp), %xmm2
    movups 48(%rsp), %xmm3
    movups 64(%rsp), %xmm4
    movups 80(%rsp), %xmm5
    movups 96(%rsp), %xmm6
    movups 112(%rsp), %xmm7
    add $128, %rsp
    pop %r10
    pop %r9
    pop %r8
    pop %rcx
    pop %rdx
    pop %rsi
    pop %rdi
    pop %rax
    add $8, %rsp
    .cfi_def_cfa_offset 8
    jmp *%r11
    .cfi_endproc
    .size uv_enter_delayed, . - uv_enter_delayed
"""

ENTRY = """\
    .globl {name}
    .hidden {name}
    .type {name}, @function
{name}:
    .cfi_startproc
    jmp *uv_delayed_slots+{at}(%rip)
.Ldelayed{index}:
    push ${index}
    .cfi_def_cfa_offset 16
    jmp uv_enter_delayed
    .cfi_endproc
    .size {name}, . - {name}
"""


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def symbols(nm, options, files):
    """Name to type letter. A defined one wins over an undefined one."""
    found = {}
    for line in run(nm, "--format=posix", *options, *files).splitlines():
        words = line.split()
        if len(words) < 2 or words[0].endswith(":"):
            continue
        name = words[0].split("@")[0]
        if name not in found or found[name] == "U":
            found[name] = words[1]
    return found


def main():
    parser = argparse.ArgumentParser()
    for option in ("--nm", "--readelf", "--objects", "--output"):
        parser.add_argument(option, required=True)
    parser.add_argument("libraries", nargs="+")
    arguments = parser.parse_args()

    with open(arguments.objects, encoding="utf-8") as names:
        objects = names.read().split("\n")
    used = symbols(arguments.nm, [], [name for name in objects if name])
    missing = {name for name, letter in used.items() if letter in "Uwv"}
    delayed = {}
    variables = []
    for library in arguments.libraries:
        soname = re.search(r"\(SONAME\).*\[(.*)\]", run(arguments.readelf, "-dW", library)).group(1)
        for name, letter in symbols(arguments.nm, ["-D", "--defined-only"], [library]).items():
            if name.startswith(("_ZS", "_ZNS", "_ZNKS")):
                continue  # the standard library's, which others hold too
            if name in missing and letter in "TWi":
                delayed.setdefault(name, soname)
            elif name in missing and letter in "DBRVG":
                variables.append(f"{name} of {soname}")
    if variables:
        sys.exit("variables of libraries that are loaded later: " + ", ".join(sorted(variables)))

    names = sorted(delayed)
    with open(arguments.output, "w", encoding="utf-8") as out:
        out.write(HEAD)
        for name in names:
            out.write(f'    {{"{delayed[name]}", "{name}"}},\n')
        out.write(RESOLVER)
        for index, name in enumerate(names):
            out.write(ENTRY.format(name=name, index=index, at=8 * index))
        out.write("    .data\n    .balign 8\nuv_delayed_slots:\n")
        for index in range(len(names)):
            out.write(f"    .quad .Ldelayed{index}\n")
        out.write('    .text\n)");\n')


main()
