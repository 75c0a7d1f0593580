#include "Tools/uvparse/CompactTree.h"

#include "Tools/uvparse/PlainMarkup.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <array>
#include <cstdint>
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
constexpr std::size_t kTags = 4096;

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" ?>";
constexpr std::string_view kBlanks = " \t\r\n";

// Tags differ in their names and in the values of their last attributes, if not in their sizes.
std::size_t HashOfTag(std::string_view tag)
{
    std::array<std::uint64_t, 4> words{};
    constexpr std::size_t kEnd = 3 * sizeof words[0];
    if (tag.size() < kEnd)
        return std::hash<std::string_view>()(tag);
    std::memcpy(words.data(), tag.data() + 1, sizeof words[0]);
    std::memcpy(&words[1], tag.data() + tag.size() - kEnd, kEnd);
    std::uint64_t hash = tag.size();
    for (const std::uint64_t word : words)
        hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(hash >> 32U);
}

xmlChar* Characters(char* text)
{
    return reinterpret_cast<xmlChar*>(text);
}

} // namespace

void CCompactTree::SFreeDocument::operator()(xmlDoc* document) const
{
    // Nothing below it was made by libxml2.
    document->children = nullptr;
    document->last = nullptr;
    xmlFreeDoc(document);
}

CCompactTree::CCompactTree(std::string_view tree, const SPathScope& scope, const SPathNeeds& needs,
                           std::size_t partSize)
    : m_Tree(tree), m_Scope(scope), m_Needs(needs), m_PartSize(partSize), m_Tags(kTags), m_Values(kValues),
      m_Document(xmlNewDoc(nullptr))
{
    if (!m_Document)
        throw std::bad_alloc();
    if (scope.target && !scope.target->predicates.empty())
        m_Judge = std::make_unique<CTagJudge>(scope.target->predicates);
}

CCompactTree::~CCompactTree() = default;

enPart CCompactTree::Next()
{
    if (m_HasRoot && m_Open.empty())
        return m_Offset == m_Tree.size() ? enPart::None : enPart::NotPlain;
    BeginPart();
    const std::size_t begin = m_Offset;
    m_PartBegin = m_Tree.data() + begin;
    while (m_Offset < m_Tree.size()) {
        const bool isMarkup = m_Tree[m_Offset] == '<';
        const bool isEnd = isMarkup && m_Tree.substr(m_Offset + 1, 1) == "/";
        if (isEnd ? !TakeEnd() : isMarkup ? !TakeDeclaration() && !TakeTag() : !TakeText())
            return enPart::NotPlain;
        if (m_IsTooLarge)
            return enPart::TooLarge;
        if (isEnd && m_PartSize > 0 && m_Offset - begin >= m_PartSize && MayDivide()) {
            // What comes after goes into another part.
            if (m_Needs.texts != enPathTexts::None)
                MakeOpenElements();
            return enPart::Made;
        }
    }
    return m_HasRoot && m_Open.empty() ? enPart::Made : enPart::NotPlain;
}

// With the elements that are open, as they were without their contents.
void CCompactTree::BeginPart()
{
    m_Nodes.Clear();
    std::ranges::fill(m_Values, nullptr);
    m_Document->children = nullptr;
    m_Document->last = nullptr;
    m_Texts.clear();
    m_TextsMade = 0;
    m_Made = 0;
    for (SOpenElement& element : m_Open) {
        element.node = nullptr;
        element.textBegin = 0;
        element.isDivided = true;
    }
    MakeOpenElements();
}

bool CCompactTree::MayDivide() const
{
    return !m_Open.empty() && m_Open.size() <= kDeepestDivided &&
           std::ranges::none_of(m_Open, [](const SOpenElement& element) {
               return element.name->isUndivided || element.holdsWanted;
           });
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
    if (node->type == XML_TEXT_NODE)
        return m_Tree.data() + m_Tree.find('<', static_cast<std::size_t>(BeginOf(node) - m_Tree.data()));
    return reinterpret_cast<const char*>(node->nsDef);
}

