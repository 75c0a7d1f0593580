#include "Tools/uvparse/Selection.h"

#include "Tools/uvparse/CompactTree.h"
#include "Tools/uvparse/DividedElements.h"
#include "Tools/uvparse/PathExpression.h"
#include "Tools/uvparse/PlainMarkup.h"
#include "Tools/uvparse/PrettyTree.h"
#include "UVEnvironment/UVEXmlRead.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <new>
#include <utility>

namespace uvparse {

namespace {

std::string_view View(const xmlChar* text)
{
    return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

// One node after the other as XML.
class CNodeWriter
{
public:
    explicit CNodeWriter(xmlDoc* document) : m_Document(document), m_Buffer(xmlBufferCreate())
    {
        if (m_Buffer)
            xmlBufferSetAllocationScheme(m_Buffer.get(), XML_BUFFER_ALLOC_DOUBLEIT);
    }

    // Valid until the next call.
    std::string_view Write(xmlNode* node)
    {
        if (m_Buffer)
            xmlBufferEmpty(m_Buffer.get());
        if (node->type == XML_DOCUMENT_NODE) {
            for (xmlNode* child = node->children; child != nullptr; child = child->next)
                Dump(child);
        } else {
            Dump(node);
        }
        std::string_view text = View(xmlBufferContent(m_Buffer.get()));
        // An attribute comes with the blank that separates it from the one before.
        if (node->type == XML_ATTRIBUTE_NODE || node->type == XML_NAMESPACE_DECL)
            text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        return text;
    }

private:
    void Dump(xmlNode* node)
    {
        if (!m_Buffer || xmlNodeDump(m_Buffer.get(), m_Document, node, 0, 0) < 0)
            throw CToolFailure("a selected node is too large to be printed");
    }

    xmlDoc* m_Document;
    TXmlOwner<xmlBuffer> m_Buffer;
};

void WriteLine(std::string_view prefix, std::string_view text, bool isPretty, const TTextSink& sink)
{
    sink(prefix);
    if (!isPretty || WritePretty(text, sink))
        sink(text);
    sink("\n");
}

void WriteNodes(xmlDoc* document, xmlNodeSet* nodes, const SSelectionLook& look, const TTextSink& sink)
{
    CNodeWriter writer(document);
    for (int i = 0; i < xmlXPathNodeSetGetLength(nodes); ++i) {
        xmlNode* const node = xmlXPathNodeSetItem(nodes, i);
        const bool hasElements = node->type == XML_ELEMENT_NODE || node->type == XML_DOCUMENT_NODE;
        WriteLine(look.prefix, writer.Write(node), look.isPretty && hasElements, sink);
    }
}

} // namespace

// A node that was found, where it stands in the tree's text.
struct CSelector::SFound
{
    const char* begin;
    const char* end; // null for a divided element
    xmlElementType type;

    // The document stands before its root, which begins where it does.
    auto Place() const { return std::pair(begin, type == XML_DOCUMENT_NODE ? 0 : 1); }
};

struct CSelector::SResult
{
    enPart ended = enPart::None; // None: the result is there
    std::vector<SFound> nodes;
    bool isWrittenTheSame = true;
    bool isValue = false; // the expression doesn't select nodes
    std::string value;
    bool isTrue = false;

