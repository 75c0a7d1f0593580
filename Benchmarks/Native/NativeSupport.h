#pragma once

#include "Grammar/ParserNode.h"

#include <map>
#include <string>

// What the actions in the generated sources are made of.

using NativeValue = ParserNodeValue;

struct SNativeState
{
    const std::string* text = nullptr;
    CFragmentPool pool;
    std::string xml;
    std::map<std::string, std::string> conditions;
    std::size_t tokens = 0;
    std::size_t errors = 0;
    int brackets = 0;
    int lineStart = 0;
    int prevChar = 0;
};

extern SNativeState g_native;

void NativeToken(NativeValue& node, std::uint32_t element, int start, int length, int line);
NativeValue NativeReduce(std::uint32_t element, bool isRoot, const NativeValue* children, int count,
                         int errorIndex);
// By the scanner.
void NativeStartScan();
void NativeEndScan();

// The element of a name that is known when the code is compiled.
#define NATIVE_ELEMENT(name)                                                     \
    ([] {                                                                        \
        static const std::uint32_t element = g_native.pool.Names().Intern(name); \
        return element;                                                          \
    }())
