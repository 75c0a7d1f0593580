// uvgrammar elements: what it says of small grammars, against texts of its own and against the flattening, and its runs.
#include "Tests/Support/ElementTrees.h"
#include "Tests/Support/ProgramFixture.h"
#include "Tools/uvgrammar-elements/TreeElements.h"
#include "Tree/TreeFlattener.h"

#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

using testing::HasSubstr;
using testing::IsEmpty;
using uvelements::SChild;
using uvelements::SNodeRule;
using uvelements::SNodeRules;
using uvelements::STreeElement;

namespace {

// A grammar as rows "symbol: a b > node | c | error T__D > node"; the first symbol is the start. An alternative without a
// node passes its symbol on.
class CRows
{
public:
    explicit CRows(const std::string& rows)
    {
        std::istringstream lines(rows);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t colon = line.find(':');
            std::istringstream alternatives(line.substr(colon + 1));
            for (std::string one; std::getline(alternatives, one, '|');)
                Add(Number(line.substr(0, colon)), one);
        }
    }

    const SNodeRules& Rules() const { return m_Rules; }

private:
    std::size_t Number(const std::string& symbol)
    {
        const auto known = std::ranges::find(m_Rules.symbols, symbol);
        if (known == m_Rules.symbols.end()) {
            m_Rules.symbols.push_back(symbol);
            m_Rules.rulesOf.emplace_back();
            return m_Rules.symbols.size() - 1;
        }
        return static_cast<std::size_t>(known - m_Rules.symbols.begin());
    }

    void Add(std::size_t left, const std::string& alternative)
    {
        SNodeRule rule;
        rule.left = left;
        std::istringstream words(alternative);
        for (std::string word; words >> word;) {
            if (word == ">")
                words >> rule.node;
            else if (word == "error")
                rule.hasError = true;
            else
                rule.right.push_back(Number(word));
        }
        m_Rules.rulesOf[left].push_back(m_Rules.rules.size());
        m_Rules.rules.push_back(rule);
    }

    SNodeRules m_Rules;
};

// "a in SQL b: T__X (c | d)? e* ~f", ~ for what only errors make.
std::string Shown(const STreeElement& element)
{
    std::string shown = element.name + (element.isList ? "(list)" : "") +
                        (element.isOfErrors ? "(errors)" : "") + (element.parents.empty() ? "" : " in");
    for (const std::string& parent : element.parents)
        shown += ' ' + parent;
    shown += ':';
    for (const SChild& child : element.children) {
        std::string names;
        for (const std::string& name : child.names)
            names += (names.empty() ? "" : "|") + name;
        shown += (child.isOfErrors ? " ~" : " ") + (child.names.size() > 1 ? '(' + names + ')' : names) +
                 (child.isOfErrors   ? ""
                  : child.isRepeated ? (child.isOptional ? "*" : "+")
                                     : (child.isOptional ? "?" : ""));
    }
    return shown + '\n';
}

struct SGrammarCase
{
    const char* what;
    const char* rows;
    const char* elements; // those below the root
};

