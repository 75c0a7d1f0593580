// Grammars in several files, lists and tables of words. Most cases write one language twice, once with these forms and
// once in flex's and bison's own words, and want the same tables.
#include "Grammar/UVGrammarKeeper.h"
#include "Tests/Grammar/UvgrammarFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr const char* kLexer = R"(%option noyywrap reject yylineno noecs nometa-ecs lex-compat
%s SS_GENERAL
WORD [a-z]+
%%
[ \t\n]+ { }
"begin"  { TOKEN_ACTIONE(__BEGIN, 1); }
"end"    { TOKEN_ACTIONE(__END, 1); }
"quit"   { TOKEN_ACTIONE(__END, 1); }
"set"    { TOKEN_ACTIONE(__SET, 3); }
{WORD}   { TOKEN_ACTION(__ID); }
";"      { TOKEN_ACTION(__SEMI); }
","      { TOKEN_ACTION(__COMMA); }
.        { TOKEN_ACTION(__OTHER); }
%%
)";

constexpr const char* kParser = R"(%token T__BEGIN T__END T__SET T__ID T__SEMI T__COMMA T__OTHER
%start SQL_ROOT
%%
SQL_ROOT: items { CREATE_NODE(SQL, 1); } ;
items: %empty { EMPTY(items); }
     | items item { CREATE_NODE(items, 2); } ;
item: name T__SEMI { CREATE_NODE(item, 2); }
    | T__BEGIN items T__END T__SEMI { CREATE_NODE(block, 4); }
    | error T__SEMI { CREATE_NODE_WITH_ERROR(item, 2, 0); } ;
name: T__ID | T__SET { CREATE_NODE(name, 1); } | T__OTHER ;
%%
)";

class UvgrammarForms : public CUvgrammarFixture
{
protected:
    SUvgrammarRun Build(const std::string& lexer, const std::string& parser, const std::string& more = "")
    {
        m_Folder.Write("own/L.l", lexer);
        m_Folder.Write("own/P.y", parser);
        return Run("--lexer own/L.l --parser own/P.y --output out/Lang " + more);
    }

    // The tables of a grammar that has to be good, by name.
    std::map<std::string, std::string> Tables(const std::string& lexer, const std::string& parser)
    {
        const SUvgrammarRun run = Build(lexer, parser);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.messages, "");
        auto tables = Snapshot("out");
        // of sources that differ
        std::string& manifest = tables.at(m_Folder.Path() + "out/Lang/manifest.txt");
        manifest.erase(manifest.find("sources "), std::string_view("sources 01234567\n").size());
        return tables;
    }
};

TEST_F(UvgrammarForms, FragmentsKeywordsAndNodesGiveTheTablesOfThePlainGrammar)
{
    const auto wanted = Tables(kLexer, kParser);
    m_Folder.Write("common/Sets.words", "# shared\nend    closing\nset    name\n");
    m_Folder.Write("own/My.words", "%include \"../common/Sets.words\"\n"
                                   "begin\n"
                                   "= end closing \"end\" \"quit\"\n"
                                   "%color 3\n"
                                   "= set name\n");
    m_Folder.Write("common/Words.l", "WORD [a-z]+\n%%\n{WORD}   { TOKEN_ACTION(__ID); }\n");
    m_Folder.Write("common/Marks.l",
                   "\";\"      { TOKEN_ACTION(__SEMI); }\n\",\"      { TOKEN_ACTION(__COMMA); }\n");
    m_Folder.Write("common/Tokens.y", "%token T__ID T__SEMI /* ; */ T__COMMA");
    // Alternatives that this language hasn't, a rule that it writes itself, and rules that nothing leads to.
    m_Folder.Write("common/Items.y", R"(%token T__OTHER
%%
items: %empty { NODE; }
     | items item { NODE; }
     | items T__ELSEWHERE item { NODE; } ;
item: name T__SEMI { NODE; }
    | T__ELSEWHERE item[x] { ELSEWHERE; } %prec T__ELSEWHERE
unreached: unreached T__ELSEWHERE | "else" '{' ;
%list unreached_list: unreached ;
name: T__ELSEWHERE;
%without more: T__NOTHERE;
more: T__COMMA | T__NOTHERE;
)");
    m_Folder.Write("common/More.y", "more: T__NOTHERE | name ;\n");
    const std::string lexer = Replaced(kLexer, "WORD [a-z]+\n", "");
    const std::size_t words = lexer.find("\"begin\""), others = lexer.find('.', lexer.find("__COMMA"));
    const auto found =
        Tables(lexer.substr(0, words) + "%keywords \"My.words\"\n%include \"../common/Words.l\"\n" +
                   "%include \"../common/Marks.l\"\n" + lexer.substr(others),
               R"(%keywords "My.words"
%include "../common/Tokens.y"
%start SQL_ROOT
%%
SQL_ROOT: items { CREATE_NODE(SQL, 1); } ;
%include "../common/Items.y"
%include "../common/More.y"
item: T__BEGIN items T__END T__SEMI { NODE(block); }
    | error T__SEMI { /* NODE */ NODE ( item ) ; }
%without items: items T__ELSEWHERE item ;
%without item: T__ELSEWHERE item;
%replace name: T__ID | %words name { NODE; } | T__OTHER ;
%%
)");
    EXPECT_EQ(found, wanted);

    // and what flex and bison were given says the same without any of the files
    EXPECT_EQ(Run("--lexer own/L.l --parser own/P.y --output out/Lang --expanded own/written").messages, "");
    EXPECT_EQ(Tables(File("own/written/L.l"), File("own/written/P.y")), wanted);
}

