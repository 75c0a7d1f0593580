// What the flattening makes of small trees, on both roads.
#include "Tests/Tree/FlattenRoads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace {

// A tree, what becomes of it, and what becomes of that in a second run.
struct SRuleCase
{
    const char *rule, *tree, *flat;
    const char* again = nullptr; // null: a second run leaves it
};

// Names of the tables below.
constexpr std::pair<std::string_view, std::string_view> kShortNames[] = {
    {"S", "pl_sql_statements"},
    {"B", "body_pl_sql_statements"},
    {"DS", "delimited_pl_sql_statements"},
    {"D", "delimited_pl_sql_statement"},
    {"L", "labeled_pl_sql_statement"},
    {"P", "pl_sql_statement"},
    {"X", "pl_sql_statement_delimiter"},
    {"N", "pl_sql_statement_label"},
    {"F", "full_pl_sql_statement"},
    {"F00", "full_pl_sql_statement delimited=\"0\" labeled=\"0\""},
    {"F01", "full_pl_sql_statement delimited=\"0\" labeled=\"1\""},
    {"F10", "full_pl_sql_statement delimited=\"1\" labeled=\"0\""},
    {"F11", "full_pl_sql_statement delimited=\"1\" labeled=\"1\""},
    {"PDDC", "program_data_division_clause"},
    {"MAIN", "main_source_section"},
    {"SP", "T__SPACE"},
    {"T__B", "T__body_pl_sql_statements"},
};

std::string Spelled(std::string_view tree)
{
    std::string text;
    while (!tree.empty()) {
        const std::size_t open = std::min(tree.find('<'), tree.size());
        text += tree.substr(0, open);
        tree.remove_prefix(open);
        const std::size_t start = tree.starts_with("</") ? 2 : 1;
        const std::string_view name =
            tree.substr(std::min(start, tree.size())).substr(0, tree.find_first_of(" />", start) - start);
        const auto known = std::find_if(std::begin(kShortNames), std::end(kShortNames),
                                        [&](const auto& entry) { return entry.first == name; });
        text += tree.substr(0, start);
        text += known == std::end(kShortNames) ? name : known->second;
        tree.remove_prefix(std::min(start + name.size(), tree.size()));
    }
    return text;
}

void ExpectFlat(const std::string& tree, const std::string& flat)
{
    const std::optional<std::string> byStylesheet = FlattenByStylesheet(tree);
    const std::optional<std::string> natively = FlattenNatively(tree);
    EXPECT_EQ(byStylesheet.value_or("nothing"), flat) << "by the stylesheet";
    EXPECT_EQ(natively.value_or("nothing"), flat) << "natively";
}

std::string Document(const std::string& root)
{
    return std::string(kFlatHeader) + root + "\n";
}

void ExpectRule(const SRuleCase& entry)
{
    SCOPED_TRACE(testing::Message() << entry.rule << ": " << entry.tree);
    const std::string flat = Document(Spelled(entry.flat));
    ExpectFlat(Spelled(entry.tree), flat);
    const std::string again = entry.again == nullptr ? flat : Document(Spelled(entry.again));
    ExpectFlat(flat, again);
}

