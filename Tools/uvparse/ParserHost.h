// The library through its plug-in entry: one parser object for one language, driven in the order that hosts
// follow.
#pragma once

#include "Interfaces/ILog.h"
#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/PreparedLines.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

class IUVDBDatabaseInfo2;
class IUVDBObjectInfo;
class IUVDBSQLParser;

namespace uvparse {

enum class enMode
{
    Tree,    // flattened
    RawTree, // of the text as it stands, not prepared, not flattened
    Coloring,
    Preparation // the prepared text; needs no tables
};

using TOptions = std::vector<std::pair<std::string, std::string>>;

struct SHostSettings
{
    enMode mode = enMode::Tree;
    TOptions options;          // of the database info
    TOptions objectOptions;    // of the object being converted
    std::shared_ptr<ILog> log; // may be empty
};

// What the preparation has to say of a source.
struct SPreparationNote
{
    bool isError = false;
    std::size_t line = 0; // from 1; 0: none
    std::string file;     // empty: the text itself
    std::string text;
};

struct SParseResult
{
    bool isParsed = false; // false: the parse failed, `failure` tells why
    std::string output;    // tree, coloring map or prepared text; empty for an empty text
    std::vector<SFinding> findings;
    std::string pass;             // what prepared the text; empty: nothing did
    CPreparedLines preparedLines; // of the text that the pass made
    std::vector<SPreparationNote> notes;
    std::string coverage; // the option COVERAGE, if it was asked for
    bool isEmpty = false; // nothing was left of the text to be parsed
    std::string failure;
    bool isRefusedForTokens = false; // the failure tells of nothing but the unexpected tokens
    double seconds = 0;              // what making the output took
};

// The text as it has to be handed over. The preparation of IBM CL takes the last character, whatever it is: a line
// feed is added for it.
std::string TextForParser(const SLanguage& language, std::string text);

class CParserHost
{
public:
    // Creates the parser object and loads its tables, unless they aren't needed.
    // Throws: std::runtime_error.
    CParserHost(const SLanguage& language, const SHostSettings& settings);
    ~CParserHost();

    CParserHost(const CParserHost&) = delete;
    CParserHost& operator=(const CParserHost&) = delete;

    // Each text gets what it would get from a host of its own. `path` becomes the option FilePath of the
    // object being converted.
    // Throws: std::bad_alloc if memory is short; the host is of no use then.
    SParseResult Parse(const std::string& text, const std::string& path);

    // Parses the text of the last Parse once more, as that one has prepared it, and gives its raw tree.
    SParseResult ParseRaw();

    // What loading took; nothing when asked again, for a text that found the tables loaded.
    double TakeLoadSeconds() { return std::exchange(m_LoadSeconds, 0); }

private:
    void Load();
    SParseResult RunParse();
    void ReadFindings(SParseResult& result) const;
    void ReadPreparation(SParseResult& result) const;
    void ReadFailure(SParseResult& result) const;

    std::string m_ParserName;
    SHostSettings m_Settings;
    std::shared_ptr<IUVDBDatabaseInfo2> m_DatabaseInfo;
    std::shared_ptr<IUVDBObjectInfo> m_ConvertingObject;
    std::shared_ptr<IUVDBSQLParser> m_Parser;
    double m_LoadSeconds = 0;
};

} // namespace uvparse
