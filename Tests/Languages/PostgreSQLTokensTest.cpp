// What PostgreSQL's scanner makes of the bytes: literals, operators, comments, the client's own lines,
// colors.
#include "Tests/Languages/LanguageFixture.h"
#include "Tests/Languages/PostgreSQLJudge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <span>

namespace {

constexpr int kVariableColor = 9;

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
    const char* literal; // after "select "
    const char* tokens;  // after that of the word
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
    {"1_000",                    "INTEGER_NUMBER'1_000'"},
    {"0X1f_0, 0o17, 0B1_0",
     "INTEGER_NUMBER'0X1f_0' COMMA',' INTEGER_NUMBER'0o17' COMMA',' INTEGER_NUMBER'0B1_0'"},
    {"1_0.0_1, .5_0, 1_0.",
     "DECIMAL_NUMBER'1_0.0_1' COMMA',' DECIMAL_NUMBER'.5_0' COMMA',' DECIMAL_NUMBER'1_0.'"},
    {"1_0.2_5e-1_0",             "REAL_NUMBER'1_0.2_5e-1_0'"},
    {"1_",                       "refused"},
    {"1__0",                     "refused"},
    {"1._5",                     "refused"},
    {"1e_5",                     "refused"},
    {"0x",                       "refused"},
    {"0x1G",                     "refused"},
    {"0o8",                      "refused"},
    {"0b12",                     "refused"},
    {"_1_0",                     "IDENTIFIER'_1_0'"},
    {"$12",                      "PARAMETER_NUMBER'$12'"},
    {"$1a",                      "refused"},
    {":v, :'v', :\"v\"",
     "CLIENT_VARIABLE':v' COMMA',' CLIENT_STRING':'v'' COMMA',' CLIENT_IDENTIFIER':\"v\"'"},
    {"a[1:v]",
     "IDENTIFIER'a' LBRACKET'[' INTEGER_NUMBER'1' COLON':' IDENTIFIER'v' RBRACKET']'"},
    {"a::b",                     "IDENTIFIER'a' TYPECAST'::' IDENTIFIER'b'"},
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
    {"$1 \\bind 2 'a \\g' \\gx f\nselect 2",
     "PARAMETER_NUMBER'$1' CLIENT_SEND'\\bind 2 'a \\g' \\gx f' SELECT'select' INTEGER_NUMBER'2'"},
    {"$1 \\bind 'a \\g'\n;",          "PARAMETER_NUMBER'$1' SEMICOLON';'"},
    {"1 \\parse a\n\\bind_named a \\g",
     "INTEGER_NUMBER'1' CLIENT_SEND'\\parse a' CLIENT_SEND'\\bind_named a \\g'"},
    {"1 \\sendpipeline\n\\syncpipeline\n",  "INTEGER_NUMBER'1' CLIENT_SEND'\\sendpipeline' CLIENT_COMMAND'\\syncpipeline'"},
};
// clang-format on

