// A set of object types, for tables whose rows hold for several of them, and for name spaces.
#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>

// Holds numbers of enUVDB_DATABASE_OBJECT, or any others from 0 to 63.
class CObjectTypeSet
{
public:
    static constexpr int kCapacity = 64;

    constexpr CObjectTypeSet() = default;
    constexpr CObjectTypeSet(std::initializer_list<int> types)
    {
        for (const int type : types)
            m_Bits |= BitOf(type);
    }

    // From `first` to `last`, both included, in steps.
    static constexpr CObjectTypeSet Range(int first, int last, int step = 1)
    {
        CObjectTypeSet types;
        for (int type = first; type <= last; type += step)
            types.m_Bits |= BitOf(type);
        return types;
    }

    constexpr bool IsEmpty() const { return m_Bits == 0; }
    constexpr bool Has(std::int64_t type) const
    {
        return type >= 0 && type < kCapacity && (m_Bits & BitOf(type)) != 0;
    }

    constexpr void Remove(std::int64_t type)
    {
        if (Has(type))
            m_Bits &= ~BitOf(type);
    }

    friend constexpr CObjectTypeSet operator|(CObjectTypeSet left, CObjectTypeSet right)
    {
        left.m_Bits |= right.m_Bits;
        return left;
    }

    // Calls `action(type)` for each, ascending.
    template <class Action>
    void ForEach(Action action) const
    {
        for (std::uint64_t rest = m_Bits; rest != 0; rest &= rest - 1)
            action(std::countr_zero(rest));
    }

private:
    static constexpr std::uint64_t BitOf(std::int64_t type) { return std::uint64_t{1} << type; }

    std::uint64_t m_Bits = 0;
};
