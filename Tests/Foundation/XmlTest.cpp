#include "Tests/Support/Repeated.h"
#include "UVEnvironment/UVEXml.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <string>
#include <vector>

using Uve::u8string;
using Uve::XmlAttribute;
using Uve::XmlDocument;
using Uve::XmlElement;
using Uve::XmlNode;

namespace {

// A document for the length of a test.
class CTestDocument : public XmlDocument
{
public:
    explicit CTestDocument(const u8string& xml) : XmlDocument(createDocumentXml(xml)) {}
    explicit CTestDocument(const XmlDocument& document) : XmlDocument(document) {}
    CTestDocument(const CTestDocument&) = delete;
    CTestDocument& operator=(const CTestDocument&) = delete;
    ~CTestDocument()
    {
        if (!isNull())
            xmlFreeDoc(doc());
    }
    std::string Text() const { return std::string(XmlDocument::save(*this, true, false).raw()); }
    XmlElement Root() const { return getRootElement(); }
};

std::string Names(const auto& first, const auto& last)
{
    std::string names;
    for (auto node = first; node != last; ++node)
        names.append(node->getName().raw()) += ' ';
    return names;
}

std::string Raw(const u8string& text)
{
    return std::string(text.raw());
}

std::string Deep(std::size_t depth)
{
    return Repeated("<a>", depth) + "leaf" + Repeated("</a>", depth);
}

TEST(Xml, KindsOfNodes)
{
    const CTestDocument document("<r a='1'>t<!--c--><![CDATA[d]]><?p i?></r>");
    const XmlNode text = document.Root().firstChild();
    const struct
    {
        XmlNode node;
        int type;
        const char* flags; // document, element, attribute, text, comment, null
        const char *name, *value;
    } cases[] = {
        {document, 3, "100000", "", "td"},
        {document.Root(), 1, "010000", "r", "td"},
        {document.Root().firstAttribute(), 2, "001000", "a", "1"},
        {text, 0, "000100", "text", "t"},
        {text.nextSibling(), 0, "000010", "comment", "c"},
        {text.nextSibling().nextSibling(), 0, "000000", "", "d"},
        {document.Root().lastChild(), 0, "000000", "p", "i"},
        {XmlNode(), 0, "000001", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.name << ' ' << c.value);
        const XmlNode& node = c.node;
        std::string flags;
        for (const bool flag : {node.isDocument(), node.isElement(), node.isAttribute(), node.isText(),
                                node.isComment(), node.isNull()})
            flags += flag ? '1' : '0';
        EXPECT_EQ(node.type(), c.type);
        EXPECT_EQ(flags, c.flags);
        EXPECT_EQ(Raw(node.getName()), c.name);
        EXPECT_EQ(Raw(node.getValue()), c.value);
        EXPECT_EQ(Raw(node.getText()), c.value);
        EXPECT_EQ(!node.toDocment().isNull(), node.isDocument());
        EXPECT_EQ(!node.toElement().isNull(), node.isElement());
        EXPECT_EQ(!node.toAttribute().isNull(), node.isAttribute());
    }
}

TEST(Xml, WalksChildrenAttributesAndElements)
{
    const CTestDocument document("<r a='1' b='2'>t<x/>u<y/><!--c--></r>");
    const XmlElement root = document.Root();
    const auto children = root.children();
    EXPECT_EQ(Names(children.begin(), children.end()), "text x text y comment ");
    EXPECT_EQ(Names(children.rbegin(), children.rend()), "comment y text x text ");
    EXPECT_EQ(children.count(), 5u);
    const auto attributes = root.attributes();
    EXPECT_EQ(Names(attributes.begin(), attributes.end()), "a b ");
    EXPECT_EQ(Names(attributes.rbegin(), attributes.rend()), "b a ");
    EXPECT_EQ(attributes.count(), 2u);

    EXPECT_EQ(Raw(root.firstChildElement().getName()), "x");
    EXPECT_EQ(Raw(root.lastChildElement().getName()), "y");
    EXPECT_EQ(root.firstChildElement().nextSiblingElement(), root.lastChildElement());
    EXPECT_EQ(root.lastChildElement().prevSiblingElement(), root.firstChildElement());
    EXPECT_TRUE(root.lastChildElement().nextSiblingElement().isNull());
    EXPECT_TRUE(root.firstChildElement().prevSiblingElement().isNull());
    EXPECT_EQ(root.parent(), document);
    EXPECT_TRUE(document.parent().isNull());
    EXPECT_TRUE(root.hasAttributes());
    EXPECT_TRUE(root.hasChildElement());
    EXPECT_FALSE(root.firstChildElement().hasChildren());
    EXPECT_FALSE(root.firstChild().hasAttributes());

    // the declaration that a reference leads to has siblings of its own
    const CTestDocument referring("<!DOCTYPE r [<!ENTITY e 'x'><!ENTITY f 'y'>]><r>&e;</r>");
    EXPECT_EQ(referring.Root().firstChild().children().count(), 0u);
    EXPECT_EQ(Raw(referring.getText()), "x");
}

TEST(Xml, NullNodesAnswerEverything)
{
    const XmlElement null;
    const CTestDocument document("<r a='1'/>");
    const XmlElement root = document.Root();
    // clang-format off
    const std::vector<XmlNode> results = {
        null.parent(), null.firstChild(), null.lastChild(), null.nextSibling(), null.prevSibling(),
        null.firstChildElement(), null.lastChildElement(), null.nextSiblingElement(),
        null.prevSiblingElement(), null.firstAttribute(), null.lastAttribute(), null.createElement("a"),
        null.createAttribute("a", ""), null.createChildElement("a"),
        null.createChildElementBefore("a", root), null.createChildText("a"), null.appendChild(root),
        null.insertBefore(root, root), null.insertAfter(root, root), null.removeChild(root),
        null.removeAttribute(root.firstAttribute()), null.appendAttribute("a", ""), null.copy(),
        null.selectNode("."), XmlDocument().cloneDoc(), XmlDocument().getRootElement(),
        XmlDocument().copyNode(root), document.copyNode(null), root.appendChild(null),
        root.insertAfter(null, null), root.removeChild(null), root.removeAttribute(XmlAttribute()),
        root.createChildElementAfter("a", null)};
    // clang-format on
    for (const XmlNode& result : results)
        EXPECT_TRUE(result.isNull());
    EXPECT_EQ(null.selectNodes("."), nullptr);
    EXPECT_EQ(Raw(XmlNode::save(null)), "");
    EXPECT_EQ(Raw(XmlDocument::save(XmlDocument(), false, false)), "");
    XmlAttribute().setName("a");
    XmlAttribute().setValue("a");
    EXPECT_EQ(document.Text(), "<r a=\"1\"/>\n");
}

TEST(Xml, NewElementsFindTheirPlace)
{
    const CTestDocument document("<r><x/><y/></r>");
    const XmlElement root = document.Root();
    const XmlElement x = root.firstChildElement();
    EXPECT_EQ(Raw(root.createChildElement("last").getName()), "last");
    root.createChildElementBefore("before", x); // after it all the same
    root.createChildElementAfter("after", x);
    EXPECT_EQ(document.Text(), "<r><x/><after/><before/><y/><last/></r>\n");
    EXPECT_TRUE(x.createChildElementAfter("no", root.lastChild()).isNull());
    EXPECT_TRUE(x.createChildElementBefore("no", root.lastChild()).isNull());
    EXPECT_TRUE(root.firstAttribute().createChildElement("no").isNull());
}

TEST(Xml, NodesAreInsertedMovedAndRemoved)
{
    const CTestDocument document("<r><x/><y><z/></y></r>");
    const XmlElement root = document.Root();
    const XmlNode x = root.firstChild();
    const XmlNode y = root.lastChild();
    const XmlNode z = y.firstChild();
    EXPECT_EQ(root.insertBefore(z, x), z); // unlinked from its place first
    EXPECT_EQ(document.Text(), "<r><z/><x/><y/></r>\n");
    EXPECT_EQ(root.insertAfter(z, y), z);
    EXPECT_EQ(document.Text(), "<r><x/><y/><z/></r>\n");
    EXPECT_EQ(x.appendChild(z), z);
    EXPECT_EQ(document.Text(), "<r><x><z/></x><y/></r>\n");
    EXPECT_EQ(root.appendChild(x), x); // a child already
    EXPECT_EQ(document.Text(), "<r><x><z/></x><y/></r>\n");

    EXPECT_TRUE(root.insertBefore(y, z).isNull()); // another parent
    EXPECT_TRUE(root.insertAfter(y, y).isNull());
    EXPECT_TRUE(z.appendChild(x).isNull()); // below itself
    EXPECT_TRUE(x.appendChild(x).isNull());
    EXPECT_TRUE(root.appendChild(document).isNull());
    EXPECT_TRUE(root.removeChild(z).isNull());
    EXPECT_EQ(document.Text(), "<r><x><z/></x><y/></r>\n");

    EXPECT_EQ(root.removeChild(x), x);
    EXPECT_FALSE(x.hasParent());
    EXPECT_EQ(document.Text(), "<r><y/></r>\n");
    xmlFreeNode(x.node());
}

TEST(Xml, TextsAreJoinedAndStayPlain)
{
    const CTestDocument document("<r>a</r>");
    const XmlElement root = document.Root();
    EXPECT_EQ(root.createChildText("<\xc3\xa4&amp;"), root.firstChild());
    root.createChildElement("x");
    root.createChildText("b");
    EXPECT_EQ(document.Text(), "<r>a&lt;\xc3\xa4&amp;amp;<x/>b</r>\n");
}

TEST(Xml, AttributesKeepOrderNamesUnique)
{
    const CTestDocument document("<r b='1'/>");
    const XmlElement root = document.Root();
    const XmlAttribute b = root.firstAttribute();
    root.appendAttribute("d", "&amp;<");
    root.insertAttributeBefore("a", "0", b);
    root.insertAttributeAfter("c", "", b);
    EXPECT_EQ(document.Text(), "<r a=\"0\" b=\"1\" c=\"\" d=\"&amp;amp;&lt;\"/>\n");
    root.appendAttribute("a", "again");
    EXPECT_EQ(document.Text(), "<r b=\"1\" c=\"\" d=\"&amp;amp;&lt;\" a=\"again\"/>\n");

    b.setName("\xc3\xa4\xc3\xb6");
    b.setValue("\xc3\xa4&<\"");
    EXPECT_EQ(Raw(b.getValue()), "\xc3\xa4&<\"");
    const XmlAttribute c = b.nextSibling().toAttribute();
    EXPECT_EQ(root.removeAttribute(c), c);
    xmlFreeProp(reinterpret_cast<xmlAttr*>(c.node()));
    EXPECT_EQ(document.Text(),
              "<r \xc3\xa4\xc3\xb6=\"\xc3\xa4&amp;&lt;&quot;\" d=\"&amp;amp;&lt;\" a=\"again\"/>\n");

    const XmlElement child = root.createChildElement("x");
    EXPECT_TRUE(child.insertAttributeAfter("no", "", b).isNull()); // of another element
    EXPECT_TRUE(child.removeAttribute(b).isNull());
    EXPECT_TRUE(root.insertAfter(root.firstAttribute(), child).isNull()); // never among children
    EXPECT_TRUE(XmlElement(root.createChildText("t").node()).appendAttribute("no", "").isNull());
    const XmlNode made = root.createAttribute("e", "5");
    EXPECT_EQ(child.appendChild(made), made);
    EXPECT_EQ(child.firstAttribute(), made);
}

TEST(Xml, IdentifiersFollowTheirAttributes)
{
    const CTestDocument document("<r><x xml:id='one'/></r>");
    const XmlElement x = document.Root().firstChildElement();
    x.firstAttribute().setValue("two");
    EXPECT_TRUE(document.selectNode("id('one')").isNull());
    EXPECT_EQ(document.selectNode("id('two')"), x);
    const XmlAttribute removed = x.removeAttribute(x.firstAttribute());
    xmlFreeProp(reinterpret_cast<xmlAttr*>(removed.node()));
    EXPECT_TRUE(document.selectNode("id('two')").isNull());
}

// Lengths are counted in characters and used as bytes.
TEST(Xml, NewNamesAndValuesAreCut)
{
    constexpr std::pair<const char*, const char*> kCases[] = {
        {"ab", "ab"}, {"\xc3\xa4", "\xc3"}, {"x\xe2\x82\xac\xe2\x82\xac", "x\xe2\x82"}};
    for (const auto& [text, arrives] : kCases) {
        SCOPED_TRACE(text);
        const CTestDocument document("<r b=''/>");
        const XmlElement root = document.Root();
        const XmlAttribute b = root.firstAttribute();
        EXPECT_EQ(Raw(root.createChildElement(text).getName()), arrives);
        EXPECT_EQ(Raw(root.createChildElementAfter(text, root.firstChild()).getName()), arrives);
        EXPECT_EQ(Raw(root.insertAttributeBefore(text, "", b).getName()), arrives);
        EXPECT_EQ(Raw(root.insertAttributeAfter("v", text, b).getValue()), arrives);
        EXPECT_EQ(Raw(root.appendAttribute("w", text).getValue()), arrives);
    }
}

TEST(Xml, Selection)
{
    const CTestDocument document(
        "<r xmlns:p='u'><x i='1'/><p:x i='2'/><x i='3'><y/></x>\xc3\xa4<n xmlns='v'/></r>");
    const XmlElement root = document.Root();
    const struct
    {
        XmlNode from;
        const char* xpath;
        const char* first; // markup; null for nothing
        int count;
    } cases[] = {
        {document, "/r/x", "<x i=\"1\"/>", 2},
        {root, "x", "<x i=\"1\"/>", 2},
        {root, "q:x", "<p:x i=\"2\"/>", 1},
        {root, "*[last()]", "<n xmlns=\"v\"/>", 1},
        {root.firstChild(), "following::y", "<y/>", 1},
        {root.firstChild(), "@i", " i=\"1\"", 1},
        {root, "text()", "\xc3\xa4", 1},
        {root, "namespace::*", nullptr, 2},
        {root, "x[4]", nullptr, 0},
        {root, "p:x", nullptr, 0}, // prefixes of the document don't count
        {root, "count(x)", nullptr, 0},
        {root, "x[", nullptr, 0},
        {root, "", nullptr, 0},
        {root, "document('file:///etc/passwd')", nullptr, 0},
        {root, "nowhere()", nullptr, 0},
        {root, "n:where()", nullptr, 0},
        {root, "$variable", nullptr, 0},
    };
    testing::internal::CaptureStderr();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.xpath);
        const XmlNode first = c.from.selectNode(c.xpath, "q", "u");
        EXPECT_EQ(Raw(XmlNode::save(first)), c.first ? c.first : "");
        xmlNodeSet* set = c.from.selectNodes(c.xpath, {{"q", "u"}, {"z", "w"}});
        EXPECT_EQ(set ? set->nodeNr : 0, c.count);
        EXPECT_EQ(set == nullptr, c.count == 0);
        xmlXPathFreeNodeSet(set);
    }
    EXPECT_TRUE(root.selectNode("x", {{"q", "u"}, {"", "u"}}).isNull()); // can't be registered
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(root.selectNode("x"), root.firstChild());
}

