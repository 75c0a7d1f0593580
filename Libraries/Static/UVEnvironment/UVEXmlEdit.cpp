#include "UVEnvironment/UVEXml.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/valid.h>

#include <algorithm>
#include <cstddef>
#include <memory>

namespace Uve {

namespace {

constexpr std::size_t kLengthLimit = 0x80000000;

struct SFreeText
{
    void operator()(xmlChar* text) const { FreeXml(text); }
};
using CText = std::unique_ptr<xmlChar, SFreeText>;

// As many bytes as the text has characters: callers rely on where a name with other than ASCII ends.
CText CutText(const u8string& text)
{
    const std::size_t length = std::min(text.length(), text.bytes());
    if (length >= kLengthLimit)
        return nullptr;
    return CText(xmlStrndup(ToXml(text.data()), static_cast<int>(length)));
}

xmlNode* NewElement(const xmlNode* owner, const u8string& name)
{
    if (!IsTreeNode(owner))
        return nullptr;
    const CText cut = CutText(name);
    return cut ? xmlNewDocNode(owner->doc, nullptr, cut.get(), nullptr) : nullptr;
}

// Makes `text` the value as it stands: libxml2's own ways look for entities in it, or judge a value that was
// cut inside a character.
bool SetText(xmlAttr* attribute, const xmlChar* text)
{
    xmlNode* child = xmlNewDocText(attribute->doc, text);
    if (child == nullptr)
        return false;
    xmlFreeNodeList(attribute->children);
    child->parent = reinterpret_cast<xmlNode*>(attribute);
    attribute->children = attribute->last = child;
    return true;
}

xmlNode* NewAttribute(const xmlNode* owner, const u8string& name, const u8string& value)
{
    if (!IsTreeNode(owner))
        return nullptr;
    const CText cutName = CutText(name);
    const CText cutValue = CutText(value);
    xmlAttr* attribute = cutName && cutValue ? xmlNewDocProp(owner->doc, cutName.get(), nullptr) : nullptr;
    if (attribute != nullptr && !SetText(attribute, cutValue.get())) {
        xmlFreeProp(attribute);
        return nullptr;
    }
    return reinterpret_cast<xmlNode*>(attribute);
}

bool CanHoldChildren(const xmlNode* node)
{
    return IsElementNode(node) || IsDocumentNode(node) ||
           (node != nullptr && node->type == XML_DOCUMENT_FRAG_NODE);
}

bool CanBeChild(const xmlNode* node)
{
    switch (node->type) {
    case XML_ELEMENT_NODE:
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
    case XML_ENTITY_REF_NODE:
    case XML_PI_NODE:
    case XML_COMMENT_NODE:
        return true;
    default:
        return false;
    }
}

bool StandsBelow(const xmlNode* node, const xmlNode* ancestor)
{
    while (node != nullptr && node != ancestor)
        node = node->parent;
    return node != nullptr;
}

// Whether the tree stays a tree when `child` goes below `parent`.
bool MayAdd(const xmlNode* parent, const xmlNode* child)
{
    if (child == nullptr || child == parent)
        return false;
    if (IsAttributeNode(child))
        return IsElementNode(parent);
    if (!CanHoldChildren(parent) || !CanBeChild(child))
        return false;
    return !HasOwnChildren(child) || !StandsBelow(parent, child);
}

xmlNode* DeepestFirst(xmlNode* node)
{
    while (HasOwnChildren(node))
        node = node->children;
    return node;
}

// libxml2 moves a tree to another document by a call for each level. It leaves out what is there already, so
// children before parents keeps it from descending.
void MoveToDocument(xmlNode* root, xmlDoc* document)
{
    if (root->doc == document)
        return;
    for (xmlNode* node = DeepestFirst(root);;) {
        xmlNode* next = node == root            ? nullptr
                        : node->next != nullptr ? DeepestFirst(node->next)
                                                : node->parent;
        xmlSetTreeDoc(node, document);
        if (next == nullptr)
            return;
        node = next;
    }
}

xmlNode* Append(xmlNode* parent, xmlNode* child)
{
    if (!MayAdd(parent, child))
        return nullptr;
    if (child->parent == parent)
        return child;
    xmlUnlinkNode(child);
    MoveToDocument(child, parent->doc);
    return xmlAddChild(parent, child);
}

using FAddSibling = xmlNode* (*)(xmlNode* reference, xmlNode* node);

xmlNode* AddSibling(FAddSibling add, xmlNode* parent, xmlNode* child, xmlNode* reference)
{
    if (!IsTreeNode(reference) || reference->parent != parent || child == reference || !MayAdd(parent, child))
        return nullptr;
    if (IsAttributeNode(child) != IsAttributeNode(reference))
        return nullptr;
    xmlUnlinkNode(child);
    MoveToDocument(child, parent->doc);
    return add(reference, child);
}

// A new node that found no place.
xmlNode* AddedOrFreed(xmlNode* added, xmlNode* node)
{
    if (added == nullptr && node != nullptr)
        xmlFreeNode(node);
    return added;
}

xmlNode* Unlink(const xmlNode* parent, xmlNode* child)
{
    if (parent == nullptr || !IsTreeNode(child) || child->parent != parent)
        return nullptr;
    // The document knows an identifier by its attribute, which may be freed before the document is.
    if (IsAttributeNode(child) && reinterpret_cast<xmlAttr*>(child)->atype == XML_ATTRIBUTE_ID)
        xmlRemoveID(child->doc, reinterpret_cast<xmlAttr*>(child));
    xmlUnlinkNode(child);
    return child;
}

} // namespace

XmlElement XmlNode::createElement(const u8string& name) const noexcept
{
    return XmlElement(NewElement(m_Node, name));
}

XmlAttribute XmlNode::createAttribute(const u8string& name, const u8string& value) const noexcept
{
    return XmlAttribute(NewAttribute(m_Node, name, value));
}

XmlElement XmlNode::createChildElement(const u8string& name) const noexcept
{
    xmlNode* element = NewElement(m_Node, name);
    return XmlElement(AddedOrFreed(Append(m_Node, element), element));
}

XmlElement XmlNode::createChildElementBefore(const u8string& name, const XmlNode& reference) const noexcept
{
    return createChildElementAfter(name, reference);
}

XmlElement XmlNode::createChildElementAfter(const u8string& name, const XmlNode& reference) const noexcept
{
    xmlNode* element = NewElement(m_Node, name);
    return XmlElement(
        AddedOrFreed(AddSibling(xmlAddNextSibling, m_Node, element, reference.node()), element));
}

XmlNode XmlNode::appendChild(const XmlNode& child) const noexcept
{
    return Append(m_Node, child.node());
}

XmlNode XmlNode::insertBefore(const XmlNode& child, const XmlNode& reference) const noexcept
{
    return AddSibling(xmlAddPrevSibling, m_Node, child.node(), reference.node());
}

XmlNode XmlNode::insertAfter(const XmlNode& child, const XmlNode& reference) const noexcept
{
    return AddSibling(xmlAddNextSibling, m_Node, child.node(), reference.node());
}

XmlNode XmlNode::removeChild(const XmlNode& child) const noexcept
{
    return Unlink(m_Node, child.node());
}

XmlAttribute XmlElement::appendAttribute(const u8string& name, const u8string& value) const noexcept
{
    xmlNode* attribute = isElement() ? NewAttribute(m_Node, name, value) : nullptr;
    return XmlAttribute(AddedOrFreed(Append(m_Node, attribute), attribute));
}

XmlAttribute XmlElement::insertAttributeBefore(const u8string& name, const u8string& value,
                                               const XmlAttribute& reference) const noexcept
{
    xmlNode* attribute = NewAttribute(m_Node, name, value);
    return XmlAttribute(
        AddedOrFreed(AddSibling(xmlAddPrevSibling, m_Node, attribute, reference.node()), attribute));
}

XmlAttribute XmlElement::insertAttributeAfter(const u8string& name, const u8string& value,
                                              const XmlAttribute& reference) const noexcept
{
    xmlNode* attribute = NewAttribute(m_Node, name, value);
    return XmlAttribute(
        AddedOrFreed(AddSibling(xmlAddNextSibling, m_Node, attribute, reference.node()), attribute));
}

XmlAttribute XmlElement::removeAttribute(const XmlAttribute& attribute) const noexcept
{
    return XmlAttribute(attribute.isAttribute() ? Unlink(m_Node, attribute.node()) : nullptr);
}

XmlNode XmlElement::createChildText(const u8string& text) const noexcept
{
    if (!isElement() || text.bytes() >= kLengthLimit)
        return {};
    xmlNode* node = xmlNewDocTextLen(m_Node->doc, ToXml(text.data()), static_cast<int>(text.bytes()));
    return AddedOrFreed(Append(m_Node, node), node);
}

void XmlAttribute::setName(const u8string& name) const noexcept
{
    if (isAttribute())
        xmlNodeSetName(m_Node, ToXml(name.c_str()));
}

void XmlAttribute::setValue(const u8string& value) const noexcept
{
    if (!isAttribute())
        return;
    auto* attribute = reinterpret_cast<xmlAttr*>(m_Node);
    const bool isIdentifier = attribute->atype == XML_ATTRIBUTE_ID;
    if (isIdentifier)
        xmlRemoveID(attribute->doc, attribute);
    SetText(attribute, ToXml(value.c_str()));
    if (isIdentifier && xmlAddID(nullptr, attribute->doc, ToXml(value.c_str()), attribute) != nullptr)
        attribute->atype = XML_ATTRIBUTE_ID;
}

} // namespace Uve
