#include "Tools/uvparse/LanguageReading.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace uvparse {

namespace {

// A language that makes fewer tokens than another one by more than this factor passes over the text.
constexpr std::size_t kPassingFactor = 2;

std::size_t CountBefore(const std::vector<std::size_t>& offsets, std::size_t end)
{
    return static_cast<std::size_t>(std::ranges::lower_bound(offsets, end) - offsets.begin());
}

// A fault that stands at the end, or is open there, may be due to nothing but the end.
std::size_t OpenPlace(const std::vector<SFinding>& findings, std::string_view prepared)
{
    const std::size_t end = prepared.find_last_not_of(" \t\r\n") + 1;
    std::vector<std::size_t> faults; // that stand before the end
    for (const SFinding& finding : findings)
        if (finding.kind == enFinding::UnexpectedToken && finding.offset < end)
            faults.push_back(finding.offset);
    std::ranges::sort(faults);
    std::size_t open = prepared.size();
    for (const SFinding& finding : findings) {
        const bool isAtEnd = finding.offset + finding.length >= end;
        switch (finding.kind) {
        case enFinding::UnfinishedText:
            open = std::min(open, finding.offset);
            break;
        case enFinding::UnexpectedToken:
            if (finding.offset >= end)
                open = std::min(open, finding.offset);
            break;
        case enFinding::SkippedText:
            if (isAtEnd && (!finding.isReported ||
                            CountBefore(faults, finding.offset) == CountBefore(faults, prepared.size())))
                open = std::min(open, finding.offset);
            break;
        }
    }
    return open;
}

// Those that overlap become one.
void Join(std::vector<SStretch>& stretches)
{
    std::ranges::sort(stretches, {}, &SStretch::begin);
    std::vector<SStretch> joined;
    for (const SStretch& stretch : stretches) {
        if (joined.empty() || stretch.begin > joined.back().end)
            joined.push_back(stretch);
        else
            joined.back().end = std::max(joined.back().end, stretch.end);
    }
    stretches = std::move(joined);
}

// Offsets of a text of `from` bytes become those of one of `to` bytes.
void Scale(SLanguageReading& reading, std::size_t from, std::size_t to)
{
    const auto scale = [&](std::size_t& offset) {
        offset = from == 0 ? 0
                           : static_cast<std::size_t>(static_cast<double>(offset) * static_cast<double>(to) /
                                                      static_cast<double>(from));
    };
    for (std::vector<SStretch>* stretches : {&reading.lost, &reading.statements})
        for (SStretch& stretch : *stretches) {
            scale(stretch.begin);
            scale(stretch.end);
        }
    for (std::vector<std::size_t>* offsets : {&reading.unexpected, &reading.tokens})
        std::ranges::for_each(*offsets, scale);
    scale(reading.openAt);
    scale(reading.faultAt);
}

bool IsClean(const SLanguageReading& reading, const SStretch& statement)
{
    const auto lost = std::ranges::upper_bound(reading.lost, statement.begin, {}, &SStretch::end);
    return (lost == reading.lost.end() || lost->begin >= statement.end) &&
           CountBefore(reading.unexpected, statement.begin) == CountBefore(reading.unexpected, statement.end);
}

bool IsInStatement(const SLanguageReading& reading, std::size_t offset)
{
    const auto after = std::ranges::upper_bound(reading.statements, offset, {}, &SStretch::begin);
    return after != reading.statements.begin() && offset < std::prev(after)->end;
}

SReadingCounts CountsOf(const SLanguageReading& reading, std::size_t evidence)
{
    SReadingCounts counts;
    counts.tokens = CountBefore(reading.tokens, evidence);
    counts.unexpectedTokens = CountBefore(reading.unexpected, evidence);
    for (const SStretch& lost : reading.lost) {
        if (lost.begin >= evidence)
            break;
        counts.lostBytes += std::min(lost.end, evidence) - lost.begin;
        counts.statements += IsInStatement(reading, lost.begin) ? 0u : 1u;
    }
    for (const SStretch& statement : reading.statements) {
        if (statement.begin >= evidence)
            break;
        ++counts.statements;
        counts.cleanStatements += IsClean(reading, statement) ? 1u : 0u;
    }
    return counts;
}

auto RankOf(const SLanguageReading& reading, const SReadingCounts& counts)
{
    return std::tuple(reading.isRefused, counts.isPassing, counts.lostBytes, counts.unexpectedTokens);
}

std::string CountText(const SReadingCounts& counts, const SLanguageVerdict& verdict, bool isFull)
{
    const auto of = [](std::size_t some, std::size_t all) {
        return std::to_string(some) + " of " + std::to_string(all);
    };
    if (verdict.hasStatements && counts.statements > 0)
        return of(counts.cleanStatements, counts.statements) + (!isFull ? ""
                                                                : counts.statements == 1
                                                                    ? " statement is clean"
                                                                    : " statements are clean");
    return counts.lostBytes == 0 ? "nothing is lost"
                                 : of(counts.lostBytes, verdict.evidence) + " bytes are lost";
}

std::string ReadingText(const SLanguageReading& reading, const SLanguageVerdict& verdict, std::size_t index)
{
    const SReadingCounts& counts = verdict.counts[index];
    const bool isBest = index == verdict.best;
    std::string text = isBest ? "" : reading.language + ": ";
    if (counts.isPassing && counts.lostBytes + counts.unexpectedTokens == 0)
        text += std::to_string(counts.tokens) + " tokens instead of " +
                std::to_string(verdict.counts[verdict.best].tokens);
    else
        text += reading.isRefused ? "can't be read" : CountText(counts, verdict, isBest);
    if (!reading.fault.empty() && reading.faultAt < verdict.evidence)
        text += ", first at " + reading.fault;
    return text;
}

} // namespace

