// The rewrite of embedded SQL beside a plain model of it, which searches by regular expressions and begins
// anew after each replacement.
#include "Preparation/ESQLPreprocessor.h"
#include "Tests/Preparation/FormatterFixture.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr char kRows[] = "(?:[$](?=(?:include|define|undef|ifdef|ifndef|elif|else)[ |\\t])|[$](?=endif))";
constexpr char kStatements[] =
    "[$](?=\\s*(?:select|prepare|open|close|insert|update|execute|connect|disconnect|declare|fetch|set|type|"
    "var|"
    "whenever|arraylen|allocate|alter|analyze|audit|comment|create|drop|grant|noaudit|rename|revoke|truncate|"
    "delete|explain|lock|commit|rollback|savepoint|describe|free|begin)\\s)";
constexpr char kSectionEnd[] = "[$](?=\\s*END\\s+DECLARE\\s+SECTION;\\s)";
constexpr char kBinary[] = "[$]\\s*(?:fixed\\sbinary|var\\s+binary)\\s";
constexpr char kBuiltIn[] = "(?:short|char|int|double|long|float|VARCHAR|struct)";
constexpr char kStartingTypes[] = "short|char|int|int1|int2|int4|int8|double|long|float|dec_t|decimal|"
                                  "fixchar|string|date|datetime|dtime|dtime_t|"
                                  "ifx_loc_t|loc_t|intrvl_t|collection|lvarchar|boolean|row|ifx_int8_t|ifx_"
                                  "lo_t|mint|mlong|MSHORT|MCHAR|BIGINT|"
                                  "(?:(?:fixed\\sbinary|var\\s+binary)\\s+(?:'[^']*'\\s+)?)|struct|typedef";

class CModel
{
public:
    std::string Rewrite(std::string text)
    {
        if (text.find('$') == text.npos)
            return text;
        m_LineEnd = text.find("\r\n") == text.npos ? "\n" : "\r\n";
        FindTypes(text);
        text = Wrap(text);
        text = ReplaceDollars(text);
        return MarkVariables(text);
    }

private:
    struct SHit
    {
        std::size_t from = 0;
        std::size_t end = 0;
    };

    static boost::regex Pattern(const std::string& pattern)
    {
        return boost::regex(pattern, boost::regex::icase);
    }

