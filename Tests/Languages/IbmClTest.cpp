// Control language: commands and their parameters, lines and what joins them, and what an error costs.
#include "Preparation/Formatters/IbmCl.h"

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Tests/Languages/LanguageFixture.h"
#include "Tree/TreeFlattener.h"

#include <gtest/gtest.h>

namespace {

CLanguage& IbmCl()
{
    static CLanguage language("IBMCL", UVDB_DB_IBM_CL);
    return language;
}

SLanguageParse ParseWhole(const std::string& text)
{
    return ParseWhole(IbmCl(), text);
}

// clang-format off
constexpr std::pair<const char*, const char*> kCommands[] = {
    // text, what its tree holds
    {"PGM", "pgm_statement('pgm')"},
    {"PGM PARM(&A &B)", "pgm_statement(keyword_parameter(parameter_keyword('parm') '(' value_list('&a' '&b') ')'))"},
    {"PGM (&A)", "pgm_statement(positional_parameter(parenthesized_values('&a')))"},
    {"DCL &A *DEC (5 2)", "dcl_statement('&a' '*dec' parenthesized_values(value_list('5' '2')))"},
    {"DCLF *LIBL/*ALL", "dclf_statement(qualified_name('*libl' '/' '*all'))"},
    {"CHGVAR &A -1", "chgvar_statement('&a' positional_parameter(expression('-' '1')))"},
    {"CHGVAR &A 'X'||&B", "positional_parameter(expression('||' '&b'))"},
    {"CHGVAR %SST(&A 1 2) &B", "chgvar_statement(positional_parameter(function_call('%sst' '2' ')')) '&b')"},
    {"CALL A/B (1 'C')", "call_statement(qualified_name('a' '/' 'b') parenthesized_values('1'))"},
    {"CALLPRC PRC('x') PARM((&A *BYVAL))", "callprc_statement('prc' 'parm' parenthesized_values('&a' '*byval'))"},
    {"RTNSUBR RTNVAL(1)", "rtnsubr_statement('1')"},
    {"ENDSUBR RTNVAL(-1)", "endsubr_statement(keyword_parameter(value_list(expression('-' '1'))))"},
    {"GOTO CMDLBL(A)", "goto_statement(keyword_parameter('a'))"},
    {"GOTO ENDPGM", "goto_statement(positional_parameter(name('endpgm')))"}, // no word is reserved
    {"MONMSG (CPF0001 MCH0000)", "monmsg_statement(parenthesized_values('cpf0001' 'mch0000'))"},
    {"MONMSG CPF0000 EXEC(GOTO X)",
     "monmsg_statement(positional_parameter command_parameter(parameter_keyword('exec') "
     "nested_command(goto_statement('x'))))"},
    {"IF COND(&A *EQ 1) THEN(DO)",
     "if_statement(condition('cond' expression('&a' '*eq' '1')) command_parameter(parameter_keyword('then') "
     "nested_command(do_statement)))"},
    {"IF (&A) (RETURN)", "if_statement(condition('&a') command_parameter('(' nested_command ')'))"},
    {"IF &A CALL B (1)", "if_statement(condition('&a') command_parameter(nested_command(call_statement('b' '1'))))"},
    {"IF(&A) DO", "if_statement(condition nested_command(do_statement))"},
    {"IF %SWITCH(1XXXXXXX) LEAVE", "condition(function_call('%switch' '1xxxxxxx'))"},
    {"IF (&A) IF (&B) THEN(IF COND(&C))", "if_statement('&a' if_statement('&b' if_statement('&c')))"},
    {"IF COND(&A) THEN()", "command_parameter('then' '(' ')')"},
    {"ELSE", "else_statement('else')"},
    {"ELSE CMD(IF COND(&A) THEN(DO))", "else_statement(command_parameter('cmd' if_statement(do_statement)))"},
    {"ELSE DO", "else_statement(nested_command(do_statement))"},
    {"DOWHILE COND('1')", "dowhile_statement(condition('cond'))"},
    {"DOFOR &A 1 10 BY(-1)", "dofor_statement('1' '10' keyword_parameter('by'))"},
    {"WHEN (&A) THEN(CALL B)", "when_statement(condition command_parameter(call_statement))"},
    // any other command
    {"WRKACTJOB", "command_statement(command_name('wrkactjob'))"},
    {"QSYS/IF COND(&A)", "command_statement(command_name(name('qsys') '/' name('if')) keyword_parameter)"},
    {"*NLVLIBL/A B", "command_statement(command_name('*nlvlibl' '/' name('a')) positional_parameter('b'))"},
    {"WRKACTJOB *", "positional_parameter('*')"},
    {"DSPJOB JOB(123456/&USER/A) OUTPUT( * )",
     "command_statement(qualified_name(qualified_name('123456' '/' '&user') '/' 'a') value_list('*'))"},
    {"?CRTPF ??FILE(A/B) ?*LIB(C)",
     "prompted_command('?' command_statement(command_name parameter_keyword('\?\?' 'file') "
     "parameter_keyword('?*' 'lib')))"},
    {"IF (&A) THEN(?SIGNOFF)", "nested_command(prompted_command('?' command_statement))"},
    {"SBMJOB CMD(CALL PGM(A)) JOB(B)",
     "command_statement(command_parameter(nested_command(call_statement(keyword_parameter))) keyword_parameter)"},
    {"QSH CMD('ls' *CAT &A *TCAT 'x')", "command_parameter(expression(expression('*cat' '&a') '*tcat') ')')"},
    {"WRKCMD CMD(*LIBL/STR*)", "nested_command(command_statement(command_name('*libl' '/' 'str*')))"},
    {"RUNLATER WHAT(CALL PGM(A))", "embedded_command(value_list(name('call')) parameter_list(keyword_parameter))"},
    {"WRKOBJ \"a b\"/*ALL", "qualified_name('\"a b\"' '/' '*all')"},
    {"CPYF INCREL((*IF A *EQ 'X') (*AND B *GT 3))",
     "value_list(parenthesized_values(value_list('*if' expression('*eq'))) "
     "parenthesized_values(value_list('*and' expression('*gt'))))"},
    {"SNDMSG TOPGMQ(*PRV (* *NONE))", "value_list('*prv' parenthesized_values(value_list('*' '*none')))"},
    {"A B(5 10.0.0.1 12:30 1.5E-3 0,5 5770SS1)", "value_list('5' '10.0.0.1' '12:30' '1.5e-3' '0,5' '5770ss1')"},
    {"A B() C('') D(X'0F') E('it''s (')", "command_statement(keyword_parameter('(' ')') 'c' 'd' 'e')"},
};

constexpr std::pair<const char*, const char*> kValues[] = {
    {"&A + 1 - 2 * 3 / 4", "expression(expression('&a' '+' '1') '-' expression(expression('2' '*' '3') '/' '4'))"},
    {"-&A * 2", "expression(expression('-' '&a') '*' '2')"},
    {"*NOT &A *EQ &B", "expression(expression('*not' '&a') '*eq' '&b')"},
    {"&A = 1 & &B >= 2 | ^&C",
     "expression(expression(expression('&a' '=') '&' expression('>=' '2')) '|' expression('^' '&c'))"},
    {"&A *OR &B *AND \xC2\xAC&C", "expression('&a' '*or' expression('&b' '*and' expression('\xC2\xAC' '&c')))"},
    {"&A \xC2\xAC= &B", "expression('&a' '\xC2\xAC=' '&b')"},
    {"&A *CAT &B *EQ &C |> &D", "expression(expression('&a' '*cat' '&b') '*eq' expression('&c' '|>' '&d'))"},
    {"&A *BCAT &B + 1", "expression('&a' '*bcat' expression('&b' '+' '1'))"},
    {"(&A + 1) * 2", "expression(parenthesized_values(expression('+')) '*' '2')"},
    {"%SST(&A (&B + 1) 2)", "function_call('%sst' value_list('&a' parenthesized_values(expression('+')) '2'))"},
    {"%PARMS > 1", "expression(function_call('%parms') '>' '1')"},
    {"%UPPER(%TRIM(&A))/2", "expression(function_call(function_call('&a')) '/' '2')"},
    // a slash joins where it stands right after a name, and divides elsewhere
    {"&A/&B", "qualified_name('&a' '/' '&b')"},
    {"&A /&B", "expression('&a' '/' '&b')"},
    {"&A / &B", "expression('&a' '/' '&b')"},
    {"31/12", "expression('31' '/' '12')"},
    // an asterisk multiplies after a value
    {"&A * &B", "expression('&a' '*' '&b')"},
    {"* &B", "value_list(value_list('*') '&b')"},
    {"&A * ", "value_list(value_list('&a') '*')"},
    {"&A *B", "value_list(value_list('&a') '*b')"},
};
// clang-format on

TEST(IbmCl, CommandsOfEveryKind)
{
    for (const auto& [text, pattern] : kCommands) {
        ExpectStatement(IbmCl(), text, {"", "\n", "  /* note */ \r\n"}, pattern);
    }
}

TEST(IbmCl, ValuesGroupByTheirOperators)
{
    for (const auto& [text, pattern] : kValues)
        ExpectStatement(IbmCl(), "A B(" + std::string(text) + ")\n", {""}, pattern);
}

struct SLines
{
    const char* text;
    std::size_t statements;
    const char* strings = ""; // their texts
};

constexpr SLines kLines[] = {
    {"", 0},
    {" \n\r\n\x1A", 0},
    {"/* a */\n\n  /* b\n c */ /**/\n", 0},
    {"\n\nA\n\n/* x */\n  \r\nB", 2},
    {"A B(1) /* over\nlines */ C(2)\nD", 2},
    {"/* a */ B\n/* c */\n", 1},
    {"A +\n B(1)\nC", 2},
    {"A +   \r\n B(1) -\n C(2)\nD", 2}, // blanks after the sign
    {"A B('x +\n   y' 'z-\n')\nC +\n", 2, "'x +\n   y'|'z-\n'"},
    {"L1:\nA\nL2: B\n L3: +\n C", 4},
    {"A OBJ(B/*ALL) C(D) /* e */\nF /* */", 2}, // no comment before the real one
    {"A OBJ(&B/*ALL \"c\"/*ALL *D/*ALL)\nE /* */", 2},
    {"A B/* note */\nC", 2},
    {"A(1)/*x*/\nB", 2},
    {"A 'it''s' '' '/*'\nB 'x*/'", 2, "'it''s'|''|'/*'|'x*/'"},
};

TEST(IbmCl, AStatementIsALineAndWhatIsJoinedToIt)
{
    for (const SLines& c : kLines) {
        SCOPED_TRACE(c.text);
        const SLanguageParse parse = ParseWhole(c.text);
        const CSyntaxTree tree(parse.tree);
        EXPECT_EQ(TextsOf(tree, "T__STRING"), c.strings);
        EXPECT_TRUE(parse.IsClean());
        EXPECT_EQ(tree.Statements().size(), c.statements) << tree.Shape();
    }
}

TEST(IbmCl, LabelsStandBesideTheirStatements)
{
    // inside of the labeled one, so that a comment before the line end isn't beside it
    const CSyntaxTree tree(ParseWhole("A: RETURN /* b */\nENDPGM: /* c */\n ENDPGM\n").tree);
    EXPECT_TRUE(
        tree.Holds("delimited_pl_sql_statement(labeled_pl_sql_statement(pl_sql_statement_label('a' ':') "
                   "pl_sql_statement(return_statement) pl_sql_statement_delimiter))"));
    EXPECT_TRUE(
        tree.Holds("delimited_pl_sql_statement(labeled_pl_sql_statement(pl_sql_statement_label('endpgm' "
                   "':') pl_sql_statement_delimiter))"));
    EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(pl_sql_statement(endpgm_statement) "
                           "pl_sql_statement_delimiter)"));
    EXPECT_EQ(CountOf(tree, "pl_sql_statement"), 2U);
}

