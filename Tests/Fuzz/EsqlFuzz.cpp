#include "Preparation/ESQLPreprocessor.h"
#include "Preparation/ESQLSource.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Any bytes through the rewrite of embedded SQL. Besides coming to an end, it keeps account of its lines, and
// what it adds and takes away is what it is there for.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

std::size_t CountOf(const std::string& text, char character)
{
    return static_cast<std::size_t>(std::ranges::count(text, character));
}

void RequireRewritten(const std::string& source, const SPreparedText& prepared)
{
    const std::string& text = prepared.text;
    const auto& lines = prepared.sourceLines;

    const std::size_t dollars = CountOf(source, '$');
    if (dollars == 0)
        Require(text == source);
    Require(CountOf(text, '$') <= dollars);
    Require(CountOf(text, '{') == CountOf(source, '{'));
    Require(CountOf(text, '"') == CountOf(source, '"'));
    Require(text.size() + dollars >= source.size());
    Require(text.size() <= source.size() + dollars * 64);

    const bool isOpen = !text.empty() && text.back() != '\n';
    Require(lines.size() == CountOf(text, '\n') + (isOpen ? 1 : 0));
    Require(std::ranges::is_sorted(lines));
    Require(lines.empty() || lines.front() == 1);
    Require(lines.empty() || lines.back() <= 1 + CountOf(source, '\n'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string source(reinterpret_cast<const char*>(data), size);
    RequireRewritten(source, RewriteEmbeddedSqlFaithfully(source));
    for (const SPreparationNote& note : FindEmbeddedSqlNotes(source))
        Require(note.line <= 1 + CountOf(source, '\n'));
    const SPreparedText prepared = RewriteEmbeddedSql(source);
    RequireRewritten(source, prepared);

    const bool hasDollar = source.find('$') != source.npos;
    ESQLPreprocessor rewrite;
    std::string output;
    Require(rewrite.CheckESQL(source, output) == hasDollar);
    Require(!hasDollar || output == prepared.text);
    for (std::size_t at = output.find('$'); at != output.npos; at = output.find('$', at + 1))
        rewrite.CheckComment(static_cast<std::int64_t>(at));
    rewrite.WrapVarDeclaration(source);
    return 0;
}
