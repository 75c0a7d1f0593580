// Token lists: reading, operators, folding, writing back.
#include "Tests/Preparation/MacroFixture.h"

#include <gmock/gmock.h>

#include <set>

using namespace MacroPreprocessorChecker::internal;
using testing::ElementsAreArray;

namespace {

struct SRead
{
    explicit SRead(std::string_view text, bool isHidden = false) : list(store)
    {
        list.readtext(std::string(text), "a.c", errors, isHidden);
    }
    TokenStore store;
    ErrorList errors;
    TokenList list;
};

struct STokensCase
{
    const char* text;
    std::vector<std::string> tokens;
};

const STokensCase kTokens[] = {
    {"a1 $b _c 1'000 0x1F", {"a1", "$b", "_c", "1'000", "0x1F"}},
    {"x'a' L'b' u8\"c\" U\"d\" xu\"e\"", {"x", "'a'", "L'b'", "u8\"c\"", "U\"d\"", "xu", "\"e\""}},
    {"\"a\\\"b\" '\\''", {"\"a\\\"b\"", "'\\''"}},
    {"\"a\\\nb\" c", {"\"ab\"", "c"}},
    {"R\"x(a\"\n\\)x\" uR\"(b)\"", {"\"a\\\"\\n\\\\\"", "u\"b\""}},
    {"a /* b\n * c */ d // e\\\nf\ng", {"a", "/* b\n * c */", "d", "// e\\\nf", "g"}},
    {"/*a\\\nb*/ c", {"/*ab*/", "c"}},
    {"#include <a/b.h>\na<b>", {"#", "include", "<a/b.h>", "a", "<", "b", ">"}},
    {"#include_next <a>", {"#", "include_next", "<", "a", ">"}},
    {"#error it's /* so\nb", {"#", "error", "it's /* so", "b"}},
    {"\xEF\xBB\xBF"
     "a",
     {"a"}},
    {"\x01"
     "a\x7F",
     {"a", "\x7F"}},
    // joining
    {"a=b==c!=d<=e>=f", {"a", "=", "b", "==", "c", "!=", "d", "<=", "e", ">=", "f"}},
    {"a<<=b>>=c<<d>>e->f::g", {"a", "<<=", "b", ">>=", "c", "<<", "d", ">>", "e", "->", "f", "::", "g"}},
    {"a = = b & & c - > d", {"a", "=", "=", "b", "&", "&", "c", "-", ">", "d"}},
    {"f(...) . .. a....b", {"f", "(", "...", ")", ".", ".", ".", "a", "...", ".", "b"}},
    {"1.5 1. .5 1.5e+3f 1e-5 0x1.8p-3 2.0f", {"1.5", "1.", ".5", "1.5e+3f", "1e-5", "0x1.8p-3", "2.0f"}},
    {"0xe+1 1+2 a.b 1 .5", {"0xe", "+", "1", "1", "+", "2", "a", ".", "b", "1", ".5"}},
    {"x++; f() { x++; y--; }", {"x", "+", "+", ";", "f", "(", ")", "{", "x", "++", ";", "y", "--", ";", "}"}},
    {"void f(int &=g); h() { a &= b; }",
     {"void", "f", "(", "int", "&", "=", "g", ")", ";", "h", "(", ")", "{", "a", "&=", "b", ";", "}"}},
    {"int a *= 2;", {"int", "a", "*=", "2", ";"}},
    // over a line's end nothing is joined
    {"a &\n&b.\n.\n.c", {"a", "&", "&", "b", ".", ".", ".", "c"}},
    {"2.\nB 2\n.5 1e\n+1 .\n5", {"2.", "B", "2", ".5", "1e", "+", "1", ".", "5"}},
};

TEST(MacroTokens, TextsAreCutIntoTokens)
{
    for (const auto& c : kTokens) {
        SCOPED_TRACE(c.text);
        const SRead read(c.text);
        EXPECT_TRUE(read.errors.empty());
        EXPECT_THAT(MacroTokens(read.list), ElementsAreArray(c.tokens));
    }
}

TEST(MacroTokens, WideTextsAreReadByTheirMark)
{
    using namespace std::string_view_literals;
    EXPECT_THAT(MacroTokens(SRead("\xFF\xFE"
                                  "a\0\n\0b\0"sv)
                                .list),
                ElementsAreArray({"a", "b"}));
    EXPECT_THAT(MacroTokens(SRead("\xFE\xFF\0a\0\r\0\n\0b"sv).list), ElementsAreArray({"a", "b"}));
    const SRead foreign("\xFF\xFE\xE9\x00"sv);
    ASSERT_EQ(foreign.errors.size(), 1u);
    EXPECT_THAT(foreign.errors.front().msg, testing::HasSubstr("(character code=255)"));
}

struct SErrorCase
{
    const char* text;
    enErrorType type;
    std::uint32_t line;
    const char* message;
};

constexpr SErrorCase kErrors[] = {
    {"a\nb \xE9", UNHANDLED_CHARACTER, 2,
     "The code contains unhandled character(s) (character code=233). Neither unicode nor extended ascii is "
     "supported."},
    {"a\n'b\nc'", SYNTAX_ERROR, 2,
     "No pair for character ('). Can't process file. File is either invalid or unicode, which is currently "
     "not "
     "supported."},
    {"\"a", SYNTAX_ERROR, 1,
     "No pair for character (\"). Can't process file. File is either invalid or unicode, which is currently "
     "not "
     "supported."},
    {"\n#include <a", SYNTAX_ERROR, 2,
     "No pair for character (<). Can't process file. File is either invalid or unicode, which is currently "
     "not "
     "supported."},
    {"R\"a\nb(c)a\nb\"", SYNTAX_ERROR, 1, "Invalid newline in raw string delimiter."},
    {"R\"a(b)\"", SYNTAX_ERROR, 1, "Raw string missing terminating delimiter."},
    {"a\n\n/* b\n", SYNTAX_ERROR, 3, "No end of the comment."},
};

TEST(MacroTokens, WhatCannotBeReadEmptiesTheList)
{
    for (const auto& c : kErrors) {
        SCOPED_TRACE(c.text);
        const SRead read(c.text);
        EXPECT_TRUE(read.list.empty());
        ASSERT_EQ(read.errors.size(), 1u);
        EXPECT_EQ(read.errors.front().type, c.type);
        EXPECT_EQ(read.errors.front().location.line, c.line);
        EXPECT_EQ(read.errors.front().msg, c.message);
    }
}

TEST(MacroTokens, BlanksBehindAContinuationAreReportedAndReadingGoesOn)
{
    for (const char* text : {"a \\ \nb", "a \\\t\nb", "// a \\ \nb\nc"}) {
        SCOPED_TRACE(text);
        const SRead read(text);
        ASSERT_EQ(read.errors.size(), 1u);
        EXPECT_EQ(read.errors.front().type, PORTABILITY);
        EXPECT_EQ(read.errors.front().msg, "Combination 'backslash space newline' is not portable.");
        EXPECT_FALSE(read.list.empty());
    }
}

TEST(MacroTokens, ForeignBytesMayStandInCommentsStringsAndMessages)
{
    for (const char* text : {"/* \xE9 */", "// \xE9", "\"\xE9\"", "#error a\xE9"}) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(SRead(text).errors.empty());
    }
}