constexpr std::pair<const char*, const char*> kMistakes[] = {
    // a bad line, its unexpected token
    {"CALL PGM(A", "\n"},
    {"CALL PGM(A))", ")"},
    {"CALL PGM(A) PARM(1, 2)", ","},
    {"DCL VAR(&A) VALUE('x)", "'x)"},
    {"IF COND(&A *EQ) THEN(DO)", ")"},
    {"IF COND(&A &B) THEN(DO)", "&B"},
    {"IF COND(&A) THEN(DO", "\n"},
    {"IF THEN(DO)", "THEN"},
    {"IF COND(&A) THEN('x')", "'x'"},
    {"WHEN", "\n"},
    {"ELSE (1)", "1"},
    {"ENDDO A", "A"},
    {"CHGVAR VAR(&A) VALUE(&A +)", ")"},
    {"CHGVAR VAR(&A) VALUE(LIB/)", ")"},
    {"VAR(&A) = 1", "="},
    {"&A = 1", "&A"},
    {"'x'", "'x'"},
    {"A {", "{"},
    {"A: B: C", ":"},
    {"? ", "\n"},
    {"CALL A; CALL B", ";"},
    {"A B(&C/*x*/)", "/"}, // no comment, but a library's *x
};

// Wherever the bad line stands, those around it are whole, and its label is kept.
TEST(IbmCl, AMistakeCostsItsLine)
{
    const std::string good = "CHGVAR VAR(&A) VALUE(1)\n";
    for (const auto& [text, token] : kMistakes)
        for (const char* const label : {"", "HERE: "}) {
            SCOPED_TRACE(label + std::string(text));
            const std::string bad = label + std::string(text);
            if (bad.find(':') != bad.rfind(':') && *label != '\0')
                continue; // a second label is the mistake
            const SLanguageParse parse = ParseWhole(good + bad + '\n' + good + good + bad);
            const CSyntaxTree tree(parse.tree);
            EXPECT_EQ(tree.Statements().size(), 5U) << tree.Shape();
            EXPECT_EQ(CountOf(tree, "chgvar_statement"), 3U);
            EXPECT_EQ(CountOf(tree, "pl_sql_statement_label"), bad.find(':') == bad.npos ? 0U : 2U);
            ASSERT_EQ(parse.unexpected.size(), 2U);
            EXPECT_EQ(parse.unexpected[0].text, token);
            EXPECT_GE(parse.unexpected[0].offset, good.size());
            EXPECT_LE(parse.unexpected[0].offset, good.size() + bad.size());
        }
}

