#include "Tools/uvparse/CompactTree.h"

#include "UVEnvironment/UVEEncoding.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <utility>

namespace uvparse {

namespace {

// The name by which libxml2 knows its text nodes, by its address. As a variable of libxml2 it would keep that from
// being loaded later.
const char* TextName()
{
    static const char* const name = [] {
        const std::unique_ptr<xmlNode, decltype(&xmlFreeNode)> text(xmlNewText(nullptr), &xmlFreeNode);
        if (!text)
            throw std::bad_alloc();
        return reinterpret_cast<const char*>(text->name);
    }();
    return name;
}

// Elements of few levels alone are divided: all of them are made anew for each part.
constexpr std::size_t kDeepestDivided = 8;
constexpr std::size_t kValues = 4096;

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" ?>";
constexpr std::string_view kBlanks = " \t\r\n";

bool IsNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool IsNameCharacter(char c)
{
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

bool IsName(std::string_view text)
{
    return !text.empty() && IsNameStart(text.front()) && std::ranges::all_of(text, IsNameCharacter);
}

// clang-format off
struct SEntity
{
    std::string_view text;
    char character;
    bool isWrittenInText; // by libxml2
    bool isWrittenInValue;
};

constexpr SEntity kEntities[] = {
//   text      character  in text  in value
    {"&amp;",  '&',       true,    true},
    {"&lt;",   '<',       true,    true},
    {"&gt;",   '>',       true,    true},
    {"&quot;", '"',       false,   true},
    {"&apos;", '\'',      false,   false},
    {"&#13;",  '\r',      true,    true},
    {"&#10;",  '\n',      false,   true},
    {"&#9;",   '\t',      false,   true},
};
// clang-format on

// What a byte is to a text between markup, or to a value between quotes.
enum class enByte : unsigned char
{
    Plain,
    Wide, // of a character beyond ASCII
    Reference,
    Break, // a line feed or tab, which a value can't hold as it is
    Never
};

enByte KindOf(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80)
        return enByte::Wide;
    if (byte == '&')
        return enByte::Reference;
    if (byte == '\n' || byte == '\t')
        return enByte::Break;
    return byte < 0x20 || byte == '<' || byte == '>' ? enByte::Never : enByte::Plain;
}

const auto kByteKinds = [] {
    std::array<enByte, 256> kinds{};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        kinds[i] = KindOf(static_cast<char>(i));
    return kinds;
}();

// U+FFFE and U+FFFF, which XML can't hold.
bool HoldsNoncharacter(std::string_view text)
{
    return text.find("\xEF\xBF\xBE") != std::string_view::npos ||
           text.find("\xEF\xBF\xBF") != std::string_view::npos;
}

struct SPlainText
{
    bool isPlain = true;
    bool hasReferences = false;
};

SPlainText Examine(std::string_view text, bool isValue)
{
    SPlainText found;
    bool isWide = false;
    for (const char c : text) {
        switch (kByteKinds[static_cast<unsigned char>(c)]) {
        case enByte::Plain:
            break;
        case enByte::Wide:
            isWide = true;
            break;
        case enByte::Reference:
            found.hasReferences = true;
            break;
        case enByte::Break:
            found.isPlain = found.isPlain && !isValue;
            break;
        case enByte::Never:
            found.isPlain = false;
            return found;
        }
    }
    found.isPlain = found.isPlain && (!isWide || (UVDB::IsValidUTF8(text) && !HoldsNoncharacter(text)));
    return found;
}

const SEntity* EntityAt(std::string_view text)
{
    const auto entity =
        std::ranges::find_if(kEntities, [&](const SEntity& row) { return text.starts_with(row.text); });
    return entity == std::end(kEntities) ? nullptr : entity;
}

bool IsWritten(const SEntity& entity, bool isValue)
{
    return isValue ? entity.isWrittenInValue : entity.isWrittenInText;
}

void AppendWritten(std::string_view text, bool isValue, std::string& written)
{
    for (std::size_t at = 0; !text.empty(); text.remove_prefix(at)) {
        at = std::min(text.find('&', 1), text.size());
        const SEntity* const entity = EntityAt(text);
        if (entity == nullptr || IsWritten(*entity, isValue)) {
            written += text.substr(0, at);
        } else {
            written += entity->character;
            at = entity->text.size();
        }
    }
}

xmlChar* Characters(char* text)
{
    return reinterpret_cast<xmlChar*>(text);
}

} // namespace

std::string AsWritten(std::string_view text, bool isValue)
{
    std::string written;
    CMarkupScanner scanner(text);
    std::string_view opened; // a tag that nothing has followed yet
    const auto writeOpened = [&](std::string_view close) {
        AppendWritten(opened.substr(0, opened.size() - std::min<std::size_t>(opened.size(), 1)), true,
                      written);
        written += opened.empty() ? std::string_view() : close;
        opened = {};
    };
    for (SMarkup markup; scanner.Next(markup);) {
        if (markup.kind == enMarkup::End && !opened.empty()) {
            writeOpened("/>");
            continue;
        }
        writeOpened(">");
        if (markup.kind == enMarkup::Start)
            opened = markup.text;
        else
            AppendWritten(markup.text, isValue || markup.kind == enMarkup::Empty, written);
    }
    return written;
}

void CCompactTree::SFreeDocument::operator()(xmlDoc* document) const
{
    // Nothing below it was made by libxml2.
    document->children = nullptr;
    document->last = nullptr;
    xmlFreeDoc(document);
}

CCompactTree::CCompactTree(std::string_view tree, const SPathScope& scope, std::size_t partSize)
    : m_Tree(tree), m_Scope(scope), m_Undivided(scope.undivided.begin(), scope.undivided.end()),
      m_UndividedParents(scope.undividedParents.begin(), scope.undividedParents.end()), m_PartSize(partSize),
      m_Scanner(tree), m_Values(kValues), m_Document(xmlNewDoc(nullptr))
{
    if (!m_Document)
        throw std::bad_alloc();
}

CCompactTree::~CCompactTree() = default;

enPart CCompactTree::Next()
{
    if (m_HasRoot && m_Open.empty())
        return m_Scanner.IsAtEnd() ? enPart::None : enPart::NotPlain;
    BeginPart();
    const std::size_t begin = m_Scanner.GetOffset();
    m_PartBegin = m_Tree.data() + begin;
    for (SMarkup markup; m_Scanner.Next(markup);) {
        bool isTaken = true;
        switch (markup.kind) {
        case enMarkup::Start:
        case enMarkup::Empty:
            isTaken = TakeTag(markup);
            break;
        case enMarkup::End:
            isTaken = TakeEnd(markup);
            break;
        case enMarkup::Text:
            isTaken = TakeText(markup.text);
            break;
        case enMarkup::Other:
            isTaken = m_Scanner.GetOffsetOf(markup) == 0 && markup.text == kDeclaration;
            break;
        }
        if (!isTaken)
            return enPart::NotPlain;
        if (m_IsTooLarge)
            return enPart::TooLarge;
        if (m_PartSize > 0 && markup.kind == enMarkup::End && m_Scanner.GetOffset() - begin >= m_PartSize &&
            MayDivide())
            return enPart::Made;
    }
    return m_Scanner.IsAtEnd() && m_HasRoot && m_Open.empty() ? enPart::Made : enPart::NotPlain;
}

// With the elements that are open, as they were without their contents.
void CCompactTree::BeginPart()
{
    m_Nodes.Clear();
    std::ranges::fill(m_Values, nullptr);
    m_Document->children = nullptr;
    m_Document->last = nullptr;
    std::vector<SOpenElement> open = std::exchange(m_Open, {});
    for (SOpenElement& element : open) {
        element.node = AddElement({enMarkup::Start, element.tag, element.name});
        element.isDivided = true;
        m_Open.push_back(element);
    }
}

bool CCompactTree::MayDivide() const
{
    return !m_Open.empty() && m_Open.size() <= kDeepestDivided &&
           std::ranges::none_of(
               m_Open, [](const SOpenElement& element) { return element.isWanted || element.holdsWanted; });
}

// Returns: false for a reference that isn't one of the entities.
bool CCompactTree::Unescape(std::string_view text, bool isValue)
{
    m_Unescaped.clear();
    while (true) {
        const std::size_t at = text.find('&');
        m_Unescaped += text.substr(0, at);
        if (at == std::string_view::npos)
            return true;
        text.remove_prefix(at);
        const SEntity* const entity = EntityAt(text);
        if (entity == nullptr)
            return false;
        m_IsWrittenTheSame = m_IsWrittenTheSame && IsWritten(*entity, isValue);
        m_Unescaped += entity->character;
        text.remove_prefix(entity->text.size());
    }
}

const char* CCompactTree::BeginOf(const xmlNode* node) const
{
    if (node->type == XML_DOCUMENT_NODE)
        node = node->children;
    return static_cast<const char*>(node->_private);
}

const char* CCompactTree::EndOf(const xmlNode* node) const
{
    if (node->type == XML_DOCUMENT_NODE)
        node = node->children;
    if (node->type == XML_ATTRIBUTE_NODE)
        return static_cast<const char*>(reinterpret_cast<const xmlAttr*>(node)->psvi);
    return static_cast<const char*>(node->psvi);
}

bool CCompactTree::IsShared(const xmlNode* node) const
{
    const xmlNode* const element = node->type == XML_ATTRIBUTE_NODE ? node->parent : node;
    return node->type == XML_DOCUMENT_NODE || BeginOf(element) < m_PartBegin || EndOf(element) == nullptr;
}

xmlNode* CCompactTree::MakeNode(xmlElementType type, const char* begin, const char* name)
{
    xmlNode* const node = m_Nodes.Make<xmlNode>();
    node->type = type;
    node->name = reinterpret_cast<const xmlChar*>(name);
    node->doc = m_Document.get();
    node->_private = const_cast<char*>(begin);
    return node;
}

void CCompactTree::AddNode(xmlNode* node)
{
    xmlNode* const parent =
        m_Open.empty() ? reinterpret_cast<xmlNode*>(m_Document.get()) : m_Open.back().node;
    node->parent = parent;
    node->prev = parent->last;
    (parent->last != nullptr ? parent->last->next : parent->children) = node;
    parent->last = node;
}

// Null if it isn't plain.
xmlNode* CCompactTree::AddElement(const SMarkup& markup)
{
    const char* const name = NameOf(markup.name);
    if (name == nullptr)
        return nullptr;
    xmlNode* const element = MakeNode(XML_ELEMENT_NODE, markup.text.data(), name);
    // The number in document order, as libxml2 notes it when it is told to; it saves walks through the tree.
    --m_Order;
    static_assert(sizeof element->content == sizeof m_Order);
    std::memcpy(&element->content, &m_Order, sizeof m_Order);
    std::string_view attributes = markup.text;
    attributes.remove_prefix(1 + markup.name.size());
    attributes.remove_suffix(markup.kind == enMarkup::Empty ? 2 : 1);
    if (!AddAttributes(element, attributes))
        return nullptr;
    AddNode(element);
    return element;
}

bool CCompactTree::AddAttributes(xmlNode* element, std::string_view attributes)
{
    m_AttributeNames.clear();
    xmlAttr* last = nullptr;
    while (!attributes.empty()) {
        const std::size_t equals = attributes.find('=');
        if (attributes.front() != ' ' || equals == std::string_view::npos ||
            attributes.substr(equals + 1, 1) != "\"")
            return false;
        const std::size_t close = attributes.find('"', equals + 2);
        if (close == std::string_view::npos)
            return false;
        const char* const begin = attributes.data() + 1;
        const char* const name = NameOf(attributes.substr(1, equals - 1));
        const std::string_view value = attributes.substr(equals + 2, close - equals - 2);
        const SPlainText found = Examine(value, true);
        if (name == nullptr || attributes.substr(1, equals - 1) == "xmlns" ||
            std::ranges::find(m_AttributeNames, name) != m_AttributeNames.end() || !found.isPlain ||
            (found.hasReferences && !Unescape(value, true)))
            return false;
        m_AttributeNames.push_back(name);
        attributes.remove_prefix(close + 1);
        if (!m_Scope.needsAttributes)
            continue;
        xmlAttr* const attribute = m_Nodes.Make<xmlAttr>();
        attribute->type = XML_ATTRIBUTE_NODE;
        attribute->name = reinterpret_cast<const xmlChar*>(name);
        attribute->doc = m_Document.get();
        attribute->parent = element;
        attribute->prev = last;
        attribute->_private = const_cast<char*>(begin);
        attribute->psvi = const_cast<char*>(attributes.data());
        (last != nullptr ? last->next : element->properties) = attribute;
        last = attribute;
        if (!value.empty()) {
            attribute->children = ValueOf(found.hasReferences ? std::string_view(m_Unescaped) : value);
            attribute->last = attribute->children;
        }
    }
    return true;
}

// The text node of a value, the same for attributes of the same value where that is easily found out. A
// search never asks such a node where it stands.
xmlNode* CCompactTree::ValueOf(std::string_view text)
{
    xmlNode*& value = m_Values[std::hash<std::string_view>()(text) % m_Values.size()];
    if (value == nullptr || text != reinterpret_cast<const char*>(value->content)) {
        value = MakeNode(XML_TEXT_NODE, nullptr, TextName());
        value->content = Characters(m_Nodes.Copy(text));
    }
    return value;
}

// Null for what is no name.
const char* CCompactTree::NameOf(std::string_view name)
{
    const auto known = m_NameTable.find(name);
    if (known != m_NameTable.end())
        return known->second;
    if (!IsName(name))
        return nullptr;
    const char* const copy = m_Names.Copy(name);
    m_NameTable.emplace(std::string_view(copy, name.size()), copy);
    return copy;
}

bool CCompactTree::TakeTag(const SMarkup& markup)
{
    if (m_Open.empty() && std::exchange(m_HasRoot, true))
        return false;
    if (!m_Open.empty() && !m_UndividedParents.empty() && m_UndividedParents.contains(markup.name)) {
        m_Open.back().holdsWanted = true;
        m_IsTooLarge = m_Open.back().isDivided;
    }
    xmlNode* const element = AddElement(markup);
    if (element == nullptr)
        return false;
    if (markup.kind == enMarkup::Start)
        m_Open.push_back(
            {markup.text, markup.name, element, false, m_Undivided.contains(markup.name), false});
    else
        element->psvi = const_cast<char*>(markup.text.data() + markup.text.size());
    return true;
}

bool CCompactTree::TakeEnd(const SMarkup& markup)
{
    if (m_Open.empty() || m_Open.back().name != markup.name ||
        markup.text.size() != markup.name.size() + std::string_view("</>").size())
        return false;
    const SOpenElement& closing = m_Open.back();
    const char* const end = markup.text.data() + markup.text.size();
    closing.node->psvi = const_cast<char*>(end);
    m_IsWrittenTheSame = m_IsWrittenTheSame && markup.text.data() != closing.tag.data() + closing.tag.size();
    if (closing.isDivided)
        m_DividedEnds.emplace(closing.tag.data(), end);
    m_Open.pop_back();
    return true;
}

bool CCompactTree::TakeText(std::string_view text)
{
    if (m_Open.empty())
        return text.find_first_not_of(kBlanks) == std::string_view::npos;
    const SPlainText found = Examine(text, false);
    if (!found.isPlain || (found.hasReferences && !Unescape(text, false)))
        return false;
    xmlNode* const node = MakeNode(XML_TEXT_NODE, text.data(), TextName());
    node->content = Characters(m_Nodes.Copy(found.hasReferences ? std::string_view(m_Unescaped) : text));
    node->psvi = const_cast<char*>(text.data() + text.size());
    AddNode(node);
    return true;
}

} // namespace uvparse
