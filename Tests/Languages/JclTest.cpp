// Job control: fields, continued lines, data in the stream, and what an error costs.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

CLanguage& Jcl()
{
    static CLanguage language("JCL", UVDB_DB_JCL);
    return language;
}

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(Jcl(), text);
}

// The names of the elements as they nest, without the texts of the tokens.
std::string Skeleton(const std::string& xml)
{
    const CSyntaxTree tree(xml);
    std::string names;
    for (const SElement& element : tree.Elements())
        names += element.name + ' ' + std::to_string(element.next) + '\n';
    return names;
}

constexpr std::pair<const char*, const char*> kStatements[] = {
    // text, what its tree holds
    {"//A JOB", "job_statement(statement_head('//' statement_name('a')) 'job')"},
    {"//A JOB 1,ME", "job_statement(operands(operands(parameter_value('1')) ',' parameter_value('me')))"},
    {"//A JOB ,'O''X',CLASS=B", "operands(operands(',' parameter_value) ',' parameter)"},
    {"//A JOB (1,,'R 2'),CLASS=A  note",
     "parameter_list('(' parameter_list_items(parameter_list_items(',')) ')')"},
    {"//S EXEC PGM=P,COND=((0,NE,A),EVEN)",
     "exec_statement('exec' exec_program('pgm' '=' parameter_value('p')) ',' "
     "operands(parameter(parameter_name('cond') '=' "
     "parameter_value(parameter_list(parameter_list parameter_value('even'))))))"},
    {"//S EXEC PROC=P", "exec_procedure('proc' '=' parameter_value('p'))"},
    {"//S EXEC P,PARM.STEP=X", "parameter(parameter_name('parm' '.' 'step') '=' parameter_value('x'))"},
    {"//S EXEC P,PGM=Q", "operands(parameter(parameter_name('pgm')))"},
    {"//D DD", "dd_statement('dd')"},
    {"//D DD DUMMY,DATA=1", "dd_statement(operands(parameter_value('dummy')))"},
    {"//P.D DD DSN=A.B(+1),DISP=(,PASS)",
     "dd_statement(statement_head(statement_name(statement_name('p') '.' 'd')) "
     "parameter(parameter_value(parameter_value('a.b') parameter_list('(' '+1'))))"},
    {"//  DD DSN=&HLQ..X&N(&M),UNIT=(,2)", "parameter_value(parameter_value(parameter_value(parameter_value("
                                           "'&hlq.') '.x') '&n') parameter_list('&m'))"},
    {"//D DD DSN=&&T,VOL=SER=(A,B)", "parameter(parameter_name('vol') '=' parameter_value(parameter("
                                     "parameter_name('ser') '=' parameter_value(parameter_list))))"},
    {"//D DD SYSOUT=*,DCB=*.S.D", "parameter(parameter_name('sysout') parameter_value('*'))"},
    {"//D DD SPACE=(80,(1,2),,,ROUND)", "parameter_list_items(parameter_list_items(parameter_list_items(',') "
                                        "',') ',' parameter_value('round'))"},
    {"//P PROC A=,B='X'", "proc_statement(operands(operands(parameter(parameter_name('a') '='))))"},
    {"// PEND remark, here", "pend_statement('pend')"},
    {"// SET A=&B.C,PROC=D",
     "set_statement(operands(parameter(parameter_value('&b.' 'c')) parameter('proc')))"},
    {"//L JCLLIB ORDER=(A.B,C.D)", "jcllib_statement(parameter_list)"},
    {"//C CNTL *", "cntl_statement(operands(parameter_value('*')))"},
    {"// IF A.RC = 0 THEN it went well", "if_statement(expression('a.rc' '=' '0') 'then')"},
    {"// IF A | NOT B & C LT 4 THEN", "expression(expression('a') '|' expression(expression('not' "
                                      "expression('b')) '&' expression('c' 'lt')))"},
    {"// IF \xC2\xAC(RC ^= 4) THEN", "expression('\xC2\xAC' expression('(' expression('rc' '^=' '4') ')'))"},
    {"// IF RC=4& X=&MAX THEN", "expression(expression('rc') '&' expression('x' '=' '&max'))"},
    {"//E ELSE", "else_statement"},
    {"// ENDIF", "endif_statement"},
    {"//", "null_statement('//')"},
    {"/*JOBPARM S=*,L=9 note", "jes2_statement('/*jobparm' operands(operands(parameter('*'))))"},
    {"/*ROUTE PRINT R5", "jes2_statement('/*route' 'print r5')"},
    {"/*$VS,'D A'", "jes2_statement"},
    {"//*MAIN CLASS=A", "jes3_statement('//*main' 'class=a')"},
    {"//*ENDPROCESS", "jes3_statement('//*endprocess')"},
};