// Names together, an action for all, parts that may be left out, choices, and clauses in their order.
TEST_F(UvgrammarForms, ShortRulesGiveTheTablesOfThoseWrittenOut)
{
    const std::string head =
        "%token T__BEGIN T__END T__SET T__ID T__SEMI T__COMMA T__OTHER\n%start SQL_ROOT\n%%\n";
    const auto wanted = Tables(kLexer, head + R"(SQL_ROOT: names { CREATE_NODE(SQL, 1); } ;
names: item { CREATE_NODE(names, 1); }
     | names item { CREATE_NODE(names, 2); } ;
item: T__BEGIN T__END { CREATE_NODE(item, 2); }
    | T__BEGIN T__ID T__SET T__END %prec T__SET { CREATE_NODE(item, 4); }
    | T__BEGIN T__COMMA clauses T__END { CREATE_NODE(item, 4); }
    | T__BEGIN T__SEMI clauses T__END { CREATE_NODE(item, 4); }
    | T__BEGIN T__COMMA clauses T__OTHER T__END { CREATE_NODE(item, 5); }
    | T__BEGIN T__SEMI clauses T__OTHER T__END { CREATE_NODE(item, 5); }
    | error T__SEMI { CREATE_NODE_WITH_ERROR(bad, 2, 0); }
    | T__END until T__SEMI { CREATE_NODE(item, 3); }
    | one ;
one: T__SET ;
one: T__SET T__COMMA { CREATE_NODE(item, 2); } ;
clauses: into
       | into clauses_from_from { CREATE_NODE(query, 2); }
       | clauses_from_from ;
clauses_from_from: from
                 | from where { CREATE_NODE(query, 2); }
                 | where ;
into: T__ID { CREATE_NODE(clause, 1); } ;
from: T__SET T__ID { CREATE_NODE(clause, 2); } ;
from: T__SET T__ID T__ID { CREATE_NODE(clause, 3); } ;
until: T__SET T__ID { CREATE_NODE(clause, 2); } | T__SET T__ID T__ID { CREATE_NODE(clause, 3); } ;
where: T__COMMA { CREATE_NODE(where, 1); } ;
%%
)");
    const auto found = Tables(kLexer, head + R"(SQL_ROOT { NODE(SQL); }: names ;
%list names: item %short ;
item { NODE; }
    : T__BEGIN (T__ID T__SET)? T__END %prec T__SET
    | T__BEGIN (T__COMMA | T__SEMI) clauses T__OTHER? T__END
    | error T__SEMI { NODE(bad); }
    | T__END until T__SEMI
    | one { PART; } ;
one: T__SET T__COMMA? { PART(item); }
%parts clauses: into from where %node query ;
into { NODE(clause); }: T__ID ;
from, until { NODE(clause); }: T__SET T__ID T__ID? ;
where { NODE; }: T__COMMA ;
%%
)");
    EXPECT_EQ(found, wanted);
}

