#include "Tools/uvparse/Selection.h"

#include "Tools/uvparse/CompactTree.h"
#include "Tools/uvparse/PathExpression.h"
#include "Tools/uvparse/PlainMarkup.h"
#include "Tools/uvparse/PrettyTree.h"
#include "UVEnvironment/UVEXmlRead.h"

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
    std::vector<SFound> nodes;   // in document order
    bool isWrittenTheSame = true;
    bool isValue = false; // the expression doesn't select nodes
    std::string value;
    bool isTrue = false;
};

CSelector::CSelector(std::string expression, std::size_t partSize)
    : m_Text(std::move(expression)), m_Scope(ScopeOfPath(m_Text)), m_Needs(NeedsOfPath(m_Text)),
      m_PartSize(partSize), m_Expression(std::make_unique<CPathExpression>(m_Text, m_Text))
{
    if (m_Scope.isDivisible && !m_Scope.counted.empty())
        m_Counted = std::make_unique<CPathExpression>(m_Scope.counted, m_Text);
    // Unknown names and wrong types come out only when the expression is at work: here, before any file is
    // read.
    const TXmlOwner<xmlDoc> document(xmlNewDoc(nullptr));
    if (document)
        m_Expression->Evaluate(document.get());
}

CSelector::~CSelector() = default;

// A part size of 0 takes the tree as a whole.
CSelector::SResult CSelector::Search(std::string_view tree, std::size_t partSize) const
{
    SResult found;
    std::size_t count = 0; // of nodes that are told by their number alone
    const bool isCounting = partSize > 0 && m_Counted;
    const CPathExpression& expression = isCounting ? *m_Counted : *m_Expression;
    CCompactTree parts(tree, m_Scope, m_Needs, partSize);
    while ((found.ended = parts.Next()) == enPart::Made) {
        const TXmlOwner<xmlXPathObject> result = expression.Evaluate(parts.GetDocument());
        if (result->type != XPATH_NODESET) {
            const TXmlOwner<xmlChar> text(xmlXPathCastToString(result.get()));
            found.value = View(text.get());
            found.isTrue = xmlXPathCastToBoolean(result.get()) != 0;
            found.isValue = true;
            continue;
        }
        for (int i = 0; i < xmlXPathNodeSetGetLength(result->nodesetval); ++i) {
            const xmlNode* const node = xmlXPathNodeSetItem(result->nodesetval, i);
            if (isCounting && !parts.IsShared(node))
                ++count;
            else
                found.nodes.push_back({parts.BeginOf(node), parts.EndOf(node), node->type});
        }
    }
    if (found.ended != enPart::None)
        return found;
    found.isWrittenTheSame = parts.IsWrittenTheSame();

    // A divided element is found in each part that has something of it, and has its end in the last one
    // alone.
    const auto isBefore = [](const SFound& left, const SFound& right) {
        return left.Place() < right.Place();
    };
    const auto isSame = [](const SFound& left, const SFound& right) { return left.Place() == right.Place(); };
    if (!std::ranges::is_sorted(found.nodes, isBefore))
        std::ranges::sort(found.nodes, isBefore);
    found.nodes.erase(std::unique(found.nodes.begin(), found.nodes.end(), isSame), found.nodes.end());
    for (SFound& node : found.nodes)
        if (node.end == nullptr)
            node.end = parts.EndOfDivided(node.begin);
    if (isCounting) {
        const TXmlOwner<xmlChar> text(
            xmlXPathCastNumberToString(static_cast<double>(count + found.nodes.size())));
        found.value = View(text.get());
        found.isTrue = count + found.nodes.size() > 0;
        found.nodes.clear();
        found.isValue = true;
    } else if (!found.isValue) {
        found.isTrue = !found.nodes.empty();
    }
    return found;
}

bool CSelector::Write(std::string_view tree, const std::string& name, const SSelectionLook& look,
                      const TTextSink& sink) const
{
    if (tree.empty())
        return false;
    if (m_Needs.areNamespaces)
        return WriteFromDocument(tree, name, look, sink);
    SResult found = Search(tree, m_Scope.isDivisible ? m_PartSize : 0);
    if (found.ended == enPart::TooLarge)
        found = Search(tree, 0);
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
