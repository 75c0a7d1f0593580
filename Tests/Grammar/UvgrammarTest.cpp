// The built tool over good and bad grammars. A bad grammar is the good one with one text replaced.
#include "Grammar/UVGrammarKeeper.h"
#include "Tests/Grammar/UvgrammarFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kLexer = R"(%option noyywrap reject yylineno noecs nometa-ecs lex-compat
%x COMMENT
%s SS_GENERAL
%%
[ \t\n]+      { /* skip */ }
"/*"          { BEGIN COMMENT; }
<COMMENT>"*/" { BEGIN m_Extension.m_nStartState; }
<COMMENT>.|\n { }
"begin"       { TOKEN_ACTIONE(BEGIN, 1); }
"end"         { TOKEN_ACTIONE(END, 1); }
[a-z]+        { TOKEN_ACTION(ID); }
";"           { BRACKETS_ACTION(2); TOKEN_ACTION(SEMI); }
"+"           { return yytext[0]; }
.             { TOKEN_ACTION(OTHER); }
%%
)";

constexpr const char* kParser = R"(%token TBEGIN TEND TID TSEMI "}" TOTHER "a = 5"
%token TPLUS 43
%token SS_GENERAL 2
%start SQL
%%
SQL: root { CREATE_NODE(SQL, 1); } ;
root: items ;
items: %empty { EMPTY(ITEMS); }
     | items item { CREATE_NODE(ITEMS, 2); } ;
item: name TSEMI { CREATE_NODE(ITEM, 2); }
    | TBEGIN items TEND TSEMI { CREATE_NODE(BLOCK, 4); }
    | TPLUS name { yylexerptr->yybegin(SS_GENERAL); CREATE_NODE(PLUS, 2); }
    | error TSEMI { CREATE_NODE_WITH_ERROR(BAD, 2, 0); } ;
name: TID | TOTHER ;
)";

enum class enSource
{
    Lexer,
    Parser
};

using SRun = SUvgrammarRun;

class Uvgrammar : public CUvgrammarFixture
{
protected:
    SRun Build(const std::string& lexer, const std::string& parser, const std::string& more = "")
    {
        m_Folder.Write("L.l", lexer);
        m_Folder.Write("P.y", parser);
        return Run("--lexer L.l --parser P.y --output out/Lang " + more);
    }

    SRun BuildReplaced(enSource source, const std::string& from, const std::string& to)
    {
        return Build(source == enSource::Lexer ? Replaced(kLexer, from, to) : kLexer,
                     source == enSource::Parser ? Replaced(kParser, from, to) : kParser);
    }
};

TEST_F(Uvgrammar, GoodGrammarGivesADirectoryThatTheEngineReads)
{
    const SRun run = Build(kLexer, kParser, "--report --name Lang");
    EXPECT_EQ(run.exitCode, 0) << run.messages;
    EXPECT_EQ(run.messages, "");
    EXPECT_THAT(run.output, HasSubstr("grammar Lang\n"));
    EXPECT_THAT(run.output, HasSubstr("conflicts: 0 shift/reduce, 0 reduce/reduce\n"));
    EXPECT_EQ(Snapshot("out").size(), 24u);
    EXPECT_THAT(File("out/Lang/manifest.txt"),
                AllOf(StartsWith("language Lang\nsources "), HasSubstr("\nfile Lexer/actions.dat ")));
    EXPECT_EQ(File("out/Lang/Lexer/defines.dat"), "INITIAL 0\nCOMMENT 1\nSS_GENERAL 2\n");
    EXPECT_THAT(File("out/Lang/Lexer/actions.dat"),
                HasSubstr("\n8 BRACKETS_ACTION 2 TOKEN_ACTION SEMI\n9 yytext 0\n"));
    EXPECT_EQ(File("out/Lang/Parser/defines.dat"),
              "YYEOF 0\nTBEGIN 258\nTEND 259\nTID 260\nTSEMI 261\nTOTHER 262\nTPLUS 43\nSS_GENERAL 2\n");
    EXPECT_THAT(File("out/Lang/Parser/actions.dat"), HasSubstr("2 CREATE_NODE SQL 1\n4 EMPTY ITEMS\n"));
}

