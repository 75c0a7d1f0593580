// Trees that are searched part by part, against the same trees searched as one document.
#include "Tools/uvparse/CompactTree.h"
#include "Tools/uvparse/PathNeeds.h"
#include "Tools/uvparse/PathScope.h"
#include "Tools/uvparse/Selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace uvparse {
namespace {

struct SScopeCase
{
    const char* expression;
    const char* undivided;        // names, in order; null: the expression isn't divisible
    const char* undividedParents; // of whom
};

const SScopeCase kScopeCases[] = {
    {"//a//b", "", ""},
    {"/a/b | c/@d | //text()", "", ""},
    {"count( //a )", "", ""},
    {"//a/..", "", ""},
    {"//a/ancestor::b", "", ""},
    {"//a[b]", "", ""},
    {"//a[contains(., ']')]/b[not(@c) and d//e = 'x']", "a b", ""},
    {"//a[../b]", "a", "a"},
    {"//a[b/../c]", "a", ""},
    {"//a[following-sibling::b]", "a", "a"},
    {"//a[ancestor::b]", "b a", ""},
    {"//a/ancestor::b/c", "b", ""},
    {"//a/following-sibling::b", "", "a"},
    {"//x/a/following-sibling::b", "x", ""},
    {"//x/self::x/following-sibling::b", "", "x"},
    {"//a[1]", "a", "a"},
    {"//x/a[last()]", "a x", ""},
    {"//x//a[position() < 3]", "a x", ""},
    {"//x/*[1]", "x x", ""},
    {"//x/text()[2]", "x", ""},
    {"//a[count(b) > 1]", "a", ""},
    {"//a[count(b)]", "a", "a"},
    {"//a[b[1]]", "a", ""},
    {"//a[.//b/c[2]/..]", "a", ""},
    // what each part of an element tells
    {"//*[@p = 5]", "", ""},
    {"//a[@p > 1 and not(@q)][self::a or name(.) = 'b']/c", "", ""},
    {"//b/ancestor::*[@p]", "", ""},
    {"//*[b]", "", ""},
    {"//a[@p and .//text() = 'x']/@p", "", ""},
    {"//a[b or c]", "", ""},
    {"//a[b and c]", "a", ""},
    {"//a[b]/c", "a", ""},
    {"//a[b = 'x']", "a", ""},
    {"//a[not(b)]", "a", ""},
    {"//a[text() = false()]", "a", ""},
    {"//a[contains(text(), 'x')]", "a", ""},
    {"//a[b | c]", "a", ""},
    {"//a[b][. = 'x']", "a", ""},
    // what only an element's text tells, which is put together from its parts
    {"//*[. = 'x']", "", ""},
    {"//a[string-length() > 3 or self::a = 'x']", "", ""},
    {"//a[. = 'x']/b", "a", ""},
    {"//*[. = 'x'] | //b", nullptr, nullptr},
    {"//b/ancestor::*[. = 'x']", nullptr, nullptr},
    // what is asked of the nodes that a path selects
    {"(//a)[1]", "", ""},
    {"(//a/b[c]/d)[last()]", "b", ""},
    {"not(//a[2])", "a", "a"},
    {"(//a)[0]", nullptr, nullptr},
    {"(//a)[1.5]", nullptr, nullptr},
    {"(//a)[position() < 3]", nullptr, nullptr},
    {"(//a)[1]/b", nullptr, nullptr},
    {"not(//a) and //b", nullptr, nullptr},
    // what depends on more than can be told
    {"/", nullptr, nullptr},
    {"//*[1]", nullptr, nullptr},
    {"//*[@p][1]", nullptr, nullptr},
    {"//*[count(@*)]", nullptr, nullptr},
    {"//*[b and c]", nullptr, nullptr},
    {"//a/../b", nullptr, nullptr},
    {"//a/following::b", nullptr, nullptr},
    {"//*/following-sibling::b", nullptr, nullptr},
    {"//a[/b]", nullptr, nullptr},
    {"//a[//b]", nullptr, nullptr},
    {"//a[../..]", nullptr, nullptr},
    {"//a[b/../..]", "a", "a"},
    {"//a[b/../../..]", nullptr, nullptr},
    {"//descendant::a[2]", nullptr, nullptr},
    {"//a[id('x')]", nullptr, nullptr},
    {"//a[lang('x')]", nullptr, nullptr},
    {"//x:a", nullptr, nullptr},
    {"string(//a)", nullptr, nullptr},
    {"count(//a) > 1", nullptr, nullptr},
    {"//a = 'x'", nullptr, nullptr},
    {"count(//a) + 1", nullptr, nullptr},
};

std::string Joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : " ") + name;
    return text;
}

