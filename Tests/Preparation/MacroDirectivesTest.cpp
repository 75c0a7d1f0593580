// Directives under the three commands, conditions, include files, presets, messages.
#include "Tests/Preparation/MacroFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

using MacroPreprocessorChecker::DefaultPresetValues;

struct SCommandCase
{
    const char* source;
    const char* prepared[3]; // by command
};

const SCommandCase kCommands[] = {
    {"#define N 3\nint a[N];\n  #ifdef N\n  b;\n#else\nc;\n#endif\nd;",
     {"#define N 3\nint a[N];\n  #ifdef N\n  b;\n#else\nc;\n#endif\nd;",
      "#define N 3\nint a[N];\n\n  b;\n\n\n\nd;", "\nint a[3];\n\n  b;\n\n\n\nd;"}},
    {"#if 0\n#define A\n#error no\n#include <x>\n#endif\n#ifdef A\nb\n#endif",
     {"#if 0\n#define A\n#error no\n#include <x>\n#endif\n#ifdef A\nb\n#endif", "", ""}},
    {"#\n#pragma a\n#undef N\n#unknown x\n#1\n/* c */ #ident \"a\"\nb",
     {"#\n#pragma a\n#undef N\n#unknown x\n#1\n/* c */ #ident \"a\"\nb", "\n\n\n\n\n\nb", "\n\n\n\n\n\nb"}},
    {"#define END }; // x\n#define B { a;\n#define I(x) x = 0; }\nB {END END;\nI(f(1)) I(2); I B ;",
     {"#define END }; // x\n#define B { a;\n#define I(x) x = 0; }\nB; {END; END;\nI(f(1)); I(2); I B ;",
      "#define END }; // x\n#define B { a;\n#define I(x) x = 0; }\nB; {END; END;\nI(f(1)); I(2); I B ;",
      "\n\n\n{ a; {}; };;\nf(1) = 0; } 2 = 0; }; I { a; ;"}},
    {"#define A B \\\n C\n#define B 1\nA",
     {"#define A B \\\n C\n#define B 1\nA", "#define A B \\\n C\n#define B 1\nA", "\n\n\n1 \n C"}},
    {"a \\\n# if\nb",
     {"a \\\n# if\nb", "a \\\n# if\nb", "a \\\n# if\nb"}}, // inside a line it is no directive
};

TEST(MacroDirectives, CommandsChooseWhatStays)
{
    for (const auto& c : kCommands) {
        for (int command = 0; command < 3; ++command) {
            SCOPED_TRACE(testing::Message() << c.source << "\ncommand " << command);
            const SMacroRun run = RunMacros(command, c.source);
            EXPECT_TRUE(run.isDone || !run.errors.empty()) << run.errors;
            EXPECT_EQ(run.text, c.prepared[command]);
        }
        EXPECT_EQ(RunMacros(-1, c.source).text, c.prepared[1]);
    }
}

// The main source is read in pieces of some 512 tokens: wherever one ends, the result is the same.
TEST(MacroDirectives, WhatStandsInFrontChangesNothing)
{
    const std::string source =
        "#define f(x, y) <x y>\n#define END }; // x\n#define I(x) x = 0;\n#define E\n"
        "a++ + f(1 \\\n,\n\n/* c\n */ // d\n f(2, 3)) - E - f /* e */\n\n(4,5) f f\n;\n"
        "#if 0 && \\\n 1\n#elif 1\nI(f(1,\n2))\n // x\n END\n /* y */ ;END\n# endif\nlast";
    for (int command = 0; command < 3; ++command) {
        const SMacroRun expected = RunMacros(command, source);
        ASSERT_TRUE(expected.isDone) << expected.errors;
        for (std::size_t front = 380; front < 530; ++front) {
            SCOPED_TRACE(testing::Message() << "command " << command << ", " << front << " tokens in front");
            std::string ahead(front, '!'); // each is a token
            for (std::size_t at = 99; at < ahead.size(); at += 100)
                ahead[at] = '\n';
            ahead += '\n';
            const SMacroRun run = RunMacros(command, ahead + source);
            ASSERT_TRUE(run.text.starts_with(ahead)) << run.errors;
            EXPECT_EQ(run.text.substr(ahead.size()), expected.text);
        }
    }
}

constexpr std::pair<const char*, bool> kConditions[] = {
    {"1", true},
    {"FOO", false},
    {"defined ONE && !defined(TWO)", true},
    {"defined(ONE) /* x */ // y", true},
    {"HAS", true}, // "defined" out of a macro
    {"ADD (ONE, ONE) == 2", true},
    {"__LINE__ == 6", true},
    {"defined __FILE__", true},
    {"sizeof(int) == 4 && sizeof(unsigned char) == 1 && sizeof(char *) == 8 && sizeof(unsigned) == 4", true},
    {"sizeof(long double) == 16", true},
    {"not FOO and compl 0 == -1", true},
    {"not", false},
    {"0 || \\\n 1", true},
};