struct SBadGrammar
{
    enSource source;
    const char *from, *to, *message;
};

constexpr auto L = enSource::Lexer;
constexpr auto P = enSource::Parser;

struct SStyleCase
{
    const char *statement, *names, *message; // an empty message: the grammar is taken
};

TEST_F(Uvgrammar, StyleHoldsNamesToTheirForm)
{
    const std::string lexer = Replaced(kLexer, "TOKEN_ACTION(OTHER)", "TOKEN_ACTION(__WORD)");
    const std::string parser = "%token TBEGIN TEND TID TSEMI T__WORD\n%token TPLUS 43\n%start SQL\n%%\n"
                               "SQL: pl_sql_statements { NODE; } ;\n"
                               "%list pl_sql_statements: pl_sql_statement %separator TSEMI ;\n"
                               "pl_sql_statement: statement { NODE; } ;\n"
                               "statement: STATEMENT | error { NODE(bad_statement); } ;\n"
                               "%list names: TID %separator TPLUS %node NAMES ;\n";
    constexpr SStyleCase kCases[] = {
        {"TBEGIN names { NODE(begin_statement); }", "name_list", ""},
        {"TBEGIN names { NODE(begin_statement); }", "names", "P.y:9: error: the name of the list 'names'"},
        {"TBEGIN names { NODE(begin_statement); }", "body_pl_sql_statements", ""},
        {"TBEGIN names { NODE(Begin_statement); }", "name_list",
         "P.y:8: error: the name of the node 'Begin_"},
        {"TBEGIN names { NODE(begin__statement); }", "name_list",
         "P.y:8: error: the name of the node 'begin_"},
        {"TBEGIN names { NODE(T__statement); }", "name_list", "P.y:8: error: the node 'T__statement' has"},
        {"TBEGIN names { NODE(begin); }", "name_list", "P.y:8: error: the name of the statement 'begin'"},
        {"names", "name_list", "P.y:9: error: the name of the statement 'name_list'"},
        {"T__WORD | names { NODE(name_statement); }", "name_list",
         "P.y:8: error: a statement that is the token T__WORD alone"},
    };
    for (const SStyleCase& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.statement << ' ' << c.names);
        const std::string styled = Replaced(Replaced(parser, "STATEMENT", c.statement), "NAMES", c.names);
        const SRun run = Build(lexer, styled, "--style");
        EXPECT_EQ(run.exitCode, *c.message == '\0' ? 0 : 1) << run.messages;
        EXPECT_THAT(run.messages, HasSubstr(c.message));
        EXPECT_EQ(Build(lexer, styled).exitCode, 0);
    }
}

