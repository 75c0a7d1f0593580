#include "Preparation/Formatters/BlankRuns.h"
#include "Preparation/Formatters/Cobol.h"
#include "Preparation/Formatters/FoxPro.h"
#include "Preparation/Formatters/IbmCl.h"
#include "Preparation/Formatters/Jcl.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>

// Any bytes through the passes for COBOL, JCL, CL and FoxPro. The first byte chooses the pass and its
// options. Besides coming to an end, a pass keeps account of its lines and makes no more text than it can
// answer for.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckLines(const std::string& source, const SPreparedText& prepared)
{
    const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(prepared.text, '\n'));
    const bool isOpen = !prepared.text.empty() && prepared.text.back() != '\n';
    const auto& lines = prepared.sourceLines;
    Require(lines.size() == lineFeeds + (isOpen ? 1 : 0));
    Require(std::ranges::adjacent_find(lines, std::ranges::greater_equal()) == lines.end());
    Require(lines.empty() || lines.front() >= 1);
    Require(lines.empty() || lines.back() <= 1 + static_cast<std::size_t>(std::ranges::count(source, '\n')));
}

std::size_t CountOf(const std::string& text, char character)
{
    return static_cast<std::size_t>(std::ranges::count(text, character));
}

void DriveCobol(const std::string& source, unsigned choice)
{
    SCobolOptions options;
    options.format = choice & 1 ? enCobolFormat::Fixed : enCobolFormat::Free;
    options.savesDebugInfo = choice & 2;
    options.removesFormatting = choice & 4;
    options.tabWidth = choice & 8 ? 8 : 0;
    const SPreparedText prepared = FormatCobol(source, options);
    CheckLines(source, prepared);
    const std::size_t tabs = CountOf(source, '\t') * static_cast<std::size_t>(options.tabWidth);
    Require(prepared.text.size() <= 73 * (source.size() + 1) + tabs);
    Require(CountOf(prepared.text, '\t') == 0);
    Require(CountOf(prepared.text, '"') <= CountOf(source, '"'));

    options.isFaithful = true;
    const SPreparedText faithful = FormatCobol(source, options);
    CheckLines(source, faithful);
    Require(CountOf(faithful.text, '\t') == 0);
    Require(CountOf(faithful.text, '"') <= CountOf(source, '"'));
}

void DriveJcl(const std::string& source)
{
    const SPreparedText prepared = FormatJcl(source);
    CheckLines(source, prepared);
    Require(prepared.text.size() <= source.size());
    Require(FormatJcl(prepared.text).text.size() <= prepared.text.size());
    const SPreparedText faithful = FormatJcl(source, {.isFaithful = true});
    CheckLines(source, faithful);
    Require(CountOf(faithful.text, '\n') == CountOf(source, '\n'));
}

void DriveIbmCl(const std::string& source)
{
    for (const bool isFaithful : {false, true}) {
        const SPreparedText prepared = FormatIbmCl(source, {isFaithful});
        CheckLines(source, prepared);
        Require(prepared.text.size() <= source.size());
    }
}

void DriveFoxPro(const std::string& source)
{
    const SPreparedText prepared = FormatFoxPro(source);
    CheckLines(source, prepared);
    Require(prepared.text.size() <= source.size());
    Require(CountOf(prepared.text, 'a') == CountOf(source, 'a') || source.find("&&") != source.npos);
    if (CountOf(source, ';') == 0)
        Require(CountOf(prepared.text, '`') == CountOf(source, '`'));
    const SPreparedText faithful = FormatFoxPro(source, {.isFaithful = true});
    CheckLines(source, faithful);
    Require(CountOf(faithful.text, 'a') == CountOf(source, 'a'));
}

void DriveBlankRuns(const std::string& line)
{
    const std::string collapsed = RemoveDuplicatedDelimiters(line);
    Require(collapsed.size() <= line.size());
    Require(RemoveDuplicatedDelimiters(collapsed) == collapsed);
    for (const char quote : {'\'', '"'})
        Require(CountOf(collapsed, quote) == CountOf(line, quote));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const unsigned choice = data[0];
    const std::string source(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (choice & 7) {
    case 0:
        DriveJcl(source);
        break;
    case 1:
        DriveIbmCl(source);
        break;
    case 2:
        DriveFoxPro(source);
        break;
    case 3:
        DriveBlankRuns(source);
        break;
    default:
        DriveCobol(source, choice >> 3);
    }
    return 0;
}