// clang-format off
constexpr SRuleCase kRules[] = {
    // lists
    {"a list whose rule ends with itself",
     "<q><l><i/><l><j/><l><k/></l></l></l></q>",
     "<q><l><i/><j/><k/></l></q>"},
    {"items on both sides",
     "<q><l><i/><l><j/></l><k/><l/><m/></l></q>",
     "<q><l><i/><j/><k/><m/></l></q>"},
    {"the elements of the chain lose attributes, text and comments, the items keep theirs",
     "<q><l a='1'>x<!--c--><l b='2'>y<i c='3'>z<!--d--></i></l></l></q>",
     "<q><l><i c=\"3\">z<!--d--></i></l></q>"},
    {"a list of one item isn't a chain",
     "<q><l a=\"1\">x<!--c--><i/></l></q>",
     "<q><l a=\"1\">x<!--c--><i/></l></q>"},
    {"lists inside items",
     "<l><i><m><m><x/></m><y/></m><l><l><z/></l></l></i><l/></l>",
     "<l><i><m><x/><y/></m><l><z/></l></i></l>"},
    {"expressions nest",
     "<expression a=\"1\"><expression>x<expression/></expression></expression>",
     "<expression a=\"1\"><expression>x<expression/></expression></expression>"},
    {"a main section keeps what is in it and loses only the inner sections",
     "<q><MAIN a=\"1\">x<MAIN b=\"2\">y<i/><!--c--><MAIN/></MAIN></MAIN></q>",
     "<q><MAIN a=\"1\">xy<i/><!--c--></MAIN></q>"},
    {"an item is copied whatever it is, and only what is in it follows the rules",
     "<l><l/><B a=\"1\"><D><a/></D></B><P/><D/><i>t<i>u</i></i><SP/></l>",
     "<l><B a=\"1\"><F10><N/><a/></F></B><P/><D/><i>tu</i><SP/></l>",
     "<l><S><F10><N/><a/></F></S><P/><F10><N/></F><i>tu</i></l>"},
    {"a role doesn't keep an element from being a list",
     "<q><L><L><N/></L><P/></L><D><D><L/></D></D></q>",
     "<q><L><N/><P/></L><D><L/></D></q>",
     "<q><F01><N/><P/><X/></F><F11/></q>"},
    // statements
    {"delimiter and label: elements of the labeled statement, then the delimiters",
     "<q><D a='1'>t<X>,</X><L b='2'>u<N>n</N>v<P c=\"3\">p</P><!--c--></L><i/><X>;</X></D></q>",
     "<q><F11><N>n</N><P c=\"3\">p</P><X>,</X><X>;</X></F></q>"},
    {"a data division before it supplies one",
     "<q><PDDC/><i/><D><L><N/></L></D><D><L><N/></L><X>;</X></D></q>",
     "<q><PDDC/><i/><F11><N/><X/></F><F11><N/><X>;</X></F></q>"},
    {"delimiter without a label",
     "<q><D a='1'>t<P b=\"2\">p</P><!--c--><X>;</X></D></q>",
     "<q><F10><N/>t<P b=\"2\">p</P><!--c--><X>;</X></F></q>"},
    {"label without a delimiter",
     "<q><L a='1'>t<N>n</N><!--c--><P/></L></q>",
     "<q><F01>t<N>n</N><!--c--><P/><X/></F></q>"},
    {"bare statements in a list of statements",
     "<S a='1'>t<P b=\"2\">p<i/></P><!--c--><P/></S>",
     "<S><F00><N/><P b=\"2\">p<i/></P><X/></F><F00><N/><P/><X/></F></S>"},
    {"bare statements elsewhere stay",
     "<q><P><P2/></P><L><P/></L></q>",
     "<q><P><P2/></P><F01><P/><X/></F></q>"},
    {"lists of delimited statements dissolve in a list of statements",
     "<S><DS a='1'>t<D><i/></D><!--c--><j/></DS><SP> </SP><L/></S>",
     "<S>t<F10><N/><i/></F><!--c--><j/><SP> </SP><F01><X/></F></S>",
     "<S><F10><N/><i/></F><j/><SP> </SP><F01><X/></F></S>"},
    {"a chain of statement lists is a list first: its statements are wrapped in the second run",
     "<q><S><S><P>p</P></S><P>r</P><D/></S></q>",
     "<q><S><P>p</P><P>r</P><D/></S></q>",
     "<q><S><F00><N/><P>p</P><X/></F><F00><N/><P>r</P><X/></F><F10><N/></F></S></q>"},
    // bodies
    {"a body becomes a list of statements; its attributes, text and comments go",
     "<q><B a='1'>t<!--c--><D b='2'><P>p</P></D>u</B></q>",
     "<q><S><F11><N/><P>p</P><X/></F></S></q>"},
    {"over terminals, which stay behind the statement",
     "<q><B><D><P/></D><SP> </SP>t<T__/><X>;</X></B></q>",
     "<q><S><F11><N/><P/><X>;</X></F><SP> </SP><T__/></S></q>"},
    {"but over nothing else",
     "<q><B><D/><T_ID/><X>;</X><D/><D/><X>,</X></B></q>",
     "<q><S><F11><N/><X/></F><T_ID/><F11><N/><X/></F><F11><N/><X>,</X></F></S></q>"},
    {"a labeled statement drops its own delimiter",
     "<q><B><D>t<L>u<N>n</N><P/></L><X>,</X></D><X>;</X></B></q>",
     "<q><S><F11><N>n</N><P/><X>;</X></F></S></q>"},
    {"a delimiter behind the body is the last statement's, and stays where it is",
     "<q><B><D><i/></D><D><j/></D></B>t<SP> </SP><X>;</X></q>",
     "<q><S><F11><N/><i/><X/></F><F11><N/><j/><X>;</X></F></S>t<SP> </SP><X>;</X></q>"},
    {"also when others but delimited statements follow in the body",
     "<q><B><D><i/></D><P/></B><X>;</X></q>",
     "<q><S><F11><N/><i/><X>;</X></F><P/></S><X>;</X></q>",
     "<q><S><F11><N/><i/><X>;</X></F><F00><N/><P/><X/></F></S><X>;</X></q>"},
    {"the last statement may take one inside and one behind",
     "<q><B><D/><X>,</X></B><X>;</X></q>",
     "<q><S><F11><N/><X>,</X><X>;</X></F></S><X>;</X></q>"},
    {"bodies in bodies make one list",
     "<q><B><B><B><D><i/></D><X>1</X></B><D><j/></D></B><X>2</X><D><k/></D></B></q>",
     "<q><S><F11><N/><i/><X>1</X></F><F11><N/><j/><X>2</X></F><F11><N/><k/><X/></F></S></q>"},
    {"a chain of delimited statements in a body goes like its parent's children",
     "<q><B><D><D><i/></D></D></B></q>",
     "<q><S><F11><N/><i/><X/></F></S></q>"},
    {"a list of statements in a body joins it in the second run",
     "<q><B><D/><S><P/></S></B></q>",
     "<q><S><F11><N/><X/></F><S><F00><N/><P/><X/></F></S></S></q>",
     "<q><S><F11><N/><X/></F><F00><N/><P/><X/></F></S></q>"},
    // placeholders of macros
    {"attributes stay, and a second run leaves all",
     "<q><T__q type=\"TOKEN\" line=\"1\">{x=y}</T__q></q>",
     "<q><T__q type=\"TOKEN\" line=\"1\" macro=\"1\" xpath=\"y\" name=\"x\">{MACRO}</T__q></q>"},
    {"those of the same name take the macro's value where they stand",
     "<q><T__q name='n' uid='u' macro='0' a='1'>{x=y}</T__q></q>",
     "<q><T__q name=\"x\" uid=\"u\" macro=\"1\" a=\"1\" xpath=\"y\">{MACRO}</T__q></q>"},
    {"in a list the rules don't reach it before the second run",
     "<q><q/><T__q>{x=y}</T__q></q>",
     "<q><T__q>{x=y}</T__q></q>",
     "<q><T__q macro=\"1\" xpath=\"y\" name=\"x\">{MACRO}</T__q></q>"},
    {"in a macro's content there are no others",
     "<q><T__q>{a=<T__T__q>{b#1}</T__T__q>}</T__q><T__T__q>{c=d}</T__T__q></q>",
     "<q><T__q macro=\"1\" xpath=\"{b#1\" name=\"a\">{MACRO}</T__q><T__T__q>{c=d}</T__T__q></q>"},
    {"space of an element that is named so, but for empty space",
     "<SPACE><SP>{x=y}</SP><SP/></SPACE>",
     "<SPACE><SP macro=\"1\" xpath=\"y\" name=\"x\">{MACRO}</SP></SPACE>"},
    // space
    {"empty space goes, whatever else it bears",
     "<q><SP/><SP type=\"TOKEN\"></SP><SP><!--c--></SP><SP><i a='1'/><SP/></SP>t<SP> </SP><SP>x</SP></q>",
     "<q>t<SP> </SP><SP>x</SP></q>"},
    {"under the root it stays until the second run",
     "<SQL><SP type=\"TOKEN\"></SP><SQL><SP/><i><SP/></i></SQL><SP type=\"TOKEN\">\n</SP></SQL>",
     "<SQL><SP type=\"TOKEN\"/><SP/><i/><SP type=\"TOKEN\">\n</SP></SQL>",
     "<SQL><i/><SP type=\"TOKEN\">\n</SP></SQL>"},
    {"space in space is a list, and so is empty in the end",
     "<q><SP>a<SP>b</SP></SP></q>",
     "<q><SP/></q>",
     "<q/>"},
    {"in bodies and statements",
     "<q><B><SP/><D><SP/><P/></D><SP/><X><SP/>;</X></B><L><SP/></L></q>",
     "<q><S><F11><N/><P/><X>;</X></F></S><F01><X/></F></q>"},
};

