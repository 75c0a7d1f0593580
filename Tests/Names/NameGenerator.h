// Names as catalogues have them, and worse. Text is UTF-8.
#pragma once

#include "Catalogue/Identifiers/UVDBReservedWords.h"
#include "UVEnvironment/UVECodePoints.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class CNameGenerator
{
public:
    CNameGenerator(std::uint64_t seed, DB_VERSION_INFO source, DB_VERSION_INFO target)
        : m_Random(seed), m_Words{GetReservedWords(source), GetReservedWords(target)}
    {}

    std::size_t Below(std::size_t count) { return m_Random() % count; }

    std::string Name()
    {
        std::string name = Next();
        m_Earlier.push_back(name);
        return name;
    }

private:
    std::string Next()
    {
        switch (Below(m_Earlier.empty() ? 8 : 13)) {
        case 0:
        case 1:
            return Text(kPlain, 1, 20);
        case 2:
            return Text(kSpecial, 1, 15);
        case 3:
            return Unicode(1, 12);
        case 4:
            return ReservedWord();
        case 5:
            return Text(kPlain, 20, 200);
        case 6:
            return Below(2) ? Unicode(15, 80) : Text(kSpecial, 25, 150);
        case 7:
            return Below(2) ? Text("0123456789", 1, 9) : Text("0123456789_$#@", 1, 2) + Text(kPlain, 1, 8);
        case 8:
            return OtherCase(Earlier());
        case 9:
            return Earlier() + Text(kMarks, 1, 2); // the same name, after repair
        case 10:
            return Earlier() + Text("123456789", 1, 1); // what a number would make
        case 11:
            return Earlier() + Text(kPlain, 30, 90); // the same name, after the cut
        default:
            return Text(kMarks, 1, 1) + Earlier() + Text(kMarks, 1, 1);
        }
    }

    std::string Text(std::string_view characters, std::size_t least, std::size_t most)
    {
        std::string text;
        for (std::size_t count = least + Below(most - least + 1); count > 0; --count)
            text += characters[Below(characters.size())];
        return text;
    }

    std::string Unicode(std::size_t least, std::size_t most)
    {
        struct SRange
        {
            unsigned int first, last;
        };
        constexpr SRange kRanges[] = {{'a', 'z'},         {0xC0, 0xFF},     {0x100, 0x17F},   {0x391, 0x3C9},
                                      {0x410, 0x44F},     {0x3041, 0x309C}, {0x4E00, 0x4FFF}, {0x660, 0x669},
                                      {0x1F600, 0x1F640}, {0x2000, 0x2030}};
        std::string text;
        for (std::size_t count = least + Below(most - least + 1); count > 0; --count) {
            const SRange& range = kRanges[Below(std::size(kRanges))];
            char bytes[4];
            const unsigned int codePoint =
                range.first + static_cast<unsigned int>(Below(range.last - range.first + 1));
            text.append(bytes, static_cast<std::size_t>(Uve::CodePoints::EncodeUtf8(codePoint, bytes)));
        }
        return text;
    }

    std::string ReservedWord()
    {
        const std::span<const std::string_view> words = m_Words[Below(2)];
        return words.empty() ? Text(kPlain, 1, 9) : OtherCase(std::string(words[Below(words.size())]));
    }

    std::string OtherCase(const std::string& name)
    {
        Uve::U8CString text = name;
        return Below(2) ? text.MakeLower() : text.MakeUpper();
    }

    std::string Earlier() { return m_Earlier[Below(m_Earlier.size())]; }

    static constexpr std::string_view kPlain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789__";
    static constexpr std::string_view kSpecial = "abcdeABCDE019__ -.,\"'`[]/\\#$@%*+=!?&<>()|~^:;{}";
    static constexpr std::string_view kMarks = " -.\"`[]#@*/'";

    std::mt19937_64 m_Random;
    std::span<const std::string_view> m_Words[2];
    std::vector<std::string> m_Earlier;
};
