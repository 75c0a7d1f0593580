// What PostgreSQL's scanner makes of the bytes: literals, operators, comments, the client's own lines,
// colors.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/UVParser.h"
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <span>

namespace {

// The tokens of a text that parses cleanly, as NAME'text' without the names' leading T__, blanks between.
std::string TokensOf(const std::string& text)
{
    const SLanguageParse parse = PostgreSQL().Parse(text);
    if (!parse.IsClean())
        return "refused";
    const CSyntaxTree tree(parse.tree);
    EXPECT_EQ(tree.Text(), text);
    std::string tokens;
    for (const SElement& element : tree.Elements())
        if (element.isToken)
            tokens += (tokens.empty() ? "" : " ") + element.name.substr(3) + "'" + element.text + "'";
    return tokens;
}

struct SLiteralCase
{
    const char* literal; // behind "select "
    const char* tokens;  // behind that of the word
};

// clang-format off
constexpr SLiteralCase kLiterals[] = {
    {"'a''b'",                   "STRING''a''b''"},
    {"'a\\'",                    "STRING''a\\''"},   // a backslash is itself
    {"'a'\n'b'",                 "STRING''a'\n'b''"},
    {"'a' -- c'\n  'b'",         "STRING''a' -- c'\n  'b''"},
    {"E'\\'a\\\\'",              "ESCAPE_STRING'E'\\'a\\\\''"},
    {"U&'\\0061'",               "UNICODE_STRING'U&'\\0061''"},
    {"u&'!0061' uescape '!'",    "UNICODE_STRING'u&'!0061' uescape '!''"},
    {"U&\"a\"\"b\"",             "UNICODE_IDENTIFIER'U&\"a\"\"b\"'"},
    {"u & 'a'",                  "IDENTIFIER'u' OPERATOR_SYMBOL'&' STRING''a''"},
    {"B'01' '1'",                "refused"},         // no line end between the pieces
    {"B'01'",                    "BIT_STRING'B'01''"},
    {"x'1F'\n'2'",               "HEX_STRING'x'1F'\n'2''"},
    {"\"a\"\"b\n\"",             "QUOTED_IDENTIFIER'\"a\"\"b\n\"'"},
    {"\xC3\xA4$1_",              "IDENTIFIER'\xC3\xA4$1_'"},
    {"$$$$",                     "DOLLAR_QUOTE_BEGIN'$$' DOLLAR_QUOTE_END'$$'"},
    {"$a$b$a$",                  "DOLLAR_QUOTE_BEGIN'$a$' DOLLAR_QUOTED_TEXT'b' DOLLAR_QUOTE_END'$a$'"},
    {"a$b$ from c$d$",           "IDENTIFIER'a$b$' FROM'from' IDENTIFIER'c$d$'"},
    {"1",                        "INTEGER_NUMBER'1'"},
    {"1.",                       "DECIMAL_NUMBER'1.'"},
    {".5",                       "DECIMAL_NUMBER'.5'"},
    {"1e10",                     "REAL_NUMBER'1e10'"},
    {"1e",                       "refused"},
    {"1a",                       "refused"},
    {"$12",                      "PARAMETER_NUMBER'$12'"},
    {"$1a",                      "refused"},
    {":v, :'v', :\"v\", a[1:v]",
     "CLIENT_VARIABLE':v' COMMA',' CLIENT_STRING':'v'' COMMA',' CLIENT_IDENTIFIER':\"v\"' COMMA',' "
     "IDENTIFIER'a' LBRACKET'[' INTEGER_NUMBER'1' CLIENT_VARIABLE':v' RBRACKET']'"},
    {"a::b",                     "IDENTIFIER'a' TYPECAST'::' IDENTIFIER'b'"},
};

constexpr SLiteralCase kOperators[] = {
    {"a+--b\n1",  "IDENTIFIER'a' PLUS'+' INTEGER_NUMBER'1'"},
    {"a@--b\n1",  "IDENTIFIER'a' OPERATOR_SYMBOL'@' INTEGER_NUMBER'1'"},
    {"@-1",       "OPERATOR_SYMBOL'@-' INTEGER_NUMBER'1'"},
    {"a<=-1",     "IDENTIFIER'a' LESS_EQUAL'<=' MINUS'-' INTEGER_NUMBER'1'"},
    {"a!=-1",     "IDENTIFIER'a' OPERATOR_SYMBOL'!=-' INTEGER_NUMBER'1'"},
    {"a>/-1",     "IDENTIFIER'a' OPERATOR_SYMBOL'>/' MINUS'-' INTEGER_NUMBER'1'"},
    {"a@///*b*/1", "IDENTIFIER'a' OPERATOR_SYMBOL'@//' INTEGER_NUMBER'1'"},
};

constexpr SLiteralCase kSkipped[] = {
    {"1/* a /* b */ c */+2",         "INTEGER_NUMBER'1' PLUS'+' INTEGER_NUMBER'2'"},
    {"1/*/**/*/+2",                  "INTEGER_NUMBER'1' PLUS'+' INTEGER_NUMBER'2'"},
    {"1/***/+2/* ' */",              "INTEGER_NUMBER'1' PLUS'+' INTEGER_NUMBER'2'"},
    {"/* $a$ -- */1 -- /* '",        "INTEGER_NUMBER'1'"},
    {"a /*b*/ not /*c*/ in (1)",
     "IDENTIFIER'a' NOT_LA'not' IN'in' LPAREN'(' INTEGER_NUMBER'1' RPAREN')'"},
    {"a not--in\n and b not like c", "refused"},
    {"1\n\\echo it's; \"x\n, 2",     "INTEGER_NUMBER'1' COMMA',' INTEGER_NUMBER'2'"},
    {"1 \\gset x_\nselect 2",
     "INTEGER_NUMBER'1' CLIENT_SEND'\\gset x_' SELECT'select' INTEGER_NUMBER'2'"},
};
// clang-format on

TEST(PostgreSQLTokens, TextIsCutWhereTheServerCutsIt)
{
    for (const std::span<const SLiteralCase> cases :
         {std::span<const SLiteralCase>(kLiterals), std::span<const SLiteralCase>(kOperators),
          std::span<const SLiteralCase>(kSkipped)})
        for (const SLiteralCase& c : cases) {
            const std::string tokens = TokensOf(std::string("select ") + c.literal);
            const std::string expected = c.tokens;
            EXPECT_EQ(tokens, expected == "refused" ? expected : "SELECT'select' " + expected) << c.literal;
        }
}

// What is inside a dollar-quoted string comes in pieces, none of which may end it.
TEST(PostgreSQLTokens, DollarQuotesEndAtTheirOwnTagAlone)
{
    for (const char* const inside : {"$b$", "$$", "$", "$b", "$ab$", "$a", "$a $a", "$$a$b", "'", "--\n",
                                     "/*", "$1$", "a$", "\\", ";", "$A$", "\xC3\xA9$\xC3\xA9"}) {
        const std::string text = "select $a$" + std::string(inside) + "$a$, 1";
        SCOPED_TRACE(text);
        EXPECT_TRUE(JudgeAccepts(text));
        const SLanguageParse parse = PostgreSQL().Parse(text);
        ASSERT_TRUE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        std::string string;
        for (const SElement& token : tree.Tokens(tree.Elements().front()))
            if (token.name.starts_with("T__DOLLAR_QUOTE"))
                string += token.text;
        EXPECT_EQ(string, "$a$" + std::string(inside) + "$a$");
        EXPECT_TRUE(tree.Holds("select_list(dollar_string '1')"));
    }
}

// Data follow their COPY up to a line of its own; nothing in them is a token.
TEST(PostgreSQLTokens, CopiedDataAreSkippedWhateverTheyHold)
{
    for (const char* const data :
         {"1\t2\n", "", "select 1\n", "it's\n$$\n/*\n", "a\\.b\n\\\\.\n \\.\n", "x;\ny\n;\n"}) {
        const std::string text = "copy t from stdin;\n" + std::string(data) + "\\.\nselect 2;";
        SCOPED_TRACE(text);
        const SLanguageParse parse = PostgreSQL().Parse(text);
        EXPECT_TRUE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Text(), text);
        const std::vector<SElement> statements = tree.Statements();
        ASSERT_EQ(statements.size(), 2u);
        EXPECT_EQ(statements[1].from, text.find("select 2;"));
    }
}