// The tree is <q><T__q>...</T__q></q>.
constexpr std::pair<const char*, const char*> kMacros[] = {
    {"{x=y}",            "xpath=\"y\" name=\"x\""},
    {"}{x=y}",           "xpath=\"y\" name=\"x\""},
    {"{x=y=z}",          "xpath=\"y=z\" name=\"x\""},
    {"{x=y#1[2]}",       "xpath=\"y#1[2]\" name=\"x\""},
    {"{é=&lt;&quot;€'}", "xpath=\"&lt;&quot;€'\" name=\"é\""},
    {"{x=\n&#13;y}",     "xpath=\"&#10;&#13;y\" name=\"x\""},
    {"{x#1}",            "uid=\"1\" name=\"x\""},
    {"{x#1#2}",          "uid=\"1#2\" name=\"x\""},
    {"{x#1[c]}",         "match=\"[c]\" uid=\"1\" name=\"x\""},
    {"{x#1[a=b][c]d}",   "match=\"[a=b][c]d\" uid=\"1\" name=\"x\""},
    {"{x}",              ""},
    {"{x=y",             ""},
    {"",                 ""},
    {"{<!--z#1}-->x<i>=</i>y}", "xpath=\"y\" name=\"x\""},   // the string value
};

// The tree is <q>...</q>.
struct STextCase
{
    const char *text, *flat;
};
constexpr STextCase kTexts[] = {
    {"a&amp;&lt;&gt;&apos;&quot;",   "a&amp;&lt;&gt;'\""},
    {">'\"",                         "&gt;'\""},
    {"a\r\nb\rc\n\r\n\r\r\nd\t",     "a\nb\nc\n\n\n\nd\t"},
    {"&#13;&#x0D;\n&#10;&#9;",       "&#13;&#13;\n\n\t"},
    {"&#38;lt;&amp;lt;&#60;i/&#62;", "&amp;lt;&amp;lt;&lt;i/&gt;"},
    {"\x01\x02\x08\x0b\x0c\x0e\x1f", "^^^^^^^"},
    {"\x7f\u0085\u2028\uFEFF\uFFFD", "\x7f\u0085\u2028\uFEFF\uFFFD"},
    {"]]&gt;]] >",                   "]]&gt;]] &gt;"},
    {"<i></i><j />\n<k\n></k\t>",    "<i/><j/>\n<k/>"},
    {"<!----><!-- <&>\r\n\x01'-->",  "<!----><!-- <&>\n^'-->"},
    {"<i a = '&quot;&apos;&amp;&lt;&gt;>'\n\tb=''/>", "<i a=\"&quot;'&amp;&lt;&gt;&gt;\" b=\"\"/>"},
    {"<i a='1\n2\t3\r\n4\r5'/>",     "<i a=\"1 2 3 4 5\"/>"},
    {"<i a='&#10;&#9;&#13;&#32;'/>", "<i a=\"&#10;&#9;&#13; \"/>"},
    {"<i a='\x01\x1fé€😀&#233;'/>",  "<i a=\"^^é€😀é\"/>"},
    {"\uFFFEa\uFFFF\uFFFD\uFFFE\uFFFF\uE000", "^a^\uFFFD^^\uE000"},
    {"<i a='\uFFFFé\uFFFE'/><!--\uFFFE-\uFFFF-->", "<i a=\"^é^\"/><!--^-^-->"},
};

