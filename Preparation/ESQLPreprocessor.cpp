#include "Preparation/ESQLPreprocessor.h"

#include "Preparation/ESQLWriter.h"

#include <algorithm>
#include <string_view>
#include <utility>

using namespace Esql;

namespace {

SPreparedText WrapDeclarations(std::string_view text, const CComments& comments, const CTypeNames& types,
                               std::string_view lineEnd)
{
    const std::vector<SDeclaration> declarations = FindDeclarations(text, comments, types);
    CPreparedWriter writer;
    std::size_t written = 0;
    bool isOpen = false;
    for (std::size_t i = 0; i < declarations.size(); ++i) {
        const SDeclaration& declaration = declarations[i];
        writer.Copy(text.substr(written, declaration.dollar - written));
        if (!declaration.isInSection && !isOpen) {
            writer.Insert(kBeginSection);
            writer.Insert(lineEnd);
            isOpen = true;
        }
        writer.Copy(text.substr(declaration.dollar + 1, declaration.end - declaration.dollar - 1));
        written = declaration.end;
        const bool goesOn = i + 1 < declarations.size() && !declarations[i + 1].isInSection &&
                            SkipSpace(text, declaration.end) == declarations[i + 1].dollar;
        if (isOpen && !goesOn) {
            writer.Insert(lineEnd);
            writer.Insert(kEndSection);
            isOpen = false;
        }
    }
    writer.Copy(text.substr(written));
    return writer.Take();
}

// Replaces the "$" of statements, of preprocessor lines, and of declarations that got no section.
//
// What comes out is what a search gives that begins anew, on the changed text, after each replacement of the
// first hit. A hit depends on nothing but the text after its "$", up to the next "$" that stays. So a
// replacement can make a hit only of the last "$" before it, if white space and names are all that lies
// between them; and that again of the one before. These wait on a stack, and the others are settled when they
// are passed.
class CDollarReplacer
{
public:
    CDollarReplacer(std::string_view text, const CComments& comments, const CTypeNames& types)
        : m_Text(text), m_Types(types), m_Return(text, '\r'), m_LineFeed(text, '\n'),
          m_Actions(static_cast<std::size_t>(std::ranges::count(text, '$')), KEEP)
    {
        const std::vector<SSpan> statements = FindStatements(text, comments);
        CSpanCursor statement(statements);
        std::size_t ordinal = 0;
        for (std::size_t at = text.find('$'); at != kNowhere; at = text.find('$', at + 1), ++ordinal) {
            if (comments.Contains(at)) {
                m_Waiting.clear();
                continue;
            }
            SDollar dollar;
            dollar.ordinal = static_cast<std::uint32_t>(ordinal);
            dollar.nextOrdinal = dollar.ordinal + 1;
            dollar.behind = (at + 1) & kOffsets;
            dollar.isInStatement = statement.IsInside(at);
            switch (Settle(dollar)) {
            case HIT:
                SettleWaiting();
                break;
            case OPEN:
                m_Waiting.push_back(dollar);
                break;
            case NO_HIT:
                m_Waiting.clear();
                break;
            }
        }
    }

    std::string Result() const
    {
        std::string result;
        result.reserve(m_Text.size() +
                       kExecSql.size() * static_cast<std::size_t>(std::ranges::count(m_Actions, EXEC_SQL)));
        std::size_t ordinal = 0;
        std::size_t written = 0;
        for (std::size_t at = m_Text.find('$'); at != kNowhere; at = m_Text.find('$', at + 1)) {
            const enAction action = m_Actions[ordinal++];
            if (action == KEEP)
                continue;
            result.append(m_Text.substr(written, at - written));
            if (action == EXEC_SQL)
                result.append(kExecSql);
            written = at + 1;
        }
        result.append(m_Text.substr(written));
        return result;
    }

private:
    enum enAction : unsigned char
    {
        KEEP,
        REMOVE,
        EXEC_SQL
    };

    enum enResult
    {
        HIT,
        NO_HIT, // and never will be
        OPEN    // the next "$" that stays decides
    };

    // Small, since a text may be nothing but these.
    struct SDollar
    {
        std::uint64_t behind : 62 = 0; // where the first thing after it that isn't white space has been found
        std::uint64_t isSpaced : 1 = 0; // there was white space on the way
        std::uint64_t isInStatement : 1 = 0;
        std::uint32_t ordinal = 0;
        std::uint32_t nextOrdinal = 0; // of the first "$" at or after `behind`
    };
    static constexpr std::uint64_t kOffsets = ~std::uint64_t{0} >> 2;

    // Reads the text as the replacements that have been settled make it.
    struct SReader
    {
        std::size_t at = 0;
        std::uint32_t ordinal = 0;
        unsigned char inserted = 0; // bytes passed of an inserted "EXEC SQL "
    };
    static constexpr int kEnd = -1;
    static constexpr int kDollar = -2;