// What a dialect hasn't takes along what shared rules make of it, as far as it goes, and nothing of the dialect's own.
TEST_F(UvgrammarForms, RemovedWordsAndSymbolsTakeSharedAlternativesAlong)
{
    const auto wanted = Tables(kLexer, kParser);
    m_Folder.Write("common/All.words", "# shared\nname : begin end set over\n: rows within\n");
    m_Folder.Write("own/My.words", "%include \"../common/All.words\"\n= : begin\n= end \"end\" \"quit\"\n"
                                   "%color 3\n= name : set\n- over rows within\n");
    m_Folder.Write("common/Items.y", R"(items: %empty { NODE; } | items item { NODE; } ;
item { NODE; }: name T__SEMI | name tail T__SEMI | windows T__SEMI | name? hook ;
tail { PART; }: over_clause within_clause? | hook;
over_clause { NODE; }: T__OVER name | T__OVER T__ROWS name ;
within_clause { NODE; }: T__WITHIN name ;
%list windows: over_clause %separator T__COMMA ;
%parts name: word over_clause ;
)");
    const std::string lexer = Replaced(kLexer, "\"begin\"  { TOKEN_ACTIONE(__BEGIN, 1); }\n", "");
    const auto found =
        Tables(Replaced(Replaced(Replaced(lexer, "\"end\"    { TOKEN_ACTIONE(__END, 1); }\n", ""),
                                 "\"quit\"   { TOKEN_ACTIONE(__END, 1); }\n", ""),
                        "\"set\"    { TOKEN_ACTIONE(__SET, 3); }", "%keywords \"My.words\""),
               R"(%keywords "My.words"
%token T__ID T__SEMI T__COMMA T__OTHER
%start SQL_ROOT
%%
SQL_ROOT: items { NODE(SQL); } ;
%include "../common/Items.y"
%without hook ;
item: T__BEGIN items T__END T__SEMI { NODE(block); }
    | error T__SEMI { NODE(item) ; }
%replace name: T__ID | %words name { NODE; } | T__OTHER ;
%%
)");
    EXPECT_EQ(found, wanted);
}

// A list against its rules written out. `%deep` has too many to write here: the languages' own tests count them.
TEST_F(UvgrammarForms, AListGivesTheTablesOfItsRules)
{
    struct SList
    {
        const char *list, *first, *chunks, *item; // rules around the parts of one to eight items
        const char *between, *after;
    };
    constexpr SList kLists[] = {
        {"%list name_list: name %separator T__COMMA ;", "", "", "name", " T__COMMA ", nullptr},
        {"%list name_list: name ;", "", "", "name", " ", nullptr},
        {"%list name_list: name %separator T__COMMA %trailing ;",
         " | name_list_chunks T__COMMA { CREATE_NODE(name_list, 2); }", "", "name", " T__COMMA ",
         " T__COMMA"},
        {"%list name_list: name %separator T__COMMA %last last ;", "",
         "last { CREATE_NODE(name_list, 1); } | ", "name", " T__COMMA ", " T__COMMA last"},
        {"%list name_list: name %last last ;", "", "last { CREATE_NODE(name_list, 1); } | ", "name", " ",
         " last"},
    };
    for (const SList& list : kLists) {
        SCOPED_TRACE(list.list);
        const std::string between = list.between;
        const bool isSeparated = between != " ";
        const auto items = [&](int count) {
            std::string text;
            for (int i = 0; i < count; ++i)
                text.append(i > 0 ? between : "").append(list.item);
            return text;
        };
        const auto node = [&](int items_, int more) {
            return " { CREATE_NODE(name_list, " +
                   std::to_string((isSeparated ? 2 * items_ - 1 : items_) + more) + "); }";
        };
        const std::string two =
            isSeparated ? " { CREATE_NODE(name_list, 3); }" : " { CREATE_NODE(name_list, 2); }";
        std::string rules =
            "name_list: part | name_list_chunks" + between + "part" + two + list.first + ";\n";
        rules += "name_list_chunks: chunk | name_list_chunks" + between + "chunk" + two + ";\n";
        rules += "chunk: " + items(8) + node(8, 0) + ";\n";
        rules += std::string("part: ") + list.chunks;
        for (int count = 1; count <= 8; ++count) {
            rules += (count > 1 ? " | " : "") + items(count) + node(count, 0);
            if (list.after != nullptr && count < 8)
                rules += " | " + items(count) + list.after +
                         node(count, static_cast<int>(std::ranges::count(std::string_view(list.after), ' ')));
        }
        rules += ";\n";
        const std::string parser =
            Replaced(Replaced(kParser, "item: name T__SEMI", "item: name_list T__SEMI"), "name: T__ID",
                     "last: T__END;\n@\nname: T__ID");
        const std::string plain = Replaced(parser, "@", rules);
        const std::string withList = Replaced(parser, "@", list.list);
        const bool hasLast = std::string_view(list.list).find("last") != std::string_view::npos;
        const auto finished = [&](const std::string& text) {
            return hasLast ? Replaced(text, "T__BEGIN items T__END", "T__BEGIN items T__COMMA")
                           : Replaced(text, "last: T__END;\n", "");
        };
        const auto wanted = Tables(kLexer, finished(plain));
        EXPECT_EQ(Tables(kLexer, finished(withList)), wanted);
    }
}