TEST_F(Uvgrammar, RefusesWhatWouldLoseTextOrMisparse)
{
    const SBadGrammar kCases[] = {
        // options
        {L, "reject ", "", "L.l: error: the option 'reject' is missing"},
        {L, "yylineno noecs nometa-ecs lex-compat", "noecs nometa-ecs", "the option 'yylineno' is missing"},
        {L, "nometa-ecs ", "ecs nometa-ecs ", "the option 'noecs' is missing"},
        {L, "lex-compat", "lex-compat 7bit",
         "uvgrammar: error: the tables made of this grammar can't be loaded: "},
        // what flex says itself
        {L, "<COMMENT>\"*/\"", "<NOWHERE>\"*/\"",
         "L.l:7: error: undeclared start condition NOWHERE\n    <NOWHERE>"},
        {L, "[a-z]+ ", "[a-z+  ", "L.l:11: error: "},
        // actions
        {L, "TOKEN_ACTION(ID)", "TOKEN_ACTION(IDENT)",
         "L.l:11: error: the parser knows no token TIDENT\n    [a-z]+"},
        {L, "TOKEN_ACTION(ID)", "TOKEN_ACT(ID)", "L.l:11: error: unknown keyword 'TOKEN_ACT'"},
        {L, "TOKEN_ACTION(ID)", "CREATE_NODE(X, 1)",
         "L.l:11: error: CREATE_NODE is not a keyword of the scanner"},
        {L, "TOKEN_ACTIONE(END, 1)", "TOKEN_ACTIONE(END)",
         "L.l:10: error: TOKEN_ACTIONE takes 2 argument(s), not 1"},
        {L, "TOKEN_ACTIONE(END, 1)", "TOKEN_ACTIONE(END, one)",
         "L.l:10: error: TOKEN_ACTIONE: 'one' is not a number"},
        {L, "TOKEN_ACTION(ID)", "CPY_TOKEN_ACTION(ID, a b)",
         "L.l:11: error: CPY_TOKEN_ACTION: the argument a b holds"},
        {L, "TOKEN_ACTION(ID)", "TOKEN_INDENT_ACTION", "L.l:11: error: the parser knows no token T__INDENT"},
        {L, "TOKEN_ACTION(ID)", "STRING_ACTION(2)",
         "L.l:11: error: this needs a start condition SS_DIR_COMMENT"},
        {L, "TOKEN_ACTION(ID)", "ACTION_BY_OPTION(o, BEGIN, NOWHERE, TOKEN_ACTION, ID)",
         "L.l:11: error: there is no start condition NOWHERE"},
        {L, "TOKEN_ACTION(ID)", "CODE_ACTION(1, ID, NOSUCH)",
         "L.l:11: error: the parser knows no token TNOSUCH"},
        {L, "TOKEN_ACTION(ID); }", "TOKEN_ACTION(ID); } BEGIN COMMENT;", "L.l:11: error: what stands after"},
        {L, "return yytext[0];", "return yytext[0]; BEGIN COMMENT;",
         "L.l:13: error: what stands after yytext"},
        {L, "return yytext[0];", "return;TOKEN_ACTION(ID);", "L.l:13: error: unknown keyword 'return'"},
        {L, "BEGIN COMMENT;", "BEGIN(COMMENT);", "L.l:6: error: BEGIN takes one word"},
        {L, "BEGIN COMMENT;", "BEGIN COMENT;", "L.l:6: error: there is no start condition COMENT"},
        {L, "{ TOKEN_ACTION(ID); }", "TOKEN_ACTION(ID);",
         "L.l:11: error: an action without braces is dropped"},
        {L, "{ TOKEN_ACTIONE(BEGIN, 1); }", "|", "L.l:10: error: rules above take this action by '|'"},
        {L, ".             {", "<COMMENT><<EOF>> { BEGIN 0; }\n.  {",
         "L.l:14: error: an action after <<EOF>> is lost, unless it is { yyterminate(); }"},
        // conflicts and other findings of bison
        {P, "root: items ;", "root: items | items TPLUS TPLUS | items TPLUS TPLUS ;",
         "P.y: error: 1 reduce/reduce conflict"},
        {P, "%start SQL", "%start SQL\n%expect 3", "P.y: error: shift/reduce conflicts: 0 found, 3 expected"},
        // forms of the generated file
        {P, "%start SQL", "%start SQL\n%header", "P.y: error: the C file holds no enum yytokentype"},
        {P, "%start SQL", "%start SQL\n%define lr.default-reduction most",
         "P.y:5: error: reductions made on an error"},
        {P, "name: TID |", "name: TID | TEND '=' TEND { CREATE_NODE(N, 3); } |",
         "P.y:14: error: the token '=' has no name"},
        // rules
        {P, "{ EMPTY(ITEMS); }", "", "P.y:8: error: an empty rule needs EMPTY\n    items: %empty"},
        {P, "{ CREATE_NODE(ITEMS, 2); }", "", "P.y:9: error: a rule of several symbols without CREATE_NODE"},
        {P, "{ CREATE_NODE(ITEM, 2); }", "{ EMPTY(ITEM); }", "P.y:10: error: EMPTY loses the text"},
        {P, "CREATE_NODE(BLOCK, 4)", "CREATE_NODE(BLOCK, 3)",
         "P.y:11: error: CREATE_NODE takes 3 symbols, the rule has 4"},
        {P, "CREATE_NODE(ITEM, 2);", "CREATE_NODE(ITEM, 2); CREATE_NODE(X, 2);",
         "P.y:10: error: a second node"},
        {P, "CREATE_NODE(ITEM, 2)", "CREATE_NODE(2ITEM, 2)",
         "P.y:10: error: '2ITEM' can't be the name of a node"},
        {P, "CREATE_NODE(ITEM, 2)", "TOKEN_ACTION(ID)",
         "P.y:10: error: TOKEN_ACTION is not a keyword of the parser"},
        {P, "TBEGIN items", "TBEGIN { yylexerptr->yybegin(SS_GENERAL); } items",
         "P.y:11: error: an action inside a rule isn't supported"},
        // error rules
        {P, "CREATE_NODE_WITH_ERROR(BAD, 2, 0)", "CREATE_NODE(BAD, 2)",
         "P.y:13: error: CREATE_NODE over an error symbol"},
        {P, "CREATE_NODE_WITH_ERROR(BAD, 2, 0)", "CREATE_NODE_WITH_ERROR(BAD, 2, 1)",
         "P.y:13: error: symbol 1 (counted from 0) of the rule is not the error symbol"},
        {P, "error TSEMI { CREATE_NODE_WITH_ERROR(BAD, 2, 0); }", "error ",
         "P.y:13: error: a rule over error needs CREATE_NODE_WITH_ERROR"},
        // the scanner's states
        {P, "%token SS_GENERAL 2", "%token SS_GENERAL 1",
         "P.y:12: error: the parser's SS_GENERAL is 1, the scanner's start condition is 2"},
        {P, "%token SS_GENERAL 2\n", "",
         "P.y:11: error: the parser doesn't know SS_GENERAL: declare %token SS_GENERAL 2"},
        // the root
        {P, "CREATE_NODE(SQL, 1)", "CREATE_NODE(ROOT, 1)",
         "P.y:6: error: the start symbol has to make a node named SQL"},
        {P, "SQL: root {", "SQL: TEND error { CREATE_NODE_WITH_ERROR(SQL, 2, 1); } | root {",
         "P.y:6: error: CREATE_NODE_WITH_ERROR doesn't fill the result"},
        {P, "CREATE_NODE(BLOCK, 4)", "CREATE_NODE(SQL, 4)",
         "P.y:11: error: a node named SQL inside the tree"},
        {P, "TBEGIN items TEND TSEMI", "TBEGIN SQL TEND TSEMI",
         "P.y:11: error: the root 'SQL' is used inside the tree"},
    };
    for (const SBadGrammar& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.from << " -> " << c.to);
        const SRun run = BuildReplaced(c.source, c.from, c.to);
        EXPECT_EQ(run.exitCode, 1) << run.messages;
        EXPECT_THAT(run.messages, HasSubstr(c.message));
        EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() + "out/Lang"));
    }
}

