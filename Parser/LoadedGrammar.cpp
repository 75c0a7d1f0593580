#include "Parser/LoadedGrammar.h"

#include "UVEnvironment/LogSystem.h"

#include <utility>

namespace {

// What yycreate answers when the stacks and buffers are there.
constexpr int kConnected = 1;

} // namespace

void CLoadedGrammar::Load(const char* parserName, bool isPatternVersion)
{
    CLogWrapper::WriteTraceF("\nUVParser%s : Creation...", parserName);
    auto scanner = std::make_unique<CSQLGrammarLexer>(parserName, isPatternVersion);
    auto parser = std::make_shared<CSQLGrammarParser>(parserName, isPatternVersion);
    // Only the coloring scanner's map is ever read.
    scanner->set_ColoringWanted(false);
    // The coloring scanner starts with the same flags as the new one, whatever was written to it for an
    // earlier grammar.
    CSQLGrammarLexerImplementation coloringExtension;
    CLogWrapper::WriteTraceF("OK");

    // The last step that can fail. From here on the object has the new grammar.
    m_ColoringScanner.ShareTables(*scanner);
    m_ColoringScanner.m_Extension = std::move(coloringExtension);
    m_IsPatternVersion = isPatternVersion;
    m_IsConnected = false;
    m_Expected.reset(); // borrows the earlier tables
    m_Scanner = std::move(scanner);
    m_Parser = std::move(parser);
}

CExpectedTokens& CLoadedGrammar::Expected()
{
    if (!m_Expected)
        m_Expected = std::make_unique<CExpectedTokens>(m_Parser->Tables(), m_Scanner->Tables(),
                                                       m_Scanner->Actions(), m_Parser->m_mapDefines);
    return *m_Expected;
}

void CLoadedGrammar::Connect()
{
    m_IsConnected = false;
    m_IsConnected = IsLoaded() && m_Parser->yycreate(m_Scanner.get()) == kConnected &&
                    m_Scanner->yycreate(m_Parser.get()) == kConnected &&
                    m_ColoringScanner.yycreate() == kConnected;
}

void CLoadedGrammar::ForgetTexts()
{
    if (!IsLoaded())
        return;
    WriteScanners([](CSQLGrammarLexer& scanner) { scanner.ForgetTexts(); });
    m_Parser->ForgetTexts();
}
