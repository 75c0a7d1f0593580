// What a parse of one file came to.
#pragma once

#include "Tools/uvgrammar-score/Statements.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/ParserHost.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

// Why a statement isn't clean. Without a state it isn't an unexpected token: `token` tells what it is then.
struct SFailure
{
    int state = -1;
    std::string token; // its name in the grammar; empty at the end of the text
    std::vector<std::string> expected;

    bool operator==(const SFailure& other) const { return state == other.state && token == other.token; }
};

struct SScoredStatement
{
    std::size_t begin = 0; // bytes of the prepared text
    std::size_t size = 0;
    std::size_t line = 0; // of the source
    std::uint64_t hash = 0;
    bool isRead = false;
    std::vector<SFailure> failures = {}; // none: it is clean
    std::string text = {};               // of one that isn't clean

    bool IsClean() const { return isRead && failures.empty(); }
};

enum class enFileState
{
    Parsed,
    NotParsed, // the library gave up
    NoText,    // it can't be read
    Crashed
};

struct SScoredFile
{
    std::string path;
    enFileState state = enFileState::Parsed;
    std::string problem = {}; // why it isn't parsed
    std::size_t bytes = 0;
    double seconds = 0;     // what the parse took
    std::uint64_t hash = 0; // of the prepared text
    std::size_t unexpectedTokens = 0;
    std::size_t lost = 0;      // stretches of text
    std::string coverage = {}; // as the library tells it
    std::vector<SScoredStatement> statements = {};
};

// The same for the same text, whatever the machine.
std::uint64_t HashOf(std::string_view text);

// A text as the parser gets it, and what the parser made of it.
struct SParsedText
{
    std::string source;
    std::string prepared;
    uvparse::SParseResult result;
};

// Parses texts of one language. An object serves one process: it loads the library.
class CTextParser
{
public:
    // `options`: of the database info.
    CTextParser(uvparse::SLanguage language, uvparse::TOptions options)
        : m_Language(std::move(language)), m_Options(std::move(options))
    {}

    // Throws: CToolFailure if the file can't be read, CCannotWork if the language can't be loaded.
    SParsedText ParseFile(const std::string& path);
    // `path` is told to the preparation.
    SParsedText ParseText(std::string text, const std::string& path);
    // As it would be parsed if it stood in the file.
    SParsedText ParseSource(std::string text, const std::string& path);
    // Its raw tree, without a preparation.
    uvparse::SParseResult ParseRaw(const std::string& text, const std::string& path);

private:
    uvparse::CParserHost& Host(uvparse::enMode mode, std::unique_ptr<uvparse::CParserHost>& host) const;

    uvparse::SLanguage m_Language;
    uvparse::TOptions m_Options;
    std::unique_ptr<uvparse::CParserHost> m_Host;
    std::unique_ptr<uvparse::CParserHost> m_Preparation;
    std::unique_ptr<uvparse::CParserHost> m_RawHost;
};

// Why the finding keeps a statement from being clean.
SFailure FailureOf(const uvparse::SFinding& finding);

SScoredFile ScoreFile(CTextParser& parser, const std::string& path);
// One that crashed its parser: it is one statement that fails.
SScoredFile CrashedFile(const std::string& path, const std::string& problem);

// As a text that another process sends, and back again. The path isn't in it.
std::string WriteScoredFile(const SScoredFile& file);
SScoredFile ReadScoredFile(const std::string& path, const std::string& text);

} // namespace uvscore
