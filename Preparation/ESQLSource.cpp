#include "Preparation/ESQLSource.h"

#include "Preparation/ESQLPatterns.h"
#include "Preparation/ESQLWriter.h"
#include "Preparation/PreparationNotes.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Esql {

namespace {

// Sorted, in small letters.
// clang-format off
constexpr std::string_view kTypes[] = {
    "auto",      "bigint",    "bool",      "boolean",   "byte",      "char",      "collection", "const",
    "date",      "datetime",  "dec_t",     "decimal",   "double",    "dtime",     "dtime_t",    "enum",
    "extern",    "fixchar",   "float",     "ifx_int8_t","ifx_lo_t",  "ifx_loc_t", "int",        "int1",
    "int2",      "int4",      "int8",      "interval",  "intrvl_t",  "loc_t",     "long",       "lvarchar",
    "mchar",     "mint",      "mlong",     "money",     "mshort",    "nchar",     "numeric",    "nvarchar",
    "parameter", "register",  "row",       "short",     "signed",    "smallint",  "static",     "string",
    "struct",    "text",      "timestamp", "typedef",   "union",     "unsigned",  "varchar",    "void",
    "volatile",
};

// Words that a name may follow and that begin no declaration all the same.
constexpr std::string_view kStatementWords[] = {
    "abort",     "allocate",  "alter",     "analyze",   "arraylen",  "audit",     "begin",      "call",
    "close",     "comment",   "commit",    "connect",   "create",    "database",  "deallocate", "declare",
    "define",    "delete",    "describe",  "disconnect","drop",      "elif",      "else",       "end",
    "endif",     "execute",   "explain",   "fetch",     "flush",     "foreach",   "free",       "get",
    "grant",     "ifdef",     "ifndef",    "include",   "info",      "insert",    "load",       "lock",
    "merge",     "move",      "noaudit",   "open",      "output",    "prepare",   "put",        "release",
    "rename",    "reset",     "revoke",    "rollback",  "savepoint", "select",    "set",        "show",
    "start",     "stop",      "truncate",  "type",      "undef",     "unload",    "unlock",     "update",
    "values",    "var",       "whenever",  "with",
};

constexpr std::string_view kDirectives[] = {
    "define", "elif", "else", "endif", "ifdef", "ifndef", "include", "undef",
};
// clang-format on
static_assert(std::ranges::is_sorted(kTypes));
static_assert(std::ranges::is_sorted(kStatementWords));
static_assert(std::ranges::is_sorted(kDirectives));

bool IsLetter(char character)
{
    const char lower = Lower(character);
    return (lower >= 'a' && lower <= 'z') || character == '_' || static_cast<unsigned char>(character) > 127;
}

bool IsNameCharacter(char character)
{
    return IsLetter(character) || (character >= '0' && character <= '9');
}

std::size_t NameEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsNameCharacter(text[at]))
        ++at;
    return at;
}

// The word at `at` in small letters; empty if there is none.
std::string WordAt(std::string_view text, std::size_t at)
{
    constexpr std::size_t kLongest = 64; // of those that are known
    std::string word;
    if (at < text.size() && IsLetter(text[at]))
        word = text.substr(at, std::min(NameEnd(text, at) - at, kLongest));
    std::ranges::transform(word, word.begin(), Lower);
    return word;
}

template <std::size_t Count>
bool IsOneOf(std::string_view word, const std::string_view (&words)[Count])
{
    return std::ranges::binary_search(words, word);
}

std::size_t LineEnd(std::string_view text, std::size_t at)
{
    return std::min(text.find('\n', at), text.size());
}

// The place after the comment at `at`; `at` itself if none begins there. An open one takes the rest.
std::size_t BehindBlockComment(std::string_view text, std::size_t at)
{
    if (!text.substr(at).starts_with("/*"))
        return at;
    const std::size_t end = text.find("*/", at + 2);
    return end == kNowhere ? text.size() : end + 2;
}