    void Take(const CCompactTree& tree, const xmlNode* node)
    {
        nodes.push_back({tree.BeginOf(node), tree.EndOf(node), node->type});
    }
    // In document order, each once: a divided element is found in each part that has something of it.
    void Sort()
    {
        const auto isBefore = [](const SFound& left, const SFound& right) {
            return left.Place() < right.Place();
        };
        const auto isSame = [](const SFound& left, const SFound& right) {
            return left.Place() == right.Place();
        };
        if (!std::ranges::is_sorted(nodes, isBefore))
            std::ranges::sort(nodes, isBefore);
        nodes.erase(std::unique(nodes.begin(), nodes.end(), isSame), nodes.end());
    }
    void KeepLast()
    {
        if (nodes.size() > 1)
            nodes = {*std::ranges::max_element(nodes, {}, &SFound::Place)};
    }
};

CSelector::CSelector(std::string expression, std::size_t partSize)
    : m_Text(std::move(expression)), m_Scope(ScopeOfPath(m_Text)), m_Needs(NeedsOfPath(m_Text)),
      m_PartSize(partSize), m_Expression(std::make_unique<CPathExpression>(m_Text, m_Text)),
      m_Path(std::make_unique<CPathExpression>(m_Scope.path, m_Text))
{
    // Unknown names and wrong types come out only when the expression is at work: here, before any file is
    // read.
    const TXmlOwner<xmlDoc> document(xmlNewDoc(nullptr));
    if (document)
        m_Expression->Evaluate(document.get());
}

CSelector::~CSelector() = default;

CSelector::SResult CSelector::SearchWhole(std::string_view tree) const
{
    SResult found;
    CCompactTree whole(tree, m_Scope, m_Needs, 0);
    while ((found.ended = whole.Next()) == enPart::Made) {
        const TXmlOwner<xmlXPathObject> result = m_Expression->Evaluate(whole.GetDocument());
        found.isTrue = xmlXPathCastToBoolean(result.get()) != 0;
        if (result->type == XPATH_NODESET) {
            for (int i = 0; i < xmlXPathNodeSetGetLength(result->nodesetval); ++i)
                found.Take(whole, xmlXPathNodeSetItem(result->nodesetval, i));
        } else {
            const TXmlOwner<xmlChar> text(xmlXPathCastToString(result.get()));
            found.value = View(text.get());
            found.isValue = true;
        }
    }
    found.isWrittenTheSame = whole.IsWrittenTheSame();
    found.Sort();
    return found;
}

// Whether the rest of the tree can't change what comes out.
bool CSelector::IsEnough(SResult& found) const
{
    switch (m_Scope.answer) {
    case enPathAnswer::Any:
    case enPathAnswer::None:
        return !found.nodes.empty();
    case enPathAnswer::Numbered:
        if (!m_Scope.isInOrder || found.nodes.size() < m_Scope.number)
            return false;
        found.Sort();
        return found.nodes.size() >= m_Scope.number;
    default:
        return false;
    }
}

CSelector::SResult CSelector::SearchParts(std::string_view tree) const
{
    SResult found;
    std::size_t count = 0; // of nodes that are told by their number alone
    const bool isCounting = m_Scope.answer == enPathAnswer::Count;
    bool isEnough = false;
    CCompactTree parts(tree, m_Scope, m_Needs, m_PartSize);
    CDividedElements divided;
    while ((found.ended = parts.Next()) == enPart::Made) {
        if (isEnough)
            continue;
        const TXmlOwner<xmlXPathObject> result = m_Path->Evaluate(parts.GetDocument());
        for (int i = 0; i < xmlXPathNodeSetGetLength(result->nodesetval); ++i) {
            const xmlNode* const node = xmlXPathNodeSetItem(result->nodesetval, i);
            const bool isShared = (isCounting || m_Scope.areDividedApart) && parts.IsShared(node);
            if (isCounting && !isShared)
                ++count;
            else if (!isShared || !m_Scope.areDividedApart)
                found.Take(parts, node);
        }
        if (m_Scope.areDividedApart)
            divided.Add(parts);
        if (m_Scope.answer == enPathAnswer::Last)
            found.KeepLast();
        isEnough = IsEnough(found);
        if (isEnough)
            parts.MakeNoMore();
    }
    if (found.ended != enPart::None)
        return found;
    if (!divided.IsEmpty()) {
        const TXmlOwner<xmlXPathObject> result = m_Path->Evaluate(divided.GetDocument());
        for (int i = 0; i < xmlXPathNodeSetGetLength(result->nodesetval); ++i)
            if (const xmlNode* const node = xmlXPathNodeSetItem(result->nodesetval, i);
                node->type != XML_TEXT_NODE)
                found.Take(parts, node);
    }
    found.isWrittenTheSame = parts.IsWrittenTheSame();
    found.Sort();
    count += found.nodes.size();
    Answer(found, count);
    // A divided element has its end in the last one of its parts alone.
    for (SFound& node : found.nodes)
        if (node.end == nullptr)
            node.end = parts.EndOfDivided(node.begin);
    return found;
}

// `count`: of all the nodes. `found` has them in document order, if they are asked for.
void CSelector::Answer(SResult& found, std::size_t count) const
{
    found.isTrue = count > 0;
    switch (m_Scope.answer) {
    case enPathAnswer::Nodes:
        return;
    case enPathAnswer::Numbered:
        found.isTrue = count >= m_Scope.number;
        if (found.isTrue)
            found.nodes = {found.nodes[m_Scope.number - 1]};
        else
            found.nodes.clear();
        return;
    case enPathAnswer::Last:
        found.KeepLast();
        return;
    case enPathAnswer::Count: {
        const TXmlOwner<xmlChar> text(xmlXPathCastNumberToString(static_cast<double>(count)));
        found.value = View(text.get());
        break;
    }
    case enPathAnswer::Any:
    case enPathAnswer::None:
        found.isTrue = (count > 0) == (m_Scope.answer == enPathAnswer::Any);
        found.value = found.isTrue ? "true" : "false";
        break;
    }
    found.isValue = true;
    found.nodes.clear();
}

bool CSelector::Write(std::string_view tree, const std::string& name, const SSelectionLook& look,
                      const TTextSink& sink) const
{
    if (tree.empty())
        return false;
    if (m_Needs.areNamespaces)
        return WriteFromDocument(tree, name, look, sink);
    SResult found = m_Scope.isDivisible && m_PartSize > 0 ? SearchParts(tree) : SearchWhole(tree);
    if (found.ended == enPart::TooLarge)
        found = SearchWhole(tree);
    if (found.ended != enPart::None)
        return WriteFromDocument(tree, name, look, sink);

    if (found.isValue)
        WriteLine(look.prefix, found.value, false, sink);
    for (const SFound& node : found.nodes) {
        const std::string_view text(node.begin, static_cast<std::size_t>(node.end - node.begin));
        const bool isPretty =
            look.isPretty && (node.type == XML_ELEMENT_NODE || node.type == XML_DOCUMENT_NODE);
        if (found.isWrittenTheSame)
            WriteLine(look.prefix, text, isPretty, sink);
        else
            WriteLine(look.prefix, AsWritten(text, node.type == XML_ATTRIBUTE_NODE), isPretty, sink);
    }
    return found.isTrue;
}

// For trees that aren't plain, and for expressions that look at what plain ones don't have.
bool CSelector::WriteFromDocument(std::string_view tree, const std::string& name, const SSelectionLook& look,
                                  const TTextSink& sink) const
{
    const TXmlOwner<xmlDoc> document(Uve::ReadXml(tree.data(), tree.size()));
    if (!document)
        throw CToolFailure(name + ": --xpath can't read the tree: it is not well-formed, or too large");
    // Characters beyond ASCII are printed as they are where the document says that it can hold them.
    if (document->encoding == nullptr)
        document->encoding = xmlStrdup(reinterpret_cast<const xmlChar*>("UTF-8"));
    // Numbers on the elements, without which sorting a result compares by walking the tree.
    xmlXPathOrderDocElems(document.get());

    const TXmlOwner<xmlXPathObject> result = m_Expression->Evaluate(document.get());
    if (result->type == XPATH_NODESET) {
        xmlXPathNodeSetSort(result->nodesetval);
        WriteNodes(document.get(), result->nodesetval, look, sink);
    } else {
        const TXmlOwner<xmlChar> text(xmlXPathCastToString(result.get()));
        WriteLine(look.prefix, View(text.get()), false, sink);
    }
    return xmlXPathCastToBoolean(result.get()) != 0;
}

} // namespace uvparse
