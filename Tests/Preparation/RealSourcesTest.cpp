// Real sources, of a folder that UV_CORPUS names: whatever a pass makes of one, every line says where it comes
// from. Without the variable nothing is tested here.
#include "Preparation/ESQLPreprocessor.h"
#include "Preparation/Formatters/Asp.h"
#include "Preparation/Formatters/Cobol.h"
#include "Preparation/Formatters/FoxPro.h"
#include "Preparation/Formatters/IbmCl.h"
#include "Preparation/Formatters/Jcl.h"
#include "Preparation/Formatters/Pascal.h"
#include "Preparation/Formatters/Progress.h"
#include "Tests/Preparation/FormatterFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct SPass
{
    const char* folder;
    SPreparedText (*prepare)(const SCorpusFile& file);
};

// clang-format off
constexpr SPass kPasses[] = {
    {"asp",          [](const SCorpusFile& file) { return FormatAsp(file.text, {file.path}).prepared; }},
    {"cl",           [](const SCorpusFile& file) { return FormatIbmCl(file.text); }},
    {"cobol-fixed",  [](const SCorpusFile& file) { return FormatCobol(file.text, {.format = enCobolFormat::Fixed}); }},
    {"cobol-fixed",  [](const SCorpusFile& file) { return FormatCobol(file.text, {.format = enCobolFormat::Free}); }},
    {"delphi",       [](const SCorpusFile& file) { return FormatPascal(file.text); }},
    {"delphi",       [](const SCorpusFile& file) { return FormatPascal(file.text, {.isFaithful = true}); }},
    {"esqlc",        [](const SCorpusFile& file) { return RewriteEmbeddedSql(file.text); }},
    {"foxpro",       [](const SCorpusFile& file) { return FormatFoxPro(file.text); }},
    {"jcl",          [](const SCorpusFile& file) { return FormatJcl(file.text); }},
    {"progress-4gl", [](const SCorpusFile& file) { return FormatProgress(file.text, {file.path}); }},
    {"progress-4gl", [](const SCorpusFile& file) { return FormatProgressFaithfully(file.text, {file.path}); }},
};
// clang-format on

TEST(RealSources, LinesTellWhereTheyComeFrom)
{
    for (const SPass& pass : kPasses)
        for (const SCorpusFile& file : CorpusFiles(pass.folder)) {
            SCOPED_TRACE(file.path);
            const SPreparedText prepared = pass.prepare(file);
            EXPECT_EQ(prepared.sourceLines.size(), LinesOf(prepared.text).size());
            const auto last = 1 + std::ranges::count(file.text, '\n');
            EXPECT_TRUE(std::ranges::all_of(prepared.sourceLines,
                                            [&](std::uint32_t line) { return line >= 1 && line <= last; }));
        }
}

} // namespace
