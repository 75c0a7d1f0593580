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
    Put("a.pgsql", kScript);
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify a.pgsql "s + mode);
        EXPECT_EQ(run.code, 0) << run.err;
        ASSERT_FALSE(run.out.empty());
        EXPECT_EQ(run.out.back(), '\n');
        EXPECT_NE(run.out[run.out.size() - 2], '\n');
        EXPECT_FALSE(uvparse::FindTreeDifference(run.out, kScript));
        EXPECT_EQ(uvparse::CountStatements(run.out), 2u);
        EXPECT_EQ(run.err, "a.pgsql: verified: the tree holds the " + std::to_string(sizeof(kScript) - 1) +
                               " bytes of the text\n");
    }
}

TEST_F(UvparseProgram, TreeIsFlattenedUnlessTheRawOneIsWanted)
{
    Put("a.pgsql", "select a, b, c from t;\n");
    const SRunResult flat = Run("a.pgsql");
    EXPECT_EQ(flat.out.find("<?xml version=\"1.0\" ?>\n<SQL>"), 0u) << flat.out;
    EXPECT_NE(flat.out.find("<full_pl_sql_statement delimited=\"1\" labeled=\"0\">"), std::string::npos)
        << flat.out;
    EXPECT_EQ(flat.out.find("<delimited_pl_sql_statement>"), std::string::npos) << flat.out;
    const SRunResult raw = Run("--raw a.pgsql");
    EXPECT_EQ(raw.out.find("<SQL>"), 0u) << raw.out;
    EXPECT_NE(raw.out.find("<delimited_pl_sql_statement>"), std::string::npos) << raw.out;
    EXPECT_EQ(Run("-o TREE2SERIAL_STYLESHEET=1 a.pgsql").out, flat.out);
}

TEST_F(UvparseProgram, VerifyKnowsWhatFlatteningDoesToLineEnds)
{
    Put("a.pgsql", "select 1;\r\nselect 'x\ry';\r\n");
    EXPECT_EQ(Run("--verify --raw a.pgsql").err,
              "a.pgsql: verified: the tree holds the 26 bytes of the text\n");
    const SRunResult flat = Run("--verify a.pgsql");
    EXPECT_EQ(flat.code, 0);
    EXPECT_EQ(flat.err,
              "a.pgsql: verified: the tree holds the 26 bytes of the text before it is flattened, which "
              "changes it from byte 9 on\n");
    EXPECT_EQ(flat.out.find('\r'), std::string::npos);
    EXPECT_NE(Run("--raw a.pgsql").out.find('\r'), std::string::npos);
}

TEST_F(UvparseProgram, FlatteningFailureIsToldInTheLibrarysWords)
{
    // Nested deeper than a stylesheet may recurse, after an unexpected token.
    constexpr std::size_t kDepth = 15000;
    Put("a.pgsql",
        "select from from t;\nselect " + std::string(kDepth, '(') + '1' + std::string(kDepth, ')') + ";\n");
    const SRunResult run = Run("-o TREE2SERIAL_STYLESHEET=1 a.pgsql");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("a.pgsql:1:13: error: unexpected token 'from'; expected name"), std::string::npos)
        << run.err;
    EXPECT_NE(run.err.find("a.pgsql: error: can't transform tree to serial\n"), std::string::npos) << run.err;
    EXPECT_EQ(Run("--raw --verify a.pgsql").err.find("can't transform"), std::string::npos);
}

