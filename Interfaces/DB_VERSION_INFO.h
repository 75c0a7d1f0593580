#pragma once

#include <cstdint>

// Some system headers define these two names as macros.
#ifdef major
#undef major
#endif
#ifdef minor
#undef minor
#endif

// The empty values of a DB_VERSION_INFO.
inline constexpr std::uint64_t UVDB_UNKNOWN_DATABASE_KIND = 60;
inline constexpr std::uint64_t UVDB_NO_VERSION_WORD = ~std::uint64_t{0};

// Which database or source language, in which version: the value by which everything is looked up. Passed by
// value. A record made without arguments is the empty one.
//
// Two groups of six words: the database itself, and a second one that accompanies it (a second source, a
// compatibility partner) and is read by the same rules. The layout crosses plug-in boundaries.
struct DB_VERSION_INFO
{
    std::uint64_t db = UVDB_UNKNOWN_DATABASE_KIND; // kind, a number of the UVDB_DB_ list
    std::uint64_t subType = UVDB_NO_VERSION_WORD;  // subtype within the kind
    std::uint64_t major = UVDB_NO_VERSION_WORD;
    std::uint64_t minor = UVDB_NO_VERSION_WORD;
    std::uint64_t reserved1 = UVDB_NO_VERSION_WORD; // carried and copied, never compared
    std::uint64_t reserved2 = UVDB_NO_VERSION_WORD;
    std::uint64_t db2 = UVDB_UNKNOWN_DATABASE_KIND;
    std::uint64_t subType2 = UVDB_NO_VERSION_WORD;
    std::uint64_t major2 = UVDB_NO_VERSION_WORD;
    std::uint64_t minor2 = UVDB_NO_VERSION_WORD;
    std::uint64_t reserved3 = UVDB_NO_VERSION_WORD;
    std::uint64_t reserved4 = UVDB_NO_VERSION_WORD;
};

static_assert(sizeof(DB_VERSION_INFO) == 12 * sizeof(std::uint64_t));
