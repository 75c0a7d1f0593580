#include "Tests/Support/ProgramFixture.h"
#include "Tools/uvparse/PrettyTree.h"
#include "Tools/uvparse/TreeText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {

class UvparseProgram : public CProgramFixture
{
protected:
    UvparseProgram() : CProgramFixture("uvparse") {}
};

const char kScript[] = "-- two of them\nselect 'a<b' as x;\n\nselect \xC3\xA9, 2 from t where a > 1;\n";

TEST_F(UvparseProgram, TreeOfEveryByteGoesToStandardOutput)
{
    Put("a.sql", kScript);
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify a.sql "s + mode);
        EXPECT_EQ(run.code, 0) << run.err;
        ASSERT_FALSE(run.out.empty());
        EXPECT_EQ(run.out.back(), '\n');
        EXPECT_NE(run.out[run.out.size() - 2], '\n');
        EXPECT_FALSE(uvparse::FindTreeDifference(run.out, kScript));
        EXPECT_EQ(uvparse::CountStatements(run.out), 2u);
        EXPECT_EQ(run.err, "a.sql: verified: the tree holds the " + std::to_string(sizeof(kScript) - 1) +
                               " bytes of the text\n");
    }
}

TEST_F(UvparseProgram, TreeIsFlattenedUnlessTheRawOneIsWanted)
{
    Put("a.sql", "select a, b, c from t;\n");
    const SRunResult flat = Run("a.sql");
    EXPECT_EQ(flat.out.find("<?xml version=\"1.0\" ?>\n<SQL>"), 0u) << flat.out;
    EXPECT_NE(flat.out.find("<full_pl_sql_statement delimited=\"1\" labeled=\"0\">"), std::string::npos)
        << flat.out;
    EXPECT_EQ(flat.out.find("<delimited_pl_sql_statement>"), std::string::npos) << flat.out;
    const SRunResult raw = Run("--raw a.sql");
    EXPECT_EQ(raw.out.find("<SQL>"), 0u) << raw.out;
    EXPECT_NE(raw.out.find("<delimited_pl_sql_statement>"), std::string::npos) << raw.out;
    EXPECT_EQ(Run("-o TREE2SERIAL_STYLESHEET=1 a.sql").out, flat.out);
}

TEST_F(UvparseProgram, VerifyKnowsWhatFlatteningDoesToLineEnds)
{
    Put("a.sql", "select 1;\r\nselect 'x\ry';\r\n");
    EXPECT_EQ(Run("--verify --raw a.sql").err, "a.sql: verified: the tree holds the 26 bytes of the text\n");
    const SRunResult flat = Run("--verify a.sql");
    EXPECT_EQ(flat.code, 0);
    EXPECT_EQ(flat.err,
              "a.sql: verified: the tree holds the 26 bytes of the text before it is flattened, which "
              "changes it from byte 9 on\n");
    EXPECT_EQ(flat.out.find('\r'), std::string::npos);
    EXPECT_NE(Run("--raw a.sql").out.find('\r'), std::string::npos);
}

TEST_F(UvparseProgram, FlatteningFailureIsToldInTheLibrarysWords)
{
    // Nested deeper than a stylesheet may recurse, after an unexpected token.
    constexpr std::size_t kDepth = 15000;
    Put("a.sql",
        "select from from t;\nselect " + std::string(kDepth, '(') + '1' + std::string(kDepth, ')') + ";\n");
    const SRunResult run = Run("-o TREE2SERIAL_STYLESHEET=1 a.sql");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("a.sql:1:13: error: unexpected token 'from'; expected name"), std::string::npos)
        << run.err;
    EXPECT_NE(run.err.find("a.sql: error: can't transform tree to serial\n"), std::string::npos) << run.err;
    EXPECT_EQ(Run("--raw --verify a.sql").err.find("can't transform"), std::string::npos);
}