    int Peek(SReader& reader) const
    {
        for (; reader.at < m_Text.size(); ++reader.at, ++reader.ordinal) {
            if (m_Text[reader.at] != '$')
                return static_cast<unsigned char>(m_Text[reader.at]);
            const enAction action = m_Actions[reader.ordinal];
            if (action == KEEP)
                return kDollar;
            if (action == EXEC_SQL && reader.inserted < kExecSql.size())
                return static_cast<unsigned char>(kExecSql[reader.inserted]);
            reader.inserted = 0;
        }
        return kEnd;
    }

    void Pass(SReader& reader) const
    {
        if (m_Text[reader.at] == '$')
            ++reader.inserted;
        else
            ++reader.at;
    }

    void SettleWaiting()
    {
        while (!m_Waiting.empty()) {
            const enResult result = Settle(m_Waiting.back());
            if (result == OPEN)
                return;
            if (result == NO_HIT) {
                m_Waiting.clear();
                return;
            }
            m_Waiting.pop_back();
        }
    }

    // What the "$" means as the text after it stands. A hit is entered.
    enResult Settle(SDollar& dollar)
    {
        SReader reader{dollar.behind, dollar.nextOrdinal};
        // the white space after the last replacement needn't be walked over again
        if (reader.at < m_Text.size() && m_Text[reader.at] == '$' && reader.ordinal == m_LastHit.ordinal &&
            m_Actions[reader.ordinal] == REMOVE) {
            reader = {m_LastHit.behind, m_LastHit.nextOrdinal};
            dollar.isSpaced |= m_LastHit.isSpaced;
        }
        int next = Peek(reader);
        while (next >= 0 && IsSpace(static_cast<char>(next))) {
            dollar.isSpaced = 1;
            Pass(reader);
            next = Peek(reader);
        }
        dollar.behind = reader.at & kOffsets;
        dollar.nextOrdinal = reader.ordinal;
        if (next < 0)
            return next == kDollar ? OPEN : NO_HIT;

        next = ReadWords(reader);
        const enAction action = Classify(dollar);
        if (action == KEEP)
            return next == kDollar ? OPEN : NO_HIT;
        m_Actions[dollar.ordinal] = action;
        m_LastHit = dollar;
        return HIT;
    }

    // Reads as many words as a "$" may need, with what of white space stands between and after them; two
    // bytes of it tell as much as all.
    // Returns: what stopped the reading; anything from 0 if nothing more was wanted.
    int ReadWords(SReader& reader)
    {
        m_Words.clear();
        m_WordCount = 0;
        for (;;) {
            const std::size_t from = m_Words.size();
            if (m_WordCount < std::size(m_WordPlaces))
                m_WordPlaces[m_WordCount] = {from, reader.at, reader.at};
            int next = Peek(reader);
            for (; next >= 0 && !IsSpace(static_cast<char>(next)); next = Peek(reader)) {
                if (m_Words.size() - from > CTypeNames::kLongestName)
                    return 0;
                m_Words += static_cast<char>(next);
                Pass(reader);
            }
            const std::size_t end = m_Words.size();
            for (; next >= 0 && IsSpace(static_cast<char>(next)); next = Peek(reader)) {
                if (m_Words.size() < end + 2)
                    m_Words += static_cast<char>(next);
                Pass(reader);
                if (m_Words.size() == end + 1)
                    m_WordPlaces[m_WordCount].sourceBehind = reader.at;
            }
            ++m_WordCount;
            if (next < 0 || m_WordCount == std::size(m_WordPlaces) || !WantsMoreWords(end))
                return next;
        }
    }

    // `end` is the last word's in m_Words.
    bool WantsMoreWords(std::size_t end) const
    {
        const auto isWord = [&](std::size_t word, std::string_view text) {
            const std::size_t from = m_WordPlaces[word].from;
            return BeginsWithWord(m_Words, from, text) &&
                   (word + 1 < m_WordCount || from + text.size() == end);
        };
        if (m_WordCount == 1)
            return isWord(0, "parameter") || isWord(0, "fixed") || isWord(0, "end");
        return m_WordCount == 2 && ((isWord(0, "parameter") && (isWord(1, "fixed") || isWord(1, "var"))) ||
                                    (isWord(0, "end") && isWord(1, "declare")));
    }