// What the reader doesn't change comes back byte for byte, save for the last line's end.
constexpr const char* kKept[] = {
    "int  a;\t\t// x  ",
    "  a\n\n\n\tb \n  \n c",
    "#define A(x) x \\\n  y \\\n\tz\nint b;\n\n\nint c;",
    "/* a\n   b */ c /* d\n\n */\ne",
    "#define A /* x\n y */ 1\nb\n\nc",
    "a // b \\\n c \\\n d\ne",
    "a \\\n\\\n\nb",
    "#line 7 \"x.y\"\na\n#line 1000000000\nb\n# file \"z\"\nc\n# endfile\nd",
    "\\\n# \\\n if 1\n#endif",
    "#error don't \\\n  do \"this\nx",
    "default:\n::a = 1.\n+2 <\n<\n=b",
};

TEST(MacroTokens, SourcesComeBackAsTheyAre)
{
    for (const char* text : kKept) {
        SCOPED_TRACE(text);
        const SRead read(text);
        ASSERT_TRUE(read.errors.empty());
        std::vector<std::uint32_t> lines;
        EXPECT_EQ(read.list.ToText(&lines), text);
        for (std::size_t i = 0; i < lines.size(); ++i)
            EXPECT_EQ(lines[i], i + 1);
    }
    EXPECT_EQ(SRead("a\r\nb\rc").list.ToText(), "a\nb\nc");
    EXPECT_EQ(SRead("\"a\\\nb\" c\nd").list.ToText(), "\"ab\" c\n\nd"); // the line that went is made up for
    EXPECT_EQ(SRead("a b", true).list.ToText(), "");
}

