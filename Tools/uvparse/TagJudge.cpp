#include "Tools/uvparse/TagJudge.h"

#include "Tools/uvparse/PlainMarkup.h"

#include <algorithm>
#include <new>

namespace uvparse {

namespace {

constexpr std::size_t kKnown = 16384;

const xmlChar* Characters(const std::string& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

} // namespace

CTagJudge::CTagJudge(const std::string& predicates)
    : m_Expression("self::*" + predicates, predicates), m_Needs(NeedsOfPath("self::*" + predicates)),
      m_SeesName(predicates.find("name") != std::string::npos ||
                 predicates.find("self") != std::string::npos),
      m_Document(xmlNewDoc(nullptr)), m_Context(xmlXPathNewContext(m_Document.get()))
{
    if (!m_Document || !m_Context)
        throw std::bad_alloc();
}

bool CTagJudge::Sees(std::string_view attribute) const
{
    return m_Needs.areAllAttributes ||
           std::ranges::find(m_Needs.attributes, attribute) != m_Needs.attributes.end();
}

bool CTagJudge::IsTrueOf(std::string_view name,
                         const std::vector<std::pair<std::string_view, std::string_view>>& attributes)
{
    // No name and no value holds a quote. One begins what is seen, so that it never is the same as none.
    m_NextLook = '"';
    m_NextLook += m_SeesName ? name : std::string_view();
    for (const auto& [attribute, value] : attributes)
        if (Sees(attribute))
            m_NextLook.append(1, '"').append(attribute).append(1, '"').append(value);
    // Neighbours are often alike in it.
    if (m_NextLook == m_Look)
        return m_IsTrue;
    std::swap(m_Look, m_NextLook);
    if (const auto known = m_Known.find(m_Look); known != m_Known.end())
        return m_IsTrue = known->second;
    if (m_Known.size() == kKnown)
        m_Known.clear();
    m_IsTrue = Evaluate(name, attributes);
    m_Known.emplace(m_Look, m_IsTrue);
    return m_IsTrue;
}

bool CTagJudge::Evaluate(std::string_view name,
                         const std::vector<std::pair<std::string_view, std::string_view>>& attributes)
{
    xmlNode* const element =
        xmlNewDocRawNode(m_Document.get(), nullptr, Characters(std::string(name)), nullptr);
    if (element == nullptr)
        throw std::bad_alloc();
    xmlFreeNode(xmlDocSetRootElement(m_Document.get(), element));
    for (const auto& [attribute, value] : attributes) {
        std::string unescaped;
        bool isWrittenTheSame = true;
        if (Sees(attribute) && UnescapePlain(value, true, unescaped, isWrittenTheSame))
            xmlNewProp(element, Characters(std::string(attribute)), Characters(unescaped));
    }
    m_Context->node = element;
    return xmlXPathCastToBoolean(m_Expression.Evaluate(m_Context.get()).get()) != 0;
}

} // namespace uvparse