SLanguageReading ReadingOf(const std::string& language, const SParseResult& result, std::string_view prepared,
                           std::size_t size, bool isCut)
{
    SLanguageReading reading;
    reading.language = language;
    reading.openAt = isCut ? OpenPlace(result.findings, prepared) : prepared.size();
    reading.faultAt = prepared.size();
    std::size_t begin = prepared.size(); // of what is lost or unexpected
    for (const SFinding& finding : result.findings) {
        begin = std::min(begin, finding.offset);
        if (!finding.isReported)
            reading.faultAt = std::min(reading.faultAt, finding.offset);
        if (finding.kind == enFinding::UnexpectedToken)
            reading.unexpected.push_back(finding.offset);
        else
            reading.lost.push_back({finding.offset, finding.kind == enFinding::UnfinishedText
                                                        ? prepared.size()
                                                        : finding.offset + finding.length});
    }
    std::ranges::sort(reading.unexpected);
    Join(reading.lost);

    reading.hasTree = result.isParsed;
    // A parser that gives up where the piece ends has read it.
    const bool isOpenAlone = isCut && !result.findings.empty() && reading.openAt <= begin;
    reading.isRefused = !result.isParsed && !isOpenAlone;
    if (reading.isRefused && reading.lost.empty())
        reading.lost.push_back({result.findings.empty() ? 0 : begin, prepared.size()});
    if (result.isParsed) {
        STreeOutline outline = OutlineOf(result.output, prepared);
        reading.tokens = std::move(outline.tokens);
        reading.statements = std::move(outline.statements);
    }
    if (!result.pass.empty())
        Scale(reading, prepared.size(), size);
    return reading;
}

SLanguageVerdict JudgeReadings(const std::vector<SLanguageReading>& readings)
{
    SLanguageVerdict verdict;
    verdict.evidence = std::ranges::min(readings, {}, &SLanguageReading::openAt).openAt;
    std::size_t tokens = 0;
    for (const SLanguageReading& reading : readings) {
        verdict.counts.push_back(CountsOf(reading, verdict.evidence));
        tokens = std::max(tokens, verdict.counts.back().tokens);
    }
    for (std::size_t i = 0; i < readings.size(); ++i)
        verdict.counts[i].isPassing =
            readings[i].hasTree && verdict.counts[i].tokens * kPassingFactor < tokens;
    const auto rank = [&](std::size_t index) { return RankOf(readings[index], verdict.counts[index]); };
    for (std::size_t i = 1; i < readings.size(); ++i)
        if (rank(i) < rank(verdict.best))
            verdict.best = i;
    for (std::size_t i = 0; i < readings.size(); ++i)
        if (i != verdict.best && rank(i) == rank(verdict.best))
            verdict.alike.push_back(i);
    const SReadingCounts& best = verdict.counts[verdict.best];
    verdict.hasStatements = std::ranges::any_of(
        readings, [](const SLanguageReading& reading) { return !reading.statements.empty(); });
    verdict.isBad = readings[verdict.best].isRefused || best.lostBytes > verdict.evidence / 2 ||
                    (verdict.hasStatements && best.cleanStatements < best.statements - best.cleanStatements);
    return verdict;
}

std::string VerdictText(const std::vector<SLanguageReading>& readings, const SLanguageVerdict& verdict,
                        std::size_t looked)
{
    const auto isAlike = [&](std::size_t index) { return std::ranges::count(verdict.alike, index) > 0; };
    std::string text = "taken for " + readings[verdict.best].language;
    if (looked > 0)
        text += " by its first " + std::to_string(looked) + " bytes";
    for (const std::size_t index : verdict.alike)
        text += (index == verdict.alike.front() ? ", though " : " and ") + readings[index].language;
    if (!verdict.alike.empty())
        text += std::string(verdict.alike.size() > 1 ? " read" : " reads") + " it alike";
    if (verdict.isBad)
        text += verdict.alike.empty() ? ", which reads it badly" : ", badly";
    text += ": " + ReadingText(readings[verdict.best], verdict, verdict.best);
    for (std::size_t i = 0; i < readings.size(); ++i)
        if (i != verdict.best && !isAlike(i))
            text += "; " + ReadingText(readings[i], verdict, i);
    return text;
}

} // namespace uvparse