TEST(UvparsePathScope, TellsWhatMayNotBeDivided)
{
    for (const auto& c : kScopeCases) {
        SCOPED_TRACE(c.expression);
        const SPathScope scope = ScopeOfPath(c.expression);
        ASSERT_EQ(scope.isDivisible, c.undivided != nullptr);
        if (c.undivided == nullptr)
            continue;
        EXPECT_EQ(Joined(scope.undivided), c.undivided);
        EXPECT_EQ(Joined(scope.undividedParents), c.undividedParents);
    }
    EXPECT_EQ(ScopeOfPath("count(//a/b )").path, "//a/b ");
    EXPECT_FALSE(ScopeOfPath("//a" + std::string(100000, '[')).isDivisible);
}

struct SNeedsCase
{
    const char* expression;
    const char* elements; // names, in order; null: all
    enPathTexts texts;
    const char* attributes; // likewise
};

const SNeedsCase kNeedsCases[] = {
    {"(//a)[1]", "a", enPathTexts::None, ""},
    {"string(//a)", "a", enPathTexts::Joined, ""},
    {"string(/)", "", enPathTexts::Joined, ""},
    {"count(//a) > 1 and not(//b)", "a b", enPathTexts::None, ""},
    {"//a[@p = 3]/..", "a", enPathTexts::None, "p"},
    {"//a[b = 3]", "a b", enPathTexts::Joined, ""},
    {"//a[@p/.. = 3]", "a", enPathTexts::Joined, "p"},
    {"//a[last() - 1]/ancestor::*[2]", "a", enPathTexts::None, ""},
    {"//div div //mod", "div mod", enPathTexts::Joined, ""},
    {"//a['text() * @p']", "a", enPathTexts::None, ""}, // words in a literal say nothing
    {"//*[1]", nullptr, enPathTexts::None, ""},
    {"//a[*]", nullptr, enPathTexts::None, ""},
    {"//a/@*", "a", enPathTexts::None, nullptr},
    {"//@p", nullptr, enPathTexts::Nodes, "p"},
    {"(//text())[1]", nullptr, enPathTexts::Nodes, ""},
    {"//parent::a", nullptr, enPathTexts::Nodes, ""}, // any node may have it as its parent
};

// What is needed too little shows in what is found; what is needed too much, in memory alone.
TEST(UvparsePathNeeds, AreNoMoreThanAnExpressionCanSee)
{
    for (const auto& c : kNeedsCases) {
        SCOPED_TRACE(c.expression);
        const SPathNeeds needs = NeedsOfPath(c.expression);
        EXPECT_EQ(needs.areAllElements, c.elements == nullptr);
        if (c.elements != nullptr) {
            EXPECT_EQ(Joined(needs.elements), c.elements);
        }
        EXPECT_EQ(needs.texts, c.texts);
        EXPECT_EQ(needs.areAllAttributes, c.attributes == nullptr);
        EXPECT_EQ(Joined(needs.attributes), c.attributes == nullptr ? "" : c.attributes);
    }
}

std::string Select(const CSelector& selector, const std::string& tree)
{
    std::string text;
    const bool isFound = selector.Write(tree, "f", {}, [&](std::string_view piece) { text += piece; });
    return text + (isFound ? "found" : "nothing");
}

// A comment makes the tree one that is read by libxml2 itself. It is printed with the document alone.
// Elements and texts selected together aren't compared: libxml2 doesn't sort such a mixture right.
std::string SelectFromDocument(const CSelector& selector, const std::string& tree)
{
    constexpr std::string_view kComment = "<!-- -->";
    std::string text = Select(selector, tree + std::string(kComment));
    if (const std::size_t at = text.find(kComment); at != std::string::npos)
        text.erase(at, kComment.size());
    return text;
}

// Elements a to d in each other at random, the way flattened trees or raw ones are written.
class CRandomTree
{
public:
    CRandomTree(unsigned int seed, bool isRaw) : m_Random(seed), m_IsRaw(isRaw) {}

    std::string Make()
    {
        Element(0);
        return m_Text;
    }

private:
    unsigned int Below(unsigned int limit) { return static_cast<unsigned int>(m_Random() % limit); }

    void Element(unsigned int depth)
    {
        const char name = static_cast<char>('a' + Below(4));
        m_Text.append("<").append(1, name);
        if (Below(2) == 0)
            m_Text.append(" p=\"").append(std::to_string(Below(3))).append("\"");
        if (Below(4) == 0)
            m_Text += " q=\"&quot;\xC3\xA9&#10;&gt;\"";
        if (depth > 0 && Below(5) == 0) {
            m_Text += m_IsRaw ? std::string("></").append(1, name).append(">") : "/>";
            return;
        }
        m_Text += '>';
        bool isAfterText = false;
        for (unsigned int i = depth == 0 ? 30 : 1 + Below(5); i > 0; --i) {
            if (depth < 5 && Below(3) != 0) {
                Element(depth + 1);
                isAfterText = false;
            } else if (!isAfterText) {
                static const std::string kFlat[] = {"x", "y &amp; &lt;", " \n", "\xE2\x82\xAC"};
                m_Text += m_IsRaw && Below(3) == 0 ? "&apos;&quot;&gt;" : kFlat[Below(4)];
                isAfterText = true;
            }
        }
        if (m_Text.back() == '>' && m_Text.ends_with(std::string("<").append(1, name).append(">")) &&
            !m_IsRaw)
            m_Text += 'z';
        m_Text.append("</").append(1, name).append(">");
    }