    static bool IsHitAt(const std::string& text, std::size_t at, const boost::regex& pattern)
    {
        return boost::regex_search(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), pattern,
                                   boost::match_continuous);
    }

    // Hits in order; the search goes on behind one that counts and inside of one that doesn't.
    static std::vector<SHit> Search(const std::string& text, const boost::regex& pattern,
                                    const std::function<bool(std::size_t)>& counts)
    {
        std::vector<SHit> hits;
        boost::smatch match;
        auto from = text.begin();
        while (boost::regex_search(from, text.end(), match, pattern)) {
            const auto at = static_cast<std::size_t>(match[0].first - text.begin());
            const auto end = static_cast<std::size_t>(match[0].second - text.begin());
            if (counts(at))
                hits.push_back({at, end});
            from = text.begin() + static_cast<std::ptrdiff_t>(counts(at) ? end : at + 1);
        }
        return hits;
    }

    static bool IsInComment(const std::string& text, std::size_t at)
    {
        static const boost::regex kBlock = Pattern("/\\*[\\s\\S]*?\\*/");
        static const boost::regex kLine = Pattern("//[^\\r\\n]*?(?=\\r?\\n)");
        for (const boost::regex& pattern : {kBlock, kLine})
            for (const SHit& hit : Search(text, pattern, [](std::size_t) { return true; }))
                if (at >= hit.from && at < hit.end)
                    return true;
        return false;
    }

    static bool IsStatement(const std::string& text, std::size_t at)
    {
        static const boost::regex kStart = Pattern(std::string(kStatements) + '|' + kSectionEnd);
        static const boost::regex kType = Pattern(kBinary);
        return IsHitAt(text, at, kStart) && !IsHitAt(text, at, kType);
    }

    static bool IsInStatement(const std::string& text, std::size_t at)
    {
        static const boost::regex kStart = Pattern("[$]|exec\\s+sql\\s+");
        std::size_t behind = 0;
        const auto counts = [&](std::size_t from) {
            if (from < behind || IsInComment(text, from) || (text[from] == '$' && !IsStatement(text, from)))
                return false;
            behind = std::min(text.find(';', from), text.size());
            return true;
        };
        // asked twice for each hit, so remember the answers
        std::vector<int> answers(text.size(), -1);
        for (const SHit& hit : Search(text, kStart, [&](std::size_t from) {
                 if (answers[from] < 0)
                     answers[from] = counts(from);
                 return answers[from] == 1;
             }))
            if (hit.from < at && at < std::min(text.find(';', hit.from), text.size()))
                return true;
        return false;
    }

    static bool IsInSection(const std::string& text, std::size_t at)
    {
        const auto mark = [](const std::string& word) {
            return Pattern("[$]\\s*" + word + "\\s+DECLARE\\s+SECTION;\\s|exec\\s+sql\\s+" + word +
                           "\\s+DECLARE\\s+SECTION\\s*;");
        };
        static const boost::regex kBegin = mark("BEGIN");
        static const boost::regex kEnd = mark("END");
        bool isOpen = false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (i == at && isOpen) {
                for (std::size_t end = i; end < text.size(); ++end)
                    if (IsHitAt(text, end, kEnd) && !IsInComment(text, end))
                        return true;
                return false;
            }
            if (IsHitAt(text, i, isOpen ? kEnd : kBegin) && !IsInComment(text, i))
                isOpen = !isOpen;
        }
        return false;
    }

    void FindTypes(const std::string& text)
    {
        const std::string types = std::string("(?:") + kStartingTypes + ')';
        m_Types = kStartingTypes;
        for (const std::string& pattern :
             {"[$]\\s*typedef\\s+" + types + "\\s+[^;|^\\{]*;",
              "[$]\\s*typedef\\s*struct\\s*" + types + "?\\s*\\{[^}]*\\}\\s*[^;]*;"})
            for (const SHit& hit :
                 Search(text, Pattern(pattern), [&](std::size_t at) { return !IsInComment(text, at); })) {
                std::string names = text.substr(hit.from, hit.end - hit.from);
                for (std::size_t at = hit.from; at + 1 < hit.end; ++at)
                    if (IsInComment(text, at))
                        names[at - hit.from] = ' ';
                names.erase(0, names.rfind('}') + 1);
                names = boost::regex_replace(names, Pattern("\\[[0-9]*\\]"), " ");
                static const boost::regex kName = Pattern("([a-z0-9_]+)[^a-z0-9_,]*(?:,|;$)");
                for (boost::sregex_iterator name(names.begin(), names.end(), kName), last; name != last;
                     ++name)
                    m_Types += '|' + name->str(1);
            }
        m_Types = "(?:" + m_Types + ')';
    }

    std::string Wrap(std::string text) const
    {
        const boost::regex pattern =
            Pattern("[$]\\s*(?:parameter\\s+)?" + m_Types + "[^\\{]*?;|[$]\\s*(?:parameter\\s+)?" + m_Types +
                    "[^\\r\\n]*?\\{[^}]*\\}\\s*[^;]*;|[$]\\s*(?:typedef\\s*)?struct[^\\{;]*\\{[^}]*\\}\\s*[^;"
                    "]*;|[$]\\s*" +
                    kBuiltIn + "\\s*[^;]*;");
        static const boost::regex kWords = Pattern(std::string(kRows) + '|' + kStatements);
        static const boost::regex kType = Pattern(kBinary);
        const std::vector<SHit> hits = Search(text, pattern, [&](std::size_t at) {
            return !IsInComment(text, at) && !IsInStatement(text, at) &&
                   (!IsHitAt(text, at, kWords) || IsHitAt(text, at, kType));
        });
        const std::string source = text;
        const auto isWrapped = [&](std::size_t hit) { return !IsInSection(source, hits[hit].from); };
        const auto areNeighbours = [&](std::size_t hit) {
            const std::string between = source.substr(hits[hit].end, hits[hit + 1].from - hits[hit].end);
            return isWrapped(hit) && isWrapped(hit + 1) &&
                   between.find_first_not_of(" \t\n\v\f\r") == between.npos;
        };
        for (std::size_t hit = hits.size(); hit-- > 0;) {
            if (isWrapped(hit) && (hit + 1 == hits.size() || !areNeighbours(hit)))
                text.insert(hits[hit].end, m_LineEnd + "EXEC SQL END DECLARE SECTION;");
            text.erase(hits[hit].from, 1);
            if (isWrapped(hit) && (hit == 0 || !areNeighbours(hit - 1)))
                text.insert(hits[hit].from, "EXEC SQL BEGIN DECLARE SECTION;" + m_LineEnd);
        }
        return text;
    }

    std::string ReplaceDollars(std::string text) const
    {
        const boost::regex removed = Pattern(kRows);
        const boost::regex statement = Pattern(std::string(kStatements) + '|' + kSectionEnd);
        const boost::regex declaration =
            Pattern(std::string("[$](?=\\s*") + kBuiltIn + ")|[$](?=\\s*(?:parameter\\s+)?" + m_Types +
                    "[^\\r\\n]*?\\r?\\n)");
        std::vector<bool> isInStatement; // of each "$" that is left
        for (std::size_t at = text.find('$'); at != text.npos; at = text.find('$', at + 1))
            isInStatement.push_back(IsInStatement(text, at));
        for (bool isChanged = true; isChanged;) {
            isChanged = false;
            std::size_t ordinal = 0;
            for (std::size_t at = text.find('$'); at != text.npos; at = text.find('$', at + 1), ++ordinal) {
                const bool isStatement = IsHitAt(text, at, statement);
                if (IsInComment(text, at) || (!isStatement && !IsHitAt(text, at, removed) &&
                                              (isInStatement[ordinal] || !IsHitAt(text, at, declaration))))
                    continue;
                text.replace(at, 1, isStatement ? "EXEC SQL " : "");
                isInStatement.erase(isInStatement.begin() + static_cast<std::ptrdiff_t>(ordinal));
                isChanged = true;
                break;
            }
        }
        return text;
    }

    static std::string MarkVariables(std::string text)
    {
        static const boost::regex kStatement = Pattern("exec\\s+sql\\s+[^;]*;");
        const std::string source = text;
        for (const SHit& hit :
             Search(source, kStatement, [&](std::size_t at) { return !IsInComment(source, at); }))
            for (std::size_t at = hit.from; at < hit.end; ++at)
                if (text[at] == '$' && !IsInComment(source, at))
                    text[at] = ':';
        return text;
    }

    std::string m_LineEnd;
    std::string m_Types;
};