constexpr SGrammarCase kGrammars[] = {
    {"an optional part, a part in two places", //
     "SQL: a > SQL\n"
     "a: T__X T__Y > a | T__X b T__Y > a | b T__X b T__Y > a\n"
     "b: T__Z > b\n",
     "a in SQL: T__X b* T__Y\n"
     "b in a: T__Z\n"},
    {"a choice that is always made, one that isn't", //
     "SQL: a > SQL\n"
     "a: T__X p > a | T__Y > a | T__Y p > a | T__Z q > a\n"
     "p: b > p\n"
     "b: T__B > b\n"
     "q: T__Q > q\n",
     "a in SQL: (T__X|T__Y|T__Z) p? q?\n"
     "p in a: b\n"
     "b in p: T__B\n"
     "q in a: T__Q\n"},
    {"the order of alternatives, and of what stands after them", //
     "SQL: a > SQL\n"
     "a: T__A T__END > a | T__B T__END > a | T__END > a | T__C T__D T__END > a\n",
     "a in SQL: T__A? T__B? T__C? T__D? T__END\n"},
    {"things in any order", //
     "SQL: a > SQL\n"
     "a: b c > a | c b > a\n"
     "b: T__B > b\n"
     "c: T__C > c\n",
     "a in SQL: b c\n"
     "b in a: T__B\n"
     "c in a: T__C\n"},
    {"symbols without a node stand for what they pass on", //
     "SQL: a > SQL\n"
     "a: T__X kind > a\n"
     "kind: word | b\n"
     "word: T__Y | T__Z\n"
     "b: kind T__B > b\n",
     "a in SQL: T__X (T__Y|T__Z|b)\n"
     "b in a: (T__Y|T__Z) T__B+\n"},
    {"lists by recursion on either side", //
     "SQL: left right > SQL\n"
     "left: a > left_list | left T__COMMA a > left_list\n"
     "right: b > right_list | b right > right_list\n"
     "a: T__A > a\n"
     "b: T__B > b\n",
     "left_list(list) in SQL: a+ T__COMMA*\n"
     "right_list(list) in SQL: b+\n"
     "a in left_list: T__A\n"
     "b in right_list: T__B\n"},
    {"items of several kinds are one choice, separators another", //
     "SQL: list > SQL\n"
     "list: item > list | list T__COMMA item > list\n"
     "item: T__X | T__Y | a\n"
     "a: T__A > a\n",
     "list(list) in SQL: (T__X|T__Y|a)+ T__COMMA*\n"
     "a in list: T__A\n"},
    {"a prefix makes no list", //
     "SQL: operand > SQL\n"
     "operand: T__NOT operand > negation | T__X\n",
     "negation in SQL: T__NOT+ T__X\n"},
    {"parts with their construct's name dissolve and are no construct", //
     "SQL: ref > SQL\n"
     "ref: name > ref | name tail > ref | name tail T__ONLY > ref\n"
     "tail: alias | T__AS alias > ref | T__AS alias columns > ref\n"
     "name: T__N > name\n"
     "alias: T__A > alias\n"
     "columns: T__C > columns\n",
     "ref in SQL: name T__AS? alias? columns? T__ONLY?\n"
     "name in ref: T__N\n"
     "alias in ref: T__A\n"
     "columns in ref: T__C\n"},
    {"such a part that stands elsewhere is one after all", //
     "SQL: ref other > SQL\n"
     "ref: name tail > ref\n"
     "other: tail > other\n"
     "tail: T__AS alias > ref\n"
     "name: T__N > name\n"
     "alias: T__A > alias\n",
     "ref in SQL other: name? T__AS alias\n"
     "other in SQL: ref\n"
     "name in ref: T__N\n"
     "alias in ref: T__A\n"},
    {"expressions nest", //
     "SQL: expression > SQL\n"
     "expression: expression T__PLUS expression > expression | T__N > expression\n",
     "expression in SQL expression: expression* (T__PLUS|T__N)\n"},
    {"other recursion goes through its elements", //
     "SQL: a > SQL\n"
     "a: T__X > a | T__L b T__R > a\n"
     "b: a > b\n",
     "a in SQL b: (T__X|T__L) b? T__R?\n"
     "b in a: a\n"},
    {"errors count where there is nothing else", //
     "SQL: a > SQL | SQL a > SQL\n"
     "a: T__X T__Y > a | error T__Y > a | T__Z error T__Y > a | bad\n"
     "bad: error > bad | T__X error > bad\n",
     "a in SQL: T__X ~T__Z T__Y\n"
     "bad(errors) in SQL: T__X?\n"},
    {"an empty node", //
     "SQL: a > SQL\n"
     "a:  > a | a b > a\n"
     "b: T__B > b\n",
     "a(list) in SQL: b*\n"
     "b in a: T__B\n"},
    {"statements are wrapped", //
     "SQL: list > SQL\n"
     "list: one > pl_sql_statements | list one > pl_sql_statements\n"
     "one: s | s d > delimited_pl_sql_statement\n"
     "s: run > pl_sql_statement\n"
     "d: T__SEMICOLON > pl_sql_statement_delimiter\n"
     "run: T__RUN > run_statement\n",
     "pl_sql_statement_label in full_pl_sql_statement:\n"
     "pl_sql_statements(list) in SQL: full_pl_sql_statement+\n"
     "full_pl_sql_statement in pl_sql_statements: pl_sql_statement_label pl_sql_statement "
     "pl_sql_statement_delimiter\n"
     "pl_sql_statement in full_pl_sql_statement: run_statement\n"
     "pl_sql_statement_delimiter in full_pl_sql_statement: T__SEMICOLON?\n"
     "run_statement in pl_sql_statement: T__RUN\n"},
    {"deeper in the tree a list of one is wrapped, and items of a longer one aren't", //
     "SQL: block > SQL\n"
     "block: T__BEGIN list T__END > block\n"
     "list: s > pl_sql_statements | list s > pl_sql_statements\n"
     "s: T__RUN > pl_sql_statement\n",
     "full_pl_sql_statement in pl_sql_statements: pl_sql_statement_label pl_sql_statement "
     "pl_sql_statement_delimiter\n"
     "pl_sql_statement_delimiter in full_pl_sql_statement:\n"
     "pl_sql_statement_label in full_pl_sql_statement:\n"
     "block in SQL: T__BEGIN pl_sql_statements T__END\n"
     "pl_sql_statements(list) in block: pl_sql_statement* full_pl_sql_statement?\n"
     "pl_sql_statement in full_pl_sql_statement pl_sql_statements: T__RUN\n"},
    {"bodies are lists whose delimiters move", //
     "SQL: block > SQL\n"
     "block: T__BEGIN body T__END > block\n"
     "body: one d > body_pl_sql_statements | body one d > body_pl_sql_statements\n"
     "one: s > delimited_pl_sql_statement | l s > delimited_pl_sql_statement\n"
     "l: T__LABEL > pl_sql_statement_label\n"
     "s: T__RUN > pl_sql_statement | block > pl_sql_statement\n"
     "d: T__SEMICOLON > pl_sql_statement_delimiter\n",
     "block in SQL pl_sql_statement: T__BEGIN pl_sql_statements T__END\n"
     "pl_sql_statements(list) in block: full_pl_sql_statement+\n"
     "full_pl_sql_statement in pl_sql_statements: pl_sql_statement_label+ pl_sql_statement "
     "pl_sql_statement_delimiter\n"
     "pl_sql_statement_label in full_pl_sql_statement: T__LABEL?\n"
     "pl_sql_statement in full_pl_sql_statement: (T__RUN|block)\n"
     "pl_sql_statement_delimiter in full_pl_sql_statement: T__SEMICOLON?\n"},
    {"labeled statements, by themselves and with a delimiter", //
     "SQL: list > SQL\n"
     "list: one > pl_sql_statements | list one > pl_sql_statements\n"
     "one: ls | ls d > delimited_pl_sql_statement | s d > delimited_pl_sql_statement\n"
     "ls: l s > labeled_pl_sql_statement\n"
     "l: T__LABEL > pl_sql_statement_label\n"
     "s: T__RUN > pl_sql_statement\n"
     "d: T__SEMICOLON > pl_sql_statement_delimiter\n",
     "pl_sql_statements(list) in SQL: full_pl_sql_statement+\n"
     "full_pl_sql_statement in pl_sql_statements: pl_sql_statement_label? pl_sql_statement "
     "pl_sql_statement_delimiter\n"
     "pl_sql_statement_label in full_pl_sql_statement: T__LABEL?\n"
     "pl_sql_statement in full_pl_sql_statement: T__RUN\n"
     "pl_sql_statement_delimiter in full_pl_sql_statement: T__SEMICOLON?\n"},
};