// Runs of the characters that operators, numbers, comments and strings are made of, cut by both scanners.
TEST(PostgreSQLTokens, RandomRunsAreCutAsTheServerCutsThem)
{
    // clang-format off
    constexpr const char* kPieces[] = {
        "+", "-", "*", "/", "<", ">", "=", "~", "!", "@", "#", "%", "^", "&", "|", "`", "?", "+", "-", "*",
        "/", "<", ">", "=", " ", "\n", "a", "1", ".", "..", "1e5", " $1", "'s'", " E'\\''", "\"q\"", "::",
        ":=", "=>", "(", "]", ",", ";", "--", "/*", "*/", "e", "x", "0", "_", "\xC3\xA9", "''"};
    // clang-format on
    std::mt19937 random(1996);
    int judged = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t length = 1 + random() % 10; length > 0; --length)
            text += kPieces[random() % std::size(kPieces)];
        text += '\n';
        // The judge doesn't join the pieces of a string over a comment, as the server does.
        const bool mayJoin = text.find("--") != text.npos && text.find('\'') != text.npos;
        const auto expected = JudgeScan(text);
        if (!expected || mayJoin)
            continue;
        ++judged;
        std::vector<SByteRange> tokens;
        for (const SColoredRange& range : PostgreSQL().Scan(text))
            if (range.color != kCommentColor)
                tokens.push_back({range.from, range.end});
        const auto show = [&](const std::vector<SByteRange>& ranges) {
            std::string shown;
            for (const SByteRange& range : ranges)
                shown += '[' + text.substr(range.from, range.end - range.from) + ']';
            return shown;
        };
        ASSERT_EQ(show(tokens), show(*expected)) << text;
    }
    EXPECT_GT(judged, 7000);
}

