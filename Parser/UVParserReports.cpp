#include "Parser/UVParserReports.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <utility>

namespace {

struct STextPlace
{
    std::size_t line = 1;
    std::size_t column = 1;
};

// Walks forward over a text and tells places in it. Texts may be one line of many megabytes, so no byte is
// looked at twice: the offsets that it is asked for ascend.
class CPlaceFinder
{
public:
    explicit CPlaceFinder(std::string_view text) : m_Text(text) {}

    STextPlace MoveTo(std::size_t offset)
    {
        for (; m_Offset < std::min(offset, m_Text.size()); ++m_Offset) {
            const auto byte = static_cast<unsigned char>(m_Text[m_Offset]);
            if (byte == '\n')
                m_Place = {m_Place.line + 1, 1};
            else if ((byte & 0xC0) != 0x80) // a continuation byte belongs to the character before it
                ++m_Place.column;
        }
        return m_Place;
    }

private:
    std::string_view m_Text;
    std::size_t m_Offset = 0;
    STextPlace m_Place;
};

std::vector<STextPlace> FindPlaces(std::string_view query, const std::vector<SUnexpectedToken>& tokens)
{
    std::vector<std::size_t> byOffset(tokens.size());
    std::iota(byOffset.begin(), byOffset.end(), std::size_t{0});
    std::ranges::stable_sort(byOffset, {}, [&](std::size_t index) { return tokens[index].offset; });

    std::vector<STextPlace> places(tokens.size());
    CPlaceFinder finder(query);
    for (const std::size_t index : byOffset)
        places[index] = finder.MoveTo(tokens[index].offset);
    return places;
}

// A field of a list: what would end it is shown as a blank.
void AppendField(std::string& list, const std::string& text)
{
    const std::size_t start = list.size();
    list += text;
    std::replace_if(
        list.begin() + static_cast<std::ptrdiff_t>(start), list.end(),
        [](char byte) { return byte == '\t' || byte == '\n' || byte == '\r'; }, ' ');
}

} // namespace

Uve::U8CString FormatUnexpectedTokens(std::string_view query, const std::vector<SUnexpectedToken>& tokens,
                                      enTokenReport report)
{
    const std::vector<STextPlace> places = FindPlaces(query, tokens);
    std::string list;
    for (std::size_t index = 0; index < tokens.size(); ++index) {
        const SUnexpectedToken& token = tokens[index];
        for (const std::size_t number :
             {places[index].line, places[index].column, token.offset, token.length}) {
            list += std::to_string(number);
            list += '\t';
        }
        AppendField(list, token.text);
        if (report != enTokenReport::Places) {
            list += '\t';
            list += std::to_string(token.state);
            if (report == enTokenReport::Terminals) {
                list += '\t';
                AppendField(list, token.terminal);
            }
            for (const std::string& expected : token.expected) {
                list += '\t';
                AppendField(list, expected);
            }
        }
        list += '\n';
    }
    return Uve::U8CString(std::move(list));
}

Uve::U8CString FormatLostText(std::string_view query, const std::vector<SDiscardedText>& discarded,
                              const std::optional<SUnfinishedText>& unfinished)
{
    std::string list;
    const auto append = [&](const char* what, STextPlace place, std::size_t begin, std::size_t end,
                            bool isReported, const std::string& condition) {
        list += what;
        for (const std::size_t number : {place.line, place.column, begin, end - begin}) {
            list += '\t';
            list += std::to_string(number);
        }
        list += isReported ? "\t1\t" : "\t0\t";
        AppendField(list, condition);
        list += '\n';
    };
    CPlaceFinder stretches(query);
    for (const SDiscardedText& stretch : discarded)
        append("skipped", stretches.MoveTo(stretch.begin), stretch.begin, stretch.end, stretch.isReported,
               "");
    if (unfinished) {
        const std::size_t begin = std::min(unfinished->offset, query.size());
        append("unfinished", CPlaceFinder(query).MoveTo(begin), begin, query.size(), false,
               unfinished->condition);
    }
    return Uve::U8CString(std::move(list));
}

Uve::U8CString FormatPreparationNotes(const std::vector<SPreparationNote>& notes)
{
    std::string list;
    for (const SPreparationNote& note : notes) {
        list += note.isError ? "error\t" : "warning\t";
        list += std::to_string(note.line) + '\t';
        AppendField(list, note.file);
        list += '\t';
        AppendField(list, note.text);
        list += '\n';
    }
    return Uve::U8CString(std::move(list));
}

Uve::U8CString FormatCoverage(const SUsedRules& rules)
{
    std::string list;
    for (const auto& [part, numbers] : {std::pair("scanner", &rules.scanner), {"parser", &rules.parser}}) {
        list += part;
        for (const int number : *numbers) {
            list += '\t';
            list += std::to_string(number);
        }
        list += '\n';
    }
    return Uve::U8CString(std::move(list));
}