TEST(TreeElements, AreWhatTheRulesMake)
{
    for (const SGrammarCase& c : kGrammars) {
        SCOPED_TRACE(c.what);
        std::string shown;
        for (const STreeElement& element : uvelements::DescribeElements(CRows(c.rows).Rules()).elements)
            if (element.name != "SQL")
                shown += Shown(element);
        EXPECT_EQ(shown, c.elements);
    }
}

// Random raw trees of a grammar.
class CRawTrees
{
public:
    CRawTrees(const SNodeRules& rules, unsigned int seed) : m_Rules(rules), m_Random(seed)
    {
        // How deep each rule is at least.
        m_Depths.assign(rules.rules.size(), kDeepest);
        for (bool hasChanged = true; hasChanged;) {
            hasChanged = false;
            for (std::size_t i = 0; i < rules.rules.size(); ++i) {
                int depth = 0;
                for (std::size_t symbol : rules.rules[i].right)
                    depth = std::max(depth, DepthOf(symbol));
                if (depth + 1 < m_Depths[i]) {
                    m_Depths[i] = depth + 1;
                    hasChanged = true;
                }
            }
        }
    }

    std::string Next(bool& isClean)
    {
        m_IsClean = true;
        std::string tree = "<SQL>";
        Append(m_Rules.start, 0, tree);
        isClean = m_IsClean;
        return tree + "</SQL>";
    }

private:
    static constexpr int kDeepest = 1000;