TEST_F(UvparseProgram, PrettyBreaksLinesAndKeepsTokens)
{
    Put("a.pgsql", kScript);
    for (const char* mode : {"", "--raw "}) {
        SCOPED_TRACE(mode);
        const std::string plain = Run(mode + "a.pgsql"s).out;
        const SRunResult pretty = Run(mode + "--pretty a.pgsql"s);
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
    Put("a.pgsql", kScript);
    Put("b.pgsql", "select 1;\n");
    SRunResult run = Run("--xpath '//select_item/alias//T__IDENTIFIER' a.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "<T__IDENTIFIER type=\"TOKEN\" line=\"1\" pos=\"1\">x</T__IDENTIFIER>\n");
    run = Run("--xpath 'count(//T__SELECT)' a.pgsql b.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "a.pgsql:2\nb.pgsql:1\n");
    // As grep does: a text where nothing is found is no failure while another has something.
    run = Run("--xpath 'string(//T__WHERE)' b.pgsql a.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "b.pgsql:\na.pgsql:where\n");
    run = Run("--xpath //T__WHERE b.pgsql");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_EQ(Run("--raw --xpath //delimited_pl_sql_statement b.pgsql").code, 0);

    run = Run("--xpath '//a[' --output out a.pgsql");
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("'//a[': Invalid expression at character 5\n"), std::string::npos) << run.err;
    EXPECT_FALSE(Has("out"));
    run = Run("--xpath //T__WHERE --output out a.pgsql b.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Get("out/a.pgsql.txt"), "<T__WHERE type=\"TOKEN\" line=\"3\" pos=\"1\">where</T__WHERE>\n");
    EXPECT_EQ(Get("out/b.pgsql.txt"), "");
}

TEST_F(UvparseProgram, NamedEncodingIsReadAndNothingIsReplaced)
{
    Put("plain.pgsql", "select '\xC3\xA9\xE2\x82\xAC';\n");
    Put("a.pgsql", "select '\xE9\x80';\n");
    const SRunResult run = Run("--encoding CP1252 --verify a.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, Run("plain.pgsql").out);
    // Messages point into the text as it was read.
    Put("bad.pgsql", "select '\xE9\xE9' from from;\n");
    EXPECT_EQ(
        Run("--encoding latin1 bad.pgsql")
            .err.find(
                "bad.pgsql:1:18: error: unexpected token 'from'; expected name, '(', 'CAST' or 'LATERAL'\n"
                "    select '\xC3\xA9\xC3\xA9' from from;\n"),
        0u);

    Put("hole.pgsql", "select '\x81';\n");
    const SRunResult hole = Run("--encoding CP1252 hole.pgsql");
    EXPECT_EQ(hole.code, 2);
    EXPECT_EQ(hole.out, "");
    EXPECT_EQ(hole.err, "uvparse: error: hole.pgsql: not valid CP1252: byte 0x81 at byte offset 8\n");
    const SRunResult unknown = Run("--encoding nonesuch a.pgsql plain.pgsql");
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
    Put("a.pgsql", kScript);
    Put("in", kScript);
    const SRunResult file = Run("a.pgsql");
    const SRunResult input = Run("--db postgresql -");
    EXPECT_EQ(input.code, 0) << input.err;
    EXPECT_EQ(input.out, file.out);
    EXPECT_EQ(Run("-").code, 2); // nothing tells its language
}

TEST_F(UvparseProgram, UnexpectedTokensAreShownInTheirPlace)
{
    Put("a.pgsql", "select 1;\nselect '\xC3\xA9\xC3\xA9', from from t;\nselect 2;\n");
    for (const char* mode : {"", "--raw"}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run("--verify --stat a.pgsql "s + mode);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.err.find("a.pgsql:2:14: error: unexpected token 'from'; "
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
    EXPECT_EQ(Run("--quiet a.pgsql").err, "");
}

// A raw parse sees zero-width spaces, an ordinary one sees shorter blanks.
TEST_F(UvparseProgram, PlacesAreTheSameInBothKindsOfTree)
{
    Put("a.pgsql", "select '\xE2\x80\x8B\xE2\x80\x8B', 1 from from t;\n");
    for (const char* mode : {"", "--raw "}) {
        SCOPED_TRACE(mode);
        const SRunResult run = Run(mode + "--verify a.pgsql"s);
        EXPECT_EQ(run.err.find("a.pgsql:1:21: error: unexpected token 'from'"), 0u) << run.err;
        EXPECT_NE(run.err.find("verified"), std::string::npos) << run.err;
    }
}

TEST_F(UvparseProgram, TextsDoNotInfluenceEachOther)
{
    // One object reads them all, whatever the one before has left: errors, quotes that don't close, another
    // rule for quotes, nothing at all.
    Put("a.pgsql", kScript);
    Put("bad.pgsql", "select from from;\n");
    Put("quoted.pgsql", "create table \"a b\" (c int);\nselect \"x\" from from \"y\";\n");
    Put("open.pgsql", "select 'never closed\n");
    Put("empty.pgsql", "");
    Put("b.pgsql", "select 1, 2 as b;");
    for (const std::string mode :
         {"", "--raw ", "--color ", "--stat --verify ", "-o OPTION_VARYING_PARSING=YES ",
          "-o ORVA_CHILD=true ", "-o ANSI_QUOTED_IDENTIFIERS=No "}) {
        SCOPED_TRACE(mode);
        std::string files;
        std::string trees;
        std::string messages;
        int worst = 0;
        for (const char* file :
             {"a.pgsql", "bad.pgsql", "quoted.pgsql", "open.pgsql", "empty.pgsql", "b.pgsql", "a.pgsql"}) {
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
    Put("good.pgsql", "select 1;\n");
    Put("latin.pgsql", "select 'caf\xE9';\n");
    Put("nul.pgsql", "select 1;\0select 2;"s);
    fs::create_directory(m_Folder / "folder.pgsql");
    const std::string good = Run("good.pgsql").out;
    const SRunResult run = Run("missing.pgsql latin.pgsql nul.pgsql folder.pgsql none.xyz good.pgsql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, good);
    for (const char* part :
         {"missing.pgsql: ", "latin.pgsql: not valid UTF-8: byte 0xE9 at byte offset 11; ", "--encoding",
          "nul.pgsql: NUL byte", "offset 9;", "folder.pgsql: ", "none.xyz: ", "PostgreSQL"})
        EXPECT_NE(run.err.find(part), std::string::npos) << part << " in\n" << run.err;
}

TEST_F(UvparseProgram, ByteOrderMarksAreUnderstood)
{
    Put("plain.pgsql", "select '\xC3\xA9';\n");
    Put("utf8.pgsql", "\xEF\xBB\xBFselect '\xC3\xA9';\n");
    Put("utf16.pgsql", "\xFF\xFEs\0e\0l\0e\0c\0t\0 \0'\0\xE9\0'\0;\0\n\0"s);
    const SRunResult plain = Run("plain.pgsql");
    EXPECT_EQ(plain.code, 0);
    EXPECT_EQ(Run("utf8.pgsql").out, plain.out);
    EXPECT_EQ(Run("utf16.pgsql").out, plain.out);
}

TEST_F(UvparseProgram, OutputFolderTakesOneFilePerInput)
{
    Put("x/a.pgsql", kScript);
    Put("y/a.pgsql", "select 1;\n");
    Put("y/b.pgsql", "select 2;\n");
    const std::string tree = Run("x/a.pgsql").out;
    const SRunResult run = Run("--output deep/er x/a.pgsql y/b.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Get("deep/er/a.pgsql.xml"), tree);
    EXPECT_TRUE(Has("deep/er/b.pgsql.xml"));

    // files of one name go to their folders, from where these part
    EXPECT_EQ(Run("--output twins x/a.pgsql x/../y/a.pgsql $PWD/y/b.pgsql").code, 0);
    EXPECT_EQ(Get("twins/x/a.pgsql.xml"), tree);
    EXPECT_TRUE(Has("twins/y/a.pgsql.xml"));
    EXPECT_TRUE(Has("twins/b.pgsql.xml"));

    const SRunResult clash = Run("--output other x/a.pgsql x/../x/a.pgsql");
    EXPECT_EQ(clash.code, 2);
    EXPECT_NE(clash.err.find("'x/a.pgsql' and 'x/../x/a.pgsql' would both be written"), std::string::npos)
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
    {"a.pgsql", "select 1;\n/* note\nselect 2;\n", "a.pgsql:2:1: error: never closed: '/* note...'\n"},
    {"b.pgsql", "select $x$ a; $$ b;", "b.pgsql:1:8: error: never closed: '$x$ a; $$ b;'\n"},
    {"c.pgsql", "select ; creat x; selec 1; select 1;", "c.pgsql:1:19: error: skipped 'selec 1'\n"},
    {"a.cl", "PGM\n/* note\n", "a.cl:2:1: error: never closed: '/* note"},
    {"a.jcl", "//A JOB\n//B EXEC PGM=C\n//D DD *\n data", ""}, // data may end with the text
    {"d.pgsql", "copy t from stdin;\n1\t2\n", ""},
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
    Put("large.pgsql", statements);
    Put("small.pgsql", "select 1;\n");
    const SRunResult run = RunProgram("/bin/sh", "-c \"ulimit -v 400000; exec '" UV_BIN_DIR
                                                 "/uvparse' --stat --output out large.pgsql small.pgsql\"");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(
        run.err.find("uvparse: error: large.pgsql: out of memory\nsmall.pgsql: 1 statements read, 0 lost"),
        0u)
        << run.err;
    EXPECT_FALSE(Has("out/large.pgsql.xml"));
    EXPECT_TRUE(Has("out/small.pgsql.xml"));
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
    Put("a.pgsql", kScript);
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.arguments);
        const SRunResult run = Run("a.pgsql "s + c.arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_NE(run.err.find(c.refusal), std::string::npos) << run.err;
    }
    EXPECT_EQ(Run("a.pgsql -o cobolformat=ANSI").code, 2);
    EXPECT_EQ(Run("a.pgsql -o OPTION_VARYING_PARSING=yes -o ORVA_CHILD=True").code, 0);
}

TEST_F(UvparseProgram, LanguagesAreListedWithWhatIsDoneForThem)
{
    const std::string list = Run("--list-languages").out;
    for (const char* line : {"COBOL\tprepared\n", "JCL\tprepared, parsed\n", "PostgreSQL\tparsed\n"})
        EXPECT_NE(list.find(line), std::string::npos) << list;
}

TEST_F(UvparseProgram, LostWritesAreNeverASuccess)
{
    Put("a.pgsql", kScript);
    Put("plain", "");
    EXPECT_EQ(Run("a.pgsql >/dev/full").code, 2);
    EXPECT_EQ(Run("--help >/dev/full").code, 2);
    EXPECT_EQ(Run("--list-languages >/dev/full").code, 2);
    EXPECT_EQ(Run("--trace /dev/full a.pgsql").code, 2);
    EXPECT_EQ(Run("--trace missing/trace a.pgsql").code, 2);
    EXPECT_EQ(Run("--output plain a.pgsql").code, 2);
    EXPECT_EQ(Run("a.pgsql >&-").code, 2);
}

TEST_F(UvparseProgram, AFileThatGrowsTooLargeLeavesNothingBehind)
{
    std::string script;
    for (int i = 0; i < 500; ++i)
        script += kScript;
    Put("a.pgsql", script);
    Put("trees/a.pgsql.xml", "earlier");
    const SRunResult run =
        RunProgram("/bin/sh", "-c 'ulimit -f 8; exec " UV_BIN_DIR "/uvparse --output trees a.pgsql'");
    EXPECT_EQ(run.code, 2);
    EXPECT_NE(run.err.find("File too large"), std::string::npos) << run.err;
    EXPECT_EQ(Get("trees/a.pgsql.xml"), "earlier");
    const std::filesystem::directory_iterator files(m_Folder / "trees");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(UvparseProgram, ColorPrintsRangesOfBytes)
{
    Put("a.pgsql", "select \xC3\xA9 -- x\n from t");
    const SRunResult run = Run("--color a.pgsql");
    EXPECT_EQ(run.code, 0) << run.err;
    // color, first and last byte: keyword, identifier, comment, keyword, identifier
    EXPECT_EQ(run.out, "1 0 5\n2 7 8\n6 10 13\n1 16 19\n2 21 21\n");
}

TEST_F(UvparseProgram, TraceHoldsWhatTheLibrarySays)
{
    Put("a.pgsql", kScript);
    EXPECT_EQ(Run("--trace trace.txt a.pgsql").code, 0);
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
    Put("bad.pgsql", "select from from t;\n");
    EXPECT_NE(Run("bad.pgsql").out, "");
    const SRunResult child = Run("-o ORVA_CHILD=1 bad.pgsql");
    EXPECT_EQ(child.code, 1);
    EXPECT_EQ(child.out, "");

    EXPECT_EQ(Run("-o NOVALUE bad.pgsql").code, 2);
    EXPECT_EQ(Run("-l ../Grammar/PostgreSQL bad.pgsql").code, 2);
}

TEST_F(UvparseProgram, DamagedTablesAreReportedByName)
{
    fs::create_directories(m_Folder / "bin/Grammar/Broken");
    for (const char* file : {"uvparse", "libUVParser.so"})
        fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
    Put("a.pgsql", "select 1;");
    const SRunResult run = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.pgsql a.pgsql");
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Broken/"), std::string::npos) << run.err;

    fs::remove(m_Folder / "bin/libUVParser.so");
    const SRunResult without = RunProgram((m_Folder / "bin/uvparse").string(), "-l Broken a.pgsql");
    EXPECT_EQ(without.code, 2);
    EXPECT_NE(without.err.find("Unable to load 'libUVParser.so'"), std::string::npos) << without.err;
}

} // namespace
