// Questions about libxml2's nodes that several of the wrappers' sources ask.
#pragma once

#include <libxml/tree.h>
#include <libxml/xmlmemory.h>

#include <cstddef>

namespace Uve {

// A namespace declaration in an XPath result passes as a node but has none of a node's links.
inline bool IsTreeNode(const xmlNode* node)
{
    return node != nullptr && node->type != XML_NAMESPACE_DECL;
}

inline bool IsDocumentNode(const xmlNode* node)
{
    return node != nullptr && (node->type == XML_DOCUMENT_NODE || node->type == XML_HTML_DOCUMENT_NODE);
}

inline bool IsElementNode(const xmlNode* node)
{
    return node != nullptr && node->type == XML_ELEMENT_NODE;
}

inline bool IsAttributeNode(const xmlNode* node)
{
    return node != nullptr && node->type == XML_ATTRIBUTE_NODE;
}

// The "child" of an entity reference is the entity's declaration, whose siblings are other declarations.
inline bool HasOwnChildren(const xmlNode* node)
{
    return IsTreeNode(node) && node->type != XML_ENTITY_REF_NODE && node->children != nullptr;
}

// Memory as libxml2 has it. Its variables of these names would keep it from being loaded later.
inline void FreeXml(void* memory)
{
    xmlFreeFunc release = nullptr;
    xmlMemGet(&release, nullptr, nullptr, nullptr);
    release(memory);
}

inline void* AllocateXml(std::size_t size)
{
    xmlMallocFunc allocate = nullptr;
    xmlMemGet(nullptr, &allocate, nullptr, nullptr);
    return allocate(size);
}

inline const xmlChar* ToXml(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

inline const char* FromXml(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

} // namespace Uve