// Whole texts.
constexpr STextCase kDocuments[] = {
    {"<?xml version=\"1.0\" ?><q/>",                         "<q/>\n"},
    {"\n \t<q/>\r\n \n",                                     "<q/>\n"},
};

// What may be left to the stylesheet.
constexpr STextCase kForeign[] = {
    {"<!--a--> <!--b-->\n<q/><!--c-->",                      "<!--a-->\n<!--b-->\n<q/>\n<!--c-->\n"},
    {"<?pi x?><q>a<?pi?>b</q>",                              "<q>ab</q>\n"},
    {"<q>a<![CDATA[<&\r\n]]><![CDATA[]]></q>",               "<q>a&lt;&amp;\n</q>\n"},
    {"<!DOCTYPE q [<!ENTITY e 'v'>]><q a='&e;'/>",           "<q a=\"v\"/>\n"},
    {"<p:q xmlns:p='u' xmlns='v'><i p:a='1'/></p:q>",
     "<p:q xmlns:p=\"u\" xmlns=\"v\"><i p:a=\"1\"/></p:q>\n"},
    {"<q xml:space='preserve'> <é/></q>",                    "<q xml:space=\"preserve\"> <é/></q>\n"},
    {"\uFEFF<q/>",                                           "<q/>\n"},
    {"<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?><q>é</q>", "<q>é</q>\n"},
};