TEST_F(UvparseProgram, PrettyBreaksLinesAndKeepsTokens)
{
    Put("a.sql", kScript);
    for (const char* mode : {"", "--raw "}) {
        SCOPED_TRACE(mode);
        const std::string plain = Run(mode + "a.sql"s).out;
        const SRunResult pretty = Run(mode + "--pretty a.sql"s);
        EXPECT_EQ(pretty.code, 0) << pretty.err;
        EXPECT_NE(pretty.out.find(" <pl_sql_statements>\n"), std::string::npos) << pretty.out;
        EXPECT_NE(pretty.out.find("pos=\"1\">from</T__FROM>\n"), std::string::npos) << pretty.out;
        EXPECT_EQ(pretty.out.substr(pretty.out.size() - 8), "\n</SQL>\n");
        std::string expected;
        uvparse::WritePretty(plain, [&](std::string_view piece) { expected += piece; });
        EXPECT_EQ(pretty.out, expected + '\n');
    }
}

TEST_F(UvparseProgram, XpathPrintsWhatItSelects)
{
    Put("a.sql", kScript);
    Put("b.sql", "select 1;\n");
    SRunResult run = Run("--xpath '//select_item/alias//T__IDENTIFIER' a.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "<T__IDENTIFIER type=\"TOKEN\" line=\"1\" pos=\"1\">x</T__IDENTIFIER>\n");
    run = Run("--xpath 'count(//T__SELECT)' a.sql b.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "a.sql:2\nb.sql:1\n");
    // As grep does: a text where nothing is found is no failure while another has something.
    run = Run("--xpath 'string(//T__WHERE)' b.sql a.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "b.sql:\na.sql:where\n");
    run = Run("--xpath //T__WHERE b.sql");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_EQ(Run("--raw --xpath //delimited_pl_sql_statement b.sql").code, 0);

    run = Run("--xpath '//a[' --output out a.sql");
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("'//a[': Invalid expression at character 5\n"), std::string::npos) << run.err;
    EXPECT_FALSE(Has("out"));
    run = Run("--xpath //T__WHERE --output out a.sql b.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Get("out/a.sql.txt"), "<T__WHERE type=\"TOKEN\" line=\"3\" pos=\"1\">where</T__WHERE>\n");
    EXPECT_EQ(Get("out/b.sql.txt"), "");
}

TEST_F(UvparseProgram, NamedEncodingIsReadAndNothingIsReplaced)
{
    Put("plain.sql", "select '\xC3\xA9\xE2\x82\xAC';\n");
    Put("a.sql", "select '\xE9\x80';\n");
    const SRunResult run = Run("--encoding CP1252 --verify a.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, Run("plain.sql").out);
    // Messages point into the text as it was read.
    Put("bad.sql", "select '\xE9\xE9' from from;\n");
    EXPECT_EQ(
        Run("--encoding latin1 bad.sql")
            .err.find(
                "bad.sql:1:18: error: unexpected token 'from'; expected name, '(', 'CAST' or 'LATERAL'\n"
                "    select '\xC3\xA9\xC3\xA9' from from;\n"),
        0u);

    Put("hole.sql", "select '\x81';\n");
    const SRunResult hole = Run("--encoding CP1252 hole.sql");
    EXPECT_EQ(hole.code, 2);
    EXPECT_EQ(hole.out, "");
    EXPECT_EQ(hole.err, "uvparse: error: hole.sql: not valid CP1252: byte 0x81 at byte offset 8\n");
    const SRunResult unknown = Run("--encoding nonesuch a.sql plain.sql");
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err, "uvparse: error: no encoding is called 'nonesuch' ('iconv -l' lists the names)\n");
}

TEST_F(UvparseProgram, CommandsOfTheReadmeWork)
{
    Put("my.sql", kScript);
    Put("my.cl", "PGM\nENDPGM\n");
    Put("my.cob", "000100     STOP RUN.\n");
    const std::string readme = ReadWholeFile(UV_SOURCE_DIR "/README.md");
    const std::string command = "./run.sh ";
    int commands = 0;
    for (std::size_t at = readme.find("\n    "); at != std::string::npos;
         at = readme.find("\n    ", at + 1)) {
        std::string line = readme.substr(at + 5, readme.find('\n', at + 1) - at - 5);
        const std::size_t place = line.find(command);
        if (place == std::string::npos)
            continue;
        SCOPED_TRACE(line);
        Put("command", line.replace(place, command.size(), UV_BIN_DIR "/uvparse "));
        const SRunResult run = RunProgram("/bin/sh", "command");
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_NE(run.out.empty(),
                  line.find(" > ") == std::string::npos && line.find("--output") == std::string::npos);
        ++commands;
    }
    EXPECT_EQ(commands, 10);
}

TEST_F(UvparseProgram, StandardInputIsAFileLikeAnyOther)
{
    Put("a.sql", kScript);
    Put("in", kScript);
    const SRunResult file = Run("a.sql");
    const SRunResult input = Run("--db postgresql -");
    EXPECT_EQ(input.code, 0) << input.err;
    EXPECT_EQ(input.out, file.out);
    EXPECT_EQ(Run("-").code, 2); // nothing tells its language
}

TEST_F(UvparseProgram, UnexpectedTokensAreShownInTheirPlace)
{
    Put("a.sql", "select 1;\nselect '\xC3\xA9\xC3\xA9', from from t;\nselect 2;\n");
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify --stat a.sql "s + mode);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.err.find("a.sql:2:14: error: unexpected token 'from'; "
                               "expected name, dollar quote begin, '+' or '-'\n"
                               "    select '\xC3\xA9\xC3\xA9', from from t;\n"
                               "                 ^\n"),
                  0u)
            << run.err;
        EXPECT_NE(run.err.find("verified"), std::string::npos) << run.err;
        EXPECT_NE(run.err.find("2 statements read, 1 lost, 1 unexpected tokens, 48 bytes, "),
                  std::string::npos)
            << run.err;
        EXPECT_NE(run.out.find(">2</"), std::string::npos); // the statement after it is there
    }
    EXPECT_EQ(Run("--quiet a.sql").err, "");
}

