#include "Tests/Support/ProgramFixture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <pty.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {

class UvparsePrepare : public CProgramFixture
{
protected:
    UvparsePrepare() : CProgramFixture("uvparse") {}
};

struct SPassCase
{
    const char* arguments; // the file stands after them
    const char* file;
    const char* source;
    const char* prepared;
    const char* lines; // the source line of each prepared one
};

const SPassCase kPassCases[] = {
    {"-l COBOL -o COBOLFORMAT=ANSI", "a.cob",
     "000100 IDENTIFICATION DIVISION.                                         PROG1\n"
     "\n"
     "000300     MOVE 'AB\n"
     "000400-    'CD' TO X.\n"
     "000500     STOP RUN.\n",
     "       IDENTIFICATION DIVISION.                                         \n"
     "           MOVE 'AB                                                     CD' TO X.\n"
     "           STOP RUN.\n",
     "1 3 5"},
    // Nothing asks for the pass.
    {"-l COBOL", "a.cob", "000100     STOP RUN.\n\n000300", "000100     STOP RUN.\n\n000300", "1 2 3"},
    {"-o JCLANSIFORMAT=YES", "a.jcl",
     "//A        JOB  (1),CLASS=A                                             00010000\n\n//S1 EXEC PGM=X\n",
     "//A        JOB  (1),CLASS=A                                             \n\n//S1 EXEC PGM=X\n",
     "1 2 3"},
    // The faithful form unless the literal one is asked for.
    {"-l IBMCL", "a.cl", "A + \n B\n", "A B", "1"},
    {"-l IBMCL -o SOURCE_FORMS=LITERAL", "a.cl", "A + \n B\n", "A + \n B", "1 2"},
    {"-l IBMCL", "a.cl", "PGM\n\nCHGVAR VAR(&A) +\r\n       VALUE(1)\nENDPGM\n",
     "PGM\nCHGVAR VAR(&A) VALUE(1)\nENDPGM", "1 3 5"},
    {"--db IBMCL", "-", "PGM\nENDPGM\n", "PGM\nENDPGM", "1 2"},
    {"-l IBMRPG -o IBMRPG_VERSION=0", "a.txt",
     "     C                   IF        A = B\n     C                   ENDIF\n",
     "C                   VelmoraBegIF        A = B\n$\nC                   VelmoraEndENDIF\n#\n", "1 1 2 2"},
    {"-l Pascal -o UNIK_DEFINE=Yes", "a.pas",
     "unit a;\n{$IFDEF RELEASE}\nx := 1;\n{$ELSE}\nx := 2;\n{$ENDIF}\n\n{$IFDEF FOO}\ny;\n{$ENDIF}\n",
     "unit a;\nx := 1;\n{$IFDEF FOO}\ny;\n{$ENDIF}\n", "1 3 8 9 10"},
    {"-l FoxproPrograms", "a.prg", "? 'a' + ;\n 'b'\n\n* c\n", "? 'a' +   'b'\n\n* c", "1 3 4"},
    {"-l Progress4GL -o INCLUDE_FILES=YES", "a.p", "def var a.\n{inc.i &x=Q}\nend.\n",
     "def var a.\n  display \"Q\".\n  next.\n\nend.\n", "1 2 2 2 3"},
    {"-l ASP", "a.asp", "h\n<% x = 1 %>\nt\n",
     "h\n<%\n'ORVANTA_VB_CODEBLOCK_0\n x = 1 'ORVANTA_VB_CODEBLOCK_0\n%>\nt\n", "1 2 2 2 2 3"},
    {"-l C -o PREPROCESSOR=0 -o PREPROCESSOR_FUNCTION=2", "a.c",
     "#define N 3\n#ifdef N\nint a[N]; // n\n#else\nint b;\n#endif\n", "\n\nint a[3]; // n", "1 2 3"},
    // A language without a pass.
    {"-l PostgreSQL", "a.sql", "select\n1;\n", "select\n1;\n", "1 2"},
};