TEST(Jcl, StatementsOfEveryKind)
{
    for (const auto& [text, pattern] : kStatements) {
        ExpectStatement(Jcl(), text, {"", "\n", "  \r\n"}, pattern);
    }
}

TEST(Jcl, CommentsAreNoStatements)
{
    for (const char* const text :
         {"//* DD *", "//*", "//**", "//*MAIN PROGRAM", "//*MAINLINE X=Y", "//*PROCESS THE FILES",
          "//*PAUSE HERE, THEN GO ON", "//*FORMAT OF X IS Y=Z", "//*ROUTE 66", "   ", "\x1A"}) {
        SCOPED_TRACE(text);
        const SLanguageParse parse = ParseWhole("// SET A=1\n" + std::string(text) + "\n// SET B=2\n");
        EXPECT_TRUE(parse.IsClean());
        EXPECT_EQ(CSyntaxTree(parse.tree).Statements().size(), 2U);
    }
}

struct SContinuation
{
    const char* text;
    std::size_t statements;
    const char* strings; // the texts of the strings
};

constexpr SContinuation kContinuations[] = {
    {"//A DD B=1,\n//  C=2\n", 1, ""},
    {"//A DD B=1,   rest is note, too,\n//  C=2,\n// D=3 note,\n// SET X=1\n", 2, ""},
    {"//A DD B=(1,\n//* between, them\n//*\n//  2)\n", 1, ""},
    {"//A DD B=1 note,\n// DD C=2\n", 2, ""},
    {"//P PROC A=,\n//  B=\n//  EXEC C\n", 2, ""},
    // in column 16 a string goes on
    {"//A EXEC B,PARM='C,\n//             D'',E',\n// F=G\n", 1, "'C,\n//             D'',E'"},
    {"//A EXEC B,PARM='C',D='E\n//             F'\n// SET X='Y'\n", 2, "'C'|'E\n//             F'|'Y'"},
    {"// IF A=1 &\n//* note\n// (B=2 |\n// C) THEN\n// DD D\n", 2, ""},
};

TEST(Jcl, LinesGoOnBehindAComma)
{
    for (const SContinuation& c : kContinuations) {
        SCOPED_TRACE(c.text);
        const SLanguageParse parse = ParseWhole(c.text);
        EXPECT_TRUE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), c.statements) << tree.Shape();
        EXPECT_EQ(TextsOf(tree, "T__STRING"), c.strings);
    }
}

struct SStream
{
    const char* text;
    const char* data;       // of DD statements
    std::size_t statements; // in the text
    const char* loose = ""; // data of no DD
};

constexpr SStream kStreams[] = {
    {"//A DD *\nx\n  y z  \n\n/* end\n// SET B=1\n", "x|  y z", 2},
    {"//A DD *\nx\n// SET B=1\n", "x", 2},
    {"//A DD *\nx\n//* no data after a comment\ny\n", "x", 2, "y"},
    {"//A DD *\n/*\n//B DD *  note\n//C DD *", "", 3},
    {"//A DD *,SYMBOLS=(X,\n//  Y)\nx\n/*\n", "x", 1},
    {"//A DD *\n/*x*/\n/*\n/*ROUTE XEQ N\n/*\n", "/*x*/", 3},
    {"//A DD *\n/*ROUTE XEQ N\n", "", 2},
    {"//A DD DATA\n// SET B=1\n//* x\n/*ROUTE X\n/*\n// SET B=2\n", "// SET B=1|//* x|/*ROUTE X", 2},
    {"//A DD DATA,DCB=X\n//\n/*\n", "//", 1},
    {"//A DD DATAX\n// SET B=1\n", "", 2},
    {"//A DD *,DLM=$$\n/* b\n//\n$$$\n $$\n@@ x\n$$ end\n// SET B=1\n", "/* b|//|$$$| $$|@@| x", 2},
    {"//A DD DATA,DLM=Q1\n x\nQ1        00012300\n// SET B=1\n", " x", 2},
    {"//A DD DATA,DLM='/@',DCB=X\n/*\n/@  \n//B DD *\n/@\n/*\n", "/*|/@", 2},
    {"//A DD DATA,DLM='@@'\n//B DD *\n@@\n//C DD *,DLM=##\n@@\n##\n", "//B DD *|@@", 2},
    {"//A DD DUMMY,DLM=AA\n//B DD *\nAA\n/*\n", "AA", 2}, // no data, no delimiter
    {"//A XMIT DEST=N,DLM=AA\n//B JOB\nAA\n", "//B JOB", 1},
    {"//A DD *,DLM=''\nx\n/*\n", "x", 1},
    {"x\n y\n/\n/a\n// SET B=1\n/*\nz", "", 7, "x| y|/|/a|z"},
};

