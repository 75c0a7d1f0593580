// A set of database kinds, for tables whose rows hold for several of them.
#pragma once

#include "Catalogue/UVDBDatabaseKinds.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

class CKindSet
{
public:
    // Kinds are numbers below this one; no set but the full one holds a number beyond.
    static constexpr std::size_t kCapacity = 192;

    constexpr CKindSet() = default;
    constexpr CKindSet(std::initializer_list<enUVDB_DATABASE> kinds)
    {
        for (const std::uint64_t db : kinds)
            m_Words[db / 64] |= std::uint64_t{1} << db % 64;
    }

    // Every number, those included that are no kind.
    static constexpr CKindSet All()
    {
        CKindSet all;
        all.m_HoldsAll = true;
        return all;
    }

    constexpr bool Has(std::uint64_t db) const
    {
        return m_HoldsAll || (db < kCapacity && (m_Words[db / 64] >> db % 64 & 1) != 0);
    }

private:
    std::array<std::uint64_t, kCapacity / 64> m_Words{};
    bool m_HoldsAll = false;
};
