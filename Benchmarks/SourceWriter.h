// The means of the generators in PreparationSources*.cpp.
#pragma once

#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>

inline constexpr int kIncludeFileCount = 100;

class CSourceWriter
{
public:
    // From `low` to `high`, both among them.
    int Number(int low, int high)
    {
        return low + static_cast<int>(m_Random() % static_cast<unsigned>(high - low + 1));
    }

    bool Chance(int percent) { return Number(1, 100) <= percent; }

    template <std::size_t Count>
    std::string Pick(const std::string_view (&words)[Count])
    {
        return std::string(words[static_cast<std::size_t>(Number(0, static_cast<int>(Count) - 1))]);
    }

    std::string Digits(int low, int high) { return std::to_string(Number(low, high)); }

    // A few words, with blanks between them.
    std::string Phrase(int fewest, int most)
    {
        static constexpr std::string_view kWords[] = {
            "north", "copper",  "ledger", "winter", "harbour", "the",    "of",    "unpaid",  "total", "first",
            "and",   "quarter", "stock",  "is",     "checked", "before", "notes", "carried", "over",  "a",
        };
        std::string phrase = Pick(kWords);
        for (int more = Number(fewest, most) - 1; more > 0; --more)
            phrase += " " + Pick(kWords);
        return phrase;
    }

    void Add(std::string_view line) { m_Text.append(line).append(1, '\n'); }

    std::size_t Size() const { return m_Text.size(); }
    std::string Take() { return std::exchange(m_Text, {}); }

private:
    std::mt19937 m_Random{20250301};
    std::string m_Text;
};

// Blanks after `text` up to `column`, or its end cut off.
inline std::string Padded(std::string text, std::size_t column)
{
    text.resize(column, ' ');
    return text;
}

// A number of `width` digits.
inline std::string Sequence(std::size_t number, std::size_t width)
{
    std::string digits = std::to_string(number);
    digits = digits.size() > width ? digits.substr(digits.size() - width) : digits;
    return std::string(width - digits.size(), '0') + digits;
}

// Each adds some lines of its kind.
void AddCobolFixed(CSourceWriter& writer);
void AddCobolFree(CSourceWriter& writer);
void AddJcl(CSourceWriter& writer);
void AddIbmCl(CSourceWriter& writer);
void AddRpgWithDefinitions(CSourceWriter& writer);
void AddRpgOlder(CSourceWriter& writer);
void AddFoxPro(CSourceWriter& writer);
void AddPascal(CSourceWriter& writer);
void AddProgress(CSourceWriter& writer);
void AddAsp(CSourceWriter& writer);
void AddMacroC(CSourceWriter& writer);
void AddEmbeddedSql(CSourceWriter& writer);