TEST(IbmCl, MistakesInARowCostOneLineEach)
{
    const CSyntaxTree tree(ParseWhole(Repeated("CALL A(\n 'x'\nIF\nX: ENDDO Y\n", 50)).tree);
    EXPECT_EQ(tree.Statements().size(), 200U);
    EXPECT_EQ(CountOf(tree, "pl_sql_statement"), 0U);
    EXPECT_EQ(CountOf(tree, "pl_sql_statement_label"), 50U);
}

TEST(IbmCl, ACommentWithoutItsEndTakesTheRest)
{
    const SLanguageParse parse = ParseWhole("CALL A\nCALL B /* note\nCALL C\n/* D\n");
    ASSERT_EQ(parse.unexpected.size(), 1U);
    EXPECT_EQ(parse.unexpected[0].offset, 14U);
    const CSyntaxTree tree(parse.tree);
    EXPECT_EQ(CountOf(tree, "call_statement"), 1U);
    EXPECT_EQ(tree.Statements().size(), 2U);
}

// A list of a few statements comes to the flattening in another form than a long one.
TEST(IbmCl, FlattenedStatementsHaveOneShape)
{
    for (const std::size_t count : {1u, 7u, 9u, 70u, 600u}) {
        SCOPED_TRACE(count);
        const std::string text =
            Repeated("A: CALL B /* c */\nD /* e */\nF: /* g */\n)\nH: ) /* i */\n", count) + "J";
        std::string flat;
        ASSERT_TRUE(FlattenTree(ParseWhole(text).tree, flat));
        EXPECT_TRUE(TextOfTree(flat) == text) << "text was lost";
        std::size_t wrapped = 0;
        for (std::size_t at = flat.find("<full_pl"); at != flat.npos; at = flat.find("<full_pl", at + 1))
            ++wrapped;
        EXPECT_EQ(wrapped, 5 * count + 1);
        EXPECT_EQ(flat.find("<delimited_pl"), flat.npos);
        EXPECT_EQ(flat.find("<labeled_pl"), flat.npos);
    }
}

