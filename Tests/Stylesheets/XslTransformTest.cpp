#include "Stylesheets/XslTransform.h"

#include "Stylesheets/OwnStack.h"
#include "Tests/Stylesheets/XslCases.h"
#include "Tests/Support/MemoryLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxslt/documents.h>
#include <libxslt/security.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <cstdarg>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Uve::XmlDocument;
using Uve::XslTransform;

// The result without its declaration; frees it.
std::optional<std::string> Text(xmlDoc* result)
{
    if (result == nullptr)
        return std::nullopt;
    Uve::u8string text;
    EXPECT_TRUE(Uve::CallOnOwnStack([&] {
        text = XmlDocument::save(result, true, false);
        xmlFreeDoc(result);
    }));
    const std::string_view bytes = text.raw();
    return std::string(bytes.substr(0, bytes.find_last_not_of('\n') + 1));
}

std::optional<std::string> Apply(std::string_view templates, std::string_view tree)
{
    XslTransform transform(Stylesheet(templates));
    EXPECT_EQ(transform.GetErrorText(), "");
    return Text(transform.apply(tree));
}

const std::string kCopy = R"(<xsl:template match="/"><xsl:copy-of select="."/></xsl:template>)";

// ---- Limits ----

TEST(XslTransform, OperationsAreCounted)
{
    const struct
    {
        const char* name;
        std::string body;
    } cases[] = {
        {"instructions",
         "<xsl:for-each select='//i'><xsl:for-each select='//i'><a/></xsl:for-each></xsl:for-each>"},
        {"steps of XPath", "<xsl:value-of select='count(//i[count(//i) = 0])'/>"},
    };
    const std::string tree = "<t>" + Repeated("<i/>", 200) + "</t>";
    for (const auto& [name, body] : cases) {
        SCOPED_TRACE(name);
        XslTransform transform(Stylesheet(Root(body)));
        EXPECT_NE(Text(transform.apply(tree)), std::nullopt);
        transform.setOperationLimit(20'000);
        const CLogCapture log;
        EXPECT_EQ(Text(transform.apply(tree)), std::nullopt);
        EXPECT_THAT(log.Text(), HasSubstr("limit exceeded"));
    }
}

// ---- Input ----

TEST(XslTransform, ControlCharactersOfTheInputBecomeCarets)
{
    for (int code = 1; code < 256; ++code) {
        if (code == '<' || code == '&' || code == '>' || code == '\r' || code > 127)
            continue;
        SCOPED_TRACE(code);
        const bool isAllowed = code >= 32 || code == '\t' || code == '\n';
        const char byte = static_cast<char>(code);
        const std::string wanted = std::string("<a>x") + (isAllowed ? byte : '^') + "y</a>";
        EXPECT_EQ(Apply(kCopy, std::string("<a>x") + byte + "y</a>"), wanted);
    }
    EXPECT_EQ(Apply(kCopy, "<a b='\x01\xC3\xA4\xF0\x9F\x98\x80\x1f'/>"),
              "<a b=\"^\xC3\xA4\xF0\x9F\x98\x80^\"/>");
}

TEST(XslTransform, NoDocumentForWhatIsNoXml)
{
    const CLogCapture log;
    XslTransform transform(Stylesheet(kCopy));
    EXPECT_EQ(transform.apply(""), nullptr);
    EXPECT_EQ(transform.apply(Uve::u8string()), nullptr);
    EXPECT_EQ(transform.apply(nullptr, 0), nullptr);
    EXPECT_EQ(transform.apply("<a>"), nullptr);
    EXPECT_EQ(transform.apply("<a>\xff</a>"), nullptr);
    EXPECT_EQ(transform.apply(std::string_view("<a>\0</a>", 8)), nullptr);
    EXPECT_FALSE(transform.HasError());
    // A failure leaves no trace.
    EXPECT_EQ(Text(transform.apply("<a/>")), "<a/>");
    EXPECT_EQ(Text(transform.apply(Uve::u8string("<a/>"))), "<a/>");
}

// ---- Compiling ----

const std::pair<std::string, const char*> kBadStylesheets[] = {
    {"", "empty"},
    {"<a>", "line 1"},
    {"<a/>", "not a stylesheet"},
    {Stylesheet(R"(<xsl:template match="/"><xsl:value-of select="1+"/></xsl:template>)"),
     "could not compile"},
    {Stylesheet(R"(<xsl:template match="a["/>)"), "failed to compile"},
    {Stylesheet(R"(<xsl:variable name="v"/><xsl:include href="none.xslt"/>)"), "none.xslt"},
};

TEST(XslTransform, AStylesheetThatDoesNotCompileGivesNothingForEver)
{
    const CLogCapture log;
    for (const auto& [text, reason] : kBadStylesheets) {
        SCOPED_TRACE(text);
        XslTransform transform(text.data(), text.size());
        EXPECT_TRUE(transform.HasError());
        EXPECT_THAT(std::string(transform.GetErrorText().raw()), HasSubstr(reason));
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(transform.apply("<a/>"), nullptr);
            xmlDoc* const document = xmlNewDoc(nullptr);
            EXPECT_EQ(transform.apply(XmlDocument(document)), nullptr);
            xmlFreeDoc(document);
        }
    }
}

// ---- Parameters ----

const std::string kShowParam = R"(<xsl:param name="p" select="'default'"/>
<xsl:template match="/"><r><xsl:copy-of select="$p"/></r></xsl:template>)";