// The road that a host takes to a coloring map.
std::string ColoringMap(const char* text)
{
    CUVDBSQLParser parser;
    parser.Load("PostgreSQL");
    parser.set_DatabaseInfo(UVDBMakeObject<CUVDBDatabaseInfo>(MakeDbVersionInfo(
        UVDB_DB_POSTGRESQL, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD)));
    parser.Init("-cl");
    parser.set_Query(text);
    parser.Parse(false);
    Uve::U8CString map;
    parser.get_ColoringMap(map);
    // behind the declaration that every result gets
    return map.substr(map.find("?>") + 2);
}

// clang-format off
constexpr std::pair<int, const char*> kColors[] = {
    {1, "select"}, {2, "n\xC3\xA4me"}, {8, "."}, {3, "\"Q\"\"\""}, {7, "->>"}, {4, "'a''b'"}, {8, ","},
    {6, "-- 'c'"}, {5, "1.5e3"}, {7, "::"}, {1, "int"}, {8, "["}, {5, "2"}, {8, "]"}, {7, "="},
    {9, "$1"}, {6, "/** /* d */*/"}, {8, ","}, {9, ":v"}, {7, "!"}, {3, "U&\"e\""}, {4, "$f$g $$f$"},
    {8, ";"}, {6, "\\echo h 'i'"},
};
// clang-format on

TEST(PostgreSQLColoring, EveryClassHasItsColor)
{
    constexpr char kText[] =
        "select n\xC3\xA4me.\"Q\"\"\" ->> 'a''b', -- 'c'\n 1.5e3::int[2] = $1 /** /* d */*/, :v ! U&\"e\""
        " $f$g $$f$;\n\\echo h 'i'\n";
    const std::string_view text = kText;
    std::string expected, actual;
    int lastColor = 0;
    for (const auto& [color, piece] : kColors)
        expected += (expected.empty() ? "" : "\n") + std::to_string(color) + ' ' + piece;
    std::size_t end = 0;
    for (const SColoredRange& range : ReadColoring(ColoringMap(kText))) {
        EXPECT_GE(range.from, end) << "ranges overlap";
        EXPECT_LT(range.from, range.end);
        ASSERT_LE(range.end, text.size());
        // comments and dollar-quoted strings come in pieces
        if (range.color != lastColor || range.from != end)
            actual += (actual.empty() ? "" : "\n") + std::to_string(range.color) + ' ';
        actual += text.substr(range.from, range.end - range.from);
        end = range.end;
        lastColor = range.color;
    }
    EXPECT_EQ(actual, expected);
}

// Whatever the text, the map is in order, inside the text, and leaves out nothing but white space and data.
TEST(PostgreSQLColoring, RangesPartTheText)
{
    for (const std::string& path : SamplePaths("PostgreSQL")) {
        const std::string text = ReadFile(path);
        for (std::size_t length = text.size(); length > 0; length -= std::min<std::size_t>(length, 17)) {
            const std::string part = text.substr(0, length);
            std::size_t end = 0;
            std::string between;
            for (const SColoredRange& range : PostgreSQL().Scan(part)) {
                ASSERT_GE(range.from, end) << path;
                ASSERT_GT(range.end, range.from) << path;
                ASSERT_LE(range.end, length) << path;
                between += part.substr(end, range.from - end);
                end = range.end;
            }
            between += part.substr(end);
            if (part.find("stdin") == part.npos) {
                ASSERT_EQ(between.find_first_not_of(" \t\n"), between.npos)
                    << path << ", " << length << " bytes";
            }
        }
    }
}

} // namespace
