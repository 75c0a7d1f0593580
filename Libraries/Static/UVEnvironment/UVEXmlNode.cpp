#include "UVEnvironment/UVEXml.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <iterator>
#include <memory>

namespace Uve {

namespace {

u8string Content(const xmlNode* node)
{
    if (node == nullptr)
        return {};
    const auto release = [](xmlChar* text) { FreeXml(text); };
    const std::unique_ptr<xmlChar, decltype(release)> text(xmlNodeGetContent(node), release);
    return text ? u8string(FromXml(text.get())) : u8string();
}

template <class List>
std::size_t Count(const List& list) noexcept
{
    return static_cast<std::size_t>(std::distance(list.begin(), list.end()));
}

} // namespace

int XmlNode::type() const noexcept
{
    if (isElement())
        return 1;
    if (isAttribute())
        return 2;
    return isDocument() ? 3 : 0;
}

bool XmlNode::isDocument() const noexcept
{
    return IsDocumentNode(m_Node);
}

bool XmlNode::isElement() const noexcept
{
    return IsElementNode(m_Node);
}

bool XmlNode::isAttribute() const noexcept
{
    return IsAttributeNode(m_Node);
}

bool XmlNode::isText() const noexcept
{
    return m_Node != nullptr && m_Node->type == XML_TEXT_NODE;
}

bool XmlNode::isComment() const noexcept
{
    return m_Node != nullptr && m_Node->type == XML_COMMENT_NODE;
}

XmlDocument XmlNode::toDocment() const noexcept
{
    return isDocument() ? XmlDocument(reinterpret_cast<xmlDoc*>(m_Node)) : XmlDocument();
}

XmlElement XmlNode::toElement() const noexcept
{
    return isElement() ? XmlElement(m_Node) : XmlElement();
}

XmlAttribute XmlNode::toAttribute() const noexcept
{
    return isAttribute() ? XmlAttribute(m_Node) : XmlAttribute();
}

u8string XmlNode::getName() const
{
    // The name of a document is a file's, if any.
    return IsTreeNode(m_Node) && !isDocument() ? u8string(FromXml(m_Node->name)) : u8string();
}

u8string XmlNode::getValue() const
{
    return Content(m_Node);
}

u8string XmlNode::getText() const
{
    return Content(m_Node);
}

XmlNode XmlNode::parent() const noexcept
{
    return IsTreeNode(m_Node) ? m_Node->parent : nullptr;
}

bool XmlNode::hasParent() const noexcept
{
    return !parent().isNull();
}

bool XmlNode::hasChildren() const noexcept
{
    return HasOwnChildren(m_Node);
}

bool XmlNode::hasChildElement() const noexcept
{
    return !firstChildElement().isNull();
}

bool XmlNode::hasAttributes() const noexcept
{
    return isElement() && m_Node->properties != nullptr;
}

XmlNode XmlNode::firstChild() const noexcept
{
    return hasChildren() ? m_Node->children : nullptr;
}

XmlNode XmlNode::lastChild() const noexcept
{
    return hasChildren() ? m_Node->last : nullptr;
}

XmlNodeList XmlNode::children() const noexcept
{
    return XmlNodeList(*this);
}

XmlElement XmlNode::firstChildElement() const noexcept
{
    XmlNode child = firstChild();
    while (child && !child.isElement())
        child = child.nextSibling();
    return child.toElement();
}

XmlElement XmlNode::lastChildElement() const noexcept
{
    XmlNode child = lastChild();
    while (child && !child.isElement())
        child = child.prevSibling();
    return child.toElement();
}

XmlNode XmlNode::prevSibling() const noexcept
{
    return IsTreeNode(m_Node) ? m_Node->prev : nullptr;
}

XmlNode XmlNode::nextSibling() const noexcept
{
    return IsTreeNode(m_Node) ? m_Node->next : nullptr;
}

XmlAttribute XmlElement::firstAttribute() const noexcept
{
    return XmlAttribute(hasAttributes() ? reinterpret_cast<xmlNode*>(m_Node->properties) : nullptr);
}

XmlAttribute XmlElement::lastAttribute() const noexcept
{
    XmlNode attribute = firstAttribute();
    while (const XmlNode next = attribute.nextSibling())
        attribute = next;
    return attribute.toAttribute();
}

XmlAttributeList XmlElement::attributes() const noexcept
{
    return XmlAttributeList(*this);
}

XmlElement XmlElement::prevSiblingElement() const noexcept
{
    XmlNode sibling = prevSibling();
    while (sibling && !sibling.isElement())
        sibling = sibling.prevSibling();
    return sibling.toElement();
}

XmlElement XmlElement::nextSiblingElement() const noexcept
{
    XmlNode sibling = nextSibling();
    while (sibling && !sibling.isElement())
        sibling = sibling.nextSibling();
    return sibling.toElement();
}

std::size_t XmlNodeList::count() const noexcept
{
    return Count(*this);
}

std::size_t XmlAttributeList::count() const noexcept
{
    return Count(*this);
}

} // namespace Uve
