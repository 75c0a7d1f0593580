// XML trees in the system's strings: thin values over libxml2's nodes.
//
// A wrapper is one pointer, copied freely, and owns nothing; destructors free nothing. What a tree holds
// lives as long as its document (xmlFreeDoc). Whoever gets a document from here frees it; what was created,
// copied or removed and isn't part of a tree belongs to the caller as well (xmlFreeNode) until it is added to
// one. A wrapper of something that was freed must not be used.
//
// A null pointer is a null node. Every operation may be called on one, and answers with a null node, an empty
// string or a null pointer; so does every operation that can't do what it is asked. Operations that move
// about in the tree, change it or select from it end the process rather than throw; those that read or give
// texts may throw std::bad_alloc.
//
// Names and values are UTF-8.
//
// Note: cut names. createElement, createAttribute and the operations that create and add elements and
// attributes take as many bytes of a name or value as it has characters, so only ASCII arrives whole: each
// byte beyond one per character is lost at the end. Everything else takes and gives whole texts.
//
// Adding to a tree. A text added beside a text is joined with it and its own node freed: go on with the node
// returned. An attribute replaces the one of the same name in its element, which is freed. A node that is
// part of another tree is unlinked there first; its namespace declarations stay there if they stand above
// it. Refused, with a null node: a node added below itself, a document, an attribute where a child belongs
// and the reverse.
#pragma once

#include "UVEnvironment/UVEU8String.h"

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

struct _xmlDoc;
struct _xmlNode;
struct _xmlNodeSet;

namespace Uve {

class XmlAttribute;
class XmlAttributeList;
class XmlDocument;
class XmlElement;
class XmlNodeList;

// Prefix and URI of each namespace that an XPath expression uses.
using XmlNamespaces = std::vector<std::pair<u8string, u8string>>;

class XmlNode
{
public:
    XmlNode() = default;
    XmlNode(_xmlNode* node) noexcept : m_Node(node) {}

    _xmlNode* node() const noexcept { return m_Node; }
    explicit operator bool() const noexcept { return m_Node != nullptr; }
    friend bool operator==(const XmlNode& left, const XmlNode& right) noexcept = default;

    // 1 for an element, 2 for an attribute, 3 for a document, otherwise 0.
    int type() const noexcept;
    bool isNull() const noexcept { return m_Node == nullptr; }
    bool isDocument() const noexcept;
    bool isElement() const noexcept;
    bool isAttribute() const noexcept;
    // A CDATA section is neither text nor any other of these.
    bool isText() const noexcept;
    bool isComment() const noexcept;

    // This node if it is of that kind, otherwise null.
    XmlDocument toDocment() const noexcept;
    XmlElement toElement() const noexcept;
    XmlAttribute toAttribute() const noexcept;

    // Without prefix. Texts and comments have the names "text" and "comment", documents none.
    u8string getName() const;
    // The text of the node and all below it, entities resolved. Both are the same.
    u8string getValue() const;
    u8string getText() const;

    // Of a root element: the document.
    XmlNode parent() const noexcept;
    bool hasParent() const noexcept;
    // Attributes aren't children; their own child is the text of their value.
    bool hasChildren() const noexcept;
    bool hasChildElement() const noexcept;
    bool hasAttributes() const noexcept;
    XmlNode firstChild() const noexcept;
    XmlNode lastChild() const noexcept;
    XmlNodeList children() const noexcept;
    XmlElement firstChildElement() const noexcept;
    XmlElement lastChildElement() const noexcept;
    // Siblings of an attribute are attributes.
    XmlNode prevSibling() const noexcept;
    XmlNode nextSibling() const noexcept;

    // Not part of the tree, but made for its document. Names and values: see "cut names". Values are plain
    // text.
    XmlElement createElement(const u8string& name) const noexcept;
    XmlAttribute createAttribute(const u8string& name, const u8string& value) const noexcept;

    // A new element without a namespace; `name`: see "cut names". The last two both put it after
    // `reference`, which is a child of this node.
    XmlElement createChildElement(const u8string& name) const noexcept;
    XmlElement createChildElementBefore(const u8string& name, const XmlNode& reference) const noexcept;
    XmlElement createChildElementAfter(const u8string& name, const XmlNode& reference) const noexcept;

    // Returns the node as it stands in the tree. A child of this node that is appended again stays where it
    // is.
    XmlNode appendChild(const XmlNode& child) const noexcept;
    // `reference` is a child of this node, or an attribute of it if `child` is an attribute.
    XmlNode insertBefore(const XmlNode& child, const XmlNode& reference) const noexcept;
    XmlNode insertAfter(const XmlNode& child, const XmlNode& reference) const noexcept;
    // Unlinks a child or attribute of this node and returns it; the caller owns it.
    XmlNode removeChild(const XmlNode& child) const noexcept;

    // What the XPath expression `xpath` selects with this node as context. A bad expression, one without a
    // node set and one with an unknown prefix select nothing.
    // Returns: the first node of the set. Null too if that is a namespace declaration.
    XmlNode selectNode(const u8string& xpath) const noexcept;
    XmlNode selectNode(const u8string& xpath, const XmlNamespaces& namespaces) const noexcept;
    XmlNode selectNode(const u8string& xpath, const u8string& prefix, const u8string& uri) const noexcept;
    // Returns: the set, null instead of an empty one.
    // Owner:   the caller, xmlXPathFreeNodeSet; the nodes in it stay with their document.
    [[nodiscard]] _xmlNodeSet* selectNodes(const u8string& xpath) const noexcept;
    [[nodiscard]] _xmlNodeSet* selectNodes(const u8string& xpath,
                                           const XmlNamespaces& namespaces) const noexcept;
    [[nodiscard]] _xmlNodeSet* selectNodes(const u8string& xpath, const u8string& prefix,
                                           const u8string& uri) const noexcept;