TEST(MacroTokens, PiecesGiveTheTokensOfTheWhole)
{
    std::string text;
    for (const char* kept : kKept)
        text += std::string(kept) + "\n";
    for (const auto& c : kTokens)
        text += std::string(c.text) + " ;\n";
    text.erase(text.find("\xEF\xBB\xBF"), 3);
    const SRead whole(text);
    ASSERT_TRUE(whole.errors.empty());
    for (const std::size_t count : {1u, 2u, 3u, 7u}) {
        SCOPED_TRACE(count);
        SRead pieces("");
        TokenReader reader(pieces.list, text, "a.c", pieces.errors, false);
        int reads = 1;
        while (reader.Read(count))
            ++reads;
        EXPECT_GT(reads, 20);
        EXPECT_EQ(MacroTokens(pieces.list), MacroTokens(whole.list));
        EXPECT_EQ(pieces.list.ToText(), whole.list.ToText());
    }
}

std::string Told(const ErrorList& errors)
{
    std::string told;
    for (const ErorrOutput& error : errors)
        told += std::to_string(error.location.line) + ':' + std::to_string(error.location.col) + ' ' +
                error.msg + '\n';
    return told;
}

// What is skimmed is passed over by other rules than what is read, and must not hide a message.
TEST(MacroTokens, SkimmingTellsWhatReadingTells)
{
    const char* const fronts[] = {
        "",           "int a; ",       "x = 1'0 ",         "f(u8\"q\", L'\\'') / 2 ",
        "a \\ b ",    "\\ ",           "a \\\n b ",        "a /* b\n */ c ",
        "#define A ", "#if 0\na\n#b ", "int R\"(a\nb)\" ", "\"a\\\nb\" "};
    const char* const ends[] = {"\xE9",   "'b\nc'", "\"a",   "R\"a(b)\"",   "R\"a\nb(c)a\nb\"",
                                "/* b\n", "\\ \nb", "\\\nb", "// a \\ \nb", "b\n#include <a",
                                "c"};
    for (const std::string front : fronts)
        for (const std::string end : ends)
            for (const std::size_t count : {1U, 1000U}) {
                const std::string text = "z;\n" + front + end + "\n#error d\n";
                SCOPED_TRACE(text);
                const SRead read(text);
                SRead skimmed("");
                TokenReader reader(skimmed.list, text, "a.c", skimmed.errors, false);
                while (reader.Skim(count))
                    skimmed.list.clear();
                EXPECT_EQ(Told(skimmed.errors), Told(read.errors));
            }
}

TEST(MacroTokens, LineDirectivesMoveLocations)
{
    const SRead read(
        "a\n#line 10\nb\n#line 20 \"d\\\\e.y\"\nc\n# 30 \"f.y\"\nd\n# file \"g.y\"\ne\n# endfile\nf");
    const auto where = [&](const char* name) {
        for (const Token* token = read.list.first; token != nullptr; token = token->next)
            if (token->str == name && token->previous != nullptr && token->previous->op != '#')
                return read.store.FileName(token->location) + ':' + std::to_string(token->location.line);
        return std::string("none");
    };
    EXPECT_EQ(where("b"), "a.c:10");
    EXPECT_EQ(where("c"), "d\\e.y:20");
    EXPECT_EQ(where("d"), "f.y:30");
    EXPECT_EQ(where("e"), "g.y:1");
    EXPECT_EQ(where("f"), "f.y:32");
}

TEST(MacroTokens, ADirectiveThatHardlyMovesLeavesTheList)
{
    EXPECT_THAT(MacroTokens(SRead("a\n#line 3\nb").list), ElementsAreArray({"a", "b"}));
    EXPECT_THAT(MacroTokens(SRead("a\n#line 4\nb").list), ElementsAreArray({"a", "b"}));
    EXPECT_EQ(MacroTokens(SRead("a\n#line 5\nb").list).size(), 5u);
    EXPECT_EQ(MacroTokens(SRead("a\n#line 2\nb").list).size(), 5u);
    EXPECT_EQ(MacroTokens(SRead("a\n#line 3 \"b.c\"\nb").list).size(), 6u);
}

TEST(MacroTokens, DeletedTokensLeaveTheOthersAsTheyWere)
{
    SRead read("a \\\n\tb c");
    TokenList copy(read.store);
    for (const Token* token = read.list.first; token != nullptr; token = token->next)
        copy.push_back(*token);
    read.list.DeleteBefore(read.list.last->previous);
    read.list.deleteToken(read.list.last);
    EXPECT_EQ(read.list.ToText(), " ");
    read.list.push_back("d", copy.first->location);
    EXPECT_EQ(read.list.ToText(), " d");
    EXPECT_EQ(copy.ToText(), "a \\\n\tb c");
    read.list.clear();
    EXPECT_TRUE(read.list.empty());
    EXPECT_EQ(copy.ToText(), "a \\\n\tb c");
}

// ---- Names ----

