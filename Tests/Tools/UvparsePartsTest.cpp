#include "Tools/Support/ToolCommandLine.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/CommandLine.h"
#include "Tools/uvparse/KnownOptions.h"
#include "Tools/uvparse/LanguageChoice.h"
#include "Tools/uvparse/PrettyTree.h"
#include "Tools/uvparse/Selection.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/SourceText.h"
#include "Tools/uvparse/TableCache.h"
#include "Tools/uvparse/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

using namespace uvparse;
using namespace std::string_literals;

namespace {

SCommandLine Read(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "uvparse");
    return ReadCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

struct SDecodeCase
{
    std::string bytes;
    std::string text;    // empty: refused
    std::string refusal; // what the message must hold
    const char* encoding = "";
    std::size_t recordLength = 0;
};

const SDecodeCase kDecodeCases[] = {
    {"a\xC3\xA9", "a\xC3\xA9", ""},
    {"\xEF\xBB\xBFselect", "select", ""},
    {"\xEF\xBB\xBF"s + "x\xEF\xBB\xBF", "x\xEF\xBB\xBF", ""}, // a mark after the start is text
    {"\xFF\xFEs\0\xE9\0=\xD8\0\xDE"s, "s\xC3\xA9\xF0\x9F\x98\x80", ""},
    {"\xFE\xFF\0s\0\xE9\xD8=\xDE\0"s, "s\xC3\xA9\xF0\x9F\x98\x80", ""},
    {"\xFF\xFE\0\0s\0\0\0\0\xF6\x01\0"s, "s\xF0\x9F\x98\x80", ""},
    {"\0\0\xFE\xFF\0\0\0s\0\x01\xF6\0"s, "s\xF0\x9F\x98\x80", ""},
    {"select 'caf\xE9", "",
     "byte 0xE9 at byte offset 11; if the text is in another encoding, name it with --enc"},
    {"\xEF\xBB\xBF"s + "ab\x80", "", "byte 0x80 at byte offset 5"}, // counted in the file, mark included
    {"select\0 1"s, "", "NUL byte, which source text can't hold, at byte offset 6"},
    {"s\0e\0l\0"s, "", "NUL byte, which source text can't hold, at byte offset 1"},
    {"\xFF\xFEs\0\0\0"s, "", "NUL character"},
    {"\xFF\xFEs\0\x3D\xD8s\0"s, "", "not well-formed UTF-16 at byte offset 4"}, // half of a pair
    {"\xFF\xFEs\0x"s, "", "cut off at byte offset 4"},
    {"\xFF\xFE\0\0s\0\0\0x\0"s, "", "cut off at byte offset 8"},
    {"\xFF\xFE\0\0\0\0\x11\0"s, "", "not well-formed UTF-32 at byte offset 4"},
    {"caf\xE9 \x80", "caf\xC3\xA9 \xE2\x82\xAC", "", "CP1252"},
    {"\xCF\xF0\n", "\xD0\x9F\xD1\x80\n", "", "windows-1251"},
    {"\x82\xA0\\", "\xE3\x81\x82\\", "", "CP932"},
    {"\x1B$B$\"\x1B(Bx", "\xE3\x81\x82x", "", "ISO-2022-JP"}, // shift states
    {"\xC3\xA9", "\xC3\x83\xC2\xA9", "", "latin1"},           // the name is believed
    {"a\x81", "", "not valid CP1252: byte 0x81 at byte offset 1", "CP1252"},
    {"ab\x82", "", "the CP932 text is cut off at byte offset 2", "CP932"},
    {"caf\xE9!", "", "not valid UTF-8: byte 0xE9 at byte offset 3", "UTF-8"},
    {"a\xC3\xA9", "", "not valid ASCII: byte 0xC3 at byte offset 1", "ASCII"},
    {"s\0\xE9\0"s, "s\xC3\xA9", "", "UTF-16LE"},
    // A mark of the same encoding goes, whether iconv leaves it in the text or takes it.
    {"\xFF\xFEs\0"s, "s", "", "UTF-16LE"},
    {"\xFE\xFF\0s"s, "s", "", "UTF-16"},
    {"\xEF\xBB\xBFs", "s", "", "utf8"},
    {"\xEF\xBB\xBFs", "", "byte order mark of UTF-8, while --encoding names CP1252, at byte offset 0",
     "CP1252"},
    {"\xFE\xFF\0s"s, "", "byte order mark of UTF-16, while --encoding names UTF-16LE", "UTF-16LE"},
    {"a\0"s, "", "NUL character", "CP1252"},
    {"a", "", "no encoding is called 'nonesuch'", "nonesuch"},
    // NEL and NL end lines on mainframes, and nowhere else.
    {"\xC1\x15\xC2\x25"s, "A\nB\n", "", "IBM1047"},
    {"a\x85"s, "a\xC2\x85", "", "ISO-8859-1"},
    // Records have no line ends, and shift states don't cross them.
    {"\xC1\x40\x40\xC2\x40\x40"s, "A  \nB  \n", "", "IBM037", 3},
    {"ab\xC3\xA9"s, "ab\n\xC3\xA9\n", "", "", 2},
    {"abc"s, "", "no whole records of 2 bytes: one begins at byte offset 2", "", 2},
    {"a\xC3\xA9z"s, "", "cut off at byte offset", "", 2},
    // Either would have iconv drop or replace what doesn't convert.
    {"a\x81", "", "is no encoding's name", "CP1252//IGNORE"},
    {"a\x81", "", "is no encoding's name", "CP1252//TRANSLIT"},
};

TEST(UvparseSourceText, MarksDecideAndWhatIsNoTextIsRefusedWithItsOffset)
{
    for (const auto& c : kDecodeCases) {
        SCOPED_TRACE(testing::PrintToString(c.bytes) + ' ' + c.encoding);
        if (c.refusal.empty()) {
            EXPECT_EQ(DecodeSourceText(c.bytes, "f", {c.encoding, c.recordLength}).text, c.text);
            continue;
        }
        try {
            DecodeSourceText(c.bytes, "f.sql", {c.encoding, c.recordLength});
            ADD_FAILURE() << "not refused";
        } catch (const CToolFailure& e) {
            // An offset is of a file, a name is not.
            EXPECT_EQ(std::string(e.what()).find("byte offset") != std::string::npos,
                      std::string(e.what()).starts_with("f.sql: "))
                << e.what();
            EXPECT_NE(std::string(e.what()).find(c.refusal), std::string::npos) << e.what();
        }
    }
}

TEST(UvparseSourceText, UTF16LongerThanOnePieceKeepsItsPairs)
{
    // The pieces of the conversion end in the middle of a surrogate pair.
    std::string bytes = "\xFF\xFE"s + "x\0"s;
    std::string text = "x";
    for (int i = 0; i < 600000; ++i) {
        bytes += "\x3D\xD8\0\xDE"s;
        text += "\xF0\x9F\x98\x80";
    }
    EXPECT_EQ(DecodeSourceText(bytes, "f").text, text);
    EXPECT_EQ(DecodeSourceText(bytes, "f", {"UTF-16"}).text, text);
    bytes.replace(bytes.size() - 2, 2, "x");
    try {
        DecodeSourceText(bytes, "f", {"UTF-16"});
        ADD_FAILURE() << "not refused";
    } catch (const CToolFailure& e) {
        EXPECT_STREQ(e.what(), "f: the UTF-16 text is cut off at byte offset 2400000");
    }
}

struct STreeCase
{
    const char* tree;
    std::string text;
    bool isEqual;
    std::size_t treeOffset;
    std::size_t textOffset;
};

const STreeCase kTreeCases[] = {
    {"<SQL><a>x</a> <b p=\"1\">y</b></SQL>", "x y", true, 0, 0},
    {"<?xml version=\"1.0\" ?><SQL><!-- > --><e/>a&lt;b&gt;&amp;&apos;&quot;&#13;&#xe9;</SQL>",
     "a<b>&'\"\r\xC3\xA9", true, 0, 0},
    {"", "", true, 0, 0},
    {"<?xml version=\"1.0\" ?>\n<SQL>\n</SQL>\n", "\n", true, 0, 0}, // blanks around the root are no text
    {"<a>xy</a>", "x\x0Cy\x0C", true, 0, 0},                         // form feeds aren't in the tree
    {"<a>xORVANTA_DATA_LINK_ESCAPE_REPLACERy</a>", "x\x10y", true, 0, 0},
    {"<a>ORVANTA_DATA_LINK_</a><b>ESCAPE_REPLACER</b>", "\x10", true, 0, 0},
    {"<a>ORVANTA_DATA_LINK_ESCAPE_REPLACER</a>", "ORVANTA_DATA_LINK_ESCAPE_REPLACER", true, 0, 0},
    {"<a>xORVANTA_DATA_LINK_ESC</a>", "x\x10", false, 29, 1},
    {"<a>abc</a>", "abd", false, 5, 2},
    {"<a>ab</a>", "abc", false, 9, 2},
    {"<a>abc</a>", "ab", false, 5, 2},
    {"<a>a&lt;</a>", "a&", false, 4, 1},
    {"<a>a&amp;lt;</a>", "a<", false, 4, 1}, // escaped twice
    {"<a>a&b</a>", "a&b", false, 4, 1},      // escaped not at all
    {"<a>a&unknown;</a>", "a&unknown;", false, 4, 1},
    {"<a>a</a", "a", false, 4, 1},
};

TEST(UvparseTreeText, TreeAndSourceAreComparedByteForByte)
{
    for (const auto& c : kTreeCases) {
        SCOPED_TRACE(c.tree);
        const std::optional<STreeDifference> difference = FindTreeDifference(c.tree, c.text);
        EXPECT_EQ(!difference, c.isEqual);
        if (difference && !c.isEqual) {
            EXPECT_EQ(difference->treeOffset, c.treeOffset);
            EXPECT_EQ(difference->textOffset, c.textOffset);
        }
    }
}

TEST(UvparseTreeText, StatementsAreCountedOnceHoweverTheyNest)
{
    const std::string inner = "<pl_sql_statement><T__SELECT>select</T__SELECT></pl_sql_statement>";
    const std::string delimited = "<delimited_pl_sql_statement>" + inner + "</delimited_pl_sql_statement>";
    EXPECT_EQ(CountStatements(""), 0u);
    EXPECT_EQ(CountStatements("<SQL><pl_sql_statements></pl_sql_statements></SQL>"), 0u);
    EXPECT_EQ(CountStatements("<SQL>" + delimited + delimited + inner + "</SQL>"), 3u);
    EXPECT_EQ(
        CountStatements("<pl_sql_statement><body>" + delimited + delimited + "</body></pl_sql_statement>"),
        1u);
    EXPECT_EQ(CountStatements("<pl_sql_statement_delimiter></pl_sql_statement_delimiter>"), 0u);
    // what was lost leaves a statement with nothing but space and its delimiter
    const std::string delimiter =
        "<pl_sql_statement_delimiter><T__SEMICOLON>;</T__SEMICOLON></pl_sql_statement_delimiter>";
    EXPECT_EQ(CountStatements("<delimited_pl_sql_statement><T__SPACE>selec</T__SPACE>" + delimiter +
                              "</delimited_pl_sql_statement>" + inner),
              1u);
    EXPECT_EQ(
        CountStatements("<pl_sql_statement><error_statement><T__SLASHES>//</T__SLASHES></error_statement>"
                        "</pl_sql_statement>"),
        0u);
    // as flattening writes them
    const std::string full = "<full_pl_sql_statement delimited=\"1\" labeled=\"0\">" + inner +
                             "<pl_sql_statement_delimiter/></full_pl_sql_statement>";
    EXPECT_EQ(
        CountStatements("<?xml version=\"1.0\" ?>\n<SQL><full_pl_sql_statement/>" + full + full + "</SQL>"),
        2u);
}

std::string Pretty(std::string_view tree)
{
    std::string text;
    const auto brokenAt = WritePretty(tree, [&](std::string_view piece) { text += piece; });
    return brokenAt ? "broken at " + std::to_string(*brokenAt) + text : text;
}

struct SPrettyCase
{
    const char* tree;
    const char* text;
};

const SPrettyCase kPrettyCases[] = {
    {"", ""},
    {"<a/>", "<a/>"},
    {"<a></a>", "<a></a>"},
    {"<?xml version=\"1.0\" ?>\n<a><b/></a>\n", "<?xml version=\"1.0\" ?>\n<a>\n  <b/>\n</a>"},
    {"<a><b><c>x</c><c> </c></b><d/></a>", "<a>\n  <b>\n    <c>x</c>\n    <c> </c>\n  </b>\n  <d/>\n</a>"},
    // Text of its own, at whichever place, keeps an element and all that is in it as it is.
    {"<a><b><c/><c/>x</b></a>", "<a>\n  <b><c/><c/>x</b>\n</a>"},
    {"<a><b> <c><d/></c></b></a>", "<a>\n  <b> <c><d/></c></b>\n</a>"},
    {"<a><b><c><d/></c>&#13;</b><e/></a>", "<a>\n  <b><c><d/></c>&#13;</b>\n  <e/>\n</a>"},
    {"<a><b><c/><![CDATA[<]]></b></a>", "<a>\n  <b><c/><![CDATA[<]]></b>\n</a>"},
    {"<a><!-- <x> --><b/><?p ?></a>", "<a>\n  <!-- <x> -->\n  <b/>\n  <?p ?>\n</a>"},
    {"<a p=\"/>'\" q='\"'\n><b/></a >", "<a p=\"/>'\" q='\"'\n>\n  <b/>\n</a >"},
    {"<a/><b/>", "<a/>\n<b/>"},
    {"x<a><b/></a>", "x<a><b/></a>"},
    {"<a><b></a></b>", "broken at 6"},
    {"<a><b>", "broken at 6"},
    {"<a></a></a>", "broken at 7"},
    {"<a>x = <y></a>", "broken at 10"},
    {"<a><b</a>", "broken at 3"},
    {"<a><b p=\"></b></a>", "broken at 3"},
    {"<a><></a>", "broken at 3"},
};

TEST(UvparsePretty, LinesAreBrokenOnlyWhereThereIsNoText)
{
    for (const auto& c : kPrettyCases) {
        SCOPED_TRACE(c.tree);
        EXPECT_EQ(Pretty(c.tree), c.text);
    }
}

std::string Nested(const std::string& open, const std::string& inside, const std::string& close, int depth)
{
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += open;
    text += inside;
    for (int i = 0; i < depth; ++i)
        text += close;
    return text;
}

TEST(UvparsePretty, DepthCostsNeitherStackNorRowsOfBlanks)
{
    const std::string pretty = Pretty(Nested("<a>", "<b>x</b>", "</a>", 200000));
    EXPECT_LT(pretty.size(), 200000u * 2 * 130);
    std::string words = pretty;
    words.erase(std::remove_if(words.begin(), words.end(), [](char c) { return c == ' ' || c == '\n'; }),
                words.end());
    EXPECT_EQ(words, Nested("<a>", "<b>x</b>", "</a>", 200000));
}

TEST(UvparsePretty, TextsOfAnyLengthComeThrough)
{
    const std::string text(300000, 'x');
    EXPECT_EQ(Pretty("<a><b>" + text + "</b><b/></a>"), "<a>\n  <b>" + text + "</b>\n  <b/>\n</a>");
}

struct SSelectionCase
{
    const char* expression;
    const char* output;
    bool isFound;
};

const SSelectionCase kSelectionCases[] = {
    {"//b", "<b p=\"1 &lt; \xC3\xA9\">x &amp; \xC3\xA9</b>\n<b/>\n", true},
    {"//c | //b[1]", "<b p=\"1 &lt; \xC3\xA9\">x &amp; \xC3\xA9</b>\n<c><d> </d></c>\n",
     true}, // document order
    {"//b/@p", "p=\"1 &lt; \xC3\xA9\"\n", true},
    {"//b/text()", "x &amp; \xC3\xA9\n", true},
    {"//comment()", "<!-- n -->\n", true},
    {"/", "<a><b p=\"1 &lt; \xC3\xA9\">x &amp; \xC3\xA9</b><c><d> </d></c><!-- n --><b/></a>\n", true},
    {"string(//b)", "x & \xC3\xA9\n", true},
    {"string(//d)", " \n", true},
    {"count(//b) div 4", "0.5\n", true},
    {"count(//b) > 1", "true\n", true},
    {"//e", "", false},
    {"//b[.='y']/@p", "", false},
    {"count(//e)", "0\n", false},
    {"not(//b)", "false\n", false},
    {"string(//e)", "\n", false},
};

const char kSelectionTree[] = "<?xml version=\"1.0\" ?>\n<a><b p=\"1 &lt; \xC3\xA9\">x &amp; \xC3\xA9</b>"
                              "<c><d> </d></c><!-- n --><b></b></a>\n";

std::string Select(const std::string& expression, std::string_view tree, const SSelectionLook& look = {})
{
    std::string text;
    CSelector(expression).Write(tree, "f", look, [&](std::string_view piece) { text += piece; });
    return text;
}

TEST(UvparseSelection, NodesAreXmlAndValuesAreThemselves)
{
    for (const auto& c : kSelectionCases) {
        SCOPED_TRACE(c.expression);
        std::string text;
        const bool isFound =
            CSelector(c.expression).Write(kSelectionTree, "f", {}, [&](std::string_view piece) {
                text += piece;
            });
        EXPECT_EQ(text, c.output);
        EXPECT_EQ(isFound, c.isFound);
    }
}

TEST(UvparseSelection, EachResultHasThePrefixAndOnlyElementsAreIndented)
{
    EXPECT_EQ(Select("//c | //d/text() | //b/@p", kSelectionTree, {"f.sql:", true}),
              "f.sql:p=\"1 &lt; \xC3\xA9\"\nf.sql:<c>\n  <d> </d>\n</c>\nf.sql: \n");
    EXPECT_EQ(Select("count(//b)", kSelectionTree, {"f.sql:", true}), "f.sql:2\n");
    EXPECT_EQ(Select("count(//b)", "", {"f.sql:", true}), ""); // an empty text has no tree
}

TEST(UvparseSelection, DeepTreesAreNoDanger)
{
    const std::string tree = Nested("<a>", "<b>x</b>", "</a>", 100000);
    EXPECT_EQ(Select("//b", tree), "<b>x</b>\n");
    EXPECT_EQ(Select("/", tree), tree + '\n');
    EXPECT_EQ(Select("count(//b/ancestor::a)", tree), "100000\n");
}

struct SBadExpression
{
    const char* expression;
    const char* message;
};

const SBadExpression kBadExpressions[] = {
    {"//b[", "'//b[': Invalid expression at character 5"},
    {"'\xC3\xA9'+", "at character 5"}, // counted as the user does
    {"//b)", "at character 4"},
    {"'x", "Unfinished literal"},
    {"nonesuch(1)", "nonesuch"},
    {"$x", "ndefined variable"},
    {"x:y", "ndefined namespace prefix"},
    {"count(1)", "nvalid type"},
};

TEST(UvparseSelection, BadExpressionsAreRefusedBeforeAnythingIsRead)
{
    for (const auto& c : kBadExpressions) {
        SCOPED_TRACE(c.expression);
        try {
            const CSelector selector(c.expression);
            ADD_FAILURE() << "not refused";
        } catch (const CToolFailure& e) {
            EXPECT_NE(std::string(e.what()).find(c.message), std::string::npos) << e.what();
        }
    }
    // What only a tree brings out is a failure there; nothing is taken for an empty result.
    EXPECT_THROW(Select("//b[nonesuch(.)]", kSelectionTree), CToolFailure);
    EXPECT_THROW(Select("//b", "<a><b></a>"), CToolFailure);
}

struct SPlaceCase
{
    std::size_t offset;
    std::size_t line;
    std::size_t column;
};

TEST(UvparseTokens, ColumnsAreCodePointsHoweverPlacesAreAskedFor)
{
    //                          0    1   2 4  5   6     9 10
    const std::string text = "a\n\xC3\xA9"
                             "b\n\xE2\x82\xAC"
                             "c\n";
    const SPlaceCase places[] = {{0, 1, 1}, {1, 1, 2}, {2, 2, 1},  {4, 2, 2},  {5, 2, 3},
                                 {6, 3, 1}, {9, 3, 2}, {10, 3, 3}, {11, 4, 1}, {99, 4, 1}};
    // Every ordered pair, so that no answer depends on the question before.
    for (const auto& first : places)
        for (const auto& second : places) {
            CTextPlaces finder(text);
            finder.Find(first.offset);
            const STextPlace place = finder.Find(second.offset);
            SCOPED_TRACE(testing::Message() << first.offset << " then " << second.offset);
            EXPECT_EQ(place.line, second.line);
            EXPECT_EQ(place.column, second.column);
        }
}

TEST(UvparseSourceText, ZeroWidthSpacesAreBlanksInPreparedText)
{
    EXPECT_EQ(PreparedText("\xE2\x80\x8B"
                           "a\xE2\x80\x8B\xE2\x80\x8B"
                           "b\xE2\x80\x8C\xE2\x80\x8B"),
              " a  b\xE2\x80\x8C ");
    EXPECT_EQ(PreparedText("plain"), "plain");
}

struct SChoiceCase
{
    const char* language;
    const char* database;
    const char* path;
    const char* parser; // null: refused
    std::uint64_t db;
    const char* refusal;
};

SLanguage Chosen(const CLanguageChoice& choice, const std::string& language, const std::string& database,
                 const std::string& path)
{
    const std::vector<SLanguage> candidates = choice.Candidates(language, database, path);
    EXPECT_EQ(candidates.size(), 1u);
    return candidates.front();
}

TEST(UvparseLanguage, RulesAreTriedInOrder)
{
    const CLanguageChoice here({"COBOL", "MySQL", "Pascal", "PostgreSQL", "Tiny"});
    const SChoiceCase cases[] = {
        {"PostgreSQL", "", "x", "PostgreSQL", 8, ""},
        {"Tiny", "", "x.sql", "Tiny", 60, ""}, // a grammar that no database has
        {"Tiny", "mysql", "x.sql", "Tiny", 5, ""},
        {"", "Postgre", "x.cob", "PostgreSQL", 8, ""}, // the wizard's name
        {"", "postgresql", "-", "PostgreSQL", 8, ""},
        {"", "8", "-", "PostgreSQL", 8, ""},
        {"", "UVDB_DB_MySQL", "-", "MySQL", 5, ""},
        {"", "", "a/b.CBL/x.COB", "COBOL", 90, ""},
        {"", "", "x.pas", "Pascal", 82, ""}, // two kinds, one grammar
        {"", "", "x.java", nullptr, 0, "no language here"},
        {"", "", "x.", nullptr, 0, "no extension"},
        {"", "", "a.sql/x", nullptr, 0, "no extension"},
        {"", "", "-", nullptr, 0, "Languages: COBOL MySQL Pascal PostgreSQL Tiny"},
        {"postgresql", "", "x.sql", "PostgreSQL", 8, ""},
        {"delphi", "", "x", "Pascal", 82, ""}, // as people say
        {"pl/SQL", "", "x", nullptr, 0, "there is no language 'Oracle'. Languages: COBOL"},
        {"", "", "x.DPR", "Pascal", 82, ""},
        {"", "", "x.cpy", "COBOL", 90, ""},
        {"nonesuch", "", "x.sql", nullptr, 0, "there is no language 'nonesuch'. Languages: COBOL"},
        {"RPG", "", "x", nullptr, 0,
         "Tiny. Texts of IBMRPG can be prepared: --prepare -l IBMRPG -o IBMRPG_VERSION=0 or"},
        {"", "", "x.clle", nullptr, 0, "Texts of IBMCL can be prepared: --prepare -l IBMCL"},
        {"../Grammar/Tiny", "", "x.sql", nullptr, 0, "is no parser name"},
        {"/etc", "", "x.sql", nullptr, 0, "is no parser name"},
        {"", "Oracle", "x.sql", nullptr, 0, "there is no language 'Oracle'"},
        {"", "nonesuch", "x.sql", nullptr, 0, "no database is called 'nonesuch'"},
        {"", "128x", "x.sql", nullptr, 0, "no database is called"},
        {"", "4000", "x.sql", nullptr, 0, "there is no database kind 4000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.language << '|' << c.database << '|' << c.path);
        try {
            const SLanguage language = Chosen(here, c.language, c.database, c.path);
            ASSERT_NE(c.parser, nullptr) << "gave " << language.parserName;
            EXPECT_EQ(language.parserName, c.parser);
            EXPECT_EQ(language.version.db, c.db);
        } catch (const CLanguageError& e) {
            EXPECT_EQ(c.parser, nullptr) << e.what();
            EXPECT_NE(std::string(e.what()).find(c.refusal), std::string::npos) << e.what();
        }
    }
}

TEST(UvparseLanguage, PreparationNeedsNoGrammar)
{
    const CLanguageChoice none({}, enPurpose::Preparation);
    EXPECT_EQ(Chosen(none, "JCL", "", "-").version.db, 96u);
    EXPECT_EQ(Chosen(none, "", "IBMCL", "-").parserName, "IBMCL");
    EXPECT_EQ(Chosen(none, "", "", "x.CL").version.db, Chosen(none, "IBMCL", "", "-").version.db);
    EXPECT_EQ(Chosen(none, "", "", "x.pas").parserName, "Pascal"); // two kinds, one parser name
    EXPECT_EQ(Chosen(none, "Jcl", "", "x.jcl").parserName, "JCL");
    EXPECT_EQ(Chosen(none, "", "", "x.rpgle").parserName, "IBMRPG");
    // Databases have these names too, but nothing prepares their texts.
    EXPECT_EQ(Chosen(none, "FoxPro", "", "x").parserName, "FoxproPrograms");
    EXPECT_EQ(Chosen(none, "progress", "", "x").parserName, "Progress4GL");
    EXPECT_EQ(Chosen(none, "", "", "x.p").parserName, "Progress4GL");
    EXPECT_EQ(Chosen(none, "", "", "x.cob").parserName, "COBOL"); // others of this extension are rare
    EXPECT_THROW(Chosen(none, "../JCL", "", "x.jcl"), CLanguageError);
    EXPECT_THROW(Chosen(none, "", "", "x.nonesuch"), CLanguageError);
    try {
        Chosen(none, "", "", "x.inc");
        ADD_FAILURE() << "chosen among several";
    } catch (const CLanguageError& e) {
        EXPECT_STREQ(e.what(),
                     "files with the extension 'inc' may be of ASP Pascal; name one with --language");
    }
    // A grammar that is there goes first, also one that no database has.
    const CLanguageChoice here({"TelonCOBOL", "Tiny"}, enPurpose::Preparation);
    EXPECT_EQ(Chosen(here, "", "", "x.cob").parserName, "TelonCOBOL");
    EXPECT_EQ(Chosen(here, "Tiny", "", "x.cob").parserName, "Tiny");
}

struct SDatabaseCase
{
    const char* text;
    std::uint64_t db, subType, major, minor;
};

struct SCandidatesCase
{
    std::vector<std::string> grammars;
    const char* language;
    const char* database;
    const char* path;
    const char* candidates;
};

TEST(UvparseLanguage, TextDecidesWhereTheExtensionDoesNot)
{
    const std::vector<std::string> many = {"Common", "JCL", "MySQL", "PostgreSQL", "Tiny"};
    const SCandidatesCase cases[] = {
        {many, "", "", "x.sql", "PostgreSQL MySQL "}, // the preferred one first, and Common gives way
        {many, "AUTO", "", "x.SQL", "PostgreSQL MySQL "},
        {many, "auto", "", "x.jcl", "JCL "},
        {many, "auto", "", "x.nothing", "PostgreSQL JCL MySQL Tiny Common "}, // Common last
        {many, "Auto", "", "-", "PostgreSQL JCL MySQL Tiny Common "},
        {many, "auto", "mysql", "x.sql", "MySQL "},
        {many, "Tiny", "", "x.sql", "Tiny "},
        {{"Common", "PostgreSQL"}, "", "", "x.sql", "PostgreSQL "},
        {{"COBOL", "Common"}, "", "", "x.sql", "Common "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.language << '|' << c.database << '|' << c.path);
        std::string names;
        for (const SLanguage& language :
             CLanguageChoice(c.grammars).Candidates(c.language, c.database, c.path))
            names += language.parserName + ' ';
        EXPECT_EQ(names, c.candidates);
    }
    const CLanguageChoice none({}, enPurpose::Preparation);
    EXPECT_EQ(Chosen(none, "auto", "", "x.rpgle").parserName, "IBMRPG");
    EXPECT_THROW(Chosen(none, "auto", "", "-"), CLanguageError);
}

TEST(UvparseLanguage, DatabaseHasSubtypeAndVersion)
{
    const std::uint64_t none = UVDB_NO_VERSION_WORD;
    const SDatabaseCase cases[] = {
        {"Oracle", 1, none, none, none},  {"DB2 AS400", 0, 2, none, none}, {"SYBASE_ASE::12.5", 4, 1, 12, 5},
        {"SYBASE:1:12.49", 4, 1, 12, 49}, {"8::15", 8, none, 15, none},    {"DB2 OS390:2", 0, 2, none, none},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const DB_VERSION_INFO version = ReadDatabase(c.text);
        EXPECT_EQ(version.db, c.db);
        EXPECT_EQ(version.subType, c.subType);
        EXPECT_EQ(version.major, c.major);
        EXPECT_EQ(version.minor, c.minor);
    }
    for (const char* bad : {"Sybase ASE:1", "8:x", "8::1.x", "8::-1", "8::1.2.3", ""})
        EXPECT_THROW(ReadDatabase(bad), CLanguageError) << bad;
}

TEST(UvparseCommandLine, OptionsMeanWhatTheySay)
{
    const SCommandLine line = Read({"-l", "X", "-o", "A=b=c", "--option=D=", "--object-option", "E=-1",
                                    "--raw", "-", "--stat", "f.sql", "--", "--raw"});
    EXPECT_EQ(line.language, "X");
    EXPECT_EQ(line.options, (std::vector<std::pair<std::string, std::string>>{{"A", "b=c"}, {"D", ""}}));
    EXPECT_EQ(line.objectOptions, (std::vector<std::pair<std::string, std::string>>{{"E", "-1"}}));
    EXPECT_EQ(line.files, (std::vector<std::string>{"-", "f.sql", "--raw"}));
    EXPECT_TRUE(line.isRaw && line.isStat);
    EXPECT_FALSE(line.isVerify || line.isColor || line.isQuiet);
}

TEST(UvparseCommandLine, WhatMakesNoSenseIsRefused)
{
    EXPECT_THROW(Read({}), CUsageError);
    EXPECT_THROW(Read({"--nonesuch", "f"}), CUsageError);
    EXPECT_THROW(Read({"--verif", "f"}),
                 CUsageError); // no guessing: a later option could change what it means
    EXPECT_THROW(Read({"-o", "novalue", "f"}), CUsageError);
    EXPECT_THROW(Read({"-o", "=x", "f"}), CUsageError);
    for (const char* option : {"--raw", "--pretty", "--xpath=//a", "--verify", "--stat"})
        EXPECT_THROW(Read({"--color", option, "f"}), CUsageError) << option;
    EXPECT_THROW(Read({"--xpath", "", "f"}), CUsageError);
    EXPECT_THROW(Read({"--encoding=", "f"}), CUsageError);
    EXPECT_THROW(Read({"--xpath", "//a", "--xpath", "//b", "f"}), CUsageError);
    EXPECT_NO_THROW(Read({"--raw", "--pretty", "--verify", "--xpath", "//a", "f"}));
    EXPECT_NO_THROW(Read({"--help"}));
    for (const char* option : {"--raw", "--pretty", "--xpath=//a", "--verify", "--stat", "--color"})
        for (const char* preparing : {"--prepare", "--lines"})
            EXPECT_THROW(Read({preparing, option, "f"}), CUsageError) << option;
    EXPECT_THROW(Read({"--diff", "f"}), CUsageError);
    EXPECT_THROW(Read({"--lines", "--diff", "f"}), CUsageError);
    EXPECT_THROW(Read({"--prepare", "--lines", "--diff", "f"}), CUsageError);
    EXPECT_NO_THROW(Read({"--prepare", "--lines", "f"}));
}

// The names in the sources of the library where options are read.
std::set<std::string> OptionsThatAreRead()
{
    const std::regex reading(
        R"rx((Param|Option|ReadText|IsOptionSet|ReadOption|Get)\w*\([^;"]*"([A-Z][A-Z0-9_]{2,})")rx");
    std::set<std::string> names;
    for (const char* folder : {"/Parser", "/Preparation"})
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(std::string(UV_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".cpp")
                continue;
            const std::string source = ReadWholeFile(entry.path().string());
            for (std::sregex_iterator at(source.begin(), source.end(), reading), end; at != end; ++at)
                names.insert((*at)[2]);
        }
    return names;
}

TEST(UvparseOptions, AreThoseThatTheLibraryReads)
{
    // what the parser hands to its host, and what uvparse asks for by itself
    const std::set<std::string> others = {
        "REPORT_UNEXPECTED_TOKENS", "REPORT_LOST_TEXT",  "REPORT_PREPARED_LINES",
        "REPORT_PREPARATION_NOTES", "REPORT_COVERAGE",   "PREPARE_ONLY",
        "RESTART_POSITIONS",        "HAND_OVER_RESULT",  "CLOSE_LOST_QUOTES",
        "UNEXPECTED_TOKENS",        "LOST_TEXT",         "PREPARED_BY",
        "PREPARED_LINES",           "PREPARATION_NOTES", "COVERAGE",
        "WARNINGS_COUNT",           "WARNINGS_TYPES"};
    const auto known = [](const std::string& name) {
        return std::ranges::any_of(DatabaseOptions(),
                                   [&](const SKnownOption& row) { return row.name == name; });
    };
    const std::set<std::string> read = OptionsThatAreRead();
    EXPECT_GT(read.size(), 20u);
    for (const std::string& name : read)
        EXPECT_TRUE(known(name) || others.contains(name)) << name << " is read, and uvparse refuses it";
}

// The user's own word goes first, then the cache folder of the desktop, then the one in the home folder.
TEST(UvparseTableCache, StandsInTheUsersCacheFolder)
{
    const struct
    {
        const char *own, *caches, *home; // null: not in the environment
        const char* folder;
    } kCases[] = {
        {nullptr, "/c", "/h", "/c/uvparser"},
        {nullptr, nullptr, "/h", "/h/.cache/uvparser"},
        {nullptr, "c", "/h", "/h/.cache/uvparser"}, // a relative path means nothing
        {nullptr, "", "", nullptr},
        {"/own", "/c", "/h", "/own"},
        {"", "/c", "/h", ""}, // off
    };
    const auto set = [](const char* name, const char* value) {
        if (value != nullptr)
            setenv(name, value, 1);
        else
            unsetenv(name);
    };
    for (const auto& [own, caches, home, folder] : kCases) {
        set("UVPARSER_CACHE", own);
        set("XDG_CACHE_HOME", caches);
        set("HOME", home);
        ChooseTableCache(true);
        EXPECT_STREQ(std::getenv("UVPARSER_CACHE"), folder);
        ChooseTableCache(false);
        EXPECT_EQ(std::getenv("UVPARSER_CACHE"), nullptr);
    }
}

} // namespace