    // With all below it, for the same document; the caller owns it. The copy of a document is a document.
    XmlNode copy() const noexcept;

    // The markup of `node`, indented where it holds no text. Switches libxml2's process-wide blank handling
    // for the length of the call and cleans libxml2 up (xmlCleanupParser): not beside another thread's XML
    // work.
    static u8string save(const XmlNode& node);

protected:
    _xmlNode* m_Node = nullptr;
};

class XmlElement : public XmlNode
{
public:
    XmlElement() = default;
    explicit XmlElement(_xmlNode* node) noexcept : XmlNode(node) {}

    XmlAttribute firstAttribute() const noexcept;
    XmlAttribute lastAttribute() const noexcept;
    XmlAttributeList attributes() const noexcept;
    // Names and values: see "cut names". `reference` is an attribute of this element.
    XmlAttribute appendAttribute(const u8string& name, const u8string& value) const noexcept;
    XmlAttribute insertAttributeBefore(const u8string& name, const u8string& value,
                                       const XmlAttribute& reference) const noexcept;
    XmlAttribute insertAttributeAfter(const u8string& name, const u8string& value,
                                      const XmlAttribute& reference) const noexcept;
    // Unlinks an attribute of this element and returns it; the caller owns it.
    XmlAttribute removeAttribute(const XmlAttribute& attribute) const noexcept;

    // Appends plain text, whole.
    // Returns: the text node that it is in now.
    XmlNode createChildText(const u8string& text) const noexcept;

    XmlElement prevSiblingElement() const noexcept;
    XmlElement nextSiblingElement() const noexcept;
};

class XmlAttribute : public XmlNode
{
public:
    XmlAttribute() = default;
    explicit XmlAttribute(_xmlNode* node) noexcept : XmlNode(node) {}

    // Whole; the value is plain text.
    void setName(const u8string& name) const noexcept;
    void setValue(const u8string& value) const noexcept;
};

class XmlDocument : public XmlNode
{
public:
    XmlDocument() = default;
    XmlDocument(_xmlDoc* document) noexcept;

    _xmlDoc* doc() const noexcept;

    // Reads a file or a text.
    // Returns: null for what UVEXmlRead.h refuses.
    // Owner:   the caller, xmlFreeDoc.
    [[nodiscard]] static XmlDocument createDocument(const u8string& path);
    [[nodiscard]] static XmlDocument createDocumentXml(const u8string& xml);

    // Owner: the caller, xmlFreeDoc.
    [[nodiscard]] XmlDocument cloneDoc() const noexcept;
    XmlElement getRootElement() const noexcept;
    // `node` with all below it, for this document but not yet part of it. Null for a document.
    XmlNode copyNode(const XmlNode& node) const noexcept;

    // The text of `document` in UTF-8, indented with `format` where elements hold no text; with
    // `stripDeclaration` from the first character after the declaration and its line end. Empty for null.
    // Switches libxml2's process-wide blank handling for the length of the call: not beside another thread's
    // XML work.
    static u8string save(const XmlDocument& document, bool stripDeclaration, bool format);
};

// Walks siblings as long as the tree stands as it is: step on before the node is removed or freed.
template <class Node, XmlNode (XmlNode::*Step)() const noexcept>
class XmlSiblingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Node;
    using difference_type = std::ptrdiff_t;
    using pointer = const Node*;
    using reference = Node;

    XmlSiblingIterator() = default;
    explicit XmlSiblingIterator(const XmlNode& node) noexcept : m_Current(node.node()) {}

    Node operator*() const noexcept { return m_Current; }
    const Node* operator->() const noexcept { return &m_Current; }
    XmlSiblingIterator& operator++() noexcept
    {
        m_Current = Node((m_Current.*Step)().node());
        return *this;
    }
    XmlSiblingIterator operator++(int) noexcept
    {
        XmlSiblingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const XmlSiblingIterator& left, const XmlSiblingIterator& right) noexcept
    {
        return left.m_Current.node() == right.m_Current.node();
    }

private:
    Node m_Current;
};

// The children of a node.
class XmlNodeList
{
public:
    using Iterator = XmlSiblingIterator<XmlNode, &XmlNode::nextSibling>;
    using ReverseIterator = XmlSiblingIterator<XmlNode, &XmlNode::prevSibling>;

    explicit XmlNodeList(const XmlNode& parent) noexcept : m_Parent(parent) {}

    Iterator begin() const noexcept { return Iterator(m_Parent.firstChild()); }
    Iterator end() const noexcept { return {}; }
    ReverseIterator rbegin() const noexcept { return ReverseIterator(m_Parent.lastChild()); }
    ReverseIterator rend() const noexcept { return {}; }
    // Walks them all.
    std::size_t count() const noexcept;

private:
    XmlNode m_Parent;
};

// The attributes of an element.
class XmlAttributeList
{
public:
    using Iterator = XmlSiblingIterator<XmlAttribute, &XmlNode::nextSibling>;
    using ReverseIterator = XmlSiblingIterator<XmlAttribute, &XmlNode::prevSibling>;

    explicit XmlAttributeList(const XmlElement& element) noexcept : m_Element(element) {}

    Iterator begin() const noexcept { return Iterator(m_Element.firstAttribute()); }
    Iterator end() const noexcept { return {}; }
    ReverseIterator rbegin() const noexcept { return ReverseIterator(m_Element.lastAttribute()); }
    ReverseIterator rend() const noexcept { return {}; }
    // Walks them all.
    std::size_t count() const noexcept;

private:
    XmlElement m_Element;
};

} // namespace Uve