bool CCompactTree::IsShared(const xmlNode* node) const
{
    const xmlNode* element = node->type == XML_ATTRIBUTE_NODE ? node->parent : node;
    if (node->type == XML_DOCUMENT_NODE)
        element = node->children;
    return BeginOf(element) < m_PartBegin || EndOf(element) == nullptr;
}

// No more of it than a search looks at: of a text up to its content, of an element up to its attributes. What
// is next in an element, where none has namespaces, is where it ends.
xmlNode* CCompactTree::MakeNode(xmlElementType type, const char* begin, const char* name)
{
    const std::size_t size =
        type == XML_ELEMENT_NODE ? offsetof(xmlNode, psvi) : offsetof(xmlNode, properties);
    auto* const node = static_cast<xmlNode*>(m_Nodes.Make(size));
    node->type = type;
    node->name = reinterpret_cast<const xmlChar*>(name);
    node->doc = m_Document.get();
    node->_private = const_cast<char*>(begin);
    return node;
}

// To the innermost of the open elements that were made.
void CCompactTree::AddNode(xmlNode* node)
{
    xmlNode* const parent =
        m_Made == 0 ? reinterpret_cast<xmlNode*>(m_Document.get()) : m_Open[m_Made - 1].node;
    node->parent = parent;
    node->prev = parent->last;
    (parent->last != nullptr ? parent->last->next : parent->children) = node;
    parent->last = node;
}

void CCompactTree::MakeOpenElements()
{
    while (m_Made < m_Open.size()) {
        SOpenElement& element = m_Open[m_Made];
        MakeText(element.textBegin);
        element.node = MakeElement(element);
        ++m_Made;
    }
    MakeTexts();
}

// A node of the texts that have none yet, up to `end` in m_Texts. They may have stood in several elements that
// weren't made: together they are what the one around them holds.
void CCompactTree::MakeText(std::size_t end)
{
    if (end > m_TextsMade) {
        xmlNode* const node = MakeNode(XML_TEXT_NODE, nullptr, TextName());
        node->content =
            Characters(m_Nodes.Copy(std::string_view(m_Texts).substr(m_TextsMade, end - m_TextsMade)));
        AddNode(node);
        m_TextsMade = end;
    }
}

// When all open elements are made.
void CCompactTree::MakeTexts()
{
    MakeText(m_Texts.size());
    m_Texts.clear();
    m_TextsMade = 0;
}

xmlNode* CCompactTree::MakeElement(const SOpenElement& open)
{
    xmlNode* const element = MakeNode(XML_ELEMENT_NODE, open.tag.data(), open.name->stored);
    // The number in document order, as libxml2 notes it when it is told to; it saves walks through the tree.
    --m_Order;
    static_assert(sizeof element->content == sizeof m_Order);
    std::memcpy(&element->content, &m_Order, sizeof m_Order);
    if (m_Needs.areAllAttributes || !m_Needs.attributes.empty())
        MakeAttributes(element, open.tag);
    AddNode(element);
    return element;
}

// Takes the first one off `attributes`. What is left once they are all taken closes the tag.
// Returns: false if it isn't plain.
bool CCompactTree::ReadAttribute(std::string_view& attributes, std::string_view& name,
                                 std::string_view& value)
{
    const std::size_t equals = attributes.find('=');
    if (attributes.front() != ' ' || equals == std::string_view::npos ||
        attributes.substr(equals + 1, 1) != "\"")
        return false;
    const std::size_t close = attributes.find('"', equals + 2);
    if (close == std::string_view::npos)
        return false;
    name = attributes.substr(1, equals - 1);
    value = attributes.substr(equals + 2, close - equals - 2);
    attributes.remove_prefix(close + 1);
    return true;
}