TEST(MacroDirectives, ConditionsAreEvaluated)
{
    for (const auto& [condition, holds] : kConditions) {
        SCOPED_TRACE(condition);
        const std::string source =
            "#define ONE 1\n#define HAS defined ONE\n#define ADD(a,b) ((a)+(b))\n\n\n#if " +
            std::string(condition) + "\nyes\n#else\nno\n#endif\n";
        const SMacroRun run = RunMacros(1, source);
        EXPECT_TRUE(run.isDone) << run.errors;
        EXPECT_EQ(run.text.find("yes") != std::string::npos, holds);
        EXPECT_EQ(run.text.find("no") != std::string::npos, !holds);
    }
}

TEST(MacroDirectives, OneBranchIsTaken)
{
    const auto taken = [](const std::string& source) {
        std::string text = RunMacros(2, source).text;
        std::erase(text, '\n');
        return text;
    };
    EXPECT_EQ(taken("#if 0\na\n#elif 1\nb\n#elif 1/0\nc\n#else\nd\n#endif\ne"), "be");
    EXPECT_EQ(taken("#if 1\na\n#elif 1/0\nb\n#else\nc\n#endif"), "a");
    EXPECT_EQ(taken("#if 0\n#if 1/0\na\n#elif\nb\n#else\nc\n#endif\n#else\nd\n#endif"), "d");
    EXPECT_EQ(taken("#if 0\na\n#elif 0\nb\n#else\nc\n#endif"), "c");
    EXPECT_EQ(taken("#define A\n#undef A\n#ifndef A\na\n#endif\n#ifdef A\nb\n#endif"), "a");
}

constexpr std::pair<const char*, const char*> kMessages[] = {
    {"a\n#else\n", "main.c : 2 : syntax error: #else without #if\n"},
    {"#elif 1", "main.c : 1 : syntax error: #elif without #if\n"},
    {"#ifdef\n", "main.c : 1 : syntax error: Syntax error in #ifdef\n"},
    {"#if defined\n", "main.c : 1 : syntax error: Syntax error in #if\n"},
    {"#if defined(A\n", "main.c : 1 : syntax error: Syntax error in #if\n"},
    {"#if\n", "main.c : 1 : syntax error: failed to evaluate #if condition\n"},
    {"#if 1 2\n", "main.c : 1 : syntax error: failed to evaluate #if condition\n"},
    {"#if 1/0\n", "main.c : 1 : syntax error: failed to evaluate #if condition: division/modulo by zero\n"},
    {"#if 1?2\n", "main.c : 1 : syntax error: failed to evaluate #if condition: invalid expression\n"},
    {"#if sizeof x\n",
     "main.c : 1 : syntax error: failed to evaluate #if condition: missing sizeof argument\n"},
    {"#if sizeof(foo)\n",
     "main.c : 1 : syntax error: failed to evaluate #if condition: invalid sizeof expression\n"},
    {"#define\n", "main.c : 1 : syntax error: Failed to parse #define\n"},
    {"#define f(a\n", "main.c : 1 : syntax error: Failed to parse #define\n"},
    {"#define f(a,)\n", "main.c : 1 : syntax error: Failed to parse #define\n"},
    {"#define f(a,a)\n", "main.c : 1 : syntax error: Failed to parse #define\n"},
    {"#define f(...,a)\n", "main.c : 1 : syntax error: Failed to parse #define\n"},
    {"#include a b\n", "main.c : 1 : syntax error: No header in #include\n"},
    {"x\n#error it's 1 a\n", "main.c : 2 : #error: it's 1 a\n"},
    {"#warning a\\\nb\nx", "main.c : 1 : #warning: a b\n"},
    {"#line 40 \"y.y\"\n#error a\n", "y.y : 40 : #error: a\n"},
    {"a\n \xE9\n", "main.c : 2 : unhandled char error: The code contains unhandled character(s) (character "
                   "code=233). Neither unicode nor extended ascii is supported.\n"},
    {"a \\ \nb", "main.c : 1 : portability: Combination 'backslash space newline' is not portable.\n"},
};