    std::mt19937 m_Random;
    bool m_IsRaw;
    std::string m_Text;
};

const char* const kExpressions[] = {
    "//a",
    "//*",
    "//@p",
    "//text()",
    "//a//b",
    "/*/*",
    "/*",
    "/*/@p",
    "//a/b/c | //d/@q",
    "//b/..",

    "//c/ancestor::*",
    "//c/ancestor::a",
    "//c/ancestor-or-self::a/b",
    "//a/parent::b/c",
    "//@q/..",
    "//a[b]",
    "//a[@p='1']/b",
    "//a[contains(., 'x')]",
    "//a[count(.//b) > 2]",
    "//a[not(b) and not(c)]/@p",
    "//a[1]",
    "//a[last()]",
    "//b/a[2]",
    "//b//a[position()=2]",
    "//b/*[2]",
    "//b/node()[1]",
    "//b/text()[2]",
    "//a[../c]",
    "//a[../@p='2']",
    "//a[following-sibling::b]",
    "//a[ancestor::b/@p = 1]",
    "//a[b/../c]",
    "//a/following-sibling::b",
    "//b/a/preceding-sibling::*[1]",
    "//a/following-sibling::b[2]/c",
    "//a/following-sibling::*/following-sibling::a",
    "/descendant::b/child::c",
    "//a/descendant::b[3]",
    "//a/descendant-or-self::*[@p]",
    "//self::a[c]",
    "//a[string-length() = 3]",
    "//a[b[2]/c]",
    "//a[name(*) = 'b']",
    // of divided elements the tag is in each part,
    "//*[@p='1']",
    "//*[@p > 0 and @p < 2]/b",
    "//*[not(@p)]/@q",
    "//a/*[@q and starts-with(name(), 'b')]",
    "//*[@q = '\"\xC3\xA9\n>']",
    "//*[name() = 'c' or self::d]",
    "//*[@p=1]//*[@p=2]",
    "//c/ancestor::*[@p='2']",
    "count(//*[@p='1'])",
    "count(//*[@p='1'] | //a)",
    "//*[@*]/..",
    "//a/self::*[@p]/b",
    "//node()[@p=1]",
    // what is looked for in one of them,
    "//*[text()='x']",
    "//*[.//text()='y & <']",
    "//*[c]",
    "//*[a/b/@p = 1]",
    "//*[b[@p]]/@q",
    "//*[@p and text()='x']",
    "//a[b or text()='x']",
    "//*[descendant::c/self::c]",
    "//*[text() != 'x']",
    "count(//*[a])",
    "(//*[a])[2]",
    "(//*[a])[last()]",
    // and their text in all of them together
    "//*[.='x']",
    "//*[.='']",
    "//*['xy & <' = string()]",
    "//*[contains(., '\xE2\x82\xACx')]",
    "//*[starts-with(., 'x')]/@p",
    "//*[string-length() > 30]",
    "//a/*[.='x' and @p]",
    "//a[contains(., 'x')]/@q",
    "//b//a[. = @p or . = 'x']",
    "//node()[contains(., 'xx')]",
    "/descendant-or-self::node()[string-length() > 60]",
    "count(//*[contains(., 'x')])",
    "count(//*[.='x'])",
    "(//*[contains(., 'x')])[3]",
    "boolean(//*[contains(., 'x')])",
    "//*[.='x'][@p]",
    "//*[a][.='x']",
    "//*[c and .='x']",
    "//text()[.='x']",
    "//*[number() = 1 or @p]",
    "//*[.//b][text()='x']",
    // the nodes of a path, and what is asked of them
    "(//a)[1]",
    "( //a/b )[4]",
    "(//text())[1]",
    "(//text())[last()]",
    "(//a | //@p)[7]",
    "(//b/..)[2]",
    "(//c/ancestor::*)[1]",
    "(//*)[last()]",
    "(//a[b]/c)[2]",
    "(//a)[999]",
    "(//b)",
    "boolean(//a/b/c)",
    "not(//a/b/c/d/@q)",
    "boolean(//zzz)",
    "not(//a[2])",
    "count(//a)",
    "count(//*)",
    "count(/*)",
    "count(//@p | //c)",
    "count(//b/..)",
    "count(//zzz)",
    "//a[count(b)]",
    "//a[sum(b/@p) + 1]",
    "//a[position() mod 2 = 1]",
    "//b[. = ../a]",
    // not divisible, and searched as a whole all the same
    "(//a)[3]",
    "//*[@p][2]",
    "//a/following::b",
    "string(//c)",
    "count(//a) = count(//b)",
    "sum(//@p)",

    "//*[a and b]",
    "//a[//d/@q]",
    "string(//@q)",
    "//b[string(@q)]/@q",
    "//a/../b",
    "not(//zzz)",
    // what is seen of elements that have no part in the expression
    "string(/)",
    "string()",
    "/",
    "string(//a/..)",
    "string(//a[last()]/..)",
    "//a[. = string(..)]",
    "//b[../@p]/../@q",
    "//b/ancestor::node()[2]",
    "//c[count(ancestor::*) > 2 and position() = 1]",
    "//a/following::b[1] | //a/preceding::c[2]",
    "//a/self::node()[c]",
    "count(//a/child::node())",
    "//..",
    "(//self::*)[3]",
    "//parent::a",
    "//following-sibling::a",
    "//a[-b < 1]",
    "//a[3 > -@p]",
    "//a[@p = @p/..]",
    "//a[name() = 'b' or name(..) = 'b']",
    "//a[node()]",
    "//a[*]",
    "(//a | //b)[last()]/..",
    "normalize-space(//a[2]) = //a",
    "//@*[. = 1]",
    "//a/@*",
    "concat(//a[b]/c, name(//d[a]), count(//a) > 3)",
    "//a[lang('en')]",
};