    int DepthOf(std::size_t symbol) const
    {
        int depth = m_Rules.IsToken(symbol) ? 0 : kDeepest;
        for (std::size_t rule : m_Rules.rulesOf[symbol])
            depth = std::min(depth, m_Depths[rule]);
        return depth;
    }

    void Append(std::size_t symbol, int depth, std::string& tree)
    {
        if (m_Random() % 8 == 0)
            tree += "<T__SPACE type=\"TOKEN\"> </T__SPACE>";
        if (m_Rules.IsToken(symbol)) {
            const std::string& name = m_Rules.symbols[symbol];
            tree += '<' + name + " type=\"TOKEN\">x</" + name + '>';
            return;
        }
        std::vector<std::size_t> rules = m_Rules.rulesOf[symbol];
        if (depth > 12)
            std::erase_if(rules, [&](std::size_t rule) { return m_Depths[rule] > DepthOf(symbol); });
        const SNodeRule& rule = m_Rules.rules[rules[m_Random() % rules.size()]];
        m_IsClean = m_IsClean && !rule.hasError;
        tree += rule.node.empty() ? "" : '<' + rule.node + '>';
        for (std::size_t child : rule.right)
            Append(child, depth + 1, tree);
        tree += rule.node.empty() ? "" : "</" + rule.node + '>';
    }

    const SNodeRules& m_Rules;
    std::mt19937 m_Random;
    std::vector<int> m_Depths; // by rule
    bool m_IsClean = true;
};

// Nothing that trees hold is left out, the counts hold, and nothing is said that no tree holds.
TEST(TreeElements, AreThoseOfFlattenedTrees)
{
    constexpr SGrammarCase kMore[] = {
        {"statements of all forms in a block of a body", //
         "SQL: list > SQL\n"
         "list: one > pl_sql_statements | list one > pl_sql_statements\n"
         "one: s | s d > delimited_pl_sql_statement | ls | ls d > delimited_pl_sql_statement | "
         "error d > delimited_pl_sql_statement\n"
         "ls: l s > labeled_pl_sql_statement\n"
         "l: T__LABEL > pl_sql_statement_label\n"
         "s: T__RUN > pl_sql_statement | block > pl_sql_statement\n"
         "d: T__SEMICOLON > pl_sql_statement_delimiter\n"
         "block: T__BEGIN list T__END > block | T__DO body T__END > block | T__IF single > block\n"
         "single: s > pl_sql_statements\n"
         "body: part d > body_pl_sql_statements | body part d > body_pl_sql_statements\n"
         "part: s > delimited_pl_sql_statement | ls > delimited_pl_sql_statement\n",
         ""},
        {"items of another list keep their names", //
         "SQL: block > SQL\n"
         "block: items > block\n"
         "items: one > item_list | items one > item_list\n"
         "one: s d > delimited_pl_sql_statement | body | T__NOTE\n"
         "body: s d > body_pl_sql_statements\n"
         "s: T__RUN > pl_sql_statement\n"
         "d: T__SEMICOLON > pl_sql_statement_delimiter\n",
         ""},
    };
    const auto check = [](const SGrammarCase& c) {
        SCOPED_TRACE(c.what);
        const CRows rows(c.rows);
        CElementTrees trees(uvelements::DescribeElements(rows.Rules()));
        CRawTrees raw(rows.Rules(), 7);
        for (int i = 0; i < 400; ++i) {
            bool isClean = true;
            const std::string tree = raw.Next(isClean);
            std::string flat;
            ASSERT_TRUE(FlattenTree(tree, flat));
            trees.Check(flat, isClean);
            if (testing::Test::HasFailure()) {
                ADD_FAILURE() << tree << '\n' << flat;
                return;
            }
        }
        EXPECT_THAT(trees.Unsaid(), IsEmpty());
        EXPECT_THAT(trees.Unseen(), IsEmpty());
    };
    for (const SGrammarCase& c : kGrammars)
        check(c);
    for (const SGrammarCase& c : kMore)
        check(c);
}