TEST(MacroDirectives, MessagesMakeTheRunFail)
{
    for (const auto& [source, errors] : kMessages) {
        for (int command = 0; command < 3; ++command) {
            SCOPED_TRACE(testing::Message() << source << ", command " << command);
            const SMacroRun run = RunMacros(command, source);
            EXPECT_FALSE(run.isDone);
            EXPECT_EQ(run.errors, errors);
            EXPECT_EQ(run.text, "");
            EXPECT_TRUE(run.sourceLines.empty());
        }
    }
}

TEST(MacroDirectives, AnOpenConditionalIsToldAndTheRunGoesOn)
{
    const SMacroRun run = RunMacros(2, "a\n#if 1\nb\n#if 0\nc");
    EXPECT_TRUE(run.isDone);
    EXPECT_EQ(run.text, "a\n\nb");
    EXPECT_EQ(run.errors, "main.c : 2 : #endif not found\nmain.c : 4 : #endif not found\n");
}

// The main source's file has no name in a note.
TEST(MacroDirectives, MessagesBecomeNotes)
{
    constexpr std::pair<const char*, const char*> cases[] = {
        {"a\n#error it's 1 a\n", "E :2 #error it's 1 a\n"},
        {"#if 0\n#error no\n#endif\n#warning one\n#warning two\n", "W :4 #warning one\nW :5 #warning two\n"},
        {"a\n#endif\n", "E :2 #endif without #if\n"},
        {"a\n#if 1\n#ifdef X\n", "W :2 no #endif closes the condition of line 2\n"
                                 "W :3 no #endif closes the condition of line 3\n"},
        {"#define f(a) a\n\nf(1,\n2)\n",
         "E :3 failed to expand 'f', Wrong number of parameters for macro 'f'.\n"},
        {"#include \"no such.h\"\n\n#include <no such.h>\n#include \"no such.h\"\n",
         "W :1 header not found: \"no such.h\" (2 times)\nW :3 header not found: <no such.h>\n"},
        {"#line 40 \"y.y\"\n#error a\n", "E y.y:40 #error a\n"},
        {"a \\ \nb", "W :1 Combination 'backslash space newline' is not portable.\n"},
        {"a\n", ""},
    };
    for (const auto& [source, notes] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(RunMacros(2, source).notes, notes);
    }
    DefaultPresetValues presets;
    presets.defines = {"3=4"};
    EXPECT_EQ(RunMacros(2, "a", presets).notes, "E :0 bad macro syntax. macroname=3 value=4\n");
}

// A backslash, a comment or a string may take a line end into the logical line; the next line has its own
// number.
TEST(MacroDirectives, ContinuedLinesCount)
{
    for (const char* const continued :
         {"a \\\n b\n\n", "#define A \\\n b \\\n c\n", "// a \\\n b \\\n c\n", "/* a \\\n b \n */\n",
          "\"a\\\nb\\\nc\"\n", "#define A /* a\n b\n */ c\n", "#define A /* a \\\n b\n */ c\n",
          "R\"(a\nb\n)\"\n"}) {
        SCOPED_TRACE(continued);
        EXPECT_TRUE(RunMacros(2, std::string(continued) + "<__LINE__>").text.ends_with("<4>"));
        EXPECT_EQ(RunMacros(2, std::string(continued) + "#error x\n").errors, "main.c : 4 : #error: x\n");
        EXPECT_EQ(RunMacros(2, std::string(continued) + "\nx").sourceLines.back(), 5u);
    }
}

// ---- Presets ----

TEST(MacroDirectives, PresetsDefineMacros)
{
    DefaultPresetValues presets;
    presets.defines = {"A", "", "B=2", "C(x)=<x>", "D=", "B=3", "E=(1)", "X=1"};
    presets.undefines = {"X"};
    EXPECT_EQ(RunMacros(2, "A B C(y) [D] E X", presets).text, "1 2 <y> [] (1) X");
    presets.defines = {"3=4"};
    const SMacroRun run = RunMacros(2, "a", presets);
    EXPECT_FALSE(run.isDone);
    EXPECT_EQ(run.errors, "ERROR!!! std::exception : bad macro syntax. macroname=3 value=4.\n");
}

TEST(MacroDirectives, NamesKeptFromDefinitionTellTheirText)
{
    DefaultPresetValues presets;
    presets.undefines = {"X", "F"};
    const SMacroRun run = RunMacros(
        2, "#define X 1 /* one */ 2\n#define X 3\n#define F(a) # a ## b\nX F(1)\n#ifdef X\nno\n#endif",
        presets);
    EXPECT_EQ(run.text, "\n\n\nX F(1)");
    EXPECT_THAT(run.undefines, testing::ElementsAre(testing::Pair("F", "#a##b"), testing::Pair("X", "12")));
}

// ---- Include files ----

