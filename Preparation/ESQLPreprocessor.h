// Embedded SQL in C comes in two notations. The grammar knows "EXEC SQL statement;" with ":variable"; this
// rewrites the other one, "$statement;" with "$variable" and "$int x;", into it.
#pragma once

#include "Preparation/ESQLPatterns.h"
#include "Preparation/PreparedText.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <boost/regex.hpp>

#include <cstdint>
#include <string>
#include <vector>

// Comments stay as they are; a hit that begins in one is none. Words count in any case of letters.
//
//   $select, $open, ...    "EXEC SQL " instead of the "$"
//   $include, $ifdef, ...  the "$" goes
//   $int x;                a declare section around it, one for declarations with nothing between them.
//                          Inside of a section that is there already, and where no ";" ends it, only the
//                          "$" goes.
//   EXEC SQL ... $x ... ;  ":" instead of the "$"
//
// A declaration begins with the name of a type, and what a "$typedef" of the text names is a type too. The
// "$" of a statement, or of a variable in one, begins no declaration.
//
// The lines that a section adds have the source line where its declaration begins or ends. A text without
// a "$" comes back as it is.
SPreparedText RewriteEmbeddedSql(const Uve::U8CString& text);

// One hit of a search.
struct smatch_st
{
    std::string text;
    std::int64_t position = 0; // byte offset in the searched text
    std::int64_t length = 0;
};

// The same as steps on members, made for one source.
class ESQLPreprocessor
{
public:
    // Returns: true if `output` is to replace the text; false, with `output` untouched, if it has no "$".
    bool CheckESQL(const std::string& text, std::string& output);

    // The text with its declarations in sections, their "$" gone. Comments are those that CheckComment knows;
    // before CheckESQL there are none, and lines end in "\r\n".
    std::string WrapVarDeclaration(const std::string& text);

    // All hits of an ECMAScript pattern that don't overlap, in order; "." stops at the ends of lines. `flags`
    // are added to the syntax.
    // Throws: boost::regex_error for a bad pattern, std::runtime_error for a search that takes too long. The
    //         rewrite itself searches by hand.
    static std::vector<smatch_st> RegexSearch_st(const std::string& text, const std::string& pattern,
                                                 boost::regex_constants::syntax_option_type flags = 0);

    // The byte lies in a comment of the text that CheckESQL gave.
    bool CheckComment(std::int64_t position) const;

    // For each line of the text that CheckESQL gave the source line where it begins.
    const std::vector<std::uint32_t>& SourceLines() const { return m_SourceLines; }

private:
    std::string m_LineEnd = "\r\n";
    Esql::CTypeNames m_Types;
    Esql::CComments m_Comments;
    std::vector<std::uint32_t> m_SourceLines;
};