    enAction Classify(const SDollar& dollar)
    {
        switch (ClassifyDollar(m_Words, !dollar.isSpaced)) {
        case enDollar::Statement:
            return EXEC_SQL;
        case enDollar::Preprocessor:
            return REMOVE;
        case enDollar::Nothing:
            break;
        }
        if (EndsDeclareSection(m_Words))
            return EXEC_SQL;
        if (dollar.isInStatement)
            return KEEP;
        const bool isDeclaration =
            BeginsWithBuiltInType(m_Words, 0) || IsTypeAt(0) ||
            (m_WordCount > 1 && BeginsWithWord(m_Words, 0, "parameter") && IsTypeAt(1));
        return isDeclaration ? REMOVE : KEEP;
    }

    // A type begins with the word, and its line has an end.
    bool IsTypeAt(std::size_t word)
    {
        const SWordPlace& place = m_WordPlaces[word];
        if (m_Types.BeginsAt(m_Words, place.from))
            return IsLineEnded(place.source);
        return word + 1 < m_WordCount && BinaryTypeEnd(m_Words, place.from) != kNowhere &&
               IsLineEnded(m_WordPlaces[word + 1].sourceBehind);
    }

    bool IsLineEnded(std::size_t at)
    {
        const std::size_t lineFeed = m_LineFeed.From(at);
        return lineFeed != kNowhere && lineFeed <= m_Return.From(at) + (m_Return.From(at) != kNowhere);
    }

    struct SWordPlace
    {
        std::size_t from = 0;         // in m_Words
        std::size_t source = 0;       // in the text
        std::size_t sourceBehind = 0; // in the text, after the first white space after the word
    };

    std::string_view m_Text;
    const CTypeNames& m_Types;
    CNextOf m_Return;
    CNextOf m_LineFeed;
    std::vector<enAction> m_Actions; // one for each "$"
    std::vector<SDollar> m_Waiting;
    SDollar m_LastHit;
    std::string m_Words;
    SWordPlace m_WordPlaces[3];
    std::size_t m_WordCount = 0;
};

void MarkHostVariables(std::string& text)
{
    const CComments comments(text);
    CNextOf nextDollar(text, '$');
    for (SSpan hit = FindExecSql(text, 0, comments); hit.from != kNowhere;) {
        const std::size_t end = text.find(';', hit.end);
        if (end == text.npos)
            return;
        for (std::size_t at = nextDollar.From(hit.end); at < end; at = nextDollar.From(at + 1))
            if (!comments.Contains(at))
                text[at] = ':';
        hit = FindExecSql(text, end + 1, comments);
    }
}

struct SRewriteState
{
    std::string lineEnd;
    CTypeNames types;
};

SPreparedText Rewrite(std::string_view text, SRewriteState& state)
{
    state.lineEnd = text.find("\r\n") == text.npos ? "\n" : "\r\n";
    const CComments comments(text);
    state.types.Add(FindTypeNames(text, comments));
    SPreparedText prepared = WrapDeclarations(text, comments, state.types, state.lineEnd);
    {
        const CComments wrappedComments(prepared.text);
        prepared.text = CDollarReplacer(prepared.text, wrappedComments, state.types).Result();
    }
    MarkHostVariables(prepared.text);
    return prepared;
}

} // namespace

SPreparedText RewriteEmbeddedSql(const Uve::U8CString& text)
{
    if (text.find('$') == text.npos) {
        CPreparedWriter writer;
        writer.Copy(text);
        return writer.Take();
    }
    SRewriteState state;
    return Rewrite(text, state);
}

bool ESQLPreprocessor::CheckESQL(const std::string& text, std::string& output)
{
    if (text.find('$') == text.npos)
        return false;
    SRewriteState state;
    SPreparedText prepared = Rewrite(text, state);
    m_LineEnd = std::move(state.lineEnd);
    m_Types = std::move(state.types);
    m_Comments = CComments(prepared.text);
    m_SourceLines = std::move(prepared.sourceLines);
    output = std::move(prepared.text);
    return true;
}

std::string ESQLPreprocessor::WrapVarDeclaration(const std::string& text)
{
    const SPreparedText wrapped = WrapDeclarations(text, m_Comments, m_Types, m_LineEnd);
    return {wrapped.text.data(), wrapped.text.size()};
}

std::vector<smatch_st> ESQLPreprocessor::RegexSearch_st(const std::string& text, const std::string& pattern,
                                                        boost::regex_constants::syntax_option_type flags)
{
    const boost::regex expression(pattern, boost::regex::ECMAScript | flags);
    std::vector<smatch_st> hits;
    const boost::sregex_iterator last;
    for (boost::sregex_iterator hit(text.begin(), text.end(), expression, boost::match_not_dot_newline);
         hit != last; ++hit)
        hits.push_back({hit->str(), hit->position(), hit->length()});
    return hits;
}

bool ESQLPreprocessor::CheckComment(std::int64_t position) const
{
    return position >= 0 && m_Comments.Contains(static_cast<std::size_t>(position));
}
