#include "Tools/uvparse/ContentChoice.h"

#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/LanguageReading.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/SourceText.h"

#include <algorithm>
#include <utility>

namespace uvparse {

namespace {

constexpr std::size_t kFirstLook = std::size_t{64} << 10;
constexpr std::size_t kSecondLook = std::size_t{256} << 10;

bool IsContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// "line:column: what it is", of the finding that stands first.
std::string FirstFault(const SPreparation& preparation, std::vector<SFinding> findings)
{
    std::erase_if(findings, &SFinding::isReported);
    if (findings.empty())
        return {};
    const std::size_t offset = std::ranges::min(findings, {}, &SFinding::offset).offset;
    std::erase_if(findings, [&](const SFinding& finding) { return finding.offset != offset; });
    for (SFinding& finding : findings)
        finding.expected.clear();
    const std::vector<SMessage> messages = MessagesOf({}, preparation, std::move(findings));
    if (messages.empty())
        return {};
    const SMessageRange& range = messages.front().range;
    return std::to_string(range.line) + (range.column > 0 ? ':' + std::to_string(range.column) : "") + ": " +
           messages.front().text;
}

} // namespace

std::string_view BeginningOf(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit)
        return text;
    std::size_t end = text.substr(0, limit).rfind('\n') + 1; // 0 if there is none
    if (end == 0)
        for (end = limit; end > 0 && IsContinuation(text[end]);)
            --end;
    return text.substr(0, end);
}

// Of all candidates at one piece of the text.
struct CContentChoice::SLook
{
    std::vector<SParseResult> results;
    std::vector<SLanguageReading> readings;
    SLanguageVerdict verdict;
};

CContentChoice::SLook CContentChoice::LookAt(const std::vector<SLanguage>& candidates, std::string_view text,
                                             const std::string& path, bool isCut) const
{
    SLook look;
    for (const SLanguage& language : candidates) {
        const std::string own = TextForParser(language, std::string(text));
        SParseResult result = m_Hosts(language, enMode::Tree).Parse(own, path);
        const std::string prepared = result.pass.empty()
                                         ? PreparedText(own)
                                         : m_Hosts(language, enMode::Preparation).Parse(own, path).output;
        SLanguageReading reading = ReadingOf(language.parserName, result, prepared, text.size(), isCut);
        reading.fault = FirstFault({result.pass.empty() ? std::string_view(prepared) : own, prepared,
                                    result.preparedLines, result.pass},
                                   result.findings);
        look.readings.push_back(std::move(reading));
        // Trees of pieces are of no further use.
        if (isCut)
            result.output = {};
        look.results.push_back(std::move(result));
    }
    look.verdict = JudgeReadings(look.readings);
    return look;
}

SContentChoice CContentChoice::Choose(const std::vector<SLanguage>& candidates, std::string_view text,
                                      const std::string& path) const
{
    for (std::size_t limit = kFirstLook;;) {
        const std::string_view beginning = BeginningOf(text, limit);
        const bool isCut = beginning.size() < text.size();
        SLook look = LookAt(candidates, beginning, path, isCut);
        const SLanguageVerdict& verdict = look.verdict;
        const bool isLast = !isCut || verdict.alike.empty() ||
                            (limit == kSecondLook && verdict.evidence >= beginning.size() / 2);
        if (!isLast) {
            limit = limit == kFirstLook ? kSecondLook : text.size();
            continue;
        }
        SContentChoice choice;
        choice.index = verdict.best;
        choice.reason = VerdictText(look.readings, verdict, isCut ? beginning.size() : 0);
        if (!isCut)
            choice.result = std::move(look.results[verdict.best]);
        return choice;
    }
}

} // namespace uvparse