void CCompactTree::MakeAttributes(xmlNode* element, std::string_view tag)
{
    xmlAttr* last = nullptr;
    std::string_view rest = tag.substr(std::min(tag.find(' '), tag.size()));
    std::string_view name;
    std::string_view value;
    while (rest.starts_with(' ') && ReadAttribute(rest, name, value)) {
        if (!m_Needs.areAllAttributes &&
            std::ranges::find(m_Needs.attributes, name) == m_Needs.attributes.end())
            continue;
        auto* const attribute = static_cast<xmlAttr*>(m_Nodes.Make(sizeof(xmlAttr)));
        attribute->type = XML_ATTRIBUTE_NODE;
        attribute->name = reinterpret_cast<const xmlChar*>(NameOf(name).stored);
        attribute->doc = m_Document.get();
        attribute->parent = element;
        attribute->prev = last;
        attribute->_private = const_cast<char*>(name.data());
        attribute->psvi = const_cast<char*>(rest.data());
        (last != nullptr ? last->next : element->properties) = attribute;
        last = attribute;
        if (!value.empty()) {
            m_Value.clear();
            UnescapePlain(value, true, m_Value, m_IsWrittenTheSame);
            attribute->children = ValueOf(m_Value);
            attribute->last = attribute->children;
        }
    }
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

// The same for the same name.
const CCompactTree::SName& CCompactTree::NameOf(std::string_view name)
{
    if (const auto known = m_NameTable.find(name); known != m_NameTable.end())
        return known->second;
    const auto isAmong = [&](const std::vector<std::string>& names) {
        return std::ranges::find(names, name) != names.end();
    };
    const char* const copy = m_Names.Copy(name);
    SName& made = m_NameTable[std::string_view(copy, name.size())];
    const std::optional<SPathTarget>& target = m_Scope.target;
    const bool isNeeded = target ? !target->isText && (target->element.empty() || target->element == name)
                                 : m_Needs.areAllElements || isAmong(m_Needs.elements);
    made = {copy, name.size(), isNeeded, isAmong(m_Scope.undivided), isAmong(m_Scope.undividedParents)};
    return made;
}

// Null if it isn't plain.
const CCompactTree::STag* CCompactTree::TagAt(std::string_view text)
{
    STag& tag = m_Tags[HashOfTag(text) % m_Tags.size()];
    return tag.text == text || ReadTag(text, tag) ? &tag : nullptr;
}

bool CCompactTree::ReadTag(std::string_view text, STag& tag)
{
    tag = {};
    std::string_view rest = text.substr(1, text.size() - 2);
    tag.isEmpty = rest.ends_with('/');
    rest.remove_suffix(tag.isEmpty ? 1 : 0);
    const std::string_view name = rest.substr(0, rest.find(' '));
    rest.remove_prefix(name.size());
    if (!IsPlainName(name))
        return false;
    m_Attributes.clear();
    std::string_view attribute;
    std::string_view value;
    while (!rest.empty()) {
        if (!ReadAttribute(rest, attribute, value) || !IsPlainName(attribute) || attribute == "xmlns" ||
            std::ranges::find(m_Attributes, attribute, &decltype(m_Attributes)::value_type::first) !=
                m_Attributes.end())
            return false;
        const SPlainText found = ExaminePlain(value, true);
        m_Value.clear();
        if (!found.isPlain ||
            (found.hasReferences && !UnescapePlain(value, true, m_Value, m_IsWrittenTheSame)))
            return false;
        m_Attributes.emplace_back(attribute, value);
    }
    tag.name = &NameOf(name);
    tag.isNeeded = tag.name->isNeeded && (!m_Judge || m_Judge->IsTrueOf(name, m_Attributes));
    tag.text = text;
    return true;
}

bool CCompactTree::TakeDeclaration()
{
    if (m_Offset > 0 || !m_Tree.starts_with(kDeclaration))
        return false;
    m_Offset = kDeclaration.size();
    return true;
}

bool CCompactTree::TakeTag()
{
    // No value of a plain tree holds such a bracket.
    const std::size_t close = m_Tree.find('>', m_Offset);
    if (close == std::string_view::npos || (m_Open.empty() && std::exchange(m_HasRoot, true)))
        return false;
    const std::string_view text = m_Tree.substr(m_Offset, close + 1 - m_Offset);
    const STag* const tag = TagAt(text);
    if (tag == nullptr)
        return false;
    m_Offset = close + 1;
    if (tag->name->isParentUndivided && !m_Open.empty()) {
        m_Open.back().holdsWanted = true;
        m_IsTooLarge = m_Open.back().isDivided;
    }
    const bool isNeeded = tag->isNeeded && !m_IsEnough;
    const bool isAwaited = isNeeded && m_Scope.target && m_Scope.target->text;
    // The document has its root in any case.
    const bool isMade = (isNeeded && !isAwaited) || m_Open.empty();
    if (tag->isEmpty && !isMade && !isAwaited)
        return true;
    m_Open.push_back({text, tag->name, nullptr, m_Texts.size(), isAwaited, false, false});
    if (isMade)
        MakeOpenElements();
    if (tag->isEmpty)
        Close();
    return true;
}

bool CCompactTree::TakeEnd()
{
    if (m_Open.empty())
        return false;
    const SOpenElement& closing = m_Open.back();
    const std::string_view name = closing.name->View();
    const std::string_view rest = m_Tree.substr(m_Offset + 2);
    if (!rest.starts_with(name) || rest.substr(name.size(), 1) != ">")
        return false;
    const char* const begin = m_Tree.data() + m_Offset;
    m_Offset += name.size() + std::string_view("</>").size();
    m_IsWrittenTheSame = m_IsWrittenTheSame && begin != closing.tag.data() + closing.tag.size();
    Close();
    return true;
}

bool CCompactTree::IsTargetText(std::string_view text) const
{
    const SPathTarget& target = *m_Scope.target;
    return target.isAllText ? text == *target.text : text.find(*target.text) != std::string_view::npos;
}

void CCompactTree::Close()
{
    const SOpenElement& closing = m_Open.back();
    // Nothing that was made is in it yet, so that all of its text is still at hand.
    if (closing.isAwaited && closing.node == nullptr &&
        IsTargetText(std::string_view(m_Texts).substr(closing.textBegin)))
        MakeOpenElements();
    const char* const end = m_Tree.data() + m_Offset;
    if (closing.isDivided)
        m_DividedEnds.emplace(closing.tag.data(), end);
    if (closing.node != nullptr) {
        MakeTexts();
        closing.node->nsDef = reinterpret_cast<xmlNs*>(const_cast<char*>(end));
        --m_Made;
    }
    m_Open.pop_back();
}

bool CCompactTree::TakeText()
{
    const std::string_view text = m_Tree.substr(m_Offset, m_Tree.find('<', m_Offset) - m_Offset);
    m_Offset += text.size();
    if (m_Open.empty())
        return text.find_first_not_of(kBlanks) == std::string_view::npos;
    const SPlainText found = ExaminePlain(text, false);
    if (!found.isPlain)
        return false;
    const enPathTexts texts = m_IsEnough ? enPathTexts::None : m_Needs.texts;
    if (texts == enPathTexts::None && !found.hasReferences)
        return true;
    const std::size_t begin = m_Texts.size();
    if (!found.hasReferences)
        m_Texts += text;
    else if (!UnescapePlain(text, false, m_Texts, m_IsWrittenTheSame))
        return false;
    const bool isLookedFor =
        !m_Scope.target || !m_Scope.target->isText || IsTargetText(std::string_view(m_Texts).substr(begin));
    if (texts == enPathTexts::None || (texts == enPathTexts::Nodes && !isLookedFor)) {
        m_Texts.resize(begin);
    } else if (texts == enPathTexts::Nodes) {
        MakeOpenElements();
        m_Open.back().node->last->_private = const_cast<char*>(text.data());
    }
    return true;
}

} // namespace uvparse
