#include "Tools/uvparse/DividedElements.h"

#include <new>

namespace uvparse {

namespace {

template <class T>
T* Made(T* node)
{
    if (node == nullptr)
        throw std::bad_alloc();
    return node;
}

void Link(xmlNode* node, xmlNode* parent)
{
    node->parent = parent;
    node->prev = parent->last;
    (parent->last != nullptr ? parent->last->next : parent->children) = node;
    parent->last = node;
}

// Without recursion: what isn't divided may be nested deeply.
void AppendText(const xmlNode* top, std::string& text)
{
    for (const xmlNode* node = top; node != nullptr;) {
        if (node->type == XML_TEXT_NODE)
            text += reinterpret_cast<const char*>(node->content);
        else if (node->children != nullptr) {
            node = node->children;
            continue;
        }
        while (node != top && node->next == nullptr)
            node = node->parent;
        node = node == top ? nullptr : node->next;
    }
}

} // namespace

void CDividedElements::Add(const CCompactTree& parts)
{
    xmlDoc* const part = parts.GetDocument();
    if (!parts.IsShared(part->children))
        return;
    if (!m_Document)
        m_Document.reset(Made(xmlNewDoc(nullptr)));
    AddContents(parts, reinterpret_cast<xmlNode*>(part), reinterpret_cast<xmlNode*>(m_Document.get()));
}

xmlDoc* CDividedElements::GetDocument()
{
    xmlXPathOrderDocElems(m_Document.get());
    return m_Document.get();
}

// Divided elements are nested as deeply as they may be divided.
void CDividedElements::AddContents(const CCompactTree& parts, const xmlNode* from, xmlNode* to)
{
    for (const xmlNode* node = from->children; node != nullptr; node = node->next) {
        if (node->type != XML_ELEMENT_NODE || !parts.IsShared(node)) {
            AppendText(node, m_Text);
            continue;
        }
        AddText(to);
        const bool isKnown = to->last != nullptr && to->last->_private == node->_private;
        AddContents(parts, node, isKnown ? to->last : AddElement(parts, node, to));
    }
    AddText(to);
}

// Not joined with the text before, which would be copied for each part.
void CDividedElements::AddText(xmlNode* to)
{
    if (m_Text.empty())
        return;
    Link(Made(xmlNewDocText(m_Document.get(), reinterpret_cast<const xmlChar*>(m_Text.c_str()))), to);
    m_Text.clear();
}

xmlNode* CDividedElements::AddElement(const CCompactTree& parts, const xmlNode* element, xmlNode* to)
{
    xmlNode* const copy = Made(xmlNewDocRawNode(m_Document.get(), nullptr, element->name, nullptr));
    copy->_private = const_cast<char*>(parts.BeginOf(element));
    Link(copy, to);
    for (const xmlAttr* attribute = element->properties; attribute != nullptr; attribute = attribute->next) {
        xmlAttr* const made = Made(xmlNewProp(
            copy, attribute->name, attribute->children == nullptr ? nullptr : attribute->children->content));
        made->_private = attribute->_private;
        made->psvi = attribute->psvi;
    }
    return copy;
}

} // namespace uvparse