TEST(XslTransform, ParametersAreExpressions)
{
    const struct
    {
        const char* expression;
        std::optional<std::string> result;
    } cases[] = {
        {"'text'", "<r>text</r>"},
        {"1 + 2", "<r>3</r>"},
        {"word", "<r/>"}, // a name: selects children called so, of which there are none
        {"concat('\xC3\xA4', \"'\")", "<r>\xC3\xA4'</r>"},
        {"1 +", std::nullopt},
        {"nosuch()", std::nullopt},
    };
    const CLogCapture log;
    XslTransform transform(Stylesheet(kShowParam));
    EXPECT_EQ(Text(transform.apply("<word>w</word>")), "<r>default</r>");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expression);
        transform.addParam("p", c.expression); // replaces the one before
        EXPECT_EQ(Text(transform.apply("<word>w</word>")), c.result);
    }
    transform.resetParams();
    EXPECT_EQ(Text(transform.apply("<word>w</word>")), "<r>default</r>");
    transform.addParam("unknown", "1");
    EXPECT_EQ(Text(transform.apply("<word>w</word>")), "<r>default</r>");
}

TEST(XslTransform, XmlParametersAreNodeSets)
{
    const CLogCapture log;
    XslTransform transform(Stylesheet(kShowParam));
    transform.addParamXML("p", "<x a='1'><y/></x>");
    EXPECT_EQ(Text(transform.apply("<a/>")), R"(<r><x a="1"><y/></x></r>)");
    EXPECT_EQ(Text(transform.apply("<a/>")), R"(<r><x a="1"><y/></x></r>)"); // applying uses nothing up
    transform.addParamXML("p", "<x");
    EXPECT_EQ(Text(transform.apply("<a/>")), R"(<r><x a="1"><y/></x></r>)"); // the earlier value stays
    transform.addParamXML("p", "<z/>");
    EXPECT_EQ(Text(transform.apply("<a/>")), "<r><z/></r>");
    EXPECT_THAT(log.Text(), IsEmpty());
    transform.addParam("p", "'expression'"); // expressions come first
    EXPECT_EQ(Text(transform.apply("<a/>")), "<r>expression</r>");
    EXPECT_THAT(log.Text(), HasSubstr("Global parameter p already defined"));
    transform.resetParams();
    EXPECT_EQ(Text(transform.apply("<a/>")), "<r>default</r>");
}