TEST(Xml, HostileExpressionsSelectNothing)
{
    const CTestDocument document("<r><a/></r>");
    // head, what is repeated, tail
    constexpr const char* kCases[][3] = {{"", "(", "1"},
                                         {"", "(", ""},
                                         {"a", "[a", ""},
                                         {"", "not(", ""},
                                         {"", "-", "1"},
                                         {"1", "+1", ""},
                                         {"nothing", "/nothing", ""},
                                         {"", "//b", ""},
                                         {"..", "/..", ""},
                                         {"nothing", "|nothing", ""},
                                         {"false()", " or false()", ""}};
    for (const auto& [head, repeated, tail] : kCases) {
        SCOPED_TRACE(repeated);
        const std::string xpath = head + Repeated(repeated, 100'000) + tail;
        EXPECT_TRUE(document.Root().selectNode(u8string(xpath)).isNull());
    }
}

TEST(Xml, SavesAsLibraryDoes)
{
    const char* const texts[] = {
        "<a/>",
        "<?xml version='1.1' encoding='ISO-8859-1' standalone='yes'?><a b='&#10;&#9;\"'>\xc3\xa4&#13;</a>",
        "<a><b><c/>\n</b><d>t<e/></d><!--x--><f xml:space='preserve'><g/></f></a>",
        "<!DOCTYPE a [<!ENTITY e 'x'><!ATTLIST a b CDATA 'c'>]><!--before--><a>&e;<![CDATA[<]]></a><?after?>",
        R"(<!DOCTYPE html PUBLIC '-//W3C//DTD XHTML 1.0 Strict//EN' ''><html><head/><br/></html>)",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        const CTestDocument document{u8string(text)};
        for (const bool format : {false, true}) {
            const int before = xmlKeepBlanksDefault(0);
            xmlChar* saved = nullptr;
            int size = 0;
            xmlDocDumpFormatMemoryEnc(document.doc(), &saved, &size, "UTF-8", format);
            xmlKeepBlanksDefault(before);
            const std::string expected(reinterpret_cast<const char*>(saved), static_cast<std::size_t>(size));
            xmlFree(saved);
            EXPECT_EQ(Raw(XmlDocument::save(document, false, format)), expected);
            EXPECT_EQ(Raw(XmlDocument::save(document, true, format)),
                      expected.substr(expected.find('\n') + 1));
        }
        xmlBuffer* buffer = xmlBufferCreate();
        xmlNodeDump(buffer, document.doc(), document.Root().node(), 0, 1);
        EXPECT_EQ(Raw(XmlNode::save(document.Root())),
                  reinterpret_cast<const char*>(xmlBufferContent(buffer)));
        xmlBufferFree(buffer);
    }
}

TEST(Xml, CopiesAreWholeAndTheirOwn)
{
    const char* const texts[] = {
        "<r a='1'>t<x><![CDATA[c]]><y b='2'/>u</x><!--c--><?p i?></r>",
        "<p:r xmlns:p='u' xmlns='d' p:a='1'><x xmlns='e' p:b='2'><p:y xmlns:p='v'/></x><z/></p:r>",
        "<!DOCTYPE r [<!ENTITY e 'x'>]><!--before--><r a='&e;'>&e;<x>&e;</x></r><?after?>",
        "<r xml:space='preserve'><x xml:id='i'/></r>",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        std::string before;
        XmlDocument clone;
        {
            const CTestDocument document{u8string(text)};
            before = document.Text();
            clone = document.cloneDoc();
            const CTestDocument target("<t/>");
            target.Root().appendChild(target.copyNode(document.Root()));
            const XmlNode copy = document.Root().copy();
            EXPECT_EQ(Raw(XmlNode::save(copy)), Raw(XmlNode::save(document.Root())));
            EXPECT_FALSE(copy.hasParent());
            xmlFreeNode(copy.node());
            EXPECT_EQ(Raw(XmlNode::save(target.Root().firstChild())), Raw(XmlNode::save(document.Root())));
        }
        const CTestDocument owner(clone);
        EXPECT_EQ(owner.Text(), before);
    }
}

TEST(Xml, CopiesBringNamespacesFromAbove)
{
    const CTestDocument document("<r xmlns='d' xmlns:p='u'><x p:a='1'><p:y/><z/></x></r>");
    const XmlNode x = document.Root().firstChild();
    xmlNode* expected = xmlCopyNode(x.node(), 1);
    const XmlNode copy = x.copy();
    EXPECT_EQ(Raw(XmlNode::save(copy)), "<x xmlns=\"d\" xmlns:p=\"u\" p:a=\"1\">\n  <p:y/>\n  <z/>\n</x>");
    EXPECT_EQ(Raw(XmlNode::save(copy)), Raw(XmlNode::save(expected)));
    EXPECT_EQ(copy.selectNode("p:y", "p", "u"), copy.firstChild());
    xmlFreeNode(copy.node());
    xmlFreeNode(expected);
}

TEST(Xml, DepthCostsNoStack)
{
    constexpr std::size_t kDepth = 300'000;
    const CTestDocument document(u8string(Deep(kDepth)));
    ASSERT_FALSE(document.isNull());
    const CTestDocument clone(document.cloneDoc());
    EXPECT_EQ(clone.Text(), Deep(kDepth) + "\n");
    EXPECT_EQ(Raw(clone.getText()), "leaf");
    EXPECT_EQ(Raw(clone.selectNode("//a[text()]").getText()), "leaf");
    const CTestDocument target("<t/>");
    const XmlNode moved = clone.removeChild(clone.Root());
    EXPECT_EQ(target.Root().appendChild(moved), moved);
    EXPECT_EQ(target.Text().size(), Deep(kDepth).size() + 8);
    EXPECT_EQ(target.selectNode("//text()").node()->doc, target.doc());
}

} // namespace