// The place after the comment, string or character of C at `at`; `at` itself if none begins there. A string
// ends with its line at the latest, unless a backslash makes it go on.
std::size_t BehindCLiteral(std::string_view text, std::size_t at)
{
    const char quote = text[at];
    if (quote == '/')
        return text.substr(at).starts_with("//") ? LineEnd(text, at) : BehindBlockComment(text, at);
    if (quote != '"' && quote != '\'')
        return at;
    for (++at; at < text.size(); ++at) {
        if (text[at] == '\\')
            ++at;
        else if (text[at] == quote)
            return at + 1;
        else if (text[at] == '\n')
            return at;
    }
    return text.size();
}

// The same for SQL, whose strings run over lines. A quote without a partner is an ordinary character.
std::size_t BehindSqlLiteral(std::string_view text, std::size_t at)
{
    const char first = text[at];
    if (first == '-')
        return text.substr(at).starts_with("--") ? LineEnd(text, at) : at;
    if (first == '/')
        return BehindBlockComment(text, at);
    if (first != '"' && first != '\'')
        return at;
    const std::size_t end = text.find(first, at + 1);
    return end == kNowhere ? at : end + 1;
}

// The first ";" outside of strings, comments and braces, and where it is looked for no longer.
std::size_t FindEnd(std::string_view text, std::size_t at,
                    std::size_t (*behindLiteral)(std::string_view, std::size_t), bool hasBraces)
{
    for (int depth = 0; at < text.size();) {
        const std::size_t behind = behindLiteral(text, at);
        if (behind != at) {
            at = behind;
            continue;
        }
        depth += hasBraces && text[at] == '{';
        depth -= hasBraces && text[at] == '}';
        if (text[at] == ';' && depth <= 0)
            return at;
        ++at;
    }
    return kNowhere;
}

class CSourceReader
{
public:
    explicit CSourceReader(std::string_view text) : m_Text(text), m_Comments(text) {}

    SEmbeddedSource Read()
    {
        for (std::size_t at = 0; at < m_Text.size();) {
            const char character = m_Text[at];
            if (const std::size_t behind = BehindCLiteral(m_Text, at); behind != at) {
                if (character != '/')
                    m_Before = character;
                at = behind;
            } else if (character == '$') {
                at = ReadDollar(at);
            } else if (IsNameCharacter(character)) {
                at = ReadName(at);
            } else {
                if (character == '\n')
                    m_IsLineBegin = true;
                else if (!IsSpace(character))
                    m_Before = character;
                m_IsLineBegin = m_IsLineBegin && IsSpace(character);
                ++at;
            }
        }
        return std::move(m_Source);
    }

private:
    std::size_t ReadDollar(std::size_t dollar)
    {
        const std::size_t first = SkipSpace(m_Text, dollar + 1);
        const std::string word = WordAt(m_Text, first);
        constexpr std::string_view kBeforeStatements = ";{}):";
        const bool mayBegin = m_IsLineBegin || kBeforeStatements.find(m_Before) != kNowhere;
        m_Before = '$';
        m_IsLineBegin = false;
        if (word.empty() || !mayBegin)
            return dollar + 1;
        SEmbedded piece;
        piece.from = dollar;
        piece.behind = dollar + 1;
        piece.isDollar = true;
        piece.isInSection = m_Source.openSection != kNowhere;
        if (IsDeclaration(word, first))
            piece.kind = enEmbedded::Declaration;
        if (word == "typedef")
            AddTypes(first);
        if (piece.kind == enEmbedded::Statement && IsOneOf(word, kDirectives))
            piece.end = DirectiveEnd(first);
        else
            Close(piece);
        return Take(piece);
    }

    std::size_t ReadName(std::size_t at)
    {
        const std::size_t end = NameEnd(m_Text, at);
        const std::string_view name = m_Text.substr(at, end - at);
        m_Before = name == "else" || name == "do" ? ';' : 'a';
        m_IsLineBegin = false;
        if (name == "typedef")
            AddTypes(at);
        const std::size_t sql = SkipSpace(m_Text, end);
        if (end - at != 4 || !BeginsWith(m_Text, at, "exec") || sql == end ||
            !BeginsWith(m_Text, sql, "sql") || sql + 3 >= m_Text.size() || !IsSpace(m_Text[sql + 3]))
            return end;
        SEmbedded piece;
        piece.from = at;
        piece.behind = sql + 3;
        piece.isInSection = m_Source.openSection != kNowhere;
        Close(piece);
        return Take(piece);
    }