TEST(Jcl, DataInTheStream)
{
    for (const SStream& c : kStreams) {
        SCOPED_TRACE(c.text);
        const SLanguageParse parse = ParseWhole(c.text);
        EXPECT_TRUE(parse.IsClean());
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(TextsOf(tree, "T__DATA"), c.data);
        EXPECT_EQ(TextsOf(tree, "T__LOOSE_DATA"), c.loose);
        EXPECT_EQ(tree.Statements().size(), c.statements) << tree.Shape();
    }
}

TEST(Jcl, DataBelongToTheirStatement)
{
    const CSyntaxTree tree(ParseWhole("//A DD *\nx\n/*\n//B DD *,X=(\ny\n/*\n").tree);
    EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(pl_sql_statement(dd_statement('a' operands('*') "
                           "instream_data(instream_lines('x')))) pl_sql_statement_delimiter('/*'))"));
    // with an error before them too
    EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(pl_sql_statement(error_statement('b' "
                           "instream_data(instream_lines('y')))) pl_sql_statement_delimiter('/*'))"));
}

struct SMistake
{
    const char* text;
    const char* token; // the unexpected one
    bool keepsName = true;
};

constexpr SMistake kMistakes[] = {
    {"//BAD DD DSN=A,DISP=(NEW,KEEP", "\n"},
    {"//BAD DD DSN=A)", ")"},
    {"//BAD DD DSN==A", "="},
    {"//BAD DD A,=B", "="},
    {"//BAD DD DSN=A,,DISP=OLD", ","},
    {"//BAD DD DSN=A,", "\n"}, // the line that it asks for is missing
    {"//BAD DD DSN='A", "'A"},
    {"//BAD DD DSN=A,\n//  DISP=(OLD", "\n"},
    {"//BAD EXEC", "\n"},
    {"//BAD EXEC PARM=A", "PARM"},
    {"//BAD INCLUDE", "\n"},
    {"//BAD IF RC = THEN", "THEN"},
    {"//BAD IF (RC = 4 THEN", "THEN"},
    {"//BAD IF RC = 4", "\n"},
    {"//BAD IF RC # 4 THEN", "#"},
    {"//BAD DO THIS,\n//  AND=THAT", "DO"},
    {"//BAD", "\n"},
    {"//BAD+ DD A", "+"},
    {"//5BAD DD A", "5BAD", false},
    {"/*BAD THING", "/*BAD", false},
    {"/*JOBPARM BAD,", "\n", false},
};

// Wherever the bad statement stands, those around it are whole, and its own name is kept.
TEST(Jcl, AMistakeCostsItsStatement)
{
    const std::string good = "//GOOD DD A=B,\n//  C=(D,'E')\n";
    for (const SMistake& c : kMistakes) {
        SCOPED_TRACE(c.text);
        const SLanguageParse parse =
            ParseWhole(good + c.text + '\n' + good + good + c.text + '\n' + good + c.text);
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(tree.Statements().size(), 7U) << tree.Shape();
        EXPECT_EQ(CountOf(tree, "dd_statement"), 4U);
        EXPECT_EQ(CountOf(tree, "error_statement"), 3U);
        EXPECT_EQ(tree.Holds("error_statement('//' statement_name('bad'))"), c.keepsName) << tree.Shape();
        ASSERT_EQ(parse.unexpected.size(), 3U);
        EXPECT_EQ(parse.unexpected[0].text, c.token);
        const std::string_view bad = c.text;
        const bool isLineEnd = std::string_view(c.token) == "\n";
        EXPECT_EQ(parse.unexpected[0].offset, good.size() + (isLineEnd ? bad.size() : bad.rfind(c.token)));
        EXPECT_EQ(parse.unexpected[2].length == 0, isLineEnd);
    }
}

TEST(Jcl, MistakesInARowAreAllMarked)
{
    const CSyntaxTree tree(ParseWhole(Repeated("// FOO\n//BAD DD (\n/*FOO\n", 50)).tree);
    EXPECT_EQ(CountOf(tree, "error_statement"), 150U);
    EXPECT_EQ(tree.Statements().size(), 150U);
}

std::string Changed(const std::string& text, std::size_t width, const char* lineEnd)
{
    std::string changed;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        if (width > line.size())
            line.append(width - line.size(), ' ').append("00012300");
        changed += line + lineEnd;
        at = end + 1;
    }
    return changed;
}

TEST(Jcl, SequenceNumbersAndLineEndsMakeNoDifference)
{
    std::size_t statements = 0;
    for (const std::string& path : SamplePaths("JCL")) {
        SCOPED_TRACE(path);
        std::string text = ReadFile(path);
        const SLanguageParse parse = ParseWhole(text);
        EXPECT_TRUE(parse.IsClean());
        statements += CSyntaxTree(parse.tree).Statements().size();
        ExpectPiecesLoseNothing(Jcl(), {text});
        const std::string skeleton = Skeleton(parse.tree);
        EXPECT_EQ(Skeleton(ParseWhole(Changed(text, 0, "\r\n")).tree), skeleton);
        // an empty record of data would be one of a number
        for (std::size_t at = text.find("\n\n"); at != text.npos; at = text.find("\n\n"))
            text.erase(at, 1);
        const SLanguageParse numbered = ParseWhole(Changed(text, 72, "\n"));
        EXPECT_TRUE(numbered.IsClean());
        EXPECT_EQ(Skeleton(numbered.tree), skeleton);
    }
    EXPECT_EQ(statements, 48U);
}

// Set UV_CORPUS to a folder with jcl/<project>/<job> to have real jobs parsed too.
TEST(Jcl, RealJobsParse)
{
    ExpectRealTexts(Jcl(), "jcl");
}

TEST(Jcl, ColorsFollowTheFields)
{
    EXPECT_EQ(ShownColors(Jcl(), "//A EXEC PGM=B,C=('D',4) E\n//* F\n//G DD *,H=&I\nJ\n/* K\n"),
              "8// 2A 1EXEC 1PGM 7= 2B 8, 1C 7= 8( 4'D' 8, 54 8) 6 E / 6//* F 8// 2G 1DD 8* 8, 1H 7= "
              "9&I / 4J 8/* 6 K ");
}

TEST(JclLimits, JobsOfManyLines)
{
    constexpr std::size_t kCount = 50000;
    const SLanguageParse statements = ParseWhole(Repeated("//A DD B=(C,1) d\n", kCount));
    EXPECT_TRUE(statements.IsClean());
    EXPECT_EQ(CSyntaxTree(statements.tree).Statements().size(), kCount);
    EXPECT_LT(DepthOf(statements.tree), kCount / 100);

    const SLanguageParse lines = ParseWhole("//A DD *\n" + Repeated("some data\n", kCount) + "/*\n");
    EXPECT_TRUE(lines.IsClean());
    EXPECT_EQ(CountOf(CSyntaxTree(lines.tree), "T__DATA"), kCount);
    EXPECT_LT(DepthOf(lines.tree), kCount / 100);

    EXPECT_TRUE(ParseWhole("//A DD " + Repeated("B=C,\n// ", kCount) + "B=C\n").IsClean());
    EXPECT_GE(ParseWhole(Repeated("//A DD (\n//A DD B\n", kCount / 10)).unexpected.size(), kCount / 10);
}

TEST(JclLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 10 << 20;
    const std::string junk = Repeated("long & ' , ( ", kSize / 13);
    EXPECT_TRUE(ParseWhole("//A DD *\n" + junk + "\n/*\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD *,DLM=XX\n" + Repeated("a ", kSize / 2) + "\nXX\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD *,DLM=XX\na" + Repeated(" ", kSize) + "\nXX\n").IsClean());
    EXPECT_TRUE(ParseWhole("//A DD B " + junk).IsClean());
    EXPECT_TRUE(ParseWhole("//* " + junk).IsClean());
    EXPECT_TRUE(ParseWhole("//*MAIN A=B" + Repeated(",\n//*C=D", kSize / 80)).IsClean());
    EXPECT_TRUE(ParseWhole("//A EXEC B,C='" + Repeated("''\n//             x", kSize / 180) + "'").IsClean());
    for (const char* const piece :
         {"'", "(", "=", "&", "*", "'\n//             ", ",\n// ", "A=", "//", "/*", "."}) {
        SCOPED_TRACE(piece);
        ParseWhole("//A DD " + Repeated(piece, 100000) + "\n// SET A=B\n");
        ParseWhole("// IF " + Repeated(piece, 100000) + " THEN\n");
        ParseWhole(Repeated(piece, 100000));
    }
}

} // namespace