// A raw parse sees zero-width spaces, an ordinary one sees shorter blanks.
TEST_F(UvparseProgram, PlacesAreTheSameInBothKindsOfTree)
{
    Put("a.sql", "select '\xE2\x80\x8B\xE2\x80\x8B', 1 from from t;\n");
    for (const char* mode : {"", "--raw "}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run(mode + "--verify a.sql"s);
        EXPECT_EQ(run.err.find("a.sql:1:21: error: unexpected token 'from'"), 0u) << run.err;
        EXPECT_NE(run.err.find("verified"), std::string::npos) << run.err;
    }
}

TEST_F(UvparseProgram, TextsDoNotInfluenceEachOther)
{
    // One object reads them all, whatever the one before has left: errors, quotes that don't close, another
    // rule for quotes, nothing at all.
    Put("a.sql", kScript);
    Put("bad.sql", "select from from;\n");
    Put("quoted.sql", "create table \"a b\" (c int);\nselect \"x\" from from \"y\";\n");
    Put("open.sql", "select 'never closed\n");
    Put("empty.sql", "");
    Put("b.sql", "select 1, 2 as b;");
    for (const std::string mode :
         {"", "--raw ", "--color ", "--stat --verify ", "-o OPTION_VARYING_PARSING=YES ",
          "-o ORVA_CHILD=true ", "-o ANSI_QUOTED_IDENTIFIERS=No "}) {
        SCOPED_TRACE(mode);
        std::string files;
        std::string trees;
        std::string messages;
        int worst = 0;
        for (const char* file :
             {"a.sql", "bad.sql", "quoted.sql", "open.sql", "empty.sql", "b.sql", "a.sql"}) {
            files.append(file).append(1, ' ');
            const SRunResult alone = Run(mode + file);
            trees += alone.out;
            messages += alone.err;
            worst = std::max(worst, alone.code);
        }
        const SRunResult together = Run(mode + files);
        EXPECT_EQ(together.code, worst);
        EXPECT_EQ(together.out, trees);
        if (mode.find("--stat") == std::string::npos) { // which tells the speed
            EXPECT_EQ(together.err, messages);
        }
    }
}