    void Close(SEmbedded& piece)
    {
        const bool isDeclaration = piece.kind == enEmbedded::Declaration;
        std::size_t end = kNowhere;
        if (m_Failures < kMostFailures) {
            end = FindEnd(m_Text, piece.behind, isDeclaration ? BehindCLiteral : BehindSqlLiteral,
                          isDeclaration);
            m_Failures += end == kNowhere;
        }
        piece.isClosed = end != kNowhere;
        piece.end = piece.isClosed ? end + 1 : piece.behind;
    }

    // Returns: where reading goes on.
    std::size_t Take(const SEmbedded& piece)
    {
        m_Source.pieces.push_back(piece);
        m_Before = piece.isClosed ? ';' : 'a';
        m_IsLineBegin = false;
        if (piece.kind == enEmbedded::Statement) {
            std::size_t at = SkipSpace(m_Text, piece.behind);
            const std::string first = WordAt(m_Text, at);
            const auto hasNext = [&](std::string_view word) {
                at = SkipSpace(m_Text, NameEnd(m_Text, at));
                return WordAt(m_Text, at) == word;
            };
            if ((first == "begin" || first == "end") && hasNext("declare") && hasNext("section"))
                m_Source.openSection = first == "begin" ? piece.from : kNowhere;
        }
        return piece.end;
    }

    std::size_t DirectiveEnd(std::size_t at) const
    {
        const std::size_t lineEnd = LineEnd(m_Text, at);
        const std::string_view line = m_Text.substr(0, lineEnd);
        const std::size_t end = FindEnd(line, at, BehindCLiteral, false);
        if (end != kNowhere)
            return end + 1;
        return lineEnd > at && m_Text[lineEnd - 1] == '\r' ? lineEnd - 1 : lineEnd;
    }

    bool IsDeclaration(const std::string& word, std::size_t at) const
    {
        if (IsOneOf(word, kTypes) || BinaryTypeEnd(m_Text, at) != kNowhere)
            return true;
        if (IsOneOf(word, kStatementWords))
            return false;
        const std::size_t end = NameEnd(m_Text, at);
        if (m_Types.contains(std::string(m_Text.substr(at, end - at))))
            return true;
        std::size_t name = SkipSpace(m_Text, end);
        while (name < m_Text.size() && (m_Text[name] == '*' || IsSpace(m_Text[name])))
            ++name;
        const std::size_t behind = SkipSpace(m_Text, NameEnd(m_Text, name));
        return name != end && name < m_Text.size() && IsLetter(m_Text[name]) && behind < m_Text.size() &&
               std::string_view(";,[=").find(m_Text[behind]) != kNowhere;
    }

    void AddTypes(std::size_t at)
    {
        if (m_Failures >= kMostFailures)
            return;
        const std::size_t end = FindEnd(m_Text, at, BehindCLiteral, true);
        m_Failures += end == kNowhere;
        // what is long is no typedef but a text with a brace that nothing closes
        if (end == kNowhere || end - at > kLongestTypedef)
            return;
        std::vector<std::string> names;
        AddDeclaratorNames(m_Text, at, end, m_Comments, names);
        m_Types.insert(names.begin(), names.end());
    }

    // A search that ends with the text has gone over all of it: so many, and no more.
    static constexpr int kMostFailures = 16;
    static constexpr std::size_t kLongestTypedef = 1 << 16;

    std::string_view m_Text;
    CComments m_Comments;
    std::set<std::string> m_Types;
    SEmbeddedSource m_Source;
    int m_Failures = 0;
    char m_Before = ';';       // the last character that is no white space, a letter for any name
    bool m_IsLineBegin = true; // nothing but white space and comments so far in the line
};