using MacroIncludes = CMacroFolder;

TEST_F(MacroIncludes, OnlyMacrosComeIn)
{
    Write("a.h", "#define A 1\nint hidden;\n#include \"sub/b.h\"\n");
    Write("sub/b.h", "#define B(x) x \\\n+ 1\n#include \"c.h\"\n");
    Write("sub/c.h", "#define C 3");
    const SMacroRun run = RunMacros(2, "#include \"a.h\"\nA B(2) C", {}, Path("m.c"));
    EXPECT_TRUE(run.isDone);
    EXPECT_EQ(run.text, "#include \"a.h\"\n1 2 \n+ 1 3");
    EXPECT_EQ(run.errors, "");
}

TEST_F(MacroIncludes, AreLookedForInOrder)
{
    Write("src/x.h", "#define X src");
    Write("one/x.h", "#define X one");
    Write("two/x.h", "#define X two");
    Write("two/y.h", "#define Y two");
    DefaultPresetValues presets;
    presets.includePaths = {Path("none"), Path("one"), Path("src/..//./two/")};
    const std::string main = Path("src/m.c");
    EXPECT_EQ(RunMacros(2, "#include <x.h>\n#include <y.h>\nX Y", presets, main).text.substr(30), "one two");
    EXPECT_EQ(RunMacros(2, "#include \"x.h\"\n#include \"y.h\"\nX Y", presets, main).text.substr(30),
              "src two");
    // a file that another place has brought in already isn't taken for this one
    EXPECT_EQ(RunMacros(2, "#include <x.h>\n#include \"x.h\"\nX", presets, main).text.substr(30), "src");
    EXPECT_EQ(RunMacros(2, "#include \"" + Path("two/x.h") + "\"\nX", {}, main)
                  .text.substr(Path("two/x.h").size() + 12),
              "two");
    EXPECT_EQ(RunMacros(2, "#define H <y.h>\n#include H\nY", presets, main).text, "\n#include H\ntwo");
    EXPECT_EQ(RunMacros(2, "#define H(x) #x\n#include H(x.h)\nX", presets, main).text,
              "\n#include H(x.h)\nsrc");
}

TEST_F(MacroIncludes, WhatCannotBeReadIsMissing)
{
    Write("folder/x", "");
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    const SMacroRun run =
        RunMacros(1, "#include \"none.h\"\n#include \"folder\"\n#include \"pipe\"\n#include \"/dev/zero\"\na",
                  {}, Path("m.c"));
    EXPECT_TRUE(run.isDone);
    EXPECT_EQ(run.errors,
              "Preprocessor> Header not found : none.h\nPreprocessor> Header not found : folder\n"
              "Preprocessor> Header not found : pipe\nPreprocessor> Header not found : /dev/zero\n");
    EXPECT_EQ(run.notes, "W :1 header not found: \"none.h\"\nW :2 header not found: \"folder\"\n"
                         "W :3 header not found: \"pipe\"\nW :4 header not found: \"/dev/zero\"\n");
    // what was missing once stays so
    Write("none.h", "#define A");
    EXPECT_EQ(RunMacros(1, "#include \"none.h\"\n", {}, Path("m.c")).errors,
              "Preprocessor> Header not found : none.h\n");
}

TEST_F(MacroIncludes, ABinaryFileIsMissing)
{
    Write("b.h", std::string("\x7F"
                             "ELF\0\0\n\xFF\xD8",
                             9));
    Write("wide.h", std::string("\xFF\xFE#\0d\0e\0f\0i\0n\0e\0 \0A\0 \0001\0\n\0", 26));
    Write("latin.h", "\n\xFF");
    const SMacroRun run =
        RunMacros(2, "#include \"b.h\"\n#include \"b.h\"\n#include \"wide.h\"\nA", {}, Path("m.c"));
    EXPECT_TRUE(run.isDone) << run.errors;
    EXPECT_TRUE(run.text.ends_with("\n1"));
    EXPECT_EQ(run.errors, "Preprocessor> Header not found : b.h\nPreprocessor> Header not found : b.h\n");
    EXPECT_EQ(run.notes, "W :1 header that is no text: \"b.h\" (2 times)\n");
    const SMacroRun failed = RunMacros(1, "#include \"latin.h\"\n", {}, Path("m.c"));
    EXPECT_FALSE(failed.isDone);
    EXPECT_THAT(failed.errors, testing::StartsWith(Path("latin.h") + " : 2 : unhandled char error: "));
}

