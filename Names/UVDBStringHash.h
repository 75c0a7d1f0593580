// Hashing of names.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace UVDB {

// The hash of a text's bytes, in the maps that hosts hand over.
struct CStringHash
{
    std::size_t operator()(const Uve::U8CString& text) const noexcept
    {
        return std::hash<std::string_view>{}(std::string_view(text.data(), text.size()));
    }
};

} // namespace UVDB
