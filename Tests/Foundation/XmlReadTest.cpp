#include "Tests/Support/Repeated.h"
#include "UVEnvironment/UVEXmlRead.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

using namespace std::string_literals;

namespace {

using CDocument = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

CDocument Read(std::string_view text)
{
    return {Uve::ReadXml(text.data(), text.size()), &xmlFreeDoc};
}

std::string Saved(xmlDoc* document)
{
    if (document == nullptr)
        return "null";
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemory(document, &text, &size);
    std::string saved(reinterpret_cast<const char*>(text), static_cast<std::size_t>(size));
    xmlFree(text);
    return saved;
}

std::string Content(xmlDoc* document)
{
    xmlChar* text = xmlNodeGetContent(xmlDocGetRootElement(document));
    std::string content(reinterpret_cast<const char*>(text));
    xmlFree(text);
    return content;
}

// What `part` makes of the numbers from 1 on, and of the number before each.
std::string Each(int count, auto part)
{
    std::string text;
    for (int i = 1; i <= count; ++i)
        text += part(std::to_string(i), std::to_string(i - 1));
    return text;
}

// Entities l0 to l9, each made of `width` times the one before.
std::string Laughs(std::string_view first = "ha", std::size_t width = 10)
{
    return "<!ENTITY l0 '"s.append(first) + "'>" +
           Each(9, [&](const std::string& i, const std::string& before) {
               return "<!ENTITY l" + i + " '" + Repeated("&l" + before + ";", width) + "'>";
           });
}

// Entities that lead to one another, each through an element.
std::string Chain(int length)
{
    return "<!ENTITY c0 'end'>" + Each(length, [](const std::string& i, const std::string& before) {
               return "<!ENTITY c" + i + " '<b>&c" + before + ";</b>'>";
           });
}

std::string ParameterMarkup()
{
    return "<!ENTITY % l0 '<!--" + std::string(1000, 'x') + "-->'>" +
           Each(9,
                [](const std::string& i, const std::string& before) {
                    return "<!ENTITY % l" + i + " '" + Repeated("&#37;l" + before + ";", 10) + "'>";
                }) +
           "%l9;";
}

// Declared inside parameter entities, where the text of others may be put into an entity's value.
std::string ParameterValues()
{
    return "<!ENTITY % l0 '" + std::string(1000, 'x') + "'>" +
           Each(9, [](const std::string& i, const std::string& before) {
               return "<!ENTITY % d" + i + " \"<!ENTITY &#37; l" + i + " '" +
                      Repeated("&#37;l" + before + ";", 10) + "'>\">%d" + i + ";";
           });
}

std::string Attributes(int count, const std::string& name)
{
    return "<!ATTLIST b" +
           Each(count,
                [&](const std::string& i, const std::string&) { return " " + name + i + " CDATA 'd'"; }) +
           ">";
}

std::string WithDtd(std::string_view declarations, std::string_view body)
{
    return "<!DOCTYPE r ["s.append(declarations).append("]>").append(body);
}

std::string Within(std::string_view part, std::size_t count)
{
    return "<r>" + Repeated(part, count) + "</r>";
}

const std::string kBig(100'000, 'x');

const struct
{
    const char* name;
    std::string declarations, body;
} kAttacks[] = {
    {"content", Laughs(), "<r>&l9;</r>"},
    {"content of an entity's element", Laughs() + "<!ENTITY e '<b>&l9;</b>'>", "<r>&e;</r>"},
    {"attribute", Laughs(), "<r a='&l9;'/>"},
    {"default attribute", Laughs() + "<!ATTLIST r a CDATA '&l9;'>", "<r/>"},
    {"default attribute, element not there", Laughs() + "<!ATTLIST b a CDATA '&l9;'>", "<r/>"},
    {"declared alone", Laughs(), "<r/>"},
    {"references by character", Laughs() + "<!ENTITY e '" + Repeated("&#38;l8;", 10) + "'>", "<r>&e;</r>"},
    {"empty entities", Laughs("", 30), "<r>&l9;</r>"},
    {"one big entity", "<!ENTITY e '" + kBig + "'>", Within("&e;", 20'000)},
    {"one big default namespace", "<!ATTLIST b xmlns CDATA '" + kBig + "'>", Within("<b/>", 20'000)},
    {"many default attributes", Attributes(5000, "a"), Within("<b/>", 100'000)},
    {"many default namespaces", Attributes(1000, "xmlns:a"), Within("<b/>", 100'000)},
    {"a chain deeper than any stack", Chain(100'000), "<r>&c100000;</r>"},
    {"itself", "<!ENTITY e '&e;&e;'>", "<r>&e;</r>"},
    {"itself by way of another, never used", "<!ENTITY a '&b;'><!ENTITY b '&a;'>", "<r/>"},
    {"parameter entity, markup", ParameterMarkup(), "<r/>"},
    {"parameter entity, values", ParameterValues(), "<r/>"},
    {"parameter entity, itself", "<!ENTITY % e '&#37;e;&#37;e;'>%e;", "<r/>"},
};

TEST(XmlRead, WhatGrowsBeyondMeasureIsRefused)
{
    for (const auto& attack : kAttacks) {
        SCOPED_TRACE(attack.name);
        EXPECT_EQ(Read(WithDtd(attack.declarations, attack.body)), nullptr);
    }
}

// What declarations may add is 10 MB and ten times the text. A reference costs its entity's text and 20
// bytes, once when it is read and once for whoever takes its text.
TEST(XmlRead, GrowthIsRefusedFromTheLimitOn)
{
    const std::string entity(99'980, 'x');
    for (const std::size_t filler : {0u, 1'000'000u}) {
        SCOPED_TRACE(filler);
        const auto document = [&](std::size_t references) {
            return WithDtd("<!ENTITY e '" + entity + "'>",
                           "<r>" + Repeated("&e;", references) + std::string(filler, ' ') + "</r>");
        };
        const std::size_t most = (10'000'000 + 10 * document(100).size()) / 200'000;
        EXPECT_NE(Read(document(most - 1)), nullptr);
        EXPECT_EQ(Read(document(most + 1)), nullptr);
    }
}

// libxml2 compares each attribute of an element with all before it.
TEST(XmlRead, ElementsWithThousandsOfAttributesAreRefused)
{
    const auto attributes = [](int count, const char* quote) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += " a" + std::to_string(i) + " = " + quote + ">" + quote;
        return text;
    };
    EXPECT_NE(Read("<r" + attributes(1000, "'") + "/>"), nullptr);
    EXPECT_NE(Read("<r>" + Repeated("<b" + attributes(900, "\"") + "/> = ' = \"", 10) + "</r>"), nullptr);
    const std::string many = "<r" + attributes(200'000, "'") + "/>";
    std::string escaped = many;
    escaped.replace(0, 1, "&#60;");
    const std::string cases[] = {
        "<r" + attributes(1001, "'") + "/>",
        many,
        "<!-- \" <a b=\" -->" + many,
        WithDtd("<!ENTITY e \"<a b='\">", many),
        WithDtd("<!ENTITY e \"<!--\">", many),
        WithDtd("<!ENTITY e \"" + many + "\">", "<r>&e;</r>"),
        WithDtd("<!ENTITY e \"" + escaped + "\">", "<r>&e;</r>"),
    };
    for (const std::string& text : cases) {
        SCOPED_TRACE(text.substr(0, 40));
        EXPECT_EQ(Read(text), nullptr);
    }
}

TEST(XmlRead, EntitiesWithinMeasureStayReferences)
{
    const std::pair<std::string, std::string> cases[] = {
        {WithDtd("<!ENTITY e 'text'>", "<r>a &e; b&lt;</r>"), "a text b<"},
        {WithDtd("<!ENTITY a '1&b;1'><!ENTITY b '2'>", "<r>&a;&a;</r>"), "121121"},
        {WithDtd("<!ENTITY n 'n'>", Within("&n;", 100'000)), std::string(100'000, 'n')},
        {WithDtd(Chain(500), "<r>&c500;</r>"), "end"},
        // Default attributes aren't put into the tree.
        {WithDtd("<!ATTLIST b a CDATA '" + kBig + "'>", Within("<b/>", 20'000)), ""},
        {WithDtd("<!ENTITY % p \"<!ENTITY e 'text'>\">%p;", "<r>&e;</r>"), "text"},
        {WithDtd("<!ENTITY a '&#38;&#38;'>", "<r/>"), ""}, // not a reference, and never read as one
    };
    for (const auto& [text, content] : cases) {
        SCOPED_TRACE(text.substr(0, 80));
        const auto document = Read(text);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(Content(document.get()), content);
        EXPECT_NE(Saved(document.get()).find(text.substr(text.find("]>") + 3)), std::string::npos);
    }
}

TEST(XmlRead, ReadsAsLibraryWithHugeOptionDoes)
{
    const std::string texts[] = {
        "<a/>",
        "",
        " <a/>",
        "<a>\r\n\t<b/> </a>\n<!--c--><?p i?>",
        "\xef\xbb\xbf<a>\xc3\xa4</a>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xc3\xa4</a>",
        "<?xml version='1.0' encoding='ASCII'?><a>\xc3\xa4</a>",
        "<?xml version='1.0' encoding='nonsense'?><a/>",
        "<a>\xe4</a>",
        "<a>\xc3</a>",
        "<a b='\xed\xa0\x80'/>",
        "<a>\x01</a>",
        "<a>\0</a>"s,
        "<a><b></a>",
        "<a/><b/>",
        "<p:a/>",
        "<a><![CDATA[<]]>&#13;</a>",
        WithDtd("<!ATTLIST r a CDATA 'd' xmlns CDATA 'u'><!ENTITY e '<b/>'>", "<r>&e;<r a='1'/></r>"),
        WithDtd("<!ENTITY x SYSTEM 'nowhere.xml'>", "<r>&x;</r>"),
        "<!DOCTYPE r SYSTEM 'nowhere.dtd'><r>&undeclared;</r>",
        Repeated("<a>", 5000) + Repeated("</a>", 5000),
        "<a>" + std::string(11'000'000, 'x') + "</a>",
    };
    for (const auto& text : texts) {
        SCOPED_TRACE(text.substr(0, 80));
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlError*) {});
        const CDocument expected(
            xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "UTF-8", XML_PARSE_HUGE),
            &xmlFreeDoc);
        xmlSetStructuredErrorFunc(nullptr, nullptr);
        EXPECT_EQ(Saved(Read(text).get()), Saved(expected.get()));
    }
}

TEST(XmlRead, SizeIsJudgedBeforeTheText)
{
    EXPECT_EQ(Uve::ReadXml("<a/>", 0x80000000), nullptr);
    EXPECT_EQ(Uve::ReadXml("<a/>", 0x100000004), nullptr);
    EXPECT_EQ(Uve::ReadXml(nullptr, 0), nullptr);
}

int loaderCalls = 0;
int errorCalls = 0;

xmlParserInput* CountLoad(const char*, const char*, xmlParserCtxt*)
{
    ++loaderCalls;
    return nullptr;
}

void CountError(void*, xmlError*)
{
    ++errorCalls;
}

TEST(XmlRead, NothingIsLoadedOrPrintedAndTheHostsHandlersStay)
{
    const auto loader = xmlGetExternalEntityLoader();
    int context = 0;
    xmlSetExternalEntityLoader(CountLoad);
    xmlSetStructuredErrorFunc(&context, CountError);
    // A host may have asked libxml2 for all of this by default.
    const int substituted = xmlSubstituteEntitiesDefault(1);
    const int loaded = xmlLoadExtDtdDefaultValue;
    xmlLoadExtDtdDefaultValue = 1;
    loaderCalls = errorCalls = 0;

    testing::internal::CaptureStderr();
    const std::string texts[] = {
        "<r",
        "<r>\xff</r>",
        "<?xml version='1.0' encoding='nonsense'?><r/>",
        "<!DOCTYPE r SYSTEM 'http://127.0.0.1/x.dtd'><r/>",
        "<!DOCTYPE r SYSTEM 'file:///etc/passwd'><r>&e;</r>",
        WithDtd("<!ENTITY e SYSTEM 'file:///etc/passwd'>", "<r>&e;</r>"),
        WithDtd("<!ENTITY % e SYSTEM 'file:///etc/passwd'>%e;", "<r/>"),
        WithDtd(Laughs(), "<r>&l9;</r>"),
    };
    for (const auto& text : texts)
        if (const auto document = Read(text)) {
            EXPECT_EQ(Content(document.get()), "") << text;
        }
    EXPECT_EQ(Uve::ReadXmlFile("no/such/file.xml"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(loaderCalls, 0);
    EXPECT_EQ(errorCalls, 0);
    EXPECT_EQ(xmlGetExternalEntityLoader(), &CountLoad);
    EXPECT_EQ(xmlStructuredError, &CountError);
    EXPECT_EQ(xmlStructuredErrorContext, &context);

    xmlLoadExtDtdDefaultValue = loaded;
    xmlSubstituteEntitiesDefault(substituted);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    xmlSetExternalEntityLoader(loader);
}

TEST(XmlRead, FilesAreReadInTheEncodingThatTheyDeclare)
{
    const std::string path = testing::TempDir() + "XmlReadTest.xml";
    const std::pair<std::string, std::string> cases[] = {
        {"<a>\xc3\xa4</a>", "\xc3\xa4"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xe4</a>", "\xc3\xa4"},
        {"\xff\xfe<\0a\0>\0\xe4\0<\0/\0a\0>\0"s, "\xc3\xa4"},
        {"<a>\xe4</a>", "null"},
        {"\xff\xfe<\0a\0>\0\x00\xd8<\0/\0a\0>\0"s, "null"},
        {"", "null"},
    };
    testing::internal::CaptureStderr();
    for (const auto& [bytes, content] : cases) {
        std::ofstream(path, std::ios::binary) << bytes;
        const CDocument document(Uve::ReadXmlFile(path.c_str()), &xmlFreeDoc);
        EXPECT_EQ(document ? Content(document.get()) : "null", content);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    std::remove(path.c_str());
    EXPECT_EQ(Uve::ReadXmlFile(testing::TempDir().c_str()), nullptr);
    EXPECT_EQ(Uve::ReadXmlFile(nullptr), nullptr);
}

} // namespace
