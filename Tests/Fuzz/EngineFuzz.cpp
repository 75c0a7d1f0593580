// Any text through the engine, under one of the fixture grammars, which the first byte chooses; the second
// sets the switches. The engine must come to an end inside of its memory, keep the text where the grammar
// does, and say the same with its tables compressed.
#include "Tests/Support/EngineFixture.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

// The first grammars keep the text as it is.
constexpr std::array kGrammars = {"Nesting",    "Order",    "Trailing", "States", "Less",     "Recovery",
                                  "Pending",    "Heredoc",  "Saved",    "Switch", "Patterns", "Stuck",
                                  "Directives", "Coloring", "Tiny",     "Indent", "CopyToken"};
constexpr std::size_t kKeepsText = 15;

struct SPair
{
    explicit SPair(const char* grammar) : engine(grammar), compressed(grammar)
    {
        compressed.UseCompressedTables();
    }
    CEngine engine, compressed;
};

SPair& EnginesFor(std::size_t grammar)
{
    static std::array<std::unique_ptr<SPair>, kGrammars.size()> pairs;
    if (!pairs[grammar])
        pairs[grammar] = std::make_unique<SPair>(kGrammars[grammar]);
    return *pairs[grammar];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::size_t grammar = data[0] % kGrammars.size();
    SEngineSettings settings;
    settings.isDevelopmentMode = (data[1] & 1) != 0;
    settings.isMssqlQid = (data[1] & 2) != 0;
    settings.isCppDirectiveParse = (data[1] & 4) != 0;
    settings.ignoresDefines = (data[1] & 8) != 0;
    settings.db = (data[1] & 16) != 0 ? 60 : 0;
    settings.uiType = (data[1] & 32) != 0 ? "FORMS" : "";
    if ((data[1] & 64) != 0)
        settings.options["PERCENT_AS_COMMENT"] = "1";
    std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    std::replace(text.begin(), text.end(), '\0', ' '); // which would end the text

    SPair& pair = EnginesFor(grammar);
    // nothing of the input before, or a finding couldn't be told by its own input
    pair.engine.m_Lexer.m_Extension = {};
    pair.compressed.m_Lexer.m_Extension = {};
    const SParseOutcome outcome = pair.engine.Parse(text, settings);
    if (outcome != pair.compressed.Parse(text, settings) || pair.engine.m_Parser.Fragments().Count() != 0)
        std::abort();
    if (grammar < kKeepsText && FitsIntoXml(text) && !outcome.tree.empty() &&
        TextOfTree(outcome.tree) != text)
        std::abort();
    return 0;
}
