// Broken text: what an error costs, and that nothing is lost by it.
#include "Tests/Languages/LanguageFixture.h"

#include <gtest/gtest.h>

namespace {

// What a delimiter, a quote or a comment stands in.
constexpr char kScript[] =
    R"(select 'it''s; \'fine', "semi;colon", `a``;`, _utf8'x' 'y', N'z', 0xFF, b'1' from t;
/* a; */ select /*+ hint(a) */ count(*) over (partition by y) from z -- c;
;
/*!40101 set names utf8 */; # d;
create table `a b` (c int /*!50100 unsigned */ not null default '1', key `d` (`c`)) engine=InnoDB;
insert into t values (1,'a',NULL),(2,_binary '\0\\',-1.5e3) on duplicate key update a = values(a), b := @c.d;
delimiter //
create definer=`root`@`%` procedure p(in a int, out b varchar(10))
begin
    declare continue handler for not found, sqlstate '02000' set b = 'x;';
    l: loop if a <=> 1 then leave l; end if; end loop l;
    select a into b from t where a not in (1, 2) and not b between 1 and 2;
end //
drop procedure p // delimiter ;
use t
source a.sql
select 1\G select @@global.a, @b:=1 \g
delimiter $$
create trigger t before insert on t for each row set new.a$b = 1; $$
delimiter |
select a || b or c |
delimiter ;;
select 1; select 2;;
delimiter ;
select x->'$.a', y->>"$.b" from `t`.u.`v`;
)";

TEST(MySQLErrors, OneBadStatementCostsOneStatement)
{
    const std::string before = "create procedure p() begin set a = 1; end;\nselect 'first';\n";
    const std::string after = "insert into t values (1, 'last');\ndrop table u;\n";
    const SLanguageParse expected = ParseWhole(MySQL(), before + after);
    ASSERT_TRUE(expected.IsClean());
    const CSyntaxTree clean(expected.tree);
    for (const char* const bad : {
             "slect 1",
             ") a b",
             "] x",
             "then y",
             "select select 1",
             "select (1",
             "select 1)",
             "select 1 +",
             "select a,, b from t",
             "select 1x 2y 3z",
             "select { from t",
             "select 1 from",
             "insert into t values (1,, 2)",
             "create table t (a int,, b int)",
             "create table t (a int",
             "create tabel t (a int)",
             "update t a = 1",
             "delete form t where 1",
             "alter table t add column add column",
             "call",
             "grant select on to a",
             "select x'1'",
             "select $",
             "create view as select 1",
             "set = 1",
             "create procedure p() begin select from; end",
             "create function f() returns int begin if a b then return 1; end if; end",
             "end",
             "\xFF\xFE"
             "a b c",
             "create trigger t before on t for each row set a = 1",
             "load data a b c",
         }) {
        SCOPED_TRACE(bad);
        const std::string text = before + bad + ";\n" + after;
        const SLanguageParse parse = ParseWhole(MySQL(), text);
        EXPECT_FALSE(parse.unexpected.empty());
        for (const SUnexpectedToken& token : parse.unexpected) {
            EXPECT_GE(token.offset, before.size());
            EXPECT_LT(token.offset, text.size() - after.size()) << token.text;
            EXPECT_EQ(text.substr(token.offset, token.length), token.text);
        }
        const CSyntaxTree tree(parse.tree);
        const std::vector<SElement> statements = tree.Statements();
        ASSERT_EQ(statements.size(), 5U) << tree.Shape();
        for (const std::size_t i : {0U, 1U, 3U, 4U})
            EXPECT_EQ(tree.Markup(statements[i]), clean.Markup(clean.Statements()[i < 2 ? i : i - 1]));
    }
}

// The end of a text delimits its last statement; what is open there takes nothing that stands before it, and nothing
// of it is left to the next parse.
TEST(MySQLErrors, OpenTextLeavesWhatStandsBeforeIt)
{
    const std::string after = "-- \nselect a$b || c; select 2 -- $$\n;";
    // without the places of tokens, which go on counting where the text before has ended
    const auto parsed = [&after] {
        const CSyntaxTree tree(MySQL().Parse(after).tree);
        return tree.Markup(tree.Elements().front());
    };
    const std::string expected = parsed();
    for (const char* const open : {"select 'a; select 2;\n",
                                   "select \"a; select 2;",
                                   "select `a; select 2;",
                                   "select /* a /* b ; select 2;",
                                   "select /*!50000 a; select 2;",
                                   "select /*+ a; select 2;",
                                   "select 'a\\'; select 2;",
                                   "select 1 + ",
                                   "select (((",
                                   "create function f() returns int begin select 1;",
                                   "select x'1",
                                   "select $",
                                   "select 1 from",
                                   "delimiter $$\nselect 1; ",
                                   "delimiter ||\nselect 1; ",
                                   "delimiter go\ncreate procedure p() begin select 1; ",
                                   "delimiter",
                                   "delimiter ",
                                   "\\d ",
                                   "\\d //",
                                   "select a.",
                                   "delimiter |\nselect a.",
                                   "select not",
                                   "insert into t values (1, ",
                                   "select @",
                                   "select \\",
                                   "\\",
                                   ")",
                                   "]",
                                   "then",
                                   "begin select",
                                   "l: while a do begin not atomic select 1; declare",
                                   "while a do create procedure p() begin declare",
                                   "declare exit handler for not found begin declare",
                                   "alter event e do begin select 1; ",
                                   "l: if",
                                   "create trigger t before insert on u for each row begin case a"}) {
        SCOPED_TRACE(open);
        const SLanguageParse parse = ParseWhole(MySQL(), "select 1;\n" + std::string(open));
        const CSyntaxTree tree(parse.tree);
        ASSERT_FALSE(tree.Statements().empty());
        EXPECT_EQ(tree.Statements().front().end, 9u);
        EXPECT_TRUE(tree.Holds("delimited_pl_sql_statement(select_statement('1') ';')"));
        EXPECT_EQ(parsed(), expected);
    }
}

TEST(MySQLMutations, LoseNothing)
{
    ASSERT_TRUE(ParseWhole(MySQL(), kScript).IsClean());
    std::vector<std::string> texts = SampleTexts("MySQL");
    texts.emplace_back(kScript);
    ExpectSpoiledTextsLoseNothing(MySQL(), texts,
                                  "'\"`$;()\\*/!#-@|&\n:.,+MmNn0 \t\r\f\v\x10\x7F\x80\xC3\xFF<>&");
    texts.emplace_back("select 1\xEF\xBB\xBF;");
    ExpectPiecesLoseNothing(MySQL(), texts, 7);
}

// Whole words and marks in places where they don't belong: what changes the scanner's state most of all.
TEST(MySQLMutations, StrayMarksLoseNothing)
{
    const std::string script = kScript;
    for (const char* const mark : {"delimiter $$\n",
                                   "\ndelimiter //\n",
                                   "\\d |\n",
                                   "/*!",
                                   "/*!50000",
                                   "*/",
                                   "/*",
                                   "/*+",
                                   "//",
                                   "$$",
                                   "-- ",
                                   "#",
                                   "`",
                                   "'",
                                   "\"",
                                   "\\",
                                   "\\G",
                                   "begin ",
                                   "end ",
                                   ";",
                                   "_utf8'",
                                   "not ",
                                   "\nuse t\n"})
        for (std::size_t at = 0; at <= script.size() && !HasFailure(); at += 7) {
            SCOPED_TRACE(mark + (" at " + std::to_string(at)));
            ParseWhole(MySQL(), script.substr(0, at) + mark + script.substr(at));
        }
}

} // namespace
