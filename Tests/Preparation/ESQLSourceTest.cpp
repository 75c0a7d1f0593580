// Embedded SQL by the rules of its compiler: cases, and ecpg as the judge where it is installed.
#include "Preparation/ESQLSource.h"

#include "Tests/Preparation/FormatterFixture.h"
#include "Tests/Preparation/ToldNotes.h"
#include "Tests/Support/ScratchFolder.h"

#include <boost/regex.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace {

const std::string kBegin = "EXEC SQL BEGIN DECLARE SECTION;\n";
const std::string kEnd = "\nEXEC SQL END DECLARE SECTION;";

std::string Rewritten(const std::string& source)
{
    return RewriteEmbeddedSqlFaithfully(source).text;
}

TEST(ESQLSource, Statements)
{
    for (const auto& [source, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"$commit;$rollback;$disconnect;", "EXEC SQL commit;EXEC SQL rollback;EXEC SQL disconnect;"},
             {"$database x; $put c; $ FLUSH c;", "EXEC SQL database x; EXEC SQL put c; EXEC SQL  FLUSH c;"},
             {"if (a) $\ncommit;", "if (a) EXEC SQL \ncommit;"},
             {"$fetch c into $a, $b$i, $c:i, $int_x;", "EXEC SQL fetch c into :a, :b:i, :c:i, :int_x;"},
             {"exec  sql open $c; f($c);", "exec  sql open :c; f($c);"},
             {"$select a$b, $1, '$x;', \"$y;\" /* $z; */ from t -- $v;\n where c = $w;",
              "EXEC SQL select a$b, $1, '$x;', \"$y;\" /* $z; */ from t -- $v;\n where c = :w;"},
             {"$select 'it''s $x' into $y;", "EXEC SQL select 'it''s $x' into :y;"},
             // the preprocessor's end with their line
             {"$ifdef X;\n$include sqlca;\n$endif\n$define N $x\nf($select);",
              "EXEC SQL ifdef X;\nEXEC SQL include sqlca;\nEXEC SQL endif\nEXEC SQL define N "
              ":x\nf($select);"},
             {"$else\r\n$undef X;", "EXEC SQL else\r\nEXEC SQL undef X;"},
             // what is none
             {"c = \"$open c; \\\" $x\"; // $open c;\n/* $open c; */ a$open; '$'; $5; $$x;",
              "c = \"$open c; \\\" $x\"; // $open c;\n/* $open c; */ a$open; '$'; $5; $$x;"},
             {"c = \"/*\"; $open c; d = \"//\"; $open d;",
              "c = \"/*\"; EXEC SQL open c; d = \"//\"; EXEC SQL open d;"},
             {"#error don't\n$open c;", "#error don't\nEXEC SQL open c;"},
             {"my_exec sql x; executing sql;", "my_exec sql x; executing sql;"},
             {"/* open $open c;", "/* open $open c;"},
             {"$open $c", "$open $c"}, // no ";"
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Rewritten(source), text);
    }
}

TEST(ESQLSource, Declarations)
{
    const auto section = [](const std::string& text) { return kBegin + text + kEnd; };
    for (const auto& [source, text] : std::initializer_list<std::pair<std::string, std::string>>{
             {"$int x;", section("int x;")},
             {"$string name[20]; $bool b;\n$ unsigned long l;f();",
              section("string name[20]; bool b;\n unsigned long l;") + "f();"},
             {"$varchar v[9];", section("varchar v[9];")},
             {"$char *s = \"a;b $x\", c = ';';", section("char *s = \"a;b $x\", c = ';';")},
             {"$struct { int x; struct { int y; } z; } a;",
              section("struct { int x; struct { int y; } z; } a;")},
             {"$int a[] = {1, 2};", section("int a[] = {1, 2};")},
             {"$var binary 'x' y; $var x is y;", section("var binary 'x' y;") + " EXEC SQL var x is y;"},
             // types of the source
             {"$typedef int money_t;\nf();$money_t x;",
              section("typedef int money_t;") + "\nf();" + section("money_t x;")},
             {"typedef struct { int a; } point, *ref;$point p; $ref r;",
              "typedef struct { int a; } point, *ref;" + section("point p; ref r;")},
             {"$foo_t x; $foo_t *y = 0;", section("foo_t x; foo_t *y = 0;")},
             {"$integer;$int_t(x);", "EXEC SQL integer;EXEC SQL int_t(x);"}, // a word counts as a whole
             // sections that are there
             {"$begin declare section;\n$int x;\n$end declare section;\n$int y;",
              "EXEC SQL begin declare section;\nint x;\nEXEC SQL end declare section;\n" + section("int y;")},
             {"EXEC SQL BEGIN DECLARE SECTION; $int x; EXEC SQL END DECLARE SECTION;",
              "EXEC SQL BEGIN DECLARE SECTION; int x; EXEC SQL END DECLARE SECTION;"},
             {"$int x", "$int x"},
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Rewritten(source), text);
    }
    const SPreparedText lines = RewriteEmbeddedSqlFaithfully("a\r\n$int x;\r\n$int\r\ny;\r\nb");
    EXPECT_EQ(lines.text, "a\r\nEXEC SQL BEGIN DECLARE SECTION;\r\nint x;\r\nint\r\ny;\r\n"
                          "EXEC SQL END DECLARE SECTION;\r\nb");
    EXPECT_EQ(lines.sourceLines, (std::vector<std::uint32_t>{1, 2, 2, 3, 4, 4, 5}));
}