TEST(XslTransform, XmlParametersMayHavePrefixes)
{
    const CLogCapture log;
    XslTransform transform(R"(<s:stylesheet version="1.0" xmlns:s="http://www.w3.org/1999/XSL/Transform"
        xmlns:a="urn:one" xmlns:b="urn:one" xmlns:c="urn:two" exclude-result-prefixes="a b c">
        <s:param name="a:p">one</s:param><s:param name="c:p">two</s:param><s:param name="p">none</s:param>
        <s:template match="/"><r><s:copy-of select="$a:p"/>,<s:copy-of select="$c:p"/>,<s:copy-of
            select="$p"/></r></s:template></s:stylesheet>)");
    ASSERT_EQ(transform.GetErrorText(), "");
    EXPECT_EQ(Text(transform.apply("<t/>")), "<r>one,two,none</r>");
    transform.addParamXML("c:p", "<x/>");
    EXPECT_EQ(Text(transform.apply("<t/>")), "<r>one,<x/>,none</r>");
    EXPECT_THAT(log.Text(), IsEmpty());

    // Two prefixes for one name: the first in the order of the names stays.
    transform.addParamXML("b:p", "<second/>");
    transform.addParamXML("a:p", "<first/>");
    EXPECT_EQ(Text(transform.apply("<t/>")), "<r><first/>,<x/>,none</r>");
    EXPECT_THAT(log.Text(), HasSubstr("Global parameter p already defined"));

    // An unknown prefix is reported and goes.
    log.Text();
    transform.resetParams();
    transform.addParamXML("nosuch:p", "<y/>");
    EXPECT_EQ(Text(transform.apply("<t/>")), "<r>one,two,<y/></r>");
    EXPECT_THAT(log.Text(), HasSubstr("user param : no namespace bound to prefix nosuch"));
}

TEST(XslTransform, ThePlainFormHasNeitherParametersNorHigherLimits)
{
    const CLogCapture log;
    XslTransform transform(Stylesheet(kShowParam));
    transform.addParam("p", "'given'");
    transform.addParamXML("p", "<given/>");
    const XmlDocument document = XmlDocument::createDocumentXml("<a/>");
    EXPECT_EQ(Text(transform.apply(document)), "<r>default</r>");
    EXPECT_EQ(transform.apply(XmlDocument()), nullptr);
    xmlFreeDoc(document.doc());

    XslTransform walk(Stylesheet(kWalkByTemplates));
    for (const int levels : {2900, 3100}) {
        const std::string text = Nested(levels);
        const XmlDocument nested = XmlDocument::createDocumentXml(text.c_str());
        EXPECT_EQ(Text(walk.apply(nested)).has_value(), levels < 3000);
        EXPECT_TRUE(Text(walk.apply(text)).has_value());
        xmlFreeDoc(nested.doc());
    }
}

// ---- Depth ----

