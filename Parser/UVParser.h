// The parser object of the plug-in entry: it owns the scanner and the parser of one grammar, takes
// options and a text from its host, and makes the result. What a host may call, and when, is told at the
// interface.
//
// The work is done elsewhere, on values:
//     LoadedGrammar   the tables, scanner and parser
//     ScannerOptions  the options that set_DatabaseInfo reads
//     ParseOptions    the options of each parse
//     ParsePipeline   the way from a text to its result
//     ParseErrors     the error record
//     ParseAnswers    the options that a parse writes
// Here stand the operations (UVParserObject) and the flattening (UVParserFlatten).
#pragma once

#include "Interfaces/IUVDBSQLParser.h"
#include "Parser/LoadedGrammar.h"
#include "Parser/ParsePipeline.h"
#include "Parser/ParsedText.h"
#include "Parser/ScannerOptions.h"
#include "Preparation/Preprocessor.h"
#include "Stylesheets/Resources.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

class CUVDBSQLParser final : public IUVDBSQLParser, private IParseOwner
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
    //     CLOSE_LOST_QUOTES "1"         a text with unexpected tokens is parsed up to nine times more, each time with
    //                                   another long string, which an error lies in or follows within two
    //                                   lines, ended early. Of all readings the one stands that
    //                                   loses the least of the text, and then has the fewest of them
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

private:
    // ---- What the pipeline asks for ----

    bool ReadOptions(SParseOptions& options, bool isNewText) override;
    void TakeScript(const SParseOptions& options, const SAspPage& page) override;
    void CountWarnings(const SParseOptions& options,
                       const std::multimap<unsigned long, std::string>& tokens) override;
    int Flatten(const SParseOptions& options, CParseResult& result) override;

    // ---- The work of the operations ----

    CParsePipeline MakePipeline() { return {m_Grammar, m_Preprocessor.get(), m_Parsed, *this}; }
    int TakeDatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info);
    int WriteReports(const SParseOptions& options);
    // An object that only prepares has no lists of errors.
    int WriteErrorReports(const SParseOptions& options, const SParseFindings& findings);

    void DefineStylesheets();
    int FlattenResult(CParseResult& result, bool isStylesheetForced);
    // `declaration` saves the result a shift by the difference of the declarations; the stylesheet knows its
    // own one alone.
    int FlattenText(Uve::U8CString& xml, bool isStylesheetForced, std::string_view declaration);
    // Whether the flattener does the work of the stylesheet.
    bool IsFlattenedNatively(bool isStylesheetForced) const
    {
        return m_ResourcesDefined && !isStylesheetForced;
    }

    CLoadedGrammar m_Grammar;
    std::shared_ptr<Preprocessor> m_Preprocessor;
    std::shared_ptr<IUVDBDatabaseInfo2> m_DatabaseInfo;
    std::shared_ptr<IUVDBObjectInfo> m_ConvertingObject;
    std::shared_ptr<ILog> m_Log;
    SScannerOptions m_ScannerOptions;
    SParsedText m_Parsed; // what a host may ask for, also while it is being made
    bool m_ColoringMode = false;
    bool m_CommentMode = false;
    bool m_ResourcesDefined = false;
    std::unique_ptr<XsltResourceManager> m_XsltResources = std::make_unique<XsltResourceManager>();
};
