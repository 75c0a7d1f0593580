#include "Stylesheets/Resources.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

namespace {

class CTextResource : public XsltResource
{
public:
    CTextResource(unsigned int resourceId, std::string text)
        : XsltResource(resourceId), m_Text(std::move(text))
    {}
    std::string load() override { return m_Text; }

private:
    std::string m_Text;
};

std::shared_ptr<XsltResource> Text(unsigned int id, const std::string& text)
{
    return std::make_shared<CTextResource>(id, text);
}

std::string Stylesheet(const std::string& id, const std::string& body)
{
    return "<xslt:stylesheet id=\"" + id + "\" version=\"1.0\">" + body + "</xslt:stylesheet>";
}

std::string Include(const std::string& id)
{
    return "<xslt:include href=\"" + id + "\"/>";
}

std::string MessageOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing thrown";
}

std::string Resolved(XsltResourceManager& manager, const std::string& text)
{
    std::stringstream out;
    manager.importResolve(out, text);
    return out.str();
}

TEST(EmbeddedTexts, AreTheFilesByNumberAndByName)
{
    const auto& texts = UVParserRc::ResourceManager::getInstance();
    for (const auto& [id, name] :
         {std::pair(1u, std::string("CommonMatch.xslt")), {2u, "Tree2Serial.xslt"}}) {
        std::ifstream file(UV_SOURCE_DIR "/Stylesheets/res/" + name, std::ios::binary);
        const std::string text(std::istreambuf_iterator<char>(file), {});
        ASSERT_FALSE(text.empty());
        EXPECT_EQ(texts.getResource(id), text);
        EXPECT_EQ(texts.getResource("res/" + name), text);
        EXPECT_EQ(CUVDBSQLParserXslt(id).load(), text);
    }
    EXPECT_EQ(MessageOf([&] { texts.getResource(0); }), "unknown resource id");
    EXPECT_EQ(MessageOf([&] { texts.getResource(3); }), "unknown resource id");
    EXPECT_EQ(MessageOf([&] { texts.getResource("Tree2Serial.xslt"); }), "unknown resource id");
}

TEST(EmbeddedTexts, FlatteningTakesInTheCommonTemplates)
{
    for (const bool commonFirst : {true, false}) {
        XsltResourceManager manager;
        manager.defineResource(std::make_shared<CUVDBSQLParserXslt>(commonFirst ? 1 : 2));
        manager.defineResource(std::make_shared<CUVDBSQLParserXslt>(commonFirst ? 2 : 1));
        EXPECT_EQ(manager.getResourceName(1), "CommonMatch.xslt");
        EXPECT_EQ(manager.getResourceName(2), "Tree2Serial.xslt");
        const std::string text = manager.getResource(2);
        EXPECT_NE(text.find("match=\"comment()\""), std::string::npos);
        EXPECT_NE(text.find("name=\"tree2serialRoot\""), std::string::npos);
        EXPECT_EQ(text.find("<xslt:include"), std::string::npos);
        EXPECT_EQ(text.find("<xslt:stylesheet", 1), std::string::npos);
    }
}

TEST(ResourceDefinition, FaultsAreTold)
{
    XsltResourceManager manager;
    manager.defineResource(Text(5, Stylesheet("a\\b/C.1", "")));
    EXPECT_EQ(manager.getResourceName(5), "a\\b/C.1");
    struct SCase
    {
        std::shared_ptr<XsltResource> resource;
        const char* message;
    };
    const SCase cases[] = {
        {nullptr, "argument is null"},
        {Text(5, Stylesheet("other", "")), "an resource with the same id already exists"},
        {Text(6, Stylesheet("a\\b/C.1", "")), "an stylesheet with the same id already exists"},
        {Text(6, ""), "unable to extract stylesheet id"},
        {Text(6, "<xslt:stylesheet version=\"1.0\" id=\"x\">"), "unable to extract stylesheet id"},
        {Text(6, Stylesheet("a-b", "")), "unable to extract stylesheet id"},
        {Text(6, Stylesheet("", "")), "empty stylesheet id is not allowed"},
        {Text(6, "<xslt:stylesheet\n\tid =\n\"free\">"), "nothing thrown"},
    };
    for (const SCase& c : cases)
        EXPECT_EQ(MessageOf([&] { manager.defineResource(c.resource); }), c.message);
    EXPECT_EQ(manager.getResourceName(6), "free");
    EXPECT_EQ(MessageOf([&] { manager.getResource(7); }), "unable to find resource");
    manager.clear();
    EXPECT_EQ(MessageOf([&] { manager.getResource(5); }), "unable to find resource");
}

TEST(ResourceImports, LinesGiveWayToBodies)
{
    XsltResourceManager manager;
    manager.defineResource(Text(1, Stylesheet("Leaf", "<leaf/>")));
    manager.defineResource(
        Text(2, "<!-- lead -->" + Stylesheet("Middle", "(" + Include("Leaf") + ")") + "tail"));
    manager.defineResource(Text(3, "<xslt:stylesheet id=\"Open\">never closed"));
    manager.defineResource(Text(4, "<xslt:stylesheet id=\"Odd\" x=\"a b\">y</xslt:stylesheet>"));
    manager.defineResource(Text(5, Stylesheet("Twice", "1</xslt:stylesheet>2")));
    const std::pair<std::string, const char*> cases[] = {
        {"", ""},
        {"no line", "no line"},
        {"a" + Include("Leaf") + "b", "a\n<leaf/>\nb"},
        {"<xslt:import  href\n=\t\"Leaf\"  />", "\n<leaf/>\n"},
        {Include("Leaf") + Include("Leaf"), "\n<leaf/>\n\n<leaf/>\n"},
        {"a" + Include("Middle") + "b", "a\n(\n<leaf/>\n)\nb"},
        {"a" + Include("Open") + "b", "a\nb"}, // nothing but the line feed
        {"a" + Include("Odd") + "b", "a\nb"},  // a blank in a value isn't foreseen
        {Include("Twice"), "\n1\n"},
        {"<xslt:include href=\"a/b\"/>", "<xslt:include href=\"a/b\"/>"},
        {"<xslt:include href='Leaf'/>", "<xslt:include href='Leaf'/>"},
    };
    for (const auto& [text, result] : cases)
        EXPECT_EQ(Resolved(manager, text), result) << text;
    EXPECT_EQ(MessageOf([&] { Resolved(manager, Include("leaf")); }),
              "unable to find resource with name 'leaf'");
}

TEST(ResourceImports, CirclesEnd)
{
    XsltResourceManager manager;
    manager.defineResource(Text(1, Stylesheet("Self", Include("Self"))));
    manager.defineResource(Text(2, Stylesheet("Left", Include("Right"))));
    manager.defineResource(Text(3, Stylesheet("Right", Include("Left"))));
    EXPECT_EQ(MessageOf([&] { manager.getResource(1); }), "resource 'Self' includes itself");
    EXPECT_EQ(MessageOf([&] { manager.getResource(2); }), "resource 'Left' includes itself");
    EXPECT_EQ(MessageOf([&] { Resolved(manager, Include("Right")); }), "resource 'Right' includes itself");
}

TEST(ResourceImports, LongTextsNeedNoStack)
{
    const std::string body(4'000'000, 'x');
    XsltResourceManager manager;
    manager.defineResource(Text(1, Stylesheet("Long", body)));
    EXPECT_EQ(Resolved(manager, Include("Long")), "\n" + body + "\n");
}

} // namespace
