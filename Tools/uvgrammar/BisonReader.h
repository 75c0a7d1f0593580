// The words of a bison source: enough to know where a rule, an alternative and a symbol begin and end.
#pragma once

#include <cstddef>
#include <string_view>

enum class enBisonWord
{
    End,
    Name,      // of a symbol
    Directive, // %token
    Text,      // "..." or '...'
    Tag,       // <type> or [name]
    Code,      // { ... } or %{ ... %}
    Colon,
    Bar,
    Semicolon,
    Sections, // %%
    Other
};

// Offsets are bytes of the whole text.
struct SBisonWord
{
    enBisonWord kind = enBisonWord::End;
    std::size_t begin = 0;
    std::size_t end = 0;
};

class CBisonReader
{
public:
    explicit CBisonReader(std::string_view text, std::size_t begin = 0) : m_Text(text), m_At(begin) {}

    // Comments and white space are passed over. What is never closed ends with the text.
    SBisonWord Next();
    SBisonWord Peek() const;
    std::string_view TextOf(const SBisonWord& word) const
    {
        return m_Text.substr(word.begin, word.end - word.begin);
    }

private:
    void SkipSpace();
    std::size_t EndOfQuoted(std::size_t at) const;
    std::size_t EndOfComment(std::size_t at) const;
    std::size_t EndOfBraces(std::size_t at) const;

    std::string_view m_Text;
    std::size_t m_At;
};
