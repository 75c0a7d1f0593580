// What --stat counts.
#pragma once

#include <cstddef>
#include <string>

namespace uvparse {

// Counts of one text, or of all.
struct SStatistics
{
    std::size_t statements = 0; // read
    std::size_t lost = 0;
    std::size_t unexpectedTokens = 0;
    std::size_t bytes = 0;
    double seconds = 0;

    SStatistics& operator+=(const SStatistics& other);

    std::string Text() const;
};

} // namespace uvparse