TEST_F(UvgrammarForms, AListIsOneRuleOfTheReportAndOnePlaceOfMessages)
{
    const std::string parser =
        Replaced(Replaced(kParser, "item: name T__SEMI", "item: names T__SEMI"), "name: T__ID",
                 "%list names: name %separator T__COMMA %error bad_name %deep ;\nname: T__ID");
    SUvgrammarRun run =
        Build(kLexer, Replaced(parser, "error T__SEMI { CREATE_NODE_WITH_ERROR(item, 2, 0); }", "T__COMMA"),
              "--report");
    EXPECT_EQ(run.exitCode, 0) << run.messages;
    EXPECT_THAT(run.output, HasSubstr("parser\n  rules: 10\n  lists among them: 1\n"));
    run = Build(kLexer, Replaced(parser, "name: T__ID", "name: T__ID | T__ID T__COMMA T__ID { NODE; }"));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.messages, HasSubstr("own/P.y:"));
    EXPECT_THAT(run.messages, HasSubstr("shift/reduce"));
}

// Whatever finds a fault names the file and line in which the author finds it.
TEST_F(UvgrammarForms, MessagesNameTheFragment)
{
    m_Folder.Write("common/Bad.l",
                   "\n\"bad\"   { TOKEN_ACTIONE(__BAD, 1); }\n[a-z]{2} { TOKEN_ACTION(__ID); }\n");
    m_Folder.Write("common/Bad.y", "bad: T__COMMA\n   | name bad T__COMMA { CREATE_NODE(bad, 2); }\n   ;\n");
    m_Folder.Write("common/Odd.y", "odd: T__ODD ;\n");
    m_Folder.Write("common/Bad.words", "begin\n\nevil\n");
    struct SCase
    {
        enum
        {
            Lexer,
            Parser
        } source;
        const char *from, *to, *message;
    };
    const SCase kCases[] = {
        {SCase::Lexer, "\"begin\"", "%include \"../common/Bad.l\"\n\"begin\"",
         "common/Bad.l:2: error: the parser knows no token T__BAD\n    \"bad\"   {"},
        {SCase::Lexer, "\"begin\"", "%keywords \"../common/Bad.words\"\n\"begin\"",
         "common/Bad.words:3: error: the parser knows no token T__EVIL\n    evil"},
        {SCase::Parser, "name: T__ID", "%include \"../common/Bad.y\"\nitem: bad;\nname: T__ID",
         "common/Bad.y:2: error: CREATE_NODE takes 2 symbols, the rule has 3\n"},
        {SCase::Parser, "name: T__ID", "%include \"../common/Odd.y\"\nname: odd | T__ID",
         "common/Odd.y:1:6: error: symbol 'T__ODD' is used, but is not defined as a token"},
        {SCase::Parser, "name: T__ID", "lost: T__ID;\nname: T__ID",
         "own/P.y:10:1: warning: nonterminal useless in grammar: lost"},
    };
    for (const SCase& entry : kCases) {
        SCOPED_TRACE(entry.message);
        const bool isLexer = entry.source == SCase::Lexer;
        const SUvgrammarRun run = Build(isLexer ? Replaced(kLexer, entry.from, entry.to) : kLexer,
                                        isLexer ? kParser : Replaced(kParser, entry.from, entry.to));
        EXPECT_THAT(run.messages, HasSubstr(entry.message));
    }
    // A shared rule that this language's own rules leave nothing to do is no fault of it.
    m_Folder.Write("common/Bad.l", "\"begin\" { TOKEN_ACTION(__ID); }\n");
    const SUvgrammarRun run =
        Build(Replaced(kLexer, "{WORD}", "%include \"../common/Bad.l\"\n{WORD}"), kParser);
    EXPECT_EQ(run.messages, "");
}