TEST(IbmCl, ColorsFollowTheWords)
{
    EXPECT_EQ(ShownColors(IbmCl(), "L: chgvar var(&A) /* n */ value(*all + B/'x')\nCRTPF A/\"B\" 1.5 X'0'\n\n"
                                   "IF (%LEN(C))"),
              "2L 8: 1chgvar 1var 8( 9&A 8) 6/* n */ 1value 8( 1*all 7+ 2B 8/ 4'x' 8) / 1CRTPF 2A 8/ 3\"B\" "
              "51.5 4X'0' / 1IF 8( 1%LEN 8( 2C 8) 8) ");
}

// As they stand, and with their lines joined, as hosts prepare them.
TEST(IbmCl, SamplesHoldTheirStatements)
{
    std::size_t statements = 0;
    for (const std::string& text : SampleTexts("IBMCL"))
        for (const std::string& form : {text, std::string(FormatIbmCl(text + '\n').text) + '\n'}) {
            const SLanguageParse parse = ParseWhole(form);
            EXPECT_TRUE(parse.IsClean());
            statements += CSyntaxTree(parse.tree).Statements().size();
        }
    EXPECT_EQ(statements, 2U * 58);
}

// Set UV_CORPUS to a folder with cl/<project>/<program> to have real programs parsed too.
TEST(IbmCl, RealProgramsParse)
{
    ExpectRealTexts(IbmCl(), "cl");
}

