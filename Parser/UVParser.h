// The parser object of the plug-in entry: it owns the scanner and the parser of one grammar, takes
// options and a text from its host, and makes the result. What a host may call, and when, is told at the
// interface.
//
// Its parts, each in a source of its own:
//     UVParserObject        the object, what it owns
//     UVParserDatabaseInfo  the options
//     UVParserPipeline      the way from a text to its result
//     UVParserFlatten       the flattening of the tree
//     UVParserErrors        errors and statistics
#pragma once

#include "Grammar/UVGrammarLexer.h"
#include "Grammar/UVGrammarParser.h"
#include "Interfaces/DB_VERSION_INFO.h"
#include "Interfaces/IUVDBSQLParser.h"
#include "Parser/ParseResult.h"
#include "Parser/UVParserGuard.h"
#include "Preparation/PreparedText.h"
#include "Preparation/Preprocessor.h"
#include "Stylesheets/Resources.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

struct SFormattedText;
struct SParseOptions;

class CUVDBSQLParser : public IUVDBSQLParser
{
public:
    // An object that isn't ready (Load missing, or Init after the last Load) answers UVDB_ERROR where it
    // would need a grammar. Only Load, FastParse and SetLastError let exceptions pass.

    // Returns: UVDB_INVALID_ARGUMENT for a null name. A grammar that can't be loaded leaves the earlier one
    //          in place.
    int Load(const char* parserName) override;
    int Init(const char* mode) override;
    int set_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info) override;
    int get_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2>& out) override;
    int set_Log(std::shared_ptr<ILog> log) override;
    int set_Query(const char* text) override;

    // Options on the database info that a host may set:
    //     REPORT_UNEXPECTED_TOKENS "1"  a parse that got as far as the database info leaves the list of
    //                                   FormatUnexpectedTokens there, in the text option UNEXPECTED_TOKENS
    //     REPORT_LOST_TEXT "1"          likewise FormatLostText in the text option LOST_TEXT; FastParse
    //                                   leaves both of these too
    //     REPORT_PREPARED_LINES "1"     likewise FormatPreparedLines in the text option PREPARED_LINES, and
    //                                   the name of the preparation pass in PREPARED_BY, empty if there was
    //                                   none
    //     REPORT_PREPARATION_NOTES "1"  likewise FormatPreparationNotes in the text option PREPARATION_NOTES
    //     RESTART_POSITIONS "1"         nothing of the texts before shows in this one: it is parsed as by an
    //                                   object that Load, set_DatabaseInfo and Init have just made ready;
    //                                   holds for FastParse too
    //     PREPARE_ONLY "1"              the result is the prepared text; Load isn't needed then
    //     HAND_OVER_RESULT "1"          get_SQLTree gives a tree away instead of copying it, and the object
    //                                   has none until the next Parse
    int Parse(bool showErrors) override;

    // Adds to the map of unexpected tokens of the last Parse. Empty if the parse failed, or the object isn't
    // ready.
    std::string FastParse() override;

    int get_SQLTree(Uve::U8CString& out) override;
    int get_ColoringMap(Uve::U8CString& out) override;
    int set_ConvertingObject(std::shared_ptr<IUVDBObjectInfo> object) override;
    int get_ConvertingObject(std::shared_ptr<IUVDBObjectInfo>& out) override;
    std::shared_ptr<std::map<std::string, std::string>> GetUndefinesTokens() override;
    int get_LastError(std::shared_ptr<IUVDBErrorInfo>& out) override;
    int set_ParserDevelopmentMode(bool isOn) override;
    std::string GetParsedXml() override;

    int ExecuteTree2Serial() override;
    // With the option TREE2SERIAL_STYLESHEET "1" on `info` the stylesheet does the work by itself, for
    // authors who want to see it at that; the bytes are the same, time and memory are not.
    int Tree2Serial(std::shared_ptr<IUVDBDatabaseInfo2> info, Uve::U8CString& xml) override;

    // Keeps the outcome of the second parse if it met no unexpected token, and the flipped rule with it.
    // Otherwise everything is put back but the error, which is the second parse's message.
    void TryParseWithOtherOpts(bool showErrors) override;
    bool IsParseHasErrors() override;
    void SetLastError() override;

    // Leave the command line as it is.
    void CreateUVParserCmdParameterList(std::string& commandLine, bool showErrors,
                                        unsigned long querySize) override;
    void CreateUVTranslatorCmdParameterList(std::string& commandLine, int querySize) override;