TEST_F(UvparseProgram, OneBadInputDoesNotStopTheOthers)
{
    Put("good.sql", "select 1;\n");
    Put("latin.sql", "select 'caf\xE9';\n");
    Put("nul.sql", "select 1;\0select 2;"s);
    fs::create_directory(m_Folder / "folder.sql");
    const std::string good = Run("good.sql").out;
    const SRunResult run = Run("missing.sql latin.sql nul.sql folder.sql none.xyz good.sql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, good);
    for (const char* part :
         {"missing.sql: ", "latin.sql: not valid UTF-8: byte 0xE9 at byte offset 11; ", "--encoding",
          "nul.sql: NUL byte", "offset 9;", "folder.sql: ", "none.xyz: ", "PostgreSQL"})
        EXPECT_NE(run.err.find(part), std::string::npos) << part << " in\n" << run.err;
}

TEST_F(UvparseProgram, ByteOrderMarksAreUnderstood)
{
    Put("plain.sql", "select '\xC3\xA9';\n");
    Put("utf8.sql", "\xEF\xBB\xBFselect '\xC3\xA9';\n");
    Put("utf16.sql", "\xFF\xFEs\0e\0l\0e\0c\0t\0 \0'\0\xE9\0'\0;\0\n\0"s);
    const SRunResult plain = Run("plain.sql");
    EXPECT_EQ(plain.code, 0);
    EXPECT_EQ(Run("utf8.sql").out, plain.out);
    EXPECT_EQ(Run("utf16.sql").out, plain.out);
}

TEST_F(UvparseProgram, OutputFolderTakesOneFilePerInput)
{
    Put("x/a.sql", kScript);
    Put("y/a.sql", "select 1;\n");
    Put("y/b.sql", "select 2;\n");
    const std::string tree = Run("x/a.sql").out;
    const SRunResult run = Run("--output deep/er x/a.sql y/b.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Get("deep/er/a.sql.xml"), tree);
    EXPECT_TRUE(Has("deep/er/b.sql.xml"));

    // files of one name go to their folders, from where these part
    EXPECT_EQ(Run("--output twins x/a.sql x/../y/a.sql $PWD/y/b.sql").code, 0);
    EXPECT_EQ(Get("twins/x/a.sql.xml"), tree);
    EXPECT_TRUE(Has("twins/y/a.sql.xml"));
    EXPECT_TRUE(Has("twins/b.sql.xml"));

    const SRunResult clash = Run("--output other x/a.sql x/../x/a.sql");
    EXPECT_EQ(clash.code, 2);
    EXPECT_NE(clash.err.find("'x/a.sql' and 'x/../x/a.sql' would both be written"), std::string::npos)
        << clash.err;
    EXPECT_FALSE(Has("other"));
}

struct SLostCase
{
    const char* file;
    const char* text;
    const char* message; // empty: the text is clean
};

const SLostCase kLostCases[] = {
    {"a.sql", "select 1;\n/* note\nselect 2;\n", "a.sql:2:1: error: never closed: '/* note...'\n"},
    {"b.sql", "select $x$ a; $$ b;", "b.sql:1:8: error: never closed: '$x$ a; $$ b;'\n"},
    {"c.sql", "select ; creat x; selec 1; select 1;", "c.sql:1:19: error: skipped 'selec 1'\n"},
    {"a.cl", "PGM\n/* note\n", "a.cl:2:1: error: never closed: '/* note"},
    {"a.jcl", "//A JOB\n//B EXEC PGM=C\n//D DD *\n data", ""}, // data may end with the text
    {"d.sql", "copy t from stdin;\n1\t2\n", ""},
    {"c.jcl", "//A JOB\n//B EXEC PGM=C\n//D DD *,DLM=", "c.jcl:3:10: error: never closed: 'DLM='\n"},
    {"b.jcl", "//A JOB\n//B EXEC PGM=C", ""},
};

TEST_F(UvparseProgram, NoTextThatWasNotReadIsSilent)
{
    for (const auto& c : kLostCases) {
        SCOPED_TRACE(c.text);
        Put(c.file, c.text);
        for (const char* mode : {"", "--raw "}) {
            const SRunResult run = Run(std::string(mode) + c.file);
            EXPECT_EQ(run.code, *c.message != '\0' ? 1 : 0) << run.err;
            EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
        }
    }
}

TEST_F(UvparseProgram, WhatNeverEndsIsLeftAtItsFirstNul)
{
    const SRunResult run = Run("-l PostgreSQL /dev/zero");
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("/dev/zero: NUL byte"), std::string::npos) << run.err;
    EXPECT_EQ(Run("-l PostgreSQL --encoding UTF-16LE /dev/zero").code, 2);
}

#ifndef UV_SANITIZED // a sanitizer reserves more than any limit allows
TEST_F(UvparseProgram, ShortMemoryIsNoFaultOfTheTextAndTheNextFileGoesOn)
{
    std::string statements;
    for (int i = 0; i < 200000; ++i)
        statements += "select a, b from t where x in (1, 2, 3);\n";
    Put("large.sql", statements);
    Put("small.sql", "select 1;\n");
    const SRunResult run = RunProgram("/bin/sh", "-c \"ulimit -v 400000; exec '" UV_BIN_DIR
                                                 "/uvparse' --stat --output out large.sql small.sql\"");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err.find("uvparse: error: large.sql: out of memory\nsmall.sql: 1 statements read, 0 lost"),
              0u)
        << run.err;
    EXPECT_FALSE(Has("out/large.sql.xml"));
    EXPECT_TRUE(Has("out/small.sql.xml"));
}
#endif