void CompareOverRandomTexts(const std::vector<std::string>& pieces, std::size_t longest, int count)
{
    std::mt19937 random(20);
    int changed = 0;
    for (int i = 0; i < count; ++i) {
        const std::string source = RandomText(random, pieces, longest);
        const std::string expected = CModel().Rewrite(source);
        ASSERT_EQ(static_cast<const std::string&>(RewriteEmbeddedSql(source).text), expected) << "source:\n"
                                                                                              << source;
        changed += expected != source;
    }
    EXPECT_GT(changed, count / 4);
}

TEST(ESQLModel, SourcesOfAllKinds)
{
    CompareOverRandomTexts({"$",
                            "$",
                            "$int ",
                            "$int x;",
                            "$ date d",
                            "$struct s",
                            "{",
                            "}",
                            "int a;",
                            ";",
                            ";",
                            "\n",
                            "\n",
                            "\r\n",
                            " ",
                            "/*",
                            "*/",
                            "//",
                            "$typedef int ab;",
                            "$typedef struct { int q; } ",
                            "$ab ",
                            "ab",
                            "$select a into ",
                            "$fetch\tc ",
                            "exec sql ",
                            "EXEC  SQL\n",
                            "$begin declare section;\n",
                            "$end declare section;\n",
                            "exec sql begin declare section ;",
                            "EXEC SQL END DECLARE SECTION;",
                            "$define X ",
                            "$endif",
                            "$var binary ",
                            "$fixed binary 'a;b' ",
                            "$parameter ",
                            "$VARCHAR v[2]",
                            "typedef ",
                            "x",
                            "$open",
                            "$typedef char c[3], *pc ;"},
                           14, 4000);
}

// Replacements that make hits of what stands before them.
TEST(ESQLModel, ReplacementsThatMakeHits)
{
    CompareOverRandomTexts({"$",
                            "$",
                            "$",
                            "$",
                            " ",
                            "\n",
                            "int",
                            "int ",
                            "big",
                            "lvar",
                            "char",
                            "date ",
                            "set",
                            "set ",
                            "ex",
                            "ec ",
                            "end",
                            "if",
                            "ifdef ",
                            "define ",
                            "type",
                            "type ",
                            "x",
                            "ab",
                            "parameter ",
                            "fixed",
                            "binary ",
                            "end ",
                            "declare ",
                            "section; ",
                            "$typedef int ab, ec, sel, xab, exe;\n",
                            ";",
                            "select ",
                            "//",
                            "\n"},
                           12, 6000);
}

} // namespace
