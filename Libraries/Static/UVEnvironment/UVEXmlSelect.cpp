#include "UVEnvironment/UVEXml.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/xmlerror.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <memory>
#include <utility>

namespace Uve {

namespace {

using CNodeSet = std::unique_ptr<xmlNodeSet, decltype(&xmlXPathFreeNodeSet)>;
using CPathContext = std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)>;
using CPathResult = std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)>;

void IgnoreError(void*, xmlError*) {}

void IgnoreMessage(void*, const char*, ...) {}

// Some of libxml2's complaints about expressions bypass the context's handler. Puts the host's handler back.
class CQuietEvaluation
{
public:
    CQuietEvaluation() : m_Handler(xmlGenericError), m_Context(xmlGenericErrorContext)
    {
        xmlSetGenericErrorFunc(nullptr, IgnoreMessage);
    }
    ~CQuietEvaluation() { xmlSetGenericErrorFunc(m_Context, m_Handler); }
    CQuietEvaluation(const CQuietEvaluation&) = delete;
    CQuietEvaluation& operator=(const CQuietEvaluation&) = delete;

private:
    xmlGenericErrorFunc m_Handler;
    void* m_Context;
};

// Null instead of an empty set.
CNodeSet Select(xmlNode* node, const u8string& xpath, const XmlNamespaces& namespaces)
{
    CNodeSet none(nullptr, &xmlXPathFreeNodeSet);
    if (!IsTreeNode(node))
        return none;
    const CPathContext context(xmlXPathNewContext(node->doc), &xmlXPathFreeContext);
    if (!context)
        return none;
    context->node = node;
    context->error = IgnoreError;
    for (const auto& [prefix, uri] : namespaces)
        if (xmlXPathRegisterNs(context.get(), ToXml(prefix.c_str()), ToXml(uri.c_str())) != 0)
            return none;
    const CQuietEvaluation quiet;
    const CPathResult result(xmlXPathEvalExpression(ToXml(xpath.c_str()), context.get()),
                             &xmlXPathFreeObject);
    if (!result || result->type != XPATH_NODESET || xmlXPathNodeSetIsEmpty(result->nodesetval))
        return none;
    return {std::exchange(result->nodesetval, nullptr), &xmlXPathFreeNodeSet};
}

} // namespace

XmlNode XmlNode::selectNode(const u8string& xpath, const XmlNamespaces& namespaces) const noexcept
{
    const CNodeSet found = Select(m_Node, xpath, namespaces);
    // A namespace declaration is a copy that goes with the set.
    return found && IsTreeNode(found->nodeTab[0]) ? found->nodeTab[0] : nullptr;
}

XmlNode XmlNode::selectNode(const u8string& xpath) const noexcept
{
    return selectNode(xpath, XmlNamespaces());
}

XmlNode XmlNode::selectNode(const u8string& xpath, const u8string& prefix, const u8string& uri) const noexcept
{
    return selectNode(xpath, XmlNamespaces{{prefix, uri}});
}

xmlNodeSet* XmlNode::selectNodes(const u8string& xpath, const XmlNamespaces& namespaces) const noexcept
{
    return Select(m_Node, xpath, namespaces).release();
}

xmlNodeSet* XmlNode::selectNodes(const u8string& xpath) const noexcept
{
    return selectNodes(xpath, XmlNamespaces());
}

xmlNodeSet* XmlNode::selectNodes(const u8string& xpath, const u8string& prefix,
                                 const u8string& uri) const noexcept
{
    return selectNodes(xpath, XmlNamespaces{{prefix, uri}});
}

} // namespace Uve