TEST(MacroNames, EachHasANumberOfItsOwn)
{
    TokenStore store;
    std::vector<std::string> names;
    for (int i = 0; i < 5000; ++i) // the table grows several times
        names.push_back("name" + std::to_string(i));
    std::set<std::uint32_t> numbers;
    for (const std::string& name : names)
        numbers.insert(store.names.Number(name));
    EXPECT_EQ(numbers.size(), names.size());
    EXPECT_FALSE(numbers.contains(0));
    for (const std::string& name : names) {
        const std::uint32_t number = store.names.Find(std::string(name));
        EXPECT_TRUE(numbers.contains(number)) << name;
        EXPECT_EQ(store.names.Number(std::string(name)), number);
    }
    EXPECT_EQ(store.names.Find("name"), 0u);
}

// ---- Folding ----

struct SFoldCase
{
    const char *text, *folded;
};

constexpr SFoldCase kFolds[] = {
    {"100 / 10 / 2", "5"},
    {"-7 / 2", "-3"},
    {"- - 1", "1"},
    {"2 - -1", "3"},
    {"- ~ ! 0", "2"},
    {"not 0 and compl 0", "1"},
    {"1 << 4 >> 2", "4"},
    {"1 << 64", "0"},
    {"-1 >> 64", "-1"},
    {"1 << -1", "0"},
    {"4 >> -1", "8"},
    {"1 not_eq 2", "1"},
    {"6 bitand 3 xor 5 bitor 8", "15"},
    {"0 ? 1 : 0 ? 2 : 3", "3"},
    {"1 ? 0 ? 4 : 5 : 6", "5"},
    {"0 ? 1 : 2 + 3", "5"},
    {"0x7fffffffffffffff + 1", "-9223372036854775808"},
    {"9223372036854775807 * 2", "-2"},
    {"010 + 0x10 + 0b11 + 1'0", "37"},
    {"10u + 1UL", "11"},
    // what can't be folded stays
    {"1 2", "1 2"},
    {"( 1 2 ) + 3", "( 1 2 ) + 3"},
    {"( 1", "( 1"},
    {"1 + 2.5", "1 + 2.5"},
    {"*", "*"},
};

TEST(MacroFolding, ExpressionsBecomeOneNumber)
{
    for (const auto& c : kFolds) {
        SCOPED_TRACE(c.text);
        SRead read(c.text);
        TokenList& list = read.list;
        for (Token* token = list.first; token != nullptr;) {
            Token* const next = token->next;
            if (token->SkipWhenNextOrPrev())
                list.deleteToken(token);
            token = next;
        }
        list.constFold();
        std::string folded;
        for (const std::string& text : MacroTokens(list))
            folded += (folded.empty() ? "" : " ") + text;
        EXPECT_EQ(folded, c.folded);
    }
}

TEST(MacroFolding, WhatHasNoValueIsThrown)
{
    const auto thrown = [](const char* text) -> std::string {
        SRead read(text);
        try {
            read.list.constFold();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "nothing";
    };
    EXPECT_EQ(thrown("1/0"), "division/modulo by zero");
    EXPECT_EQ(thrown("1%(2-2)"), "division/modulo by zero");
    EXPECT_EQ(thrown("(-0x7fffffffffffffff-1)/-1"), "division overflow");
    EXPECT_EQ(thrown("(-0x7fffffffffffffff-1)%-1"), "division overflow");
    for (const char* text : {"?", "1?", "1?2", "1?2:", "?2:3", "1?:3", "1?2 3", "a?1:2"})
        EXPECT_EQ(thrown(text), "invalid expression") << text;
}

TEST(MacroFolding, NumbersAndCharacters)
{
    EXPECT_EQ(stringToLL("-9223372036854775808"), std::numeric_limits<long long>::min());
    EXPECT_EQ(stringToLL("0xFFFFFFFFFFFFFFFF"), -1);
    EXPECT_EQ(stringToLL("0778"), 63); // stops at the digit that isn't octal
    EXPECT_FALSE(IsIntegerText("08"));
    EXPECT_FALSE(IsIntegerText("0x"));
    EXPECT_FALSE(IsIntegerText("1e5"));
    EXPECT_TRUE(IsIntegerText("0"));
    const std::pair<const char*, long long> characters[] = {
        {"'a'", 97},     {"'\\n'", 10},         {"'\\0'", 0},        {"'\\101'", 65},
        {"'\\x41'", 65}, {"'\\xff'", -1},       {"'\\''", 39},       {"'ab'", 24930},
        {"L'a'", 97},    {"L'\\xffff'", 65535}, {"'\\1234'", 21300}, {"'\"'", 34},
    };
    for (const auto& [text, value] : characters)
        EXPECT_EQ(CharacterValue(text), value) << text;
    EXPECT_THROW(CharacterValue("''"), std::runtime_error);
}

} // namespace