TEST_F(UvparseProgram, OptionsThatNothingReadsAreRefused)
{
    constexpr struct
    {
        const char* arguments;
        const char* refusal;
    } kCases[] = {
        {"-o COBOLFORMT=ANSI", "--option: nothing reads an option 'COBOLFORMT'; did you mean 'COBOLFORMAT'?"},
        {"-o COBOLFORMAT=YES", "--option: COBOLFORMAT takes one of ANSI FREE NO, not 'YES'"},
        {"-o JCLANSIFORMAT=yes", "JCLANSIFORMAT takes one of YES"}, // there the case of letters counts
        {"-o COBOL_TAB_WIDTH=-1", "COBOL_TAB_WIDTH takes a number, not '-1'"},
        {"-o ORVA_CHILD=maybe", "ORVA_CHILD takes one of yes no true false 1 0, not 'maybe'"},
        {"--object-option ObjectId=1",
         "--object-option: nothing reads an option 'ObjectId'; did you mean 'ObjectID'?"},
    };
    Put("a.sql", kScript);
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.arguments);
        const SRunResult run = Run("a.sql "s + c.arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_NE(run.err.find(c.refusal), std::string::npos) << run.err;
    }
    EXPECT_EQ(Run("a.sql -o cobolformat=ANSI").code, 2);
    EXPECT_EQ(Run("a.sql -o OPTION_VARYING_PARSING=yes -o ORVA_CHILD=True").code, 0);
}

TEST_F(UvparseProgram, LanguagesAreListedWithWhatIsDoneForThem)
{
    const std::string list = Run("--list-languages").out;
    for (const char* line : {"COBOL\tprepared\n", "JCL\tprepared, parsed\n", "PostgreSQL\tparsed\n"})
        EXPECT_NE(list.find(line), std::string::npos) << list;
}