void CopyStatement(CPreparedWriter& writer, std::string_view text, const SEmbedded& statement)
{
    std::size_t written = statement.behind;
    for (const std::size_t mark : FindHostMarks(text, statement.behind, statement.end)) {
        writer.Copy(text.substr(written, mark - written));
        writer.Insert(":");
        written = mark + 1;
    }
    writer.Copy(text.substr(written, statement.end - written));
}

} // namespace

SEmbeddedSource ReadEmbeddedSource(std::string_view text)
{
    return CSourceReader(text).Read();
}

std::vector<std::size_t> FindHostMarks(std::string_view text, std::size_t from, std::size_t end)
{
    std::vector<std::size_t> marks;
    text = text.substr(0, end);
    for (std::size_t at = from; at < end;) {
        if (const std::size_t behind = BehindSqlLiteral(text, at); behind != at) {
            at = behind;
            continue;
        }
        const bool isMark = text[at] == '$' && at + 1 < end && IsLetter(text[at + 1]);
        if (isMark)
            marks.push_back(at);
        if (isMark || text[at] == ':') {
            // an indicator may follow the variable at once
            at = NameEnd(text, at + 1);
            continue;
        }
        // a "$" inside of a name is its own
        if (IsNameCharacter(text[at]))
            while (at < end && (IsNameCharacter(text[at]) || text[at] == '$'))
                ++at;
        else
            ++at;
    }
    return marks;
}

} // namespace Esql

using namespace Esql;

SPreparedText RewriteEmbeddedSqlFaithfully(const Uve::U8CString& source)
{
    const std::string_view text(source.data(), source.size());
    const std::string_view lineEnd = text.find("\r\n") == text.npos ? "\n" : "\r\n";
    const std::vector<SEmbedded> pieces = ReadEmbeddedSource(text).pieces;
    CPreparedWriter writer;
    std::size_t written = 0;
    bool isOpen = false;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const SEmbedded& piece = pieces[i];
        if (!piece.isClosed)
            continue;
        writer.Copy(text.substr(written, piece.from - written));
        written = piece.end;
        if (piece.kind == enEmbedded::Statement) {
            if (piece.isDollar)
                writer.Insert(kExecSql);
            else
                writer.Copy(text.substr(piece.from, piece.behind - piece.from));
            CopyStatement(writer, text, piece);
            continue;
        }
        if (!piece.isInSection && !isOpen) {
            writer.Insert(kBeginSection);
            writer.Insert(lineEnd);
            isOpen = true;
        }
        writer.Copy(text.substr(piece.behind, piece.end - piece.behind));
        const bool goesOn = i + 1 < pieces.size() && pieces[i + 1].kind == enEmbedded::Declaration &&
                            pieces[i + 1].isClosed && SkipSpace(text, piece.end) == pieces[i + 1].from;
        if (isOpen && !goesOn) {
            writer.Insert(lineEnd);
            writer.Insert(kEndSection);
            isOpen = false;
        }
    }
    writer.Copy(text.substr(written));
    return writer.Take();
}

std::vector<SPreparationNote> FindEmbeddedSqlNotes(std::string_view text)
{
    const SEmbeddedSource source = ReadEmbeddedSource(text);
    CPreparationNotes notes;
    std::size_t at = 0;
    std::uint32_t line = 1;
    const auto lineOf = [&](std::size_t place) {
        line += static_cast<std::uint32_t>(std::ranges::count(text.substr(at, place - at), '\n'));
        at = place;
        return line;
    };
    for (const SEmbedded& piece : source.pieces) {
        if (!piece.isClosed)
            notes.AddWarning(piece.kind == enEmbedded::Declaration ? "declaration that no \";\" ends"
                                                                   : "embedded SQL that no \";\" ends",
                             lineOf(piece.from));
        if (piece.from == source.openSection)
            notes.AddWarning("declare section that is never closed", lineOf(piece.from));
    }
    return notes.Take();
}
