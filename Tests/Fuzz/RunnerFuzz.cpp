// Foreign bytes as XML through a fixed stylesheet. An odd first byte takes the rest as the value of an XML
// parameter too. Nothing may crash, leak or print; what comes out must be XML that can be read again.
#include "Stylesheets/OwnStack.h"
#include "Stylesheets/XslTransform.h"
#include "UVEnvironment/UVEXmlRead.h"

#include <libxml/tree.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

constexpr const char* kStylesheet =
    R"xsl(<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:param name="given" select="/.."/>
<xsl:key name="names" match="*" use="name()"/>
<xsl:strip-space elements="s"/>
<xsl:template match="/"><r><xsl:apply-templates/><g><xsl:apply-templates select="$given/*"/></g></r></xsl:template>
<xsl:template match="*[name() = name(..)]"><xsl:apply-templates select="node()"/></xsl:template>
<xsl:template match="*"><xsl:copy><xsl:copy-of select="@*"/><xsl:call-template name="walk"/></xsl:copy></xsl:template>
<xsl:template name="walk"><xsl:for-each select="node()"><xsl:choose>
<xsl:when test="self::*[not(*)]"><leaf same="{count(key('names', name()))}"><xsl:value-of select="."/></leaf></xsl:when>
<xsl:when test="preceding-sibling::*[1]"><xsl:call-template name="walk"/></xsl:when>
<xsl:otherwise><xsl:apply-templates select="."/></xsl:otherwise>
</xsl:choose></xsl:for-each></xsl:template>
<xsl:template match="comment()|processing-instruction()"><xsl:copy-of select="."/></xsl:template>
</xsl:stylesheet>)xsl";

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string xml(reinterpret_cast<const char*>(data) + 1, size - 1);

    static Uve::XslTransform transform{Uve::u8string(kStylesheet)};
    if (transform.HasError())
        std::abort();
    transform.resetParams();
    if (data[0] % 2 != 0)
        transform.addParamXML("given", xml);

    xmlDoc* const result = transform.apply(xml);
    if (result == nullptr)
        return 0;
    Uve::u8string text;
    const bool hasRun = Uve::CallOnOwnStack([&] {
        text = Uve::XmlDocument::save(result, false, false);
        xmlFreeDoc(result);
    });
    if (!hasRun)
        std::abort();
    // A reference to a declared entity may be left over, in a name space's address for one; its declaration
    // isn't.
    if (xml.find("<!ENTITY") != std::string::npos)
        return 0;
    xmlDoc* const again = Uve::ReadXml(text.data(), text.bytes());
    if (again == nullptr)
        std::abort();
    xmlFreeDoc(again);
    return 0;
}
