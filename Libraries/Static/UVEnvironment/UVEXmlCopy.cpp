// Copies of trees. libxml2 copies by a call for each level, which a deep tree turns into a crash; here the
// depth costs nothing. What a single node consists of is still libxml2's affair.
#include "UVEnvironment/UVEXml.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <unordered_map>

namespace Uve {

namespace {

class CTreeCopy
{
public:
    // The copy is made for `document` but not linked into it.
    explicit CTreeCopy(xmlDoc* document) : m_Document(document) {}

    // Null if memory ends.
    xmlNode* Copy(xmlNode* from)
    {
        m_Root = nullptr;
        xmlNode* parent = nullptr;
        for (xmlNode* node = from;;) {
            xmlNode* made = CopyNode(node, parent);
            if (made == nullptr) {
                xmlFreeNode(m_Root);
                return nullptr;
            }
            if (node->type == XML_ELEMENT_NODE && node->children != nullptr) {
                parent = made;
                node = node->children;
                continue;
            }
            while (node != from && node->next == nullptr) {
                node = node->parent;
                parent = parent->parent;
            }
            if (node == from)
                return m_Root;
            node = node->next;
        }
    }

private:
    // The copy stands in the tree before its namespaces are looked for: they may be declared above it.
    xmlNode* CopyNode(xmlNode* node, xmlNode* parent)
    {
        constexpr int kAlone = 0;
        constexpr int kWithoutChildren = 2;
        const bool isElement = node->type == XML_ELEMENT_NODE;
        xmlNode* made = xmlDocCopyNode(node, m_Document, isElement ? kAlone : kWithoutChildren);
        if (made == nullptr)
            return nullptr;
        if (parent == nullptr)
            m_Root = made;
        else
            LinkLast(made, parent);
        if (isElement) {
            CopyDeclarations(*node, *made);
            made->ns = CopyOf(node->ns, made);
            if (node->properties != nullptr)
                made->properties = xmlCopyPropList(made, node->properties);
        }
        return made;
    }

    // By hand, since libxml2 joins texts that it finds side by side.
    static void LinkLast(xmlNode* node, xmlNode* parent)
    {
        node->parent = parent;
        node->prev = parent->last;
        (parent->last != nullptr ? parent->last->next : parent->children) = node;
        parent->last = node;
    }

    void CopyDeclarations(const xmlNode& from, xmlNode& made)
    {
        made.nsDef = xmlCopyNamespaceList(from.nsDef);
        const xmlNs* declared = from.nsDef;
        for (xmlNs* copy = made.nsDef; copy != nullptr; copy = copy->next, declared = declared->next)
            m_Namespaces[declared] = copy;
    }

    // A namespace from above the copied tree is declared at the top of the copy, or where it is used if its
    // prefix is taken there.
    xmlNs* CopyOf(xmlNs* ns, xmlNode* user)
    {
        if (ns == nullptr)
            return nullptr;
        xmlNs*& copy = m_Namespaces[ns];
        if (copy != nullptr)
            return copy;
        xmlNs* known = xmlSearchNs(m_Document, m_Root, ns->prefix);
        if (known != nullptr && xmlStrEqual(known->href, ns->href) != 0)
            return copy = known;
        copy = xmlNewNs(m_Root, ns->href, ns->prefix);
        return copy != nullptr ? copy : xmlNewNs(user, ns->href, ns->prefix);
    }

    xmlDoc* m_Document;
    xmlNode* m_Root = nullptr;
    std::unordered_map<const xmlNs*, xmlNs*> m_Namespaces;
};

xmlNode* CopyFor(xmlDoc* document, xmlNode* node)
{
    constexpr int kWhole = 1;
    if (!IsTreeNode(node) || IsDocumentNode(node))
        return nullptr;
    return IsElementNode(node) ? CTreeCopy(document).Copy(node) : xmlDocCopyNode(node, document, kWhole);
}

bool CopyContent(const xmlDoc& from, xmlDoc* copy)
{
    for (xmlNode* child = from.children; child != nullptr; child = child->next) {
        xmlNode* made = nullptr;
        if (child->type == XML_DTD_NODE) {
            xmlDtd* dtd = xmlCopyDtd(reinterpret_cast<xmlDtd*>(child));
            made = reinterpret_cast<xmlNode*>(dtd);
            if (made != nullptr) {
                xmlSetTreeDoc(made, copy);
                copy->intSubset = dtd; // before the root: it resolves the references in it
            }
        } else {
            made = CopyFor(copy, child);
        }
        if (made == nullptr || xmlAddChild(reinterpret_cast<xmlNode*>(copy), made) == nullptr) {
            if (made != nullptr && made->type != XML_DTD_NODE)
                xmlFreeNode(made);
            return false;
        }
    }
    return true;
}

} // namespace

XmlNode XmlNode::copy() const noexcept
{
    if (isDocument())
        return toDocment().cloneDoc();
    return m_Node != nullptr ? CopyFor(m_Node->doc, m_Node) : nullptr;
}

XmlNode XmlDocument::copyNode(const XmlNode& node) const noexcept
{
    return isDocument() ? CopyFor(doc(), node.node()) : nullptr;
}

XmlDocument XmlDocument::cloneDoc() const noexcept
{
    constexpr int kWithoutContent = 0;
    if (!isDocument())
        return {};
    xmlDoc* copy = xmlCopyDoc(doc(), kWithoutContent);
    if (copy != nullptr && !CopyContent(*doc(), copy)) {
        xmlFreeDoc(copy);
        copy = nullptr;
    }
    return copy;
}

} // namespace Uve
