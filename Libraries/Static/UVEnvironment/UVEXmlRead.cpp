#include "UVEnvironment/UVEXmlRead.h"

#include <libxml/SAX2.h>
#include <libxml/entities.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Uve {

namespace {

// Note: growth. XML_PARSE_HUGE turns libxml2's own guard against entity bombs off, so we keep the account.
// What declarations add to the text is spent from one budget, in two places: the parser asks for an entity
// each time it is about to expand one, and adds default attributes and namespaces to each element that lacks
// them; both pass through handlers of ours. References in content stay in the tree and go off only when
// somebody takes its text, so they are added up after the parse, each with all it leads to.
constexpr std::size_t kTextLimit = 0x80000000;
constexpr std::uint64_t kFreeGrowth = 10'000'000;
constexpr std::uint64_t kGrowthFactor = 10;
// What a reference costs beside its text: an empty entity isn't free.
constexpr std::uint64_t kReferenceCost = 20;
constexpr std::uint64_t kNamespaceCost = 80;
constexpr std::uint64_t kComparisonsPerByte = 16;

constexpr std::size_t kMostAttributes = 1000;

class CGrowth
{
public:
    explicit CGrowth(std::size_t textSize) : m_Left(kFreeGrowth + kGrowthFactor * textSize) {}

    // False when the budget is gone, from then on for ever.
    bool Spend(std::uint64_t bytes)
    {
        m_IsExceeded = m_IsExceeded || bytes > m_Left;
        m_Left -= m_IsExceeded ? m_Left : bytes;
        return !m_IsExceeded;
    }
    std::uint64_t Left() const { return m_Left; }
    bool IsExceeded() const { return m_IsExceeded; }

private:
    std::uint64_t m_Left;
    bool m_IsExceeded = false;
};

xmlParserInput* LoadNothing(const char*, const char*, xmlParserCtxt*)
{
    return nullptr;
}

void IgnoreError(void*, xmlError*) {}

// The loader is one for the process: the first of several readers takes it away, the last one puts it back.
std::mutex g_LoaderMutex;
int g_Readers = 0;
xmlExternalEntityLoader g_HostLoader = nullptr;

// Holds libxml2's loader and its handler for errors without a parser (a failed conversion is one; each thread
// has its own) while a text is read, and puts the host's own back.
class CQuietReading
{
public:
    CQuietReading() : m_Handler(xmlStructuredError), m_HandlerContext(xmlStructuredErrorContext)
    {
        const std::lock_guard lock(g_LoaderMutex);
        if (g_Readers++ == 0) {
            g_HostLoader = xmlGetExternalEntityLoader();
            xmlSetExternalEntityLoader(LoadNothing);
        }
        xmlSetStructuredErrorFunc(nullptr, IgnoreError);
    }
    ~CQuietReading()
    {
        xmlSetStructuredErrorFunc(m_HandlerContext, m_Handler);
        const std::lock_guard lock(g_LoaderMutex);
        if (--g_Readers == 0)
            xmlSetExternalEntityLoader(g_HostLoader);
    }
    CQuietReading(const CQuietReading&) = delete;
    CQuietReading& operator=(const CQuietReading&) = delete;

private:
    xmlStructuredErrorFunc m_Handler;
    void* m_HandlerContext;
};

// `parser` may be one that libxml2 has made for an entity's text; it shares the private pointer of the first.
bool SpendOrStop(void* parser, std::uint64_t bytes)
{
    auto* context = static_cast<xmlParserCtxt*>(parser);
    auto* growth = static_cast<CGrowth*>(context->_private);
    if (growth != nullptr && growth->Spend(bytes))
        return true;
    // A text that still counts as well-formed has its entities looked up without the handler.
    context->wellFormed = 0;
    xmlStopParser(context);
    return false;
}

// True if something in the text looks like a tag with more than kMostAttributes of them, which libxml2 would
// compare each with all before it. No tag escapes: it begins with "<", and nothing inside it does. So
// declarations, which hold tags in their quotes, comments and sections of characters need no understanding.
bool HasTooManyAttributes(std::string_view text)
{
    constexpr auto kNone = std::string_view::npos;
    std::size_t count = 0;
    for (std::size_t at = text.find('<'); at != kNone;) {
        if (text[at] == '<')
            count = 0;
        at = text.find_first_of("<>=", at + 1);
        if (at == kNone)
            return false;
        if (text[at] == '>') {
            at = text.find('<', at);
            continue;
        }
        if (text[at] != '=')
            continue;
        const std::size_t value = text.find_first_not_of(" \t\r\n", at + 1);
        if (value == kNone || (text[value] != '"' && text[value] != '\''))
            continue;
        if (++count > kMostAttributes)
            return true;
        const char ends[] = {text[value], '<'};
        at = text.find_first_of(std::string_view(ends, std::size(ends)), value + 1);
    }
    return false;
}

xmlEntity* SpendEntity(void* parser, xmlEntity* entity)
{
    std::string_view content;
    if (entity != nullptr && entity->content != nullptr)
        content = {reinterpret_cast<const char*>(entity->content), static_cast<std::size_t>(entity->length)};
    // What the parser reads here has its character references resolved: tags may have come of them.
    const std::uint64_t cost = HasTooManyAttributes(content) ? std::numeric_limits<std::uint64_t>::max()
                                                             : content.size() + kReferenceCost;
    return SpendOrStop(parser, cost) ? entity : nullptr;
}

xmlEntity* GetEntity(void* parser, const xmlChar* name)
{
    return SpendEntity(parser, xmlSAX2GetEntity(parser, name));
}

xmlEntity* GetParameterEntity(void* parser, const xmlChar* name)
{
    return SpendEntity(parser, xmlSAX2GetParameterEntity(parser, name));
}

void StartElement(void* parser, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri,
                  int namespaceCount, const xmlChar** namespaces, int attributeCount, int defaultCount,
                  const xmlChar** attributes)
{
    // Default attributes don't reach the tree, but for each element the parser goes through them and compares
    // each with those before it.
    const auto defaults = static_cast<std::uint64_t>(defaultCount);
    std::uint64_t added = defaults * kReferenceCost + defaults * defaults / kComparisonsPerByte;
    // Default namespaces do, as copies. A pair for each: prefix, URI; which of them the text declares itself
    // isn't told.
    for (int i = 0; i < namespaceCount; ++i)
        if (const xmlChar* declared = namespaces[2 * i + 1])
            added += kNamespaceCost + std::strlen(reinterpret_cast<const char*>(declared));
    if (added == 0 || SpendOrStop(parser, added))
        xmlSAX2StartElementNs(parser, name, prefix, uri, namespaceCount, namespaces, attributeCount,
                              defaultCount, attributes);
}

// How long each entity of a document becomes with all that it refers to. Sizes end at `limit` + 1.
class CEntitySizes
{
public:
    CEntitySizes(xmlDoc* document, std::uint64_t limit) : m_Document(document), m_TooLong(limit + 1) {}