constexpr char kLexer[] = "%%\n";
constexpr char kParser[] = R"(%define api.value.type {int}
%token T__LET "let" T__NAME T__EQUALS T__COMMA T__SEMICOLON T__OTHER
%token T__BAR 124
%start SQL
%%
SQL: lets { NODE; } ;
lets: %empty { NODE; } | lets let { NODE; } ;
%include "Let.y"
%%
)";
constexpr char kLet[] = R"(let
    : T__LET target_list T__EQUALS T__NAME T__SEMICOLON { NODE; }
    | T__LET T__BAR name T__BAR T__SEMICOLON { NODE; }
    | error T__SEMICOLON { NODE(bad_let); }
    ;
%list target_list: name %separator T__COMMA ;
name: T__NAME { NODE; } ;
)";
constexpr char kCases[] = R"(=== Long
let first, second = third;
---
SQL/lets/let
  T__LET "let"
  target_list
    name/T__NAME "first"
    T__COMMA ","
    name/T__NAME "second"
  T__EQUALS "="
  T__NAME "third"
  T__SEMICOLON ";"

=== A mistake is no example
;
---
SQL/lets/bad_let/T__SEMICOLON ";"
! unexpected T__SEMICOLON ";" at 1:1

=== Short, with a comment
let a /* , */ , b
  = b ;
---
SQL/lets/let
  T__LET "let"
  target_list
    name/T__NAME "a"
    T__SPACE "/* , */"
    T__COMMA ","
    name/T__NAME "b"
  T__EQUALS "="
  T__NAME "b"
  T__SEMICOLON ";"

=== The raw tree has other elements
===: raw
x
---
lets/let/T__NAME "x"
)";

class UvgrammarElements : public CProgramFixture
{
protected:
    UvgrammarElements() : CProgramFixture("uvgrammar")
    {
        Put("Lets/LetsLexer.l", kLexer);
        Put("Lets/LetsParser.y", kParser);
        Put("Lets/Let.y", kLet);
        Put("Lets/Tests/a.tests", kCases);
    }
};

TEST_F(UvgrammarElements, AreToldToPrograms)
{
    const SRunResult run = Run("elements Lets --json");
    ASSERT_EQ(run.code, 0) << run.err;
    const nlohmann::json told = nlohmann::json::parse(run.out);
    EXPECT_EQ(told["language"], "Lets");
    ASSERT_EQ(told["elements"].size(), 6u);
    EXPECT_EQ(told["elements"][2], nlohmann::json::parse(R"({
        "name": "let", "list": false, "only_after_errors": false, "parents": ["lets"],
        "rules": [{"file": "Let.y", "line": 2}, {"file": "Let.y", "line": 3}],
        "children": [
            {"names": ["T__LET"], "count": "one", "only_after_errors": false},
            {"names": ["target_list", "name"], "count": "one", "only_after_errors": false},
            {"names": ["T__EQUALS"], "count": "optional", "only_after_errors": false},
            {"names": ["T__NAME"], "count": "optional", "only_after_errors": false},
            {"names": ["T__SEMICOLON"], "count": "one", "only_after_errors": false}],
        "example": {"text": "let a /* , */ , b\n  = b ;", "is_whole_case": false,
                    "file": "Tests/a.tests", "line": 20}})"));
    EXPECT_EQ(told["elements"][4]["name"], "target_list");
    EXPECT_EQ(told["elements"][4]["list"], true);
    EXPECT_EQ(told["elements"][4]["rules"], nlohmann::json::parse(R"([{"file": "Let.y", "line": 6}])"));
    EXPECT_EQ(told["elements"][4]["children"], nlohmann::json::parse(R"([
        {"names": ["name"], "count": "some", "only_after_errors": false},
        {"names": ["T__COMMA"], "count": "any", "only_after_errors": false}])"));
    EXPECT_EQ(told["elements"][4]["example"]["text"], "first, second");
}

TEST_F(UvgrammarElements, StandInAPageBySources)
{
    const SRunResult run = Run("elements Lets");
    ASSERT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, testing::StartsWith("# The elements of Lets\n"));
    EXPECT_THAT(run.out, testing::EndsWith(R"(
## LetsParser

```
SQL
    : lets
    > let a /* , */ , b = b ;

lets (list) in SQL
    : (let | bad_let)*
    > let a /* , */ , b = b ;
```

## Let

```
let in lets
    : T__LET (target_list | name) T__EQUALS? T__NAME? T__SEMICOLON
    > let a /* , */ , b = b ;

bad_let (after errors) in lets
    : T__SEMICOLON
    > ;

target_list (list) in let
    : name+ T__COMMA*
    > first, second

name in let, target_list
    : T__NAME
    > a
```
)"));
}