TEST(PostgreSQLTokens, TextIsCutWhereTheServerCutsIt)
{
    for (const std::span<const SLiteralCase> cases :
         {std::span<const SLiteralCase>(kLiterals), std::span<const SLiteralCase>(kSkipped)})
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

struct SColonCase
{
    const char* expression;
    const char* variables; // the client's, blanks between
};

// clang-format off
constexpr SColonCase kColons[] = {
    {"a[i:j]",                     ""},
    {"a[:n]",                      ""},
    {"a[ :n ]",                    ""},
    {"a[n:]",                      ""},
    {"a[:]",                       ""},
    {"a[1:2][:3][:n]",             ""},
    {"x['a':'b']",                 ""},
    {"x[:'b']",                    ""},
    {"x[\"a\":\"b\"]",             ""},
    {"a[i - 1 :j + 1]",            ""},
    {"a[f(x, (1)):g(y)]",          ""},
    {"a[i::int:j::int]",           ""},
    {"a[:j::int]",                 ""},
    {"a[b[i:j]:c[k:l]]",           ""},
    {"a[:c[k:l]]",                 ""},
    {"array[a[i:j], b[:n]]",       ""},
    {"a[start:end_]",              ""},
    {"a[1: :n]",                   ":n"},
    {"a[:lo : :hi]",               ":lo :hi"},
    {"a[:lo:hi]",                  ":lo :hi"},
    {"a[i + :n]",                  ":n"},
    {"a[:m * :n]",                 ":m :n"},
    {"a[f(:v)]",                   ":v"},
    {"a[i -- b :c\n]",             ""},
    {"a[i -- b :c\n], :v",         ":v"},
    {"array[:a]",                  ":a"},
    {"array [:'a', f(b), :\"c\"]", ":'a' :\"c\""},
    {"array[[:a, :b], [1, :c]]",   ":a :b :c"},
    {":a[1]",                      ":a"},
};
// clang-format on

TEST(PostgreSQLTokens, ColonsInBracketsSeparateBounds)
{
    for (const SColonCase& c : kColons) {
        const std::string text = std::string("select ") + c.expression + " from t";
        SCOPED_TRACE(text);
        EXPECT_TRUE(ParseWhole(PostgreSQL(), text).IsClean());
        std::string variables;
        std::vector<SByteRange> tokens;
        for (const SColoredRange& range : PostgreSQL().Scan(text)) {
            if (range.color == kVariableColor)
                variables += (variables.empty() ? "" : " ") + text.substr(range.from, range.end - range.from);
            if (range.color != kCommentColor)
                tokens.push_back({range.from, range.end});
        }
        EXPECT_EQ(variables, c.variables);
        if (variables.empty()) {
            EXPECT_EQ(tokens, JudgeScan(text));
        }
    }
}

std::string WithLineEnds(std::string text, const std::string& end)
{
    for (std::size_t at = text.find('\n'); at != text.npos; at = text.find('\n', at + end.size()))
        text.replace(at, 1, end);
    return text;
}

// Data follow their COPY up to a line of its own; nothing in them is a token.
TEST(PostgreSQLTokens, CopiedDataAreSkippedWhateverTheyHold)
{
    constexpr const char* kHeads[] = {
        "copy t from stdin;\n",
        "COPY s.\"t;\" (a, \"b)\")FROM STDIN WITH (FORMAT csv);\n",
        "copy binary :s . t/* ; */from -- ;\n stdin /* ; /* */ ; */ delimiter ','; -- fails\n",
        "copy t from stdin \\g\n",
        "\\copy t (a, b) from stdin with csv\n",
    };
    constexpr const char* kData[] = {
        "1\t2\n",
        "",
        "select 1\n",
        "select 1;\n",
        "create table x;\n1\t2\nselect 1;\n",
        "insert\tinto;\n",
        "copy t from stdin;\n",
        "it's\n$$\n/*\n",
        "a\\.b\n\\\\.\n \\.\n\\.x\n",
        "commit;\n\\.x\n\n\\\n",
        "x;\ny\n;\n",
    };
    for (const char* const head : kHeads)
        for (const char* const data : kData)
            for (const char* const lineEnd : {"\n", "\r\n"}) {
                const std::string text = WithLineEnds(std::string(head) + data + "\\.\nselect 2;", lineEnd);
                SCOPED_TRACE(text);
                const SLanguageParse parse = ParseWhole(PostgreSQL(), text);
                EXPECT_TRUE(parse.IsClean());
                const std::vector<SElement> statements = CSyntaxTree(parse.tree).Statements();
                ASSERT_EQ(statements.size(), head[0] == '\\' ? 1u : 2u);
                EXPECT_EQ(statements.back().from, text.find("select 2;"));
            }
}

struct SCopyCase
{
    const char* script;
    const char* statements; // a bar between them
};

// clang-format off
constexpr SCopyCase kCopies[] = {
    // without the line that ends them, data go on to a statement of one line, or to the end of the text
    {"copy t from stdin;\n1\t2",                          "copy t from stdin;"},
    {"copy t from stdin;\nselect 1;\nselect 2;",          "copy t from stdin;|select 1;|select 2;"},
    {"copy t from stdin;\n1\nselect\t1;\nselect 2; x\n",  "copy t from stdin;"},
    {"copy t from stdin;\ncommit;\ncopy u from stdin;\n1\nbegin;\n\\.x",
     "copy t from stdin;|commit;|copy u from stdin;|begin;"},
    {"copy t from stdin;\ncommit;\n\\.",                  "copy t from stdin;"},
    {"copy t from stdin;\n\\.",                           "copy t from stdin;"},
    {"copy t from stdin;\n1\n\\.\ncopy u from stdin;\nselect 1;",
     "copy t from stdin;|copy u from stdin;|select 1;"},
    // the rest of the line isn't data yet
    {"copy t from stdin; select 1;\n2;\n\\.\nselect 3;",  "copy t from stdin;|select 1;|select 3;"},
    // what looks similar has no data
    {"copy t to stdout;\nselect 1;",                      "copy t to stdout;|select 1;"},
    {"copy t from 'stdin';\nselect 1;",                   "copy t from 'stdin';|select 1;"},
    {"copy t from program 'from stdin';\nselect 1;",      "copy t from program 'from stdin';|select 1;"},
    {"copy (select a from stdin) to stdout;\nselect 1;",  "copy (select a from stdin) to stdout;|select 1;"},
    {"select a from stdin;\nselect 1;",                   "select a from stdin;|select 1;"},
    {"select copy from stdin;\nselect 1;",                "select copy from stdin;|select 1;"},
    {"\\copy t to stdout\nselect 1;",                     "select 1;"},
    {"\\copy t from stdins\nselect 1;",                   "select 1;"},
    {"\\copy (select a from stdin) to 'f'\nselect 1;",    "select 1;"},
};
// clang-format on

TEST(PostgreSQLTokens, CopiedDataEndWhereNoStatementIsLost)
{
    for (const SCopyCase& c : kCopies) {
        const std::string script = c.script;
        const SLanguageParse parse = ParseWhole(PostgreSQL(), script);
        EXPECT_TRUE(parse.IsClean()) << script;
        std::string statements;
        for (const SElement& statement : CSyntaxTree(parse.tree).Statements())
            statements += (statements.empty() ? "" : "|") +
                          script.substr(statement.from, statement.end - statement.from);
        EXPECT_EQ(statements, c.statements) << script;
    }
}

// Random texts of some pieces, cut by both scanners.
// Returns: how many texts the server's scanner takes.
int CompareRandomRuns(std::span<const char* const> pieces, std::size_t mostPieces)
{
    std::mt19937 random(1996);
    int judged = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t length = 1 + random() % mostPieces; length > 0; --length)
            text += pieces[random() % pieces.size()];
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
        EXPECT_EQ(show(tokens), show(*expected)) << text;
        if (testing::Test::HasFailure())
            break;
    }
    return judged;
}