TEST(ESQLSource, NotesTellWhatNeverEnds)
{
    for (const auto& [source, notes] : std::initializer_list<std::pair<const char*, const char*>>{
             {"EXEC SQL open c;\n$int x;\n", ""},
             {"a;\nEXEC SQL open c\n", "W :2 embedded SQL that no \";\" ends\n"},
             {"\n$open c /* ; */", "W :2 embedded SQL that no \";\" ends\n"},
             {"$int x", "W :1 declaration that no \";\" ends\n"},
             {"EXEC SQL BEGIN DECLARE SECTION;\nint x;\n", "W :1 declare section that is never closed\n"},
             {"$begin declare section;\n$end declare section;\n$begin  declare\nsection;\n",
              "W :3 declare section that is never closed\n"},
             {"f(\"exec sql open\");", ""},
             {"$ifdef X\n", ""},
         }) {
        SCOPED_TRACE(source);
        EXPECT_EQ(Told(FindEmbeddedSqlNotes(source)), notes);
    }
}

TEST(ESQLSource, AnySize)
{
    for (const char* const piece :
         {"$open '", "exec sql ", "$int {", "typedef {", "$a", "\"", "/*", "$x ", "'", "$"}) {
        const std::string source = Repeated(piece, (1 << 18) / std::string(piece).size());
        EXPECT_EQ(Rewritten(source), source);
        FindEmbeddedSqlNotes(source + ";");
        Rewritten(source + ";';\n;");
    }
}

// ---- The judge ----

class Ecpg : public testing::Test, protected CScratchFolder
{
protected:
    void SetUp() override
    {
        if (std::system("ecpg --version > /dev/null 2>&1") != 0)
            GTEST_SKIP() << "ecpg isn't installed";
    }

    // What the compiler makes of a source, without what tells of lines, blanks and sections; its messages if
    // it refuses it.
    std::pair<bool, std::string> Compiled(const std::string& source, const std::string& includes)
    {
        Write("a.ec", source);
        const std::string command =
            "cd '" + Path("") + "' && ecpg -C INFORMIX -I '" + includes + "' -o a.c a.ec > messages 2>&1";
        const bool isDone = std::system(command.c_str()) == 0;
        std::ifstream stream(Path(isDone ? "a.c" : "messages"));
        std::string text(std::istreambuf_iterator<char>(stream), {});
        text = boost::regex_replace(
            text, boost::regex("^#line [^\\n]*\\n|/\\* exec sql (begin|end) declare section \\*/"), "");
        text = boost::regex_replace(text, boost::regex("^a.ec:\\d+: "), "");
        return {isDone, boost::regex_replace(text, boost::regex("\\s+"), " ")};
    }
};

// The judge reads a statement's "$", but variables only with ":"; "@" is the mark of a variable here.
TEST_F(Ecpg, GivesTheSameForBothNotations)
{
    const std::string head =
        "$include sqlca;\n$define N 20;\n$ifdef N;\n$typedef int money_t;\n$endif;\n"
        "int f(void)\n{\n$int a = 1;\n$string name[20];\n$bool b; $short i;\n$varchar v[10];\n"
        "$char *s = \"a;b $x\";\n$money_t m;\n$long l;\n";
    const std::string tail = "return 0;\n}\n";
    for (const char* const body : {
             "char *c = \"$select 1;\"; /* $open c; */ // $close c;\n",
             "$connect to \"x\";\n$database test;\n",
             "$declare c cursor for select a, 'it''s; $b' from t where a = @a /* ; $a */;\n$open c;\n",
             "$declare c cursor for select 1, 2;\n$open c;\n$fetch c into @a, @b:i;\n$close c;\n",
             "$commit;\n$rollback work;\n$disconnect;\n",
             "if (a) $commit;\nelse $rollback;\n",
             "$undef N;\n$ifdef N;\nnonsense\n$else;\na = 2;\n$endif;\n",
             "$insert into t values (@a, @name, @v, @m, @l);\n",
             "EXEC SQL insert into t values (:a, @name);\n",
             "$begin declare section;\nint q;\n$end declare section;\n$select 1 into @q;\n",
             "$struct { int x; char y[4]; } st;\n$select 1, 'a' into @st;\n",
             "$prepare p from \"select 1; $a\";\n$execute immediate @s;\n",
             "$whenever sqlerror stop;\n$update t set a = @a -- ; $x\n where b = @b;\n",
         }) {
        SCOPED_TRACE(body);
        std::string judged = head + body + tail;
        std::string source = judged;
        std::ranges::replace(judged, '@', ':');
        std::ranges::replace(source, '@', '$');
        const auto expected = Compiled(judged, ".");
        EXPECT_TRUE(expected.first) << expected.second;
        EXPECT_EQ(Compiled(Rewritten(source), "."), expected);
    }
}

TEST_F(Ecpg, RealSources)
{
    for (const SCorpusFile& file : CorpusFiles("esqlc")) {
        SCOPED_TRACE(file.path);
        const std::string folder = file.path.substr(0, file.path.rfind('/'));
        EXPECT_EQ(Compiled(Rewritten(file.text), folder), Compiled(file.text, folder));
    }
}

} // namespace