TEST(IbmCl, PiecesAndSpoiledProgramsLoseNothing)
{
    ExpectPiecesLoseNothing(IbmCl(), SampleTexts("IBMCL"));
    ExpectSpoiledTextsLoseNothing(IbmCl(), SampleTexts("IBMCL"), "&%*/+-'\"()?:|<>=^.,; \r\nA1\xC3\xA4{");
}

TEST(IbmClLimits, ProgramsOfManyLines)
{
    constexpr std::size_t kCount = 100000;
    const SLanguageParse parse = ParseWhole(Repeated("CALL PGM(A) PARM(1)\n", kCount));
    EXPECT_TRUE(parse.IsClean());
    EXPECT_EQ(CSyntaxTree(parse.tree).Statements().size(), kCount);
    EXPECT_LT(DepthOf(parse.tree), kCount / 100);
    EXPECT_EQ(ParseWhole(Repeated("CALL PGM(\nCALL PGM(A)\n", kCount / 10)).unexpected.size(), kCount / 10);
}

TEST(IbmClLimits, LinesOfMegabytes)
{
    constexpr std::size_t kSize = 10 << 20;
    EXPECT_TRUE(ParseWhole("A '" + std::string(kSize, 'x') + "'").IsClean());
    EXPECT_TRUE(ParseWhole("A /*" + Repeated(" * /", kSize / 4) + "*/").IsClean());
    EXPECT_TRUE(ParseWhole("A " + std::string(kSize, ' ') + "+\n B").IsClean());
    EXPECT_TRUE(ParseWhole("A B(" + Repeated("*      ", kSize / 70) + ")").IsClean());
    for (const char* const piece : {"'",  "\"",  "(",     ")",     "&",  "*", "/",   "/*", "*/",
                                    "+",  "+ ",  "+\n",   "A:",    "A/", "?", "%",   "A(", "'\n",
                                    "1/", "IF ", "ELSE ", "*CAT ", "- ", "^", "\xC2"}) {
        SCOPED_TRACE(piece);
        ParseWhole("A " + Repeated(piece, 30000) + "\nRETURN\n");
        ParseWhole("A B(" + Repeated(piece, 30000) + "\nRETURN\n");
        ParseWhole(Repeated(piece, 30000));
    }
}

} // namespace
