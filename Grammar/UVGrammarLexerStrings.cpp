#include "Grammar/UVGrammarLexer.h"

#include <algorithm>

// Conditional compilation and here-documents, which the scanner works by itself.

namespace {

constexpr const char* kDirectiveState = "SS_DIR_COMMENT";
constexpr const char* kCommentDirectiveState = "SS_COMMENT_DIR";
constexpr const char* kBraceEnd = "}";
constexpr const char* kCommentEnd = "*)";
// Where the symbol begins in "{$DEFINE ", "{$IFDEF " and their kin.
constexpr int kSevenCharacters = 7;
constexpr int kEightCharacters = 8;

Uve::U8CString From(const Uve::U8CString& text, int position)
{
    return text.Mid(position, text.GetLength());
}

// The characters of `set` go from both ends, then white space.
void TrimBy(Uve::U8CString& text, const char* set)
{
    text.Trim(set);
    text.Trim();
}

} // namespace

bool CSQLGrammarLexer::IsDefined(const Uve::U8CString& symbol) const
{
    const auto& defines = m_Extension.m_lstDefines;
    return std::find(defines.begin(), defines.end(), symbol) != defines.end();
}

void CSQLGrammarLexer::AddDefine(Uve::U8CString symbol)
{
    m_Extension.m_lstDefines.push_back(std::move(symbol));
}

void CSQLGrammarLexer::StringDefine(int offset, const char* set)
{
    Uve::U8CString symbol = From(Uve::U8CString(yytext), offset);
    TrimBy(symbol, set);
    symbol.MakeUpper();
    AddDefine(std::move(symbol));
}

// Opens a conditional branch. With `isUpper` it is one of the kind that the option for ignoring defines
// switches off.
void CSQLGrammarLexer::StringIfDefined(int offset, const char* set, bool isUpper, bool skipIfDefined,
                                       const char* skipState)
{
    Uve::U8CString symbol = From(Uve::U8CString(yytext), offset);
    TrimBy(symbol, set);
    if (isUpper)
        symbol.MakeUpper();
    const bool isTested = !isUpper || !m_Extension.m_bIgnoreDefines;
    const bool isSkipped = isTested && IsDefined(symbol) == skipIfDefined;
    if (isSkipped)
        SkipTo(skipState);
    m_Extension.m_dequeSkips.push_back(isSkipped);
}

// The other branch of a conditional.
void CSQLGrammarLexer::StringElse(const char* skipState)
{
    auto& skips = m_Extension.m_dequeSkips;
    if (skips.empty() || !skips.back())
        SkipTo(skipState);
    if (!skips.empty())
        skips.pop_back();
}

// Notes the terminator of the here-document that begins after `mark`; with `isCut` the text ends at ">>".
void CSQLGrammarLexer::StringHereDocument(const char* mark, bool isCut)
{
    Uve::U8CString text(yytext);
    const auto markLength = Uve::U8CString(mark).GetLength();
    int count = text.GetLength();
    // The count isn't adjusted for where the text starts: a terminator before a pipe keeps what lies
    // between.
    if (const int pipe = text.Find("|"); markLength == 3 && pipe != -1)
        count = pipe - 3;
    text = text.Mid(text.Find(mark) + markLength, count);
    TrimBy(text, "\n");
    if (isCut) {
        if (const int end = text.Find(">>"); end != -1)
            text = text.Left(end);
        TrimBy(text, "\n");
    }
    AddDefine(std::move(text));
}

CSQLGrammarLexer::SResult CSQLGrammarLexer::RunString(SOperation& operation, ParserNode&)
{
    switch (operation.number) {
    case 1:
        StringDefine(kEightCharacters, kBraceEnd);
        break;
    case 2:
        StringIfDefined(kSevenCharacters, kBraceEnd, true, false, kDirectiveState);
        break;
    case 3:
        StringIfDefined(kEightCharacters, kBraceEnd, true, true, kDirectiveState);
        break;
    case 4: {
        Uve::U8CString text(yytext);
        for (const char* set : {"\n", "\t", "`", " "})
            TrimBy(text, set);
        if (IsDefined(text)) {
            m_Extension.m_lstDefines.clear();
            BackToStart();
        }
        break;
    }
    case 7:
        m_Extension.m_strColoring.AppendFormat("%d\n", m_Extension.m_nChar - 1);
        [[fallthrough]];
    case 6:
        m_Extension.m_strColoring.AppendFormat("%d ", m_Extension.m_nChar - yyleng);
        [[fallthrough]];
    case 5:
        StringHereDocument("<<", false);
        break;
    case 8:
        StringHereDocument("<<-", false);
        break;
    case 9:
        if (!m_Extension.m_bIgnoreDefines)
            StringElse(kDirectiveState);
        else if (!m_Extension.m_dequeSkips.empty())
            m_Extension.m_dequeSkips.pop_back();
        break;
    case 10:
        StringHereDocument("<<", true);
        break;
    case 11:
        StringHereDocument("<<-", true);
        break;
    case 12:
        StringIfDefined(kSevenCharacters, kCommentEnd, false, false, kCommentDirectiveState);
        break;
    case 13:
        StringIfDefined(kEightCharacters, kCommentEnd, false, true, kCommentDirectiveState);
        break;
    case 19:
        StringElse(kCommentDirectiveState);
        break;
    default:
        break;
    }
    return {};
}