TEST_F(UvgrammarForms, WhatTheFormsCantMeanIsRefusedWithItsPlace)
{
    m_Folder.Write("own/A.y", "%include \"B.y\"\nextra: T__ID ;\n");
    m_Folder.Write("own/B.y", "%include \"A.y\"\n");
    m_Folder.Write("own/C.y", "%token T__C\n%%\nextra: T__ID ;\n%%\n");
    m_Folder.Write("own/D.l", "D [d]\n%%\n\"d\" { TOKEN_ACTION(__ID); }\n");
    m_Folder.Write("own/D.y", "name: T__COMMA ;\n");
    m_Folder.Write("own/E.y", "%replace name: T__BEGIN ;\n");
    m_Folder.Write("own/Bad.words",
                   "one\none\n- two\n= three\nfour-five\nsix seven=8\n%color red\n%include x\n");
    struct SCase
    {
        const char *from, *to, *message;
    };
    constexpr SCase kParserCases[] = {
        {"name: T__ID", "%include \"None.y\"\nname: T__ID", "own/P.y:10:1: error: own/None.y: "},
        {"name: T__ID", "%include \"P.y\"\nname: T__ID", "own/P.y:10:1: error: own/P.y includes itself"},
        {"name: T__ID", "%include \"A.y\"\nname: T__ID",
         "own/B.y:1:1: error: own/A.y is included a second time; the first is at own/P.y:10"},
        {"name: T__ID", "%include None.y\nname: T__ID",
         "own/P.y:10:1: error: %include takes one path in quotes"},
        {"name: T__ID", "%include \"C.y\"\nname: T__ID",
         "own/C.y:4:1: error: a fragment ends with its rules"},
        {"%start", "%include \"C.y\"\n%start",
         "own/P.y:2:1: error: own/C.y has rules: it is included among the rules"},
        {"name: T__ID", "%replace nobody: T__ID ;\nname: T__ID",
         "own/P.y:10:10: error: no other file has a rule for nobody"},
        {"name: T__ID", "%include \"D.y\"\n%include \"E.y\"\n%replace name: T__ID",
         "error: name is replaced twice; the other one is at own/"},
        {"name: T__ID", "%without name: T__ID ;\nname: T__ID",
         "own/P.y:10:14: error: no other file has this alternative for name"},
        {"name: T__ID", "%include \"A.y\"\n%without extra: T__ID ;\nname: T__ID",
         "own/P.y:11:10: error: nothing is left of extra"},
        {"name: T__ID", "%without nobody ;\nname: T__ID",
         "own/P.y:10:10: error: no other file has or uses nobody"},
        {"name: T__ID", "name: %words verbs | T__ID", "own/P.y:10:7: error: no word is in the group verbs"},
        {"name: T__ID", "name: T__ID %words verbs | T__ID", "error: %words stands alone in its alternative"},
        {"name: T__ID", "%list: x ;\nname: T__ID", "own/P.y:10:1: error: %list is followed by a rule"},
        {"name: T__ID", "%list l: x %every y ;\nname: T__ID", "error: a list takes %separator"},
        {"name: T__ID", "%list l: x y ;\nname: T__ID", "error: a list names one symbol"},
        {"name: T__ID", "%list l: x %trailing ;\nname: T__ID", "error: a list without a separator"},
        {"name: T__ID", "%list l: x %separator T__COMMA %last y %trailing ;\nname: T__ID",
         "error: a list with another last item doesn't end"},
        {"name: T__ID", "%list l: x %short %deep ;\nname: T__ID", "error: a short list takes"},
        {"name: T__ID", "%list l, m: x ;\nname: T__ID", "error: %list has one name"},
        {"name: T__ID", "%parts l: x ;\nname: T__ID", "error: %parts takes two symbols"},
        {"name: T__ID", "name: ? T__ID", "own/P.y:10:7: error: '?' can't stand here"},
        {"name: T__ID", "name: T__ID ) T__ID", "error: ')' can't stand here"},
        {"name: T__ID", "name: (T__ID | ) T__ID", "own/P.y:10:8: error: a choice in brackets holds nothing"},
        {"name: T__ID", "name: (T__ID { NODE; }) T__ID", "error: '{ NODE; }' can't stand here"},
        {"name: T__ID", "name: T__ID (T__SET | T__SEMI ;\nother: T__ID",
         "own/P.y:10:14: error: the bracket is never closed"},
        {"name: T__ID", "name: T__ID? T__SET?", "error: all of the alternative may be left out"},
        {"name: T__ID", "name: T__ID? T__ID? T__ID? T__ID? T__ID? T__ID? T__ID? T__SET",
         "error: an alternative stands for no more than 64"},
        {"%start", "%keywords \"Bad.words\"\n%start",
         "own/Bad.words:2:1: error: the word one is there already, in own/Bad.words:1"},
        {"%start", "%keywords \"Bad.words\"\n%start",
         "own/Bad.words:3:1: error: no included table has the word two"},
        {"%start", "%keywords \"Bad.words\"\n%start",
         "own/Bad.words:4:1: error: no included table has the word three"},
        {"%start", "%keywords \"Bad.words\"\n%start",
         "own/Bad.words:5:1: error: 'four-five' can't be a word"},
        {"%start", "%keywords \"Bad.words\"\n%start", "own/Bad.words:6:1: error: 'seven=8' is no group"},
        {"%start", "%keywords \"Bad.words\"\n%start", "own/Bad.words:7:1: error: %color takes one number"},
        {"%start", "%keywords \"Bad.words\"\n%start",
         "own/Bad.words:8:1: error: %include takes one path in quotes"},
    };
    constexpr SCase kLexerCases[] = {
        {"%s SS_GENERAL", "%s SS_GENERAL\n%keywords \"Bad.words\"",
         "own/L.l:3:1: error: the words become rules"},
        {"%s SS_GENERAL", "%s SS_GENERAL\n%include \"D.l\"", "own/L.l:3:1: error: own/D.l has rules"},
        {"{WORD}", "%include D.l\n{WORD}", "own/L.l:10:1: error: %include takes one path in quotes"},
    };
    const auto expectRefused = [&](const SCase& entry, const std::string& lexer, const std::string& parser) {
        SCOPED_TRACE(entry.to);
        const SUvgrammarRun run = Build(lexer, parser);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_THAT(run.messages, AllOf(HasSubstr(entry.message), HasSubstr("refused")));
    };
    for (const SCase& entry : kParserCases)
        expectRefused(entry, kLexer, Replaced(kParser, entry.from, entry.to));
    for (const SCase& entry : kLexerCases)
        expectRefused(entry, Replaced(kLexer, entry.from, entry.to), kParser);
}