TEST_F(Uvgrammar, WarnsOfWhatIsOnlySuspicious)
{
    const SBadGrammar kCases[] = {
        {L, "[a-z]+ ", "\"end\" { TOKEN_ACTION(ID); }\n[a-z]+ ", "L.l:11: warning: unused rule"},
        {L, "\n.   ", "\n[!-~]   ", "L.l: warning: start condition INITIAL: no rule takes a lone "},
        {L, "TOKEN_ACTION(ID);", "TOKEN_ACTION(ID); TOKEN_ACTIONE(ID, 1);",
         "L.l:11: warning: TOKEN_ACTIONE never runs"},
        {L, "BRACKETS_ACTION(2)", "BRACKETS_ACTION(7)",
         "L.l:12: warning: BRACKETS_ACTION does nothing with 7"},
        {P, "name: TID", "lost: TID ;\nname: TID", "P.y:14:1: warning: nonterminal useless in grammar: lost"},
        {P, "root: items ;", "root: items | items error { CREATE_NODE_WITH_ERROR(END, 2, 1); } ;",
         "P.y:7: warning: a rule that ends in error"},
        {P, "CREATE_NODE(ITEM, 2);", "CREATE_NODE(ITEM, 2); TEXT_ACTION(x);",
         "P.y:10: warning: TEXT_ACTION does nothing"},
    };
    for (const SBadGrammar& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.from << " -> " << c.to);
        const SRun run = BuildReplaced(c.source, c.from, c.to);
        EXPECT_EQ(run.exitCode, 0) << run.messages;
        EXPECT_THAT(run.messages, HasSubstr(c.message));
    }
}

