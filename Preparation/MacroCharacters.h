// What characters are, for the macro processor's inner loops: one look-up tells.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace MacroPreprocessorChecker::internal {

class CharacterSet
{
public:
    constexpr explicit CharacterSet(std::string_view characters)
    {
        for (const char c : characters)
            m_Has[static_cast<unsigned char>(c)] = true;
    }

    // The same with all bytes that aren't ASCII.
    constexpr CharacterSet AndForeign() const
    {
        CharacterSet set = *this;
        for (std::size_t c = 128; c < set.m_Has.size(); ++c)
            set.m_Has[c] = true;
        return set;
    }

    constexpr bool Has(char c) const { return m_Has[static_cast<unsigned char>(c)]; }

private:
    std::array<bool, 256> m_Has{};
};

inline constexpr CharacterSet kLetters{"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_$"};
inline constexpr CharacterSet kNameCharacters{
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_$0123456789"};

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// What a token is, by its first character.
enum enBeginning : std::uint8_t
{
    BEGINS_SIGN,
    BEGINS_NAME,
    BEGINS_NUMBER,
    BEGINS_BLANKS,
    BEGINS_TABS,
    BEGINS_LINE,
    BEGINS_QUOTED,
    BEGINS_SLASHED, // a comment or a sign
    BEGINS_LESS,    // a header's name or a sign
    BEGINS_FOREIGN
};

inline constexpr auto kBeginnings = [] {
    std::array<enBeginning, 256> table{};
    for (std::size_t c = 0; c < 256; ++c)
        if (c < 32)
            table[c] = BEGINS_BLANKS; // any control character
        else if (c > 127)
            table[c] = BEGINS_FOREIGN;
        else if (IsDigit(static_cast<char>(c)))
            table[c] = BEGINS_NUMBER;
        else if (kLetters.Has(static_cast<char>(c)))
            table[c] = BEGINS_NAME;
    table[' '] = BEGINS_BLANKS;
    table['\t'] = BEGINS_TABS;
    table['\n'] = BEGINS_LINE;
    table['"'] = table['\''] = BEGINS_QUOTED;
    table['/'] = BEGINS_SLASHED;
    table['<'] = BEGINS_LESS;
    return table;
}();

constexpr enBeginning BeginningOf(char c)
{
    return kBeginnings[static_cast<unsigned char>(c)];
}

} // namespace MacroPreprocessorChecker::internal