// Neither tables nor a folder for them are beside the program.
TEST_F(UvparsePrepare, TextsArePreparedWithoutAnyGrammar)
{
    fs::create_directories(m_Folder / "bin");
    for (const char* file : {"uvparse", "libUVParser.so"})
        fs::create_hard_link(fs::path(UV_BIN_DIR) / file, m_Folder / "bin" / file);
    const std::string program = (m_Folder / "bin/uvparse").string();
    Put("inc.i", "  display \"{&x}\".\n  next.\n");
    for (const auto& c : kPassCases) {
        const std::string arguments = c.arguments + " "s + c.file;
        SCOPED_TRACE(arguments);
        Put(c.file == "-"s ? "in" : c.file, c.source);

        const SRunResult prepared = RunProgram(program, "--prepare " + arguments);
        EXPECT_EQ(prepared.code, 0);
        const bool isLeftAlone = prepared.err.starts_with(c.file + ": warning: not prepared: "s);
        EXPECT_TRUE(prepared.err.empty() || isLeftAlone) << prepared.err;
        EXPECT_TRUE(!isLeftAlone || c.source == std::string(c.prepared)) << prepared.err;
        EXPECT_EQ(prepared.out, c.prepared);

        const SRunResult lines = RunProgram(program, "--lines " + arguments);
        EXPECT_EQ(lines.code, 0) << lines.err;
        std::string sourceLines;
        std::istringstream rows(lines.out);
        std::string number;
        std::string source;
        for (std::size_t line = 1; rows >> number >> source; ++line) {
            EXPECT_EQ(number, std::to_string(line));
            sourceLines += (line > 1 ? " " : "") + source;
        }
        EXPECT_EQ(sourceLines, c.lines);
    }
}

TEST_F(UvparsePrepare, DiffIsPlainInAFileAndAsWideAsAsked)
{
    Put("a.cl", "PGM\n\nCHGVAR VAR(&A) +\n       VALUE(1)\nENDPGM\n");
    unsetenv("COLUMNS");
    const SRunResult wide = Run("--prepare --diff a.cl");
    EXPECT_EQ(wide.code, 0) << wide.err;
    EXPECT_NE(wide.out.find(" 2 CHGVAR VAR(&A) VALUE(1)\n"), std::string::npos) << wide.out;

    setenv("COLUMNS", "42", 1);
    EXPECT_EQ(Run("--prepare --diff a.cl").out, "  a.cl                  prepared by Form\xE2\x80\xA6\n"
                                                "1 PGM                 1 PGM\n"
                                                "2                   <\n"
                                                "3 CHGVAR VAR(&A) +  | 2 CHGVAR VAR(&A) V\xE2\x80\xA6\n"
                                                "4        VALUE(1)   &\n"
                                                "5 ENDPGM              3 ENDPGM\n");
    EXPECT_EQ(Run("--prepare --diff --output out a.cl").out, "");
    unsetenv("COLUMNS");
    EXPECT_EQ(Get("out/a.cl.diff"), wide.out); // whoever has it written
}

// What `command` writes to a terminal of this width.
std::string OnTerminal(const std::string& command, unsigned short columns)
{
    struct winsize size = {};
    size.ws_row = 24;
    size.ws_col = columns;
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    std::string out;
    char piece[4096];
    // The end of the other side is an error here.
    for (ssize_t got = 0; (got = read(terminal, piece, sizeof(piece))) > 0 || (got < 0 && errno == EINTR);)
        out.append(piece, got > 0 ? static_cast<std::size_t>(got) : 0);
    close(terminal);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? out : "failed: " + out;
}

TEST_F(UvparsePrepare, TerminalGetsColorsUnlessTheyAreRefused)
{
    Put("a.cl", "PGM\n\nENDPGM\n");
    const auto with = [&](const std::string& environment) {
        return OnTerminal("cd '" + m_Folder.string() + "' && COLUMNS=20 " + environment +
                              " '" UV_BIN_DIR "/uvparse' --prepare --diff a.cl",
                          50);
    };
    const std::string colored = with("TERM=xterm NO_COLOR=");
    EXPECT_NE(colored.find("\033[31m"), std::string::npos) << colored;
    EXPECT_NE(colored.find("ENDPGM\r\n"), std::string::npos) << colored; // nothing is colored there
    const std::string plain = with("TERM=xterm NO_COLOR=1");
    EXPECT_EQ(plain.find('\033'), std::string::npos) << plain;
    // The terminal's own width, not the environment's.
    EXPECT_NE(plain.find("\n2                       <\r\n"), std::string::npos) << plain;
    EXPECT_EQ(with("TERM=dumb NO_COLOR="), plain);
}