TEST_F(MacroIncludes, FilesOutsideOfTheRootAreMissing)
{
    Write("src/in.h", "#define IN in");
    Write("sys/sys.h", "#define SYS sys");
    std::filesystem::create_symlink(Path("sys/sys.h"), Path("src/link.h"));
    const std::string source =
        "#include \"in.h\"\n#include <sys.h>\n#include \"link.h\"\n#include <no.h>\nIN SYS";
    DefaultPresetValues presets;
    presets.includePaths = {Path("sys")};
    presets.includeRoot = Path("src");
    const SMacroRun run = RunMacros(2, source, presets, Path("src/m.c"));
    EXPECT_TRUE(run.isDone);
    EXPECT_TRUE(run.text.ends_with("in SYS"));
    const std::string outside = "header not found below the folder of INCLUDE_ROOT: ";
    EXPECT_EQ(run.notes,
              "W :2 " + outside + "<sys.h>\nW :3 " + outside + "\"link.h\"\nW :4 " + outside + "<no.h>\n");
    // what one run may not read isn't forgotten for the next
    presets.includeRoot.clear();
    EXPECT_TRUE(RunMacros(2, source, presets, Path("src/m.c")).text.ends_with("in sys"));
}

TEST_F(MacroIncludes, ExplicitOnesComeFirst)
{
    Write("e.h", "#define E 1\n#define F 1");
    Write("f.h", "#define F 2");
    DefaultPresetValues presets;
    presets.explicitIncludes = {Path("e.h"), Path("f.h"), Path("g.h")};
    const SMacroRun run = RunMacros(2, "E F", presets);
    EXPECT_TRUE(run.isDone);
    EXPECT_EQ(run.text, "1 1"); // the last one pushed is run first
    EXPECT_EQ(run.notes, "W :0 explicit include not found: " + Path("g.h") + '\n');
    EXPECT_EQ(run.errors,
              "Preprocessor> Can not open include file '" + Path("g.h") + "' that is explicitly included.\n");
}

TEST_F(MacroIncludes, OnceMeansOnceByAnyPath)
{
    Write("o/once.h", "#pragma once\n#define P Q\n#ifdef Q\n#error again\n#endif\n#define Q");
    const SMacroRun run =
        RunMacros(2, "#include \"o/once.h\"\n#include \"./o/../o/once.h\"\nx", {}, Path("m.c"));
    EXPECT_TRUE(run.isDone) << run.errors;
}

TEST_F(MacroIncludes, FourHundredMayBeOpen)
{
    for (int i = 1; i <= 402; ++i)
        Write("n" + std::to_string(i) + ".h",
              "#define N" + std::to_string(i) + "\n#include \"n" + std::to_string(i + 1) + ".h\"\n");
    Write("n403.h", "");
    const SMacroRun run =
        RunMacros(2, "#include \"n1.h\"\n#ifdef N400\nyes\n#endif\n#ifdef N401\nno\n#endif", {}, Path("m.c"));
    EXPECT_TRUE(run.isDone);
    EXPECT_EQ(run.text, "#include \"n1.h\"\n\nyes");
    EXPECT_EQ(run.errors, "#include nested too deeply\n");
    EXPECT_EQ(run.notes, "W " + Path("n400.h") + ":2 #include nested too deeply: \"n401.h\"\n");
}

TEST_F(MacroIncludes, FilesThatIncludeThemselvesComeToAnEnd)
{
    Write("self.h", "#include \"self.h\"\n");
    const SMacroRun once = RunMacros(2, "#include \"self.h\"\nx", {}, Path("m.c"));
    EXPECT_TRUE(once.isDone);
    EXPECT_EQ(once.errors, "#include nested too deeply\n");

    Write("twice.h", "#include \"twice.h\"\n#include \"twice.h\"\n");
    DefaultPresetValues presets;
    presets.expansionLimit = 1 << 20;
    const SMacroRun twice = RunMacros(2, "#include \"twice.h\"\nx", presets, Path("m.c"));
    EXPECT_FALSE(twice.isDone);
    EXPECT_THAT(twice.errors,
                testing::HasSubstr("twice.h : 2 : include nested too deeply: what 'twice.h' and the files "
                                   "before it bring in goes beyond the limit"));
}

TEST_F(MacroIncludes, FilesLargerThanTheLimitAreRefused)
{
    Write("large.h", std::string(2000, 'x'));
    DefaultPresetValues presets;
    presets.expansionLimit = 1000;
    const SMacroRun run = RunMacros(1, "#include \"large.h\"\n", presets, Path("m.c"));
    EXPECT_FALSE(run.isDone);
    EXPECT_EQ(run.errors,
              Path("large.h") + " : 1 : missing header: the include files are larger than 1000 bytes.\n");
}

} // namespace