TEST_F(UvparseProgram, LostWritesAreNeverASuccess)
{
    Put("a.sql", kScript);
    Put("plain", "");
    EXPECT_EQ(Run("a.sql >/dev/full").code, 2);
    EXPECT_EQ(Run("--help >/dev/full").code, 2);
    EXPECT_EQ(Run("--list-languages >/dev/full").code, 2);
    EXPECT_EQ(Run("--trace /dev/full a.sql").code, 2);
    EXPECT_EQ(Run("--trace missing/trace a.sql").code, 2);
    EXPECT_EQ(Run("--output plain a.sql").code, 2);
    EXPECT_EQ(Run("a.sql >&-").code, 2);
}

TEST_F(UvparseProgram, AFileThatGrowsTooLargeLeavesNothingBehind)
{
    std::string script;
    for (int i = 0; i < 500; ++i)
        script += kScript;
    Put("a.sql", script);
    Put("trees/a.sql.xml", "earlier");
    const SRunResult run =
        RunProgram("/bin/sh", "-c 'ulimit -f 8; exec " UV_BIN_DIR "/uvparse --output trees a.sql'");
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("File too large"), std::string::npos) << run.err;
    EXPECT_EQ(Get("trees/a.sql.xml"), "earlier");
    const std::filesystem::directory_iterator files(m_Folder / "trees");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(UvparseProgram, ColorPrintsRangesOfBytes)
{
    Put("a.sql", "select \xC3\xA9 -- x\n from t");
    const SRunResult run = Run("--color a.sql");
    EXPECT_EQ(run.code, 0) << run.err;
    // color, first and last byte: keyword, identifier, comment, keyword, identifier
    EXPECT_EQ(run.out, "1 0 5\n2 7 8\n6 10 13\n1 16 19\n2 21 21\n");
}

TEST_F(UvparseProgram, TraceHoldsWhatTheLibrarySays)
{
    Put("a.sql", kScript);
    EXPECT_EQ(Run("--trace trace.txt a.sql").code, 0);
    const std::string trace = Get("trace.txt");
    EXPECT_NE(trace.find("\nUVParserPostgreSQL : Creation...OK"), std::string::npos) << trace;
    EXPECT_NE(trace.find("\nParsing..."), std::string::npos) << trace;
}

TEST_F(UvparseProgram, OptionsReachTheLibrary)
{
    // A text from a file of this extension is wrapped as it stands.
    Put("a.properties", "x = <y>\n");
    const SRunResult own = Run("-l PostgreSQL a.properties");
    EXPECT_NE(own.out.find("<SQL>x = <y>\n</SQL>"), std::string::npos) << own.out;

    // A child of another tool gives up where others go on.
    Put("bad.sql", "select from from t;\n");
    EXPECT_NE(Run("bad.sql").out, "");
    const SRunResult child = Run("-o ORVA_CHILD=1 bad.sql");
    EXPECT_EQ(child.code, 1);
    EXPECT_EQ(child.out, "");

    EXPECT_EQ(Run("-o NOVALUE bad.sql").code, 2);
    EXPECT_EQ(Run("-l ../Grammar/PostgreSQL bad.sql").code, 2);
}

TEST_F(UvparseProgram, DamagedTablesAreReportedByName)
{
    fs::create_directories(m_Folder / "bin/Grammar/Broken");
    for (const char* file : {"uvparse", "libUVParser.so"})
        fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
    Put("a.sql", "select 1;");
    const SRunResult run = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.sql a.sql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Broken/"), std::string::npos) << run.err;

    fs::remove(m_Folder / "bin/libUVParser.so");
    const SRunResult without = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.sql");
    EXPECT_EQ(without.code, 2);
    EXPECT_NE(without.err.find("Unable to load 'libUVParser.so'"), std::string::npos) << without.err;
}

} // namespace
