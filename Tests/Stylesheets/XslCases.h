// Stylesheets and trees for the tests of the runner.
#pragma once

#include "Tests/Support/Repeated.h"

#include <string>
#include <string_view>
#include <vector>

// A stylesheet of these top-level elements.
inline std::string Stylesheet(std::string_view content)
{
    return R"(<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform")"
           R"( xmlns:saxon="http://icl.com/saxon" xmlns:exsl="http://exslt.org/common")"
           R"( xmlns:redirect="org.apache.xalan.xslt.extensions.Redirect")"
           R"( extension-element-prefixes="saxon exsl redirect">)" +
           std::string(content) + "</xsl:stylesheet>";
}

// The template of the root, with `body` inside the result's only element.
inline std::string Root(std::string_view body)
{
    return R"(<xsl:template match="/"><r>)" + std::string(body) + "</r></xsl:template>";
}

// `levels` elements, each in the one before.
inline std::string Nested(int levels)
{
    const auto count = static_cast<std::size_t>(levels);
    return Repeated("<l>", count) + Repeated("</l>", count);
}

// An element for each level of a nested tree.
inline const std::string kWalkByTemplates =
    R"(<xsl:template match="/"><r><xsl:apply-templates/></r></xsl:template>
    <xsl:template match="l"><i/><xsl:apply-templates/></xsl:template>)";

// The same as lists are flattened.
inline const std::string kWalkByName =
    R"(<xsl:template match="/"><r><xsl:for-each select="*"><xsl:call-template
    name="walk"/></xsl:for-each></r></xsl:template>
    <xsl:template name="walk"><xsl:for-each select="*"><xsl:choose><xsl:when test="name() = 'l'"><xsl:call-template
    name="walk"/></xsl:when><xsl:otherwise><xsl:copy-of select="."/></xsl:otherwise></xsl:choose></xsl:for-each>
    </xsl:template>)";

struct SHostileCase
{
    std::string name;
    std::string stylesheet;
    std::string tree;
    std::string reason; // part of what is reported
};

// Each of them must fail at once, with nothing read and `target` not written.
inline std::vector<SHostileCase> HostileCases(const std::string& target)
{
    const std::string tree = "<t><u/></t>";
    const auto body = [&](std::string name, const std::string& text, std::string reason) {
        return SHostileCase{std::move(name), Stylesheet(Root(text)), tree, std::move(reason)};
    };
    const auto top = [&](std::string name, const std::string& text, std::string reason) {
        return SHostileCase{std::move(name), Stylesheet(text), tree, std::move(reason)};
    };
    const auto document = [&](std::string name, const std::string& uri) {
        return body(std::move(name), "<xsl:copy-of select=\"document('" + uri + "')\"/>", "refused");
    };

    std::string laughs = "<!DOCTYPE t [<!ENTITY l0 'ha'>";
    for (int i = 1; i < 12; ++i) {
        laughs +=
            "<!ENTITY l" + std::to_string(i) + " '" + Repeated("&l" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    laughs += "]>";
    const std::string external = "<!DOCTYPE t [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>";
    const std::string externalParameter = "<!DOCTYPE t [<!ENTITY % e SYSTEM 'file:///etc/passwd'> %e;]>";
    const std::string copyAll =
        Stylesheet(R"(<xsl:template match="/"><r><xsl:value-of select="."/></r></xsl:template>)");

    const std::string depths = std::string(Nested(1000)).insert(3000, "<u/>");
    return {
        document("file URI", "file:///etc/passwd"),
        document("file", "/etc/passwd"),
        document("file of this process", "/proc/self/maps"),
        document("file above", "../../../../../../../../etc/passwd"),
        document("escaped file", "file:///etc/%70asswd"),
        document("network", "http://127.0.0.1:9/x.xml"),
        document("other network", "ftp://127.0.0.1:9/x.xml"),
        body("exsl:document", "<exsl:document href='" + target + "'><x/></exsl:document>", "extension"),
        body("xsl:document", "<xsl:document href='" + target + "'><x/></xsl:document>", "refused"),
        body("saxon:output", "<saxon:output href='" + target + "'><x/></saxon:output>", "refused"),
        body("redirect:write", "<redirect:write select=\"'" + target + "'\"><x/></redirect:write>",
             "refused"),
        body("write to network", "<xsl:document href='http://127.0.0.1:9/x'><x/></xsl:document>", "refused"),
        top("include", R"(<xsl:include href="/etc/passwd"/>)", "/etc/passwd"),
        top("include from network", R"(<xsl:include href="http://127.0.0.1:9/x"/>)", "http://127.0.0.1:9/x"),
        top("import", R"(<xsl:import href="/etc/passwd"/>)", "/etc/passwd"),
        {"entity of the stylesheet", external + Stylesheet(Root("&e;")), tree, "external entities"},
        {"entity of the tree", copyAll, external + "<t>&e;</t>", "external entities"},
        {"parameter entity of the tree", copyAll, externalParameter + "<t/>", "external entities"},
        {"laughs in the tree", copyAll, laughs + "<t>&l11;</t>", "input"},
        {"laughs in an attribute", copyAll, laughs + "<t a='&l11;'/>", "input"},
        {"laughs in the stylesheet", laughs + Stylesheet(Root("&l11;")), tree, "XML"},
        top("endless call",
            Root("<xsl:call-template name='f'/>") +
                "<xsl:template name='f'><xsl:call-template name='f'/></xsl:template>",
            "infinite"),
        top("endless variable",
            Root("<xsl:call-template name='f'/>") +
                "<xsl:template name='f'><xsl:variable name='v'><xsl:call-template name='f'/></xsl:variable>"
                "</xsl:template>",
            "infinite"),
        top("endless choice",
            Root("<xsl:call-template name='f'/>") +
                "<xsl:template name='f'><xsl:for-each select='/'><xsl:choose><xsl:when test='1'><xsl:if "
                "test='1'>"
                "<a><xsl:call-template name='f'/></a></xsl:if></xsl:when></xsl:choose></xsl:for-each>"
                "</xsl:template>",
            "infinite"),
        top("endless application", Root("<xsl:apply-templates select='/'/>"), "infinite"),
        // each round goes down a thousand levels by the built-in rules, which no limit counts
        {"endless built-in rules",
         Stylesheet("<xsl:template match='u'><xsl:apply-templates select='/'/>"
                    "</xsl:template>"),
         depths, "infinite"},
        top("variables in a circle",
            "<xsl:variable name='a' select='$b'/><xsl:variable name='b' select='$a'/>" +
                Root("<xsl:value-of select='$a'/>"),
            "Recursive definition"),
    };
}