// What no road makes a tree of.
constexpr const char* kBroken[] = {
    "", " ", "x", "<q>", "<q></r>", "<q></q></q>", "<q/><q/>", "<q/>x", "x<q/>", "<q a='1' a='2'/>", "<q a=1/>",
    "<q a/>", "<q a='<'/>", "<q a='1'b='2'/>", "<q>&nosuch;</q>", "<q>&</q>", "<q>&#0;</q>", "<q>&#xD800;</q>",
    "<q>]]></q>", "<q><!-- -- --></q>", "<q><!--a---></q>", "<q>\xff</q>", "<q>\xc0\x80</q>", "<q>\xed\xa0\x80</q>",
    "<q>&#1;</q>", "<q>&#xFFFE;</q>", "<q>&#65535;</q>", "<q\uFFFE/>", "<q>\xef\xbf</q>", "<q a='\xc3'/>", "<1/>", "< q/>", "<q><q/>", "<q", "<q a='", "<!--", "<q\x01/>",
    " <?xml version=\"1.0\" ?><q/>", "<q/><?xml version=\"1.0\" ?>", "<?xml version=\"1.0\" ?>",
};
// clang-format on

TEST(FlattenRules, TreesTakeTheirShape)
{
    for (const SRuleCase& entry : kRules)
        ExpectRule(entry);
}

TEST(FlattenRules, PlaceholdersOfMacrosBecomeAttributes)
{
    for (const auto& [text, attributes] : kMacros) {
        SCOPED_TRACE(text);
        const std::string blank = *attributes == '\0' ? "" : " ";
        ExpectFlat(std::string("<q><T__q>") + text + "</T__q></q>",
                   Document("<q><T__q macro=\"1\"" + blank + attributes + ">{MACRO}</T__q></q>"));
    }
}

TEST(FlattenRules, TextComesOutInOneSpelling)
{
    for (const STextCase& entry : kTexts) {
        SCOPED_TRACE(entry.text);
        ExpectFlat(std::string("<q>") + entry.text + "</q>",
                   Document(std::string("<q>") + entry.flat + "</q>"));
    }
    for (const STextCase& entry : kDocuments) {
        SCOPED_TRACE(entry.text);
        ExpectFlat(entry.text, std::string(kFlatHeader) + entry.flat);
    }
    for (const STextCase& entry : kForeign) {
        SCOPED_TRACE(entry.text);
        const std::string flat = std::string(kFlatHeader) + entry.flat;
        EXPECT_EQ(FlattenByStylesheet(entry.text).value_or("nothing"), flat);
        EXPECT_EQ(FlattenNatively(entry.text).value_or(flat), flat);
    }
}

TEST(FlattenRules, BrokenTextFailsOnBothRoads)
{
    for (const char* text : kBroken) {
        SCOPED_TRACE(text);
        EXPECT_EQ(FlattenByStylesheet(text).value_or("nothing"), "nothing");
        EXPECT_EQ(FlattenNatively(text).value_or("nothing"), "nothing");
    }
    // a byte that ends C strings
    const std::string_view zero("<q>a\0b</q>", 10);
    EXPECT_EQ(FlattenByStylesheet(zero), std::nullopt);
    EXPECT_EQ(FlattenNatively(zero), std::nullopt);
}

} // namespace
