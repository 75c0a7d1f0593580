// What macros become, by command 2.
#include "Tests/Preparation/MacroFixture.h"
#include "Tests/Support/Repeated.h"

#include <gmock/gmock.h>

namespace {

std::string Expanded(const std::string& source)
{
    const SMacroRun run = RunMacros(2, source);
    EXPECT_TRUE(run.isDone) << run.errors;
    return run.text.substr(std::min(run.text.find_first_not_of('\n'), run.text.size()));
}

struct SExpansionCase
{
    const char *definitions, *text, *expanded;
};

constexpr SExpansionCase kExpansions[] = {
    {"#define N 3 // three\n#define M /* m */ 4 /* four */", "N+M", "3+4"},
    {"#define A A + B\n#define B A", "A", "A + A"},
    {"#define f(x) [x]", "f(1) f (2) f f", "[1] [2] f f"},
    {"#define f(x) [x]", "f\n(1)", "[1]"},
    {"#define f(a,b) b-a", "f(1,2) f((1,2),3) f({1,2)", "2-1 3-(1,2) 2-{1"},
    {"#define f(x) x+g\n#define g(x) f(x)", "f(1)(2)", "1+2+g"},
    {"#define x 3\n#define f(a) f(x * (a))\n#undef x\n#define x 2\n#define g f\n#define t(a) a",
     "f(f(1)) % t(t(g)(0) + t)(1);", "f(2 * (f(2 * (1)))) % f(2 * (0)) + t(1);"},
    {"#define hash_hash # ## #\n#define mkstr(a) # a\n#define in_between(a) mkstr(a)\n"
     "#define join(c, d) in_between(c hash_hash d)",
     "join(x, y)", "\"x ## y\""},
    // "#"
    {"#define s(x) #x", "s() s( a  +\tb ) s(\"q\\n\") s('\"') s(@\\n)",
     "\"\" \"a + b\" \"\\\"q\\\\n\\\"\" \"'\\\"'\" \"@\\n\""},
    {"#define s(x) #x\n#define N 3\n#define t(x) s(x)", "s(N) t(N)", "\"N\" \"3\""},
    {"#define s(x) #x\n#define t(x) s(x-) s( x -)", "t( a )", "\"a-\" \"a -\""},
    {"#define s(x) #x", "s(a /* b */ c) s(a\nb)", "\"a c\" \"a b\""},
    // "##"
    {"#define c(a,b) a ## b", "c(x,1) c(1,2) c(<,<) c(.,5) c(x,) c(,y) c(,)", "x1 12 << .5 x y "},
    {"#define c(a,b) a##b\n#define xy 7\n#define x 1", "c(x,y)", "7"},
    // variadic
    {"#define p(f, ...) q(f, __VA_ARGS__)", "p(1,2,3) p(1,)", "q(1, 2,3) q(1, )"},
    {"#define p(f, ...) q(f , ## __VA_ARGS__)", "p(1) p(1,) p(1,2,3)", "q(1 ) q(1 ) q(1 ,2,3)"},
    {"#define p(f, a...) q(f, a)", "p(1,2,3)", "q(1, 2,3)"},
    // nothing is glued together that wasn't
    {"#define N -1\n#define E\n#define P +", "x=-N; -E-; +P a; xE E1;", "x=- -1; - -; + + a; xE E1;"},
    {"#define I(x) x++\n#define S x<<=1", "I(a) S; I(-b--);", "a++ x<<=1; -b--++;"},
    {"#define a b\n#define id(x) x", "id(a)id(a) id(1)id(.5)", "b b 1 .5"},
    // several lines
    {"#define M(x) {\\\n  f(x);\\\n}", "M(1)\ny", "{\n  f(1);\n}\ny"},
};

TEST(MacroExpansion, FollowsTheLanguage)
{
    for (const auto& c : kExpansions) {
        SCOPED_TRACE(testing::Message() << c.definitions << "\n" << c.text);
        EXPECT_EQ(Expanded(std::string(c.definitions) + "\n" + c.text), c.expanded);
    }
}

TEST(MacroExpansion, ComputedMacrosTellWhereTheyAre)
{
    EXPECT_EQ(Expanded("__LINE__ __FILE__ __COUNTER__\n#define L __LINE__ __COUNTER__\nL\n"
                       "#line 9 \"a\\\\b\"\nL __FILE__"),
              "1 \"main.c\" 0\n\n3 1\n\n9 2 \"a\\\\b\"");
}

TEST(MacroExpansion, AnArgumentThatRunsOverLinesLeavesThemBlank)
{
    const SMacroRun run = RunMacros(2, "#define f(x) <x>\nf(a\n\n  b)\nc");
    EXPECT_EQ(run.text, "\n<a  b>\n\n\nc");
    EXPECT_THAT(run.sourceLines, testing::ElementsAre(1, 2, 3, 4, 5));
}

TEST(MacroExpansion, SourceLinesFollowAMacroOfSeveralLines)
{
    const SMacroRun run = RunMacros(2, "#define M a \\\n b \\\n c\nx M y\nz");
    EXPECT_EQ(run.text, "\n\n\nx a \n b \n c y\nz");
    EXPECT_THAT(run.sourceLines, testing::ElementsAre(1, 2, 3, 4, 4, 4, 5));
}

constexpr std::pair<const char*, const char*> kFailures[] = {
    {"#define f(a,b) a\n\nf(1)\n",
     "main.c : 3 : syntax error: failed to expand 'f', Wrong number of parameters for macro 'f'.\n"},
    {"#define f() a\nf(1)\n",
     "main.c : 2 : syntax error: failed to expand 'f', Wrong number of parameters for macro 'f'.\n"},
    {"#define f(a) a\n#define g f(1,2)\ng\n",
     "main.c : 3 : syntax error: failed to expand 'g', Wrong number of parameters for macro 'f'.\n"},
    {"#define c(a,b) a##b\nc(x,+)\n",
     "main.c : 2 : syntax error: failed to expand 'c', Invalid ## usage when expanding 'c'.\n"},
    {"#define c ## b\nc\n",
     "main.c : 2 : syntax error: failed to expand 'c', Invalid ## usage when expanding 'c'.\n"},
    {"#define f(a) a\nf(1\n#define x\n)\n", "main.c : 2 : syntax error: failed to expand 'f', it is invalid "
                                            "to use a preprocessor directive as macro "
                                            "parameter\n"},
    {"#define f(a) a\nx f(1\n",
     "main.c : 2 : syntax error: failed to expand 'f', no end of the arguments of macro 'f'.\n"},
};

TEST(MacroExpansion, FailuresNameFileLineAndMacro)
{
    for (const auto& [source, errors] : kFailures) {
        SCOPED_TRACE(source);
        const SMacroRun run = RunMacros(2, source);
        EXPECT_FALSE(run.isDone);
        EXPECT_EQ(run.errors, errors);
        EXPECT_EQ(run.text, "");
    }
}

// ---- Limits ----

// Names that stand for names give nothing and hold nothing: only the steps tell that they take time.
TEST(MacroExpansion, StepsAreLimited)
{
    std::string chain = "#define A0 x\n";
    for (int i = 1; i <= 500; ++i)
        chain += "#define A" + std::to_string(i) + " A" + std::to_string(i - 1) + "\n";
    MacroPreprocessorChecker::DefaultPresetValues presets;
    presets.expansionLimit = 10000;
    EXPECT_TRUE(RunMacros(2, chain + Repeated("A500 ", 10), presets).isDone);
    const SMacroRun run = RunMacros(2, chain + Repeated("A500 ", 30), presets);
    EXPECT_FALSE(run.isDone);
    EXPECT_EQ(run.errors,
              "main.c : 502 : syntax error: failed to expand 'A500', the expansion goes beyond the "
              "limit of 10000 bytes.\n");
}

std::string Doubling(int levels, const std::string& last, const std::string& between)
{
    std::string source = "#define A0 " + last + "\n";
    for (int i = 1; i <= levels; ++i) {
        const std::string inner = "A" + std::to_string(i - 1);
        source += "#define A" + std::to_string(i) + ' ' + inner + between + inner + '\n';
    }
    return source;
}

TEST(MacroExpansion, BombsEndWithAMessage)
{
    MacroPreprocessorChecker::DefaultPresetValues presets;
    presets.expansionLimit = 1 << 20;
    const std::string sources[] = {
        Doubling(30, "x", " ") + "A30\n",
        Doubling(30, "", " ") + "A30\n",
        Doubling(30, "x", " \\\n ") + "A30\n",
        Doubling(30, "x", "+") + "#if A30\n#endif\n",
        "#define D(x) x x\n" + Repeated("D(", 40) + "x" + Repeated(")", 40) + "\n",
        "#define S(x) #x #x\n#define T(x) S(x)\n" + Repeated("T(", 40) + "x" + Repeated(")", 40),
        "#define A x x x x x x x x x x x x x x x x\n" + Repeated("A A A A A A A A\n", 10000),
    };
    for (const std::string& source : sources) {
        SCOPED_TRACE(source.substr(0, 200));
        const SMacroRun run = RunMacros(2, source, presets);
        EXPECT_FALSE(run.isDone);
        EXPECT_THAT(run.errors,
                    testing::AnyOf(testing::HasSubstr("the expansion goes beyond the limit of 1048576"),
                                   testing::HasSubstr("the condition is too long")));
    }
    presets.expansionLimit = 64 << 20;
    EXPECT_TRUE(RunMacros(2, sources[6], presets).isDone);
}

TEST(MacroExpansion, DepthTakesNoStack)
{
    std::string chain = "#define A0 deep\n";
    for (int i = 1; i < 100000; ++i)
        chain += "#define A" + std::to_string(i) + " A" + std::to_string(i - 1) + "\n";
    EXPECT_EQ(Expanded(chain + "A99999"), "deep");
    EXPECT_EQ(Expanded("#define D(x) x\n" + Repeated("D(", 2000) + "deep" + Repeated(")", 2000)), "deep");
    EXPECT_FALSE(RunMacros(2, "#define D(x) x\n" + Repeated("D(", 200000) + Repeated(")", 200000)).isDone);
    EXPECT_EQ(Expanded("#define D(x) x\n#define E (D)\n" + Repeated("E ", 100000)).size(), 400000u);
    EXPECT_EQ(Expanded("#if " + Repeated("(", 100000) + "1" + Repeated(")", 100000) + "\nyes\n#endif"),
              "yes");
    EXPECT_EQ(Expanded("#if " + Repeated("!", 100000) + "1\nyes\n#endif"), "yes");
    EXPECT_EQ(Expanded("#if " + Repeated("0?1:", 50000) + "1\nyes\n#endif"), "yes");
    EXPECT_EQ(Expanded(Repeated("#if 1\n", 100000) + "yes\n" + Repeated("#endif\n", 100000)), "yes");
}

} // namespace