TEST_F(Uvgrammar, ReportShowsAnExampleOfEachConflict)
{
    const std::string parser = Replaced(kParser, "name: TID", "name: name name { NODE(PAIR); } | TID");
    EXPECT_THAT(
        Build(kLexer, parser).messages,
        HasSubstr("P.y: note: before TID it is open whether there is a whole name or more of it comes\n"
                  "    name: name name .\n"
                  "    name: name . name\n"
                  "P.y: note: --report shows an example of each conflict\n"));
    const SRun run = Build(kLexer, parser, "--report");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.messages, HasSubstr("P.y: note: shift/reduce conflict on token"));
    EXPECT_THAT(run.messages, HasSubstr("\n    Example: name name . T"));
}

TEST_F(Uvgrammar, ConflictsThatTheGrammarExpectsAreAllowed)
{
    const std::string ambiguous =
        Replaced(kParser, "name: TID |", "name: TID | name TPLUS name { CREATE_NODE(N, 3); } |");
    EXPECT_EQ(Build(kLexer, ambiguous).exitCode, 1);
    const SRun run = Build(kLexer, Replaced(ambiguous, "%start", "%expect 2\n%start"), "--report");
    EXPECT_EQ(run.exitCode, 0) << run.messages;
    EXPECT_THAT(run.output, HasSubstr("conflicts: 2 shift/reduce"));
}

// What one mistake spoils further on is not a mistake of its own.
TEST_F(Uvgrammar, OneMistakeIsOneError)
{
    const SBadGrammar kCases[] = {
        {L, "TOKEN_ACTIONE(BEGIN, 1)", "TOKEN_ACTOINE(BEGIN, 1)",
         "L.l:9: error: unknown keyword 'TOKEN_ACTOINE'"},
        {L, "BEGIN COMMENT;", "BEGIN;", "L.l:6: error: BEGIN takes one word"},
        {P, "CREATE_NODE(ITEMS, 2)", "CREATE_NOD(ITEMS, 2)", "P.y:9: error: unknown keyword 'CREATE_NOD'"},
        {P, "EMPTY(ITEMS)", "EMPTY(ITEMS, 0)", "P.y:8: error: EMPTY takes 1 argument(s), not 2"},
        // the other numbers of the rule are those of the author, who didn't count the action
        {P, "TBEGIN items", "TBEGIN { SQL_REDUCED(x); } items", "P.y:11: error: an action inside a rule"},
        {P, "TBEGIN items", "TBEGIN { EMPTY(INNER); } items", "P.y:11: error: an action inside a rule"},
        {P, "TBEGIN items", "TBEGIN { nonsense(); } items", "P.y:11: error: an action inside a rule"},
        {P, "%start SQL", "%start SQL\n%define lr.default-reduction most", "P.y:5: error: reductions made"},
    };
    for (const SBadGrammar& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.from << " -> " << c.to);
        const SRun run = BuildReplaced(c.source, c.from, c.to);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_THAT(run.messages, StartsWith(c.message));
        std::size_t errors = 0;
        for (std::size_t at = 0; (at = run.messages.find("error: ", at)) != std::string::npos; ++at)
            ++errors;
        EXPECT_EQ(errors, 2u) << run.messages; // and that the grammar is refused
    }
}