TEST_F(UvparsePrepare, OutputsAreNamedAfterWhatTheyHold)
{
    Put("a.cl", "PGM +\n X\n");
    Put("b.cl", "PGM\n\nX\n");
    EXPECT_EQ(Run("--prepare --output out a.cl b.cl").code, 0);
    EXPECT_EQ(Get("out/a.cl.prepared"), "PGM X");
    EXPECT_EQ(Get("out/b.cl.prepared"), "PGM\nX");
    EXPECT_EQ(Run("--lines --output out a.cl b.cl").code, 0);
    EXPECT_EQ(Get("out/b.cl.lines"), "1\t1\n2\t3\n");
    EXPECT_EQ(Run("--lines a.cl b.cl").out, "a.cl:1\t1\nb.cl:1\t1\nb.cl:2\t3\n");
    EXPECT_EQ(Run("--prepare --lines b.cl").out, "1:PGM\n3:X\n");
    EXPECT_EQ(Run("--prepare a.cl >/dev/full").code, 2);
    EXPECT_EQ(Run("--prepare --diff a.cl >/dev/full").code, 2);
}

TEST_F(UvparsePrepare, WhatPreparationCannotDoIsTold)
{
    // Without a layout nothing is left of RPG.
    Put("a.rpg", "     C                   IF        A = B\n");
    const SRunResult empty = Run("--prepare -l IBMRPG a.rpg");
    EXPECT_EQ(empty.code, 1);
    EXPECT_EQ(empty.out, "");
    EXPECT_EQ(empty.err, "a.rpg: error: IBMRPG_VERSION names no column layout: the text is empty\n");
    Put("empty.cl", "");
    EXPECT_EQ(Run("--prepare empty.cl").err, "");

    Put("a.c", "int a;\nint \xC3\xA9;\n");
    const SRunResult failed = Run("--prepare -l C -o PREPROCESSOR=0 a.c");
    EXPECT_EQ(failed.code, 1);
    EXPECT_EQ(failed.out, "");
    EXPECT_EQ(failed.err.find("a.c:2: error: unhandled char error: "), 0u) << failed.err;

    EXPECT_EQ(Run("--prepare -l Nonesuch a.c").err,
              "uvparse: error: a.c: no language is called 'Nonesuch'\n");
    EXPECT_EQ(Run("--prepare a.inc").code, 2); // several languages have these
    EXPECT_EQ(Run("--prepare --verify a.cl").code, 2);
}

TEST_F(UvparsePrepare, TextsDoNotInfluenceEachOther)
{
    Put("a.c", "#define N 3\n#ifndef M\nint a = N;\n#endif\n");
    Put("b.c", "#define M 4\n#ifdef N\nint b = N;\n#endif\nint c = M;\n");
    const std::string options = "--prepare -l C -o PREPROCESSOR=0 -o PREPROCESSOR_FUNCTION=2 ";
    const std::string a = Run(options + "a.c").out;
    const std::string b = Run(options + "b.c").out;
    EXPECT_NE(a.find("int a = 3;"), std::string::npos) << a;
    EXPECT_EQ(b.find("int b"), std::string::npos) << b;
    EXPECT_EQ(Run(options + "a.c b.c a.c").out, a + b + a);
}

TEST_F(UvparsePrepare, MessagesOfAParseNameTheSourceLines)
{
    Put("a.cl", "             PGM\n"
                "\n"
                "             CHGVAR     VAR(&A) +\n"
                "                          VALUE(1))\n"
                "\n"
                "             CHGVAR     VAR(&B) VALUE(2)\n"
                "             RETURN     )\n"
                "             ENDPGM\n");
    const SRunResult run = Run("--verify a.cl");
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err.find("a.cl:4:35: error: unexpected token ')'; expected end of line or end of text\n"
                           "                              VALUE(1))\n"
                           "                                      ^\n"
                           "a.cl:7:25: error: unexpected token ')'; expected end of line or end of text\n"
                           "                 RETURN     )\n"
                           "                            ^\n"
                           "a.cl: verified: the tree holds the "),
              0u)
        << run.err;
    EXPECT_EQ(run.err.substr(run.err.size() - 28), " bytes of the prepared text\n");

    Put("a.jcl", "//A        JOB  (1),CLASS=A                                             00010000\n"
                 "\n"
                 "//S1       EXEC PGM=X,,=\n");
    const SRunResult jcl = Run("-o JCLANSIFORMAT=YES a.jcl");
    EXPECT_EQ(jcl.code, 1);
    EXPECT_EQ(jcl.err.find("a.jcl:3:"), 0u) << jcl.err;
    EXPECT_EQ(jcl.out.find("00010000"), std::string::npos); // after the last column
}

} // namespace