    std::uint64_t Of(xmlEntity* entity)
    {
        if (const auto known = m_Sizes.find(entity); known != m_Sizes.end())
            return known->second;
        Open(entity);
        while (!m_Open.empty())
            Continue();
        return m_Sizes[entity];
    }

    xmlEntity* Find(const xmlChar* name) const { return xmlGetDocEntity(m_Document, name); }

private:
    struct SOpenEntity
    {
        const xmlEntity* entity;
        std::string_view rest; // not yet searched for references
        std::uint64_t size;
    };

    void Open(const xmlEntity* entity)
    {
        // Stands until the size is known, so an entity that leads to itself is too long.
        m_Sizes[entity] = m_TooLong;
        std::string_view text;
        if (entity->content != nullptr)
            text = reinterpret_cast<const char*>(entity->content);
        m_Open.push_back({entity, text, kReferenceCost + text.size()});
    }

    void Continue()
    {
        SOpenEntity& open = m_Open.back();
        const auto ampersand = open.rest.find('&');
        if (ampersand == std::string_view::npos || open.size >= m_TooLong) {
            m_Sizes[open.entity] = std::min(open.size, m_TooLong);
            m_Open.pop_back();
            return;
        }
        const auto nameStart = ampersand + 1;
        const auto nameEnd = open.rest.find_first_of("&;", nameStart);
        const bool isReference = nameEnd != std::string_view::npos && open.rest[nameEnd] == ';';
        const xmlEntity* target = nullptr;
        if (isReference) {
            const std::string name(open.rest.substr(nameStart, nameEnd - nameStart));
            target = Find(reinterpret_cast<const xmlChar*>(name.c_str()));
        }
        if (target != nullptr) {
            const auto known = m_Sizes.find(target);
            if (known == m_Sizes.end()) {
                Open(target); // this reference is met again when the target's size is known
                return;
            }
            open.size += known->second;
        }
        open.rest.remove_prefix(isReference ? nameEnd + 1 : nameStart);
    }

