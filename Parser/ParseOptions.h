// The options of a parse. They are read once, when the parse begins, and go along as values: what a host
// changes while it runs counts from the next parse on.
//
// set_DatabaseInfo and Init read options of their own, see ScannerOptions.h and Preprocessor.h. The options
// that a parse writes are told in ParseAnswers.h.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "Parser/UVParserReports.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <memory>
#include <optional>

class IUVDBDatabaseInfo2;
class IUVDBObjectInfo;

// Each field tells its option, what the option holds, its default, and who asks for it. Texts are compared
// without regard to case, unless "exactly" is said.
struct SParseOptions
{
    std::uint64_t kind =
        UVDB_UNKNOWN_DATABASE_KIND; // no option: the number of the language, from get_DbmsVersion

    // ---- The road, for CUVDBSQLParser and CParsePipeline. On the database info. ----

    // RESTART_POSITIONS       exactly "1"; off. The parser object forgets all earlier texts first.
    bool restartsPositions = false;
    // CLOSE_LOST_QUOTES       exactly "1"; off. A text with unexpected tokens is parsed again with strings of
    //                         several lines ended early, and the better reading stands.
    bool closesLostQuotes = false;
    // PREPARE_ONLY            exactly "1"; off. The prepared text is the result.
    bool isPreparationOnly = false;
    // PARSE_DIRECTIVES        a truth value; true. Goes to the scanners.
    bool parsesDirectives = true;
    // ORVA_CHILD              a truth value; false. Unexpected tokens fail the parse.
    bool isChild = false;
    // TREE2SERIAL_STYLESHEET  exactly "1"; off. The stylesheet itself flattens the tree.
    bool isStylesheetForced = false;

    // ---- The answers, for ParseAnswers. On the database info. ----

    // CONVERTED_OBJECT_TYPE   a number; 0. The key under which unexpected tokens are counted.
    int convertedObjectType = 0;
    // REPORT_UNEXPECTED_TOKENS  exactly "1", or "2", which adds what was expected, or "3", which names the token, too;
    //                           off.
    std::optional<enTokenReport> tokenReport;
    // Each exactly "1"; off.
    bool reportsLostText = false;         // REPORT_LOST_TEXT
    bool reportsPreparedLines = false;    // REPORT_PREPARED_LINES
    bool reportsPreparationNotes = false; // REPORT_PREPARATION_NOTES
    bool reportsCoverage = false;         // REPORT_COVERAGE

    // ---- The object being converted. On that object, all empty without it. ----

    // FilePath                the path of the source; empty. For the properties files of the pipeline, the
    //                         choice of a pass, and include files.
    Uve::U8CString filePath;
    // ObjectID                text; empty. Begins the name of the option that gets a page's script. Read for
    //                         ASP alone.
    Uve::U8CString objectId;

    // ---- The preparation, for UVParserFormatters and ScriptFormatter. On the database info, and read only
    // for the languages that are named. ----

    // SOURCE_FORMS            "FAITHFUL"; off. All that have a pass, but ASP, and C, which reads it at Init.
    bool isFaithful = false;
    // INCLUDE_ROOT            a folder; empty, which sets no bound. Progress and ASP.
    Uve::U8CString includeRoot;
    // INCLUDE_FILES           "YES"; "FALSE". Progress has no pass without it.
    bool includesFiles = false;
    // PROPATH                 folders; empty. Progress.
    Uve::U8CString propath;
    // UNIK_DEFINE             "Yes"; "No". Pascal has no pass without it.
    bool resolvesDefines = false;
    // COBOLFORMAT             "ANSI", "FREE" or another text; "NO", and then COBOL has no pass.
    Uve::U8CString cobolFormat = "NO";
    // SAVE_COBOL_DEBUG_INFO   exactly "YES"; "NO". COBOL.
    bool savesCobolDebugInfo = false;
    // REMOVE_SRC_FORMATTING   exactly "1"; "0". COBOL.
    bool removesCobolFormatting = false;
    // COBOL_TAB_WIDTH         a number of blanks; 4. COBOL.
    int cobolTabWidth = 4;
    // JCLANSIFORMAT           exactly "1" or "YES"; "FALSE". JCL has no pass without it.
    bool hasJclFormat = false;
    // IBMRPG_VERSION          the number of a column layout, as a text; 2. RPG.
    int rpgLayout = 2;

    // ---- What earlier calls have settled. No options, or not read here. ----

    bool comesPrepared = false;       // by Load: texts of a process for patterns have no preparation
    bool isColoring = false;          // the mode, by Init: a coloring map is made
    bool findsComments = false;       // likewise, of the comments alone
    bool isPreprocessed = false;      // PREPROCESSOR, by Init: C and C++ have no pass without it
    bool triesOtherQuoteRule = false; // OPTION_VARYING_PARSING, by set_DatabaseInfo
};

// Reads everything but what earlier calls have settled. An option that isn't there, or of a type that can't
// be converted, keeps its default; the latter leaves a line in the trace.
// `object` may be null, `info` as well: all options keep their defaults then.
SParseOptions ReadParseOptions(const std::shared_ptr<IUVDBDatabaseInfo2>& info,
                               const std::shared_ptr<IUVDBObjectInfo>& object);

// Asked for outside of a parse as well; the last one there alone. False without an info.

bool IsPreparationOnly(const std::shared_ptr<IUVDBDatabaseInfo2>& info);
bool IsStylesheetForced(const std::shared_ptr<IUVDBDatabaseInfo2>& info);
// HAND_OVER_RESULT, exactly "1": get_SQLTree gives its tree away.
bool IsResultHandedOver(const std::shared_ptr<IUVDBDatabaseInfo2>& info);
