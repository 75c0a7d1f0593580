// Walking over generated C text. Every comparison goes by ASCII letters without regard to case; every step
// tests for the end of the text.
#pragma once

#include <cstddef>
#include <string_view>

class CGeneratedText
{
public:
    static constexpr std::string_view kWhiteSpace = "\n \t\r";

    explicit CGeneratedText(std::string_view text) : m_Text(text) {}

    bool AtEnd() const { return m_ByteOffset == m_Text.size(); }
    // 0 at the end.
    char Peek() const { return AtEnd() ? '\0' : m_Text[m_ByteOffset]; }
    std::size_t ByteOffset() const { return m_ByteOffset; }
    // What lies between an earlier offset and the cursor.
    std::string_view From(std::size_t byteOffset) const
    {
        return m_Text.substr(byteOffset, m_ByteOffset - byteOffset);
    }

    // Not beyond the end.
    void Advance(std::size_t bytes);
    bool StartsWith(std::string_view word) const;
    bool IsOneOf(std::string_view set) const
    {
        return !AtEnd() && set.find(Peek()) != std::string_view::npos;
    }

    // Moves to the next occurrence, which may be right here; to the end if there is none.
    bool Seek(std::string_view word);

    void SkipSymbols(std::string_view set);      // while the next byte is one of them
    void SkipUntilSymbols(std::string_view set); // while it isn't
    // The same inside one case of an action switch: also stops where the case ends.
    void SkipCaseSymbols(std::string_view set);
    void SkipUntilCaseSymbols(std::string_view set);
    // To the LF and over the white space after it.
    void SkipLine();

    // True at "break;", "YY_BREAK" and "goto ".
    bool IsCaseEnd() const;

private:
    std::string_view m_Text;
    std::size_t m_ByteOffset = 0;
};

// LFs in the text.
int CountRows(std::string_view text);