// Where reductions are made on errors bison marks those of %nonassoc in a way of its own.
TEST_F(Uvgrammar, NonassocNeedsNoReductionsOnErrors)
{
    const std::string comparing =
        Replaced(kParser, "name: TID |", "name: TID | name TPLUS name { CREATE_NODE(N, 3); } |");
    const std::string nonassoc = Replaced(comparing, "%token TPLUS 43", "%token TPLUS 43\n%nonassoc TPLUS");
    for (const char* const choice : {"", "%define lr.default-reduction accepting\n"}) {
        const SRun fine = Build(kLexer, choice + nonassoc);
        EXPECT_EQ(fine.exitCode, 0) << fine.messages;
    }
    for (const char* const choice :
         {"%define lr.default-reduction most\n", "%define\nlr.default-reduction most\n"})
        EXPECT_EQ(Build(kLexer, choice + nonassoc).exitCode, 1) << choice;
}

TEST_F(Uvgrammar, AFailedRunLeavesTheOldTablesAndNothingElse)
{
    ASSERT_EQ(Build(kLexer, kParser).exitCode, 0);
    const auto before = Snapshot("out");
    EXPECT_EQ(BuildReplaced(L, "TOKEN_ACTION(ID)", "TOKEN_ACTION(IDENT)").exitCode, 1);
    EXPECT_EQ(Snapshot("out"), before);
    EXPECT_EQ(Run("--lexer L.l --parser missing.y --output out/Lang").exitCode, 2);
    EXPECT_EQ(Snapshot("out"), before);

    EXPECT_EQ(Build(Replaced(kLexer, "[a-z]+", "[a-z_]+"), kParser).exitCode, 0);
    EXPECT_NE(Snapshot("out"), before);
    EXPECT_EQ(Snapshot("out").size(), before.size());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_Folder.Path() + "out"), {}), 1);
}

TEST_F(Uvgrammar, CouldNotRun)
{
    m_Folder.Write("L.l", kLexer);
    m_Folder.Write("P.y", kParser);
    std::filesystem::create_directories(m_Folder.Path() + "sources/Lexer");
    m_Folder.Write("sources/notes.txt", "not a table");
    m_Folder.Write("file", "");
    struct SCase
    {
        const char *arguments, *environment, *message;
    };
    constexpr SCase kCases[] = {
        {"", "", "uvgrammar: error: "},
        {"--lexer L.l --parser P.y", "", "uvgrammar: error: "},
        {"--lexer L.l --parser P.y --output out more", "", "uvgrammar: error: "},
        {"--lexer L.l --parser P.y --output out --nonsense", "", "uvgrammar: error: "},
        {"--lexer L.l --parser P.y --output out --name ../out", "", "can't be the name of a language"},
        {"--lexer none.l --parser P.y --output out", "", "none.l: No such file"},
        {"--lexer L.l --parser P.y --output sources", "", "is not part of a table directory"},
        {"--lexer L.l --parser P.y --output file", "", "is not a folder"},
        {"--lexer L.l --parser P.y --output file/below", "", "file/below: "},
        {"--lexer L.l --parser P.y --output out", "PATH=/nonexistent", "flex: can't be run"},
        {"--help >/dev/full; exit $?", "", "standard output: "},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(c.arguments);
        const SRun run = Run(c.arguments, c.environment);
        EXPECT_EQ(run.exitCode, 2);
        // After a redirection of its own the case's messages don't come here.
        if (std::string(c.arguments).find("/dev/full") == std::string::npos) {
            EXPECT_THAT(run.messages, HasSubstr(c.message));
        }
    }
    EXPECT_EQ(File("sources/notes.txt"), "not a table");
    EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() + "out"));
    EXPECT_EQ(Run("--help").exitCode, 0);
}

TEST_F(Uvgrammar, FileNamesInTheSourcesAreNotFollowed)
{
    const std::string named =
        Replaced(kLexer, "lex-compat", "lex-compat outfile=\"elsewhere.c\" header-file=\"elsewhere.h\"");
    EXPECT_EQ(Build(named, kParser).exitCode, 0);
    EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() + "elsewhere.c"));
    EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() + "elsewhere.h"));
}

} // namespace