TEST(UvparseSelection, PartsGiveWhatTheWholeGives)
{
    std::vector<std::string> trees;
    for (unsigned int seed = 0; seed < 24; ++seed)
        trees.push_back(CRandomTree(seed, seed % 3 == 0).Make());
    for (const char* expression : kExpressions) {
        const CSelector whole(expression, 0);
        std::vector<std::string> expected;
        for (const std::string& tree : trees)
            expected.push_back(SelectFromDocument(whole, tree));
        for (const std::size_t partSize : {0u, 1u, 40u, 300u}) {
            const CSelector selector(expression, partSize);
            for (std::size_t i = 0; i < trees.size(); ++i)
                ASSERT_EQ(Select(selector, trees[i]), expected[i])
                    << expression << " in tree " << i << " by " << partSize;
        }
    }
}

enPart EndOfSearch(std::string_view tree, std::size_t& parts)
{
    const SPathScope scope = ScopeOfPath("//a/@p");
    const SPathNeeds needs = NeedsOfPath("//a/@p");
    CCompactTree compact(tree, scope, needs, 1);
    enPart part = compact.Next();
    for (parts = 0; part == enPart::Made; part = compact.Next())
        ++parts;
    return part;
}

// Anything else is read by libxml2, which knows whether it is XML.
TEST(UvparseCompactTree, TakesPlainTreesAlone)
{
    std::size_t parts = 0;
    EXPECT_EQ(EndOfSearch("<?xml version=\"1.0\" ?>\n<a><b p=\"1\">&#13;\t\n</b><c/><d></d></a>\n", parts),
              enPart::None);
    EXPECT_EQ(parts, 3u);
    for (const char* tree : {"",
                             " ",
                             "<a>",
                             "<a><b></a></b>",
                             "</a>",
                             "<a/><b/>",
                             "<a/>x",
                             "x<a/>",
                             "<a>]]></a>",
                             "<a>\r</a>",
                             "<a>\x01</a>",
                             "<a>\xC3</a>",
                             "<a>\xEF\xBF\xBF</a>",
                             "<a>&b;</a>",
                             "<a>&</a>",
                             "<a>&#9</a>",
                             "<a><!-- --></a>",
                             "<a><?p ?></a>",
                             "<a><![CDATA[x]]></a>",
                             "<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>",
                             "<a><?xml version=\"1.0\" ?></a>",
                             "<a p='1'/>",
                             "<a p=\"1\" p=\"2\"/>",
                             "<a p=\"<\"/>",
                             "<a p=\"\n\"/>",
                             "<a p = \"1\"/>",
                             "<a  p=\"1\"/>",
                             "<a p=\"1\"q=\"2\"/>",
                             "<a p/>",
                             "<a p=\"1\" />",
                             "<a ></a>",
                             "<a></a >",
                             "<1/>",
                             "<a xmlns=\"u\" x:p=\"1\"/>",
                             "<x:a/>"}) {
        SCOPED_TRACE(tree);
        EXPECT_EQ(EndOfSearch(tree, parts), enPart::NotPlain);
    }
}

} // namespace
} // namespace uvparse