// Runs of the characters that operators, numbers, comments and strings are made of.
TEST(PostgreSQLTokens, RandomRunsAreCutAsTheServerCutsThem)
{
    // clang-format off
    constexpr const char* kPieces[] = {
        "+", "-", "*", "/", "<", ">", "=", "~", "!", "@", "#", "%", "^", "&", "|", "`", "?", "+", "-", "*",
        "/", "<", ">", "=", " ", "\n", "a", "1", ".", "..", "1e5", " $1", "'s'", " E'\\''", "\"q\"", "::",
        ":=", "=>", "(", "]", ",", ";", "--", "/*", "*/", "e", "x", "0", "_", "\xC3\xA9", "''"};
    constexpr const char* kSigns[] = {"+", "+", "+-", "-", "-+", "/", "*", "<", "@", " ", "a", "/**/", "--\n"};
    // clang-format on
    EXPECT_GT(CompareRandomRuns(kPieces, 10), 7000);
    EXPECT_GT(CompareRandomRuns(kSigns, 15), 7000);
}

TEST(PostgreSQLColoring, EveryClassHasItsColor)
{
    EXPECT_EQ(
        ShownColors(PostgreSQL(),
                    "select n\xC3\xA4me.\"Q\"\"\" ->> 'a''b', -- 'c'\n 1.5e3::int[2] = $1 /** /* d */*/, :v"
                    " ! U&\"e\" $f$g $$f$;\n\\echo h 'i'\n"),
        "1select 2n\xC3\xA4me 8. 3\"Q\"\"\" 7->> 4'a''b' 8, 6-- 'c' 51.5e3 7:: 1int 8[ 52 8] 7= 9$1 6/* 6* 6 "
        " 6/* 6 d  "
        "6*/ 6*/ 8, 9:v 7! 3U&\"e\" 4$f$ 4g  4$ 4$f$ 8; 6\\echo h 'i' ");
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