TEST(XslTransform, TheTemplateLimitEndsARecursionAndNotTheStack)
{
    const struct
    {
        const char* name;
        std::string templates;
        int levels;
        bool isDocument;
    } cases[] = {
        // one level of the limit for each of the tree
        {"templates", kWalkByTemplates, 8'000, true},
        {"templates", kWalkByTemplates, 13'000, true},
        {"templates", kWalkByTemplates, 39'000, true},
        {"templates", kWalkByTemplates, 41'000, false},
        // three: template, loop, choice
        {"named", kWalkByName, 8'000, true},
        {"named", kWalkByName, 13'000, true},
        {"named", kWalkByName, 14'000, false},
        // none, up to what a tree may be nested
        {"copy-of", kCopy, 1'000'000, true},
        {"built-in", "", 1'000'000, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.name << ' ' << c.levels);
        const CLogCapture log;
        XslTransform transform(Stylesheet(c.templates));
        const std::optional<std::string> result = Text(transform.apply(Nested(c.levels)));
        EXPECT_EQ(result.has_value(), c.isDocument);
        if (c.isDocument)
            EXPECT_THAT(log.Text(), IsEmpty());
        else
            EXPECT_THAT(log.Text(), HasSubstr("A potential infinite template recursion was detected"));
        // Each level has left one element or two.
        if (result && c.name == std::string("templates")) {
            EXPECT_EQ(result->size(), std::string("<r></r>").size() +
                                          std::string("<i/>").size() * static_cast<std::size_t>(c.levels));
        }
    }
}

// ---- Lock-down ----

TEST(XslTransform, HostileInputIsAClearFailure)
{
    for (const SHostileCase& c : HostileCases("/nowhere/written.xml")) {
        SCOPED_TRACE(c.name);
        const CLogCapture log;
        testing::internal::CaptureStderr();
        XslTransform transform(c.stylesheet);
        EXPECT_EQ(Text(transform.apply(c.tree)), std::nullopt);
        EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
        EXPECT_THAT(log.Text() + std::string(transform.GetErrorText().raw()), HasSubstr(c.reason));
    }
}

TEST(XslTransform, AnErrorLeavesNoPartOfADocument)
{
    const char* const bodies[] = {
        R"(<a/><xsl:message terminate="yes">end</xsl:message>)",
        R"(<a/><xsl:value-of select="$undeclared"/>)",
        R"(<a/><xsl:value-of select="nosuch() + 1"/>)",
        R"(<a/><xsl:call-template name="nosuch"/>)",
    };
    for (const char* body : bodies) {
        SCOPED_TRACE(body);
        const CLogCapture log;
        testing::internal::CaptureStderr();
        XslTransform transform(Stylesheet(Root(body)));
        EXPECT_EQ(Text(transform.apply("<t/>")), std::nullopt);
        EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
        EXPECT_THAT(log.Text() + std::string(transform.GetErrorText().raw()), Not(IsEmpty()));
    }
}

TEST(XslTransform, EndlessMessagesKeepTheirBeginningAndEnd)
{
    const CLogCapture log;
    XslTransform transform(Stylesheet(R"(<xsl:template match="/"><xsl:call-template name="f"/></xsl:template>
        <xsl:template name="f"><xsl:param name="n" select="0"/><xsl:message>round <xsl:value-of
        select="$n"/></xsl:message><xsl:call-template name="f"><xsl:with-param name="n"
        select="$n + 1"/></xsl:call-template></xsl:template>)"));
    EXPECT_EQ(Text(transform.apply("<t/>")), std::nullopt);
    EXPECT_THAT(log.Text(), HasSubstr("round 7\n"));
    EXPECT_THAT(log.Text(), HasSubstr("A potential infinite template recursion was detected"));
    EXPECT_LT(log.Text().size(), std::size_t{100'000});
}

// ---- What the host has set ----

std::string g_HostHeard;

void HostHandler(void*, const char* format, ...)
{
    char text[500];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    g_HostHeard += text;
}

TEST(XslTransform, SettingsOfTheHostStay)
{
    const CLogCapture log;
    int mark = 0;
    xsltSecurityPrefs* const hostPrefs = xsltNewSecurityPrefs();
    xsltSetDefaultSecurityPrefs(hostPrefs);
    xsltSetGenericErrorFunc(&mark, HostHandler);
    xmlSetGenericErrorFunc(&mark, HostHandler);
    const xsltDocLoaderFunc loader = xsltDocDefaultLoader;
    g_HostHeard.clear();
    {
        XslTransform bad(Stylesheet(Root(R"(<xsl:value-of select="1+"/>)")));
        // Compiling answers to the object; what libxml2 says of it is the host's.
        EXPECT_THAT(std::string(bad.GetErrorText().raw()), HasSubstr("could not compile"));
        EXPECT_THAT(g_HostHeard, Not(HasSubstr("could not compile")));
        EXPECT_THAT(g_HostHeard, HasSubstr("Invalid expression"));

        XslTransform transform(Stylesheet(Root("<xsl:message>told</xsl:message>")));
        EXPECT_EQ(Text(transform.apply("<t/>")), "<r/>");
        EXPECT_THAT(g_HostHeard, HasSubstr("told"));
    }
    EXPECT_EQ(xsltGetDefaultSecurityPrefs(), hostPrefs);
    EXPECT_EQ(xsltDocDefaultLoader, loader);
    EXPECT_EQ(xsltGenericError, &HostHandler);
    EXPECT_EQ(xsltGenericErrorContext, &mark);
    EXPECT_EQ(xmlGenericError, &HostHandler);
    EXPECT_THAT(log.Text(), IsEmpty());

    xsltSetDefaultSecurityPrefs(nullptr);
    xsltFreeSecurityPrefs(hostPrefs);
    xsltSetGenericErrorFunc(nullptr, nullptr);
    xmlSetGenericErrorFunc(nullptr, nullptr);
    XslTransform transform(Stylesheet(Root("<xsl:message>told</xsl:message>")));
    EXPECT_EQ(Text(transform.apply("<t/>")), "<r/>");
    EXPECT_THAT(log.Text(), HasSubstr("told"));
}

} // namespace