protected:
    // ---- Options ----

    int TakeDatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info);
    void ReadParsingOptions();
    // Returns: false for the kinds that leave no choice about quotes.
    bool SelectQuoteRule(const DB_VERSION_INFO& version);
    void TakeLanguage(const DB_VERSION_INFO& version);
    void ReadPascalDefines();
    void FillLexerOptions();
    // Runs `write` on the scanner and on the coloring scanner: their fields follow the same options.
    template <class Write>
    void WriteLexers(Write&& write)
    {
        write(*m_Lexer);
        write(m_ColoringLexer);
    }
    DB_VERSION_INFO GetVersion() const;

    // ---- The way of a text ----

    // Reads `options` as soon as there is an info to read them from.
    int ParseQuery(bool showErrors, SParseOptions& options);
    SParseOptions ReadOptions() const;
    int ExecuteParsing(const SParseOptions& options);
    // Returns: UVDB_OK if there is a text to parse; UVDB_NO_DATA if not; UVDB_ERROR if a formatter failed.
    int PrepareToParse(const SParseOptions& options);
    void TakeFormatted(SFormattedText formatted, const SParseOptions& options);
    // Returns: 0; the parser's own code if the grammar refuses the text; UVDB_ERROR for an exception.
    int ExecuteParsingInternal(const SParseOptions& options);
    int ExecuteParsingColoring(const SParseOptions& options);
    void TryOtherQuoteRule(const SParseOptions& options);
    int FlattenResult();
    void DefineStylesheets();
    // Whether the flattener does the work of the stylesheet.
    bool IsFlattenedNatively(const std::shared_ptr<IUVDBDatabaseInfo2>& info) const;
    // `declaration` saves the result a shift by the difference of the declarations; the stylesheet knows its
    // own one alone.
    int Flatten(const std::shared_ptr<IUVDBDatabaseInfo2>& info, Uve::U8CString& xml,
                std::string_view declaration);
    void replaceXmlHeader();
    // The text itself as the result, for sources that no grammar reads.
    int ExecuteEmbeddedParsing();
    static bool IsPropertiesFile(const SParseOptions& options);
    void GiveQueryToParser(const SParseOptions& options);
    // Follows RESTART_POSITIONS.
    void ForgetTexts(const SParseOptions& options);
    int ReportErrors(const SParseOptions& options);

    // ---- Errors ----

    void SetLastError(long code, const char* description, const char* nativeInfo,
                      std::multimap<unsigned long, std::string>* tokens);
    // The number that the parser's message begins with: -1 without one, 0 if it doesn't begin with a number.
    static int ExtractLineNumber(const std::string& errorMessage);
    // `place` stays as it is if there is no such line.
    static void GetErrorPlace(unsigned long lineNumber, const std::string& text, std::string& place);

    std::shared_ptr<CSQLGrammarLexer> m_Lexer;
    std::shared_ptr<CSQLGrammarParser> m_Parser;
    CSQLGrammarLexer m_ColoringLexer; // of the same grammar, without a parser
    std::shared_ptr<IUVDBDatabaseInfo2> m_DatabaseInfo;
    std::shared_ptr<IUVDBObjectInfo> m_ConvertingObject;
    std::shared_ptr<IUVDBErrorInfo> m_LastError;
    Uve::U8CString m_Query; // rewritten in place by the preparation
    CParseResult m_Result;
    bool m_ColoringMode = false;
    bool m_CommentMode = false;
    std::shared_ptr<ILog> m_Log;
    int m_ExtParserSize = 102400;
    int m_ExtParserSizeCopy = 10240000;
    bool m_TryOtherOpts = false;
    bool m_ResourcesDefined = false;
    bool m_PatternProcess = false; // texts come prepared, and the grammar is the one for patterns
    std::shared_ptr<Preprocessor> m_Preprocessor;
    std::vector<std::uint32_t> m_SourceLines; // of the prepared query; empty if no pass kept them
    const char* m_PreparedBy = "";
    std::optional<SUnfinishedText> m_Unfinished; // of the parse that stands
    // Of the first attempt: the second one prepares a prepared text.
    std::vector<SPreparationNote> m_PreparationNotes;
    std::unique_ptr<XsltResourceManager> m_XsltResources = std::make_unique<XsltResourceManager>();

private:
    class CSecondAttempt;

    // GuardEdge, which remembers that memory was short.
    template <class Operation>
    int GuardMemory(Operation&& operation)
    {
        return GuardEdge([&] {
            try {
                return operation();
            } catch (const std::bad_alloc&) {
                m_IsOutOfMemory = true;
                throw;
            }
        });
    }

    bool m_IsOutOfMemory = false;   // in the running Parse
    bool m_IsConnected = false;     // scanner and parser are linked: texts can be parsed
    bool m_IsSecondAttempt = false; // the second attempt doesn't start a third
};