// A file that several languages share adds to the section of the language's own file.
TEST_F(UvgrammarElements, OfFilesOfOneNameStandTogether)
{
    const std::string name = "name: T__NAME { NODE; } ;\n";
    const std::string parser = kParser;
    const std::size_t include = parser.find("%include");
    Put("Shared/Let.y", name);
    Put("Lets/Let.y", std::string(kLet).substr(0, std::string_view(kLet).find(name)));
    Put("Lets/LetsParser.y",
        parser.substr(0, include) + "%include \"../Shared/Let.y\"\n" + parser.substr(include));
    const SRunResult run = Run("elements Lets");
    ASSERT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("\n## Let\n\n```\nname in let, target_list\n"));
    EXPECT_THAT(run.out, HasSubstr("\nlet in lets\n"));
    EXPECT_EQ(run.out.find("## Let\n"), run.out.rfind("## Let\n"));
    EXPECT_THAT(Run("elements Lets --json").out, HasSubstr("../Shared/Let.y"));
}

TEST_F(UvgrammarElements, GiveSetsOfManyAName)
{
    std::string words = "%token";
    std::string rules = "word: T__W0";
    for (int i = 0; i < 30; ++i)
        words += " T__W" + std::to_string(i);
    for (int i = 1; i < 30; ++i)
        rules += " | T__W" + std::to_string(i);
    Put("Many/ManyLexer.l", kLexer);
    Put("Many/ManyParser.y",
        "%define api.value.type {int}\n" + words + " T__X T__Y\n%start SQL\n%%\nSQL: a b { NODE; } ;\n" +
            "a: word { NODE; } | T__X { NODE; } ;\nb: T__Y word { NODE; } | T__Y { NODE; } ;\n" + rules +
            " ;\n");
    const SRunResult run = Run("elements Many");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out,
                HasSubstr("\n<word> = T__W0 | T__W1 | T__W2 | T__W3 | T__W4 | T__W5 | ... 24 more tokens\n"));
    EXPECT_THAT(run.out, HasSubstr("\na in SQL\n    : (<word> | T__X)\n"));
    EXPECT_THAT(run.out, HasSubstr("\nb in SQL\n    : T__Y <word>?\n"));
}

TEST_F(UvgrammarElements, AreCheckedToBeUpToDate)
{
    EXPECT_EQ(Run("elements Lets --check --output page.md").code, 1);
    EXPECT_FALSE(Has("page.md"));
    EXPECT_EQ(Run("elements Lets -o page.md").code, 0);
    EXPECT_EQ(Run("elements Lets --check -o page.md").code, 0);
    const std::string page = Get("page.md");

    // What moves lines changes nothing.
    Put("Lets/Let.y", std::string("/* Values. */\n") + kLet);
    EXPECT_EQ(Run("elements ./Lets/ --check -o page.md").code, 0);
    Put("Lets/Let.y", std::string(kLet) + "let: T__OTHER T__SEMICOLON { NODE; } ;\n");
    const SRunResult run = Run("elements Lets --check -o page.md");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, HasSubstr("page.md isn't what the sources of Lets say"));
    EXPECT_EQ(Get("page.md"), page);
}

TEST_F(UvgrammarElements, TellWhyTheyCantBeTold)
{
    constexpr SRefusal kCalls[] = {
        {"elements", "no language given"},
        {"elements Lets --check", "none is given"},
        {"elements Lets --jso", "--jso"},
        {"elements Lets/Tests", "no file is called *Lexer.l"},
        {"elements Lets --output no/folder/page.md", "no/folder"},
    };
    for (const SRefusal& call : kCalls) {
        SCOPED_TRACE(call.arguments);
        const SRunResult run = Run(call.arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_THAT(run.err, HasSubstr(call.message));
    }
    Put("Lets/Tests/b.tests", "=== a\nx\n");
    EXPECT_THAT(Run("elements Lets").err, HasSubstr("Lets/Tests/b.tests:1: "));
    Put("Lets/Let.y", "let: T__NAME T__NO { NODE; } ;\n");
    const SRunResult run = Run("elements Lets");
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.err, HasSubstr("Lets/Let.y:1:"));
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(Run("elements --help").out, HasSubstr("usage: uvgrammar elements"));
}

} // namespace
