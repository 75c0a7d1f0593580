// The options that set_DatabaseInfo reads, and where they go: to both scanners of the grammar, to the process,
// and what is left to the parser object. They count until the next call.
//
//     option                   holds, default                    goes to
//     PARSER_PR_4GL            exactly "WIN"; empty              m_bParserPR4GL, which stays only with it
//     OPTION_VARYING_PARSING   "YES" in any case; "NO"           triesOtherQuoteRule
//     EXT_PARSER_SIZE          a number; 102400                  extParserSize
//     API_SOURCE_DB            text; what the scanner has        m_strAPISourceDB
//     ANSI_QUOTED_IDENTIFIERS  a truth value; the rule of the    m_bMSSQLQID: double-quoted text is an identifier
//                              language
//     DEFINES                  words with ";" between; empty     m_lstDefines, in capitals, and a file; Pascal
//     USE_DEFINES              "No" in any case; "Yes"           m_bIgnoreDefines, which stays with "No"; Pascal
//     AssessorIsParent         a truth value; false              SetAssessorIsParentOpt
//     SRC_UI_TYPE              text; what the scanner has        m_strSrcUIType
//     PERCENT_AS_COMMENT       text; "0"                         m_mapOptions, the first value for good
//
// They are read in this order. A kind of database that the grammar doesn't know ends it before
// ANSI_QUOTED_IDENTIFIERS.
#pragma once

#include <memory>

class CLoadedGrammar;
class IUVDBDatabaseInfo2;

struct SScannerOptions
{
    bool triesOtherQuoteRule = false; // a text with unexpected tokens gets a second attempt
    int extParserSize = 102400;       // kept for hosts that set it; nothing reads it
};

// The grammar has to be loaded, and `info` not to be null.
// Returns: UVDB_INVALID_ARGUMENT if the grammar has no start state for the info's kind.
int TakeScannerOptions(const std::shared_ptr<IUVDBDatabaseInfo2>& info, CLoadedGrammar& grammar,
                       SScannerOptions& options);