TEST_F(UvgrammarForms, WarningsThatAreMeantAreSilentWhileTheirNumberHolds)
{
    const std::string parser = Replaced(
        kParser, "| T__OTHER ;", "| T__OTHER | T__COMMA error { CREATE_NODE_WITH_ERROR(bad, 2, 1); } ;");
    const std::string warning = "warning: a rule that ends in error";
    EXPECT_THAT(Build(kLexer, parser).messages, HasSubstr(warning));
    EXPECT_EQ(Build(kLexer, Replaced(parser, "%start", "%warnings 1\n%start")).messages, "");
    EXPECT_THAT(Build(kLexer, Replaced(parser, "%start", "%warnings 2\n%start")).messages,
                AllOf(HasSubstr(warning), HasSubstr("own/P.y: note: 1 warnings, where %warnings says 2\n")));
    EXPECT_THAT(Build(kLexer, Replaced(parser, "%start", "%warnings few\n%start")).messages,
                HasSubstr("own/P.y:2:1: error: %warnings takes the number"));
}

TEST_F(UvgrammarForms, TheDepfileNamesEveryFileThatWasRead)
{
    m_Folder.Write("own/My.words", "begin\n");
    m_Folder.Write("a b/Names.y", "");
    const SUvgrammarRun run =
        Build(Replaced(kLexer, "\"begin\"  { TOKEN_ACTIONE(__BEGIN, 1); }", "%keywords \"My.words\""),
              Replaced(kParser, "%start", "%include \"../a b/Names.y\"\n%start"), "--depfile own/deps");
    EXPECT_EQ(run.messages, "");
    EXPECT_EQ(File("own/deps"),
              "out/Lang/manifest.txt: \\\n  own/L.l \\\n  own/My.words \\\n  own/P.y \\\n  a\\ b/Names.y\n");
}

} // namespace
