#include "Tests/Support/ProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::HasSubstr;

namespace {

// A program with two languages that differ in how they quote names. Both read files of the extension "sql".
class UvparseByContent : public CProgramFixture
{
protected:
    UvparseByContent() : CProgramFixture("uvparse")
    {
        fs::create_directories(m_Folder / "bin/Grammar");
        for (const char* file : {"uvparse", "libUVParser.so"})
            fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
        const std::string folder = UV_SOURCE_DIR "/Tests/Grammars/Basic/";
        Put("Parser.y", ReadWholeFile(folder + "BasicParser.y"));
        std::string lexer = ReadWholeFile(folder + "BasicLexer.l");
        Put("Oracle.l", lexer);
        const std::string quoted = "\\\"[^\"]*\\\"";
        const std::size_t at = lexer.find(quoted);
        EXPECT_NE(at, std::string::npos);
        if (at != std::string::npos)
            Put("MySQL.l", lexer.replace(at, quoted.size(), "`[^`]*`"));
        for (const std::string language : {"MySQL", "Oracle"}) {
            std::string arguments = "--parser Parser.y --lexer ";
            arguments.append(language).append(".l --output bin/Grammar/").append(language);
            const SRunResult made = RunProgram(UV_BIN_DIR "/uvgrammar", arguments);
            EXPECT_EQ(made.code, 0) << made.err;
        }
        Put("back.sql", "use `a`;\nprint 1;\nuse `b`;\n");
        Put("double.sql", "use \"a\";\nprint 1;\n");
        Put("both.sql", "print 1;\n");
        Put("neither.sql", "select from;\nselect;\n");
    }

    SRunResult Choose(const std::string& arguments) const
    {
        return RunProgram((m_Folder / "bin/uvparse").string(), arguments);
    }

    // "language file" for each note.
    std::string Chosen(const std::string& arguments) const
    {
        std::string chosen;
        for (const std::string& line : Split(Choose("--messages json " + arguments).err, '\n')) {
            const nlohmann::json note = nlohmann::json::parse(line);
            if (note["kind"] != "chosen-language")
                continue;
            EXPECT_EQ(note["severity"], "note");
            chosen += note["language"].get<std::string>() + ' ' + note["file"].get<std::string>() + '\n';
        }
        return chosen;
    }
};

TEST_F(UvparseByContent, EachFileIsTakenForTheLanguageThatReadsIt)
{
    const SRunResult run = Choose("back.sql double.sql both.sql neither.sql");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(
        run.err,
        testing::StartsWith(
            "back.sql: note: taken for MySQL: nothing is lost; Oracle: 14 of 27 bytes are lost, first at "
            "1:5: unexpected token '`'\n"
            "double.sql: note: taken for Oracle: nothing is lost; MySQL: 7 of 18 bytes are lost, first at "
            "1:5: unexpected token '\"'\n"
            "both.sql: note: taken for MySQL, though Oracle reads it alike: nothing is lost\n"
            "neither.sql: note: taken for MySQL, though Oracle reads it alike, badly: "));
    EXPECT_EQ(run.out, Choose("-l MySQL back.sql").out + Choose("-l Oracle double.sql").out +
                           Choose("-l MySQL both.sql neither.sql").out);
    EXPECT_EQ(Choose("--quiet back.sql").err, "");
    // Nothing is said where the text had no say.
    EXPECT_EQ(Choose("-l MySQL back.sql").err + Choose("--db oracle double.sql").err, "");
    fs::remove_all(m_Folder / "bin/Grammar/MySQL");
    EXPECT_EQ(Choose("-l auto double.sql").err, "");
}

TEST_F(UvparseByContent, WhatIsAskedForOfTheTextDoesNotMatter)
{
    const std::string files = "back.sql double.sql";
    const std::string chosen = "MySQL back.sql\nOracle double.sql\n";
    for (const char* mode : {"", "--raw ", "--color ", "--verify --stat ", "--xpath //SQL ", "--prepare ",
                             "--lines ", "--output out ", "-o ORVA_CHILD=1 "}) {
        SCOPED_TRACE(mode);
        EXPECT_EQ(Chosen(mode + files), chosen);
        if (mode == "--output out "s)
            continue;
        for (const std::string language : {"MySQL back.sql", "Oracle double.sql"})
            EXPECT_EQ(Choose(mode + language.substr(language.find(' '))).out,
                      Choose(mode + "-l "s + language).out);
    }
    Put("in", Get("double.sql"));
    EXPECT_EQ(Chosen("-l AUTO -"), "Oracle <stdin>\n");
    EXPECT_EQ(Choose("-").code, 2);
    EXPECT_EQ(Chosen("-l auto back.sql - none.sql"), "MySQL back.sql\nOracle <stdin>\n");

    const nlohmann::json sarif =
        nlohmann::json::parse(Choose("--messages sarif none.sql back.sql").err)["runs"][0];
    EXPECT_EQ(sarif["results"].size(), 0u);
    EXPECT_EQ(sarif["artifacts"].size(), 2u);
    EXPECT_FALSE(sarif["artifacts"][0].contains("sourceLanguage")); // it was never read
    EXPECT_EQ(sarif["artifacts"][1]["sourceLanguage"], "MySQL");
    const nlohmann::json note = sarif["invocations"][0]["toolExecutionNotifications"][1];
    EXPECT_EQ(note["descriptor"]["id"], "chosen-language");
    EXPECT_EQ(note["level"], "note");
}

TEST_F(UvparseByContent, BeginningDecidesAndMoreOfTheTextWhereItTellsNothing)
{
    std::string text;
    while (text.size() < 100000)
        text += "print 'line " + std::to_string(text.size()) + "';\n";
    Put("late.sql", text + "use \"a\";\n");
    EXPECT_THAT(Choose("late.sql").err, HasSubstr("taken for Oracle: nothing is lost; MySQL: 7 of " +
                                                  std::to_string(text.size() + 9)));
    Put("early.sql", "use \"a\";\n" + text);
    EXPECT_THAT(Choose("early.sql").err, HasSubstr("taken for Oracle by its first 655"));
    // A comment that is open at the cut is no fault; a text that begins with a long one is looked at as a whole.
    Put("comment.sql", "/* " + std::string(300000, 'x') + " */\nuse \"a\";\n");
    EXPECT_THAT(Choose("comment.sql").err,
                HasSubstr("taken for Oracle: nothing is lost; MySQL: 7 of 300016"));
    for (int i = 0; i < 3; ++i)
        text += text;
    Put("never.sql", text);
    EXPECT_THAT(Choose("never.sql").err, HasSubstr("taken for MySQL by its first 26"));
}

TEST_F(UvparseByContent, TablesAreLoadedOnceForAllFiles)
{
    EXPECT_EQ(Choose("--trace trace.txt back.sql double.sql both.sql back.sql double.sql").code, 0);
    const std::string trace = Get("trace.txt");
    for (const std::string language : {"MySQL", "Oracle"}) {
        const std::string created = "\nUVParser" + language + " : Creation...";
        const std::size_t first = trace.find(created);
        ASSERT_NE(first, std::string::npos) << trace;
        EXPECT_EQ(trace.find(created, first + 1), std::string::npos) << trace;
    }
}

} // namespace