    xmlDoc* m_Document;
    std::uint64_t m_TooLong;
    std::unordered_map<const xmlEntity*, std::uint64_t> m_Sizes;
    std::vector<SOpenEntity> m_Open;
};

void SpendReference(const xmlNode* node, CEntitySizes& sizes, CGrowth& growth)
{
    if (node->type != XML_ENTITY_REF_NODE)
        return;
    if (xmlEntity* entity = sizes.Find(node->name))
        growth.Spend(sizes.Of(entity));
}

void SpendReferences(const xmlNode* root, CEntitySizes& sizes, CGrowth& growth)
{
    const xmlNode* node = root;
    while (!growth.IsExceeded()) {
        SpendReference(node, sizes, growth);
        if (node->type == XML_ELEMENT_NODE) {
            for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next)
                for (const xmlNode* part = attribute->children; part; part = part->next)
                    SpendReference(part, sizes, growth);
            if (node->children != nullptr) {
                node = node->children;
                continue;
            }
        }
        while (node != root && node->next == nullptr)
            node = node->parent;
        if (node == root)
            return;
        node = node->next;
    }
}

// False if resolving the document's references would exceed what is left, or if it declares an entity that
// would do so by itself.
bool ReferencesAreBounded(xmlDoc* document, CGrowth& growth)
{
    if (document->intSubset == nullptr || document->intSubset->entities == nullptr)
        return true;
    CEntitySizes sizes(document, growth.Left());
    for (xmlNode* declared = document->intSubset->children; declared; declared = declared->next) {
        if (declared->type != XML_ENTITY_DECL)
            continue;
        auto* entity = reinterpret_cast<xmlEntity*>(declared);
        if (entity->etype == XML_INTERNAL_GENERAL_ENTITY && sizes.Of(entity) > growth.Left())
            return false;
    }
    if (const xmlNode* root = xmlDocGetRootElement(document))
        SpendReferences(root, sizes, growth);
    return !growth.IsExceeded();
}

using CDocument = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;
using CParser = std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)>;

xmlDoc* Read(const char* data, std::size_t size, const char* url, const char* encoding)
{
    if (data == nullptr || size >= kTextLimit || HasTooManyAttributes({data, size}))
        return nullptr;
    // libxml2 doesn't guard its own start.
    static const bool isStarted = (xmlInitParser(), true);
    (void)isStarted;
    const CQuietReading quiet;
    const CParser parser(xmlNewParserCtxt(), &xmlFreeParserCtxt);
    if (!parser)
        return nullptr;

    CGrowth growth(size);
    parser->_private = &growth;
    parser->sax->serror = IgnoreError;
    parser->sax->getEntity = GetEntity;
    parser->sax->getParameterEntity = GetParameterEntity;
    parser->sax->startElementNs = StartElement;
    CDocument document(
        xmlCtxtReadMemory(parser.get(), data, static_cast<int>(size), url, encoding, XML_PARSE_HUGE),
        &xmlFreeDoc);
    if (!document || growth.IsExceeded() || !ReferencesAreBounded(document.get(), growth))
        return nullptr;
    return document.release();
}

using CFile = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

} // namespace

xmlDoc* ReadXml(const char* data, std::size_t size)
{
    return Read(data, size, nullptr, "UTF-8");
}

xmlDoc* ReadXmlFile(const char* path)
{
    if (path == nullptr)
        return nullptr;
    const CFile file(std::fopen(path, "rb"), &std::fclose);
    if (!file)
        return nullptr;
    std::string text;
    std::array<char, 65536> part;
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file.get())) {
        if (count >= kTextLimit - text.size())
            return nullptr;
        text.append(part.data(), count);
    }
    if (std::ferror(file.get()) != 0)
        return nullptr;
    return Read(text.data(), text.size(), path, nullptr);
}

} // namespace Uve
