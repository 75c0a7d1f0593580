// Whether predicates are true of an element, as far as they look at its name and attributes alone.
#pragma once

#include "Tools/uvparse/PathExpression.h"
#include "Tools/uvparse/PathNeeds.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace uvparse {

class CTagJudge
{
public:
    // `predicates`: in their brackets, of an expression that was compiled before.
    explicit CTagJudge(const std::string& predicates);

    // `attributes`: names and values, as they stand in a plain tree.
    bool IsTrueOf(std::string_view name,
                  const std::vector<std::pair<std::string_view, std::string_view>>& attributes);

private:
    bool Evaluate(std::string_view name,
                  const std::vector<std::pair<std::string_view, std::string_view>>& attributes);
    bool Sees(std::string_view attribute) const;

    CPathExpression m_Expression;
    SPathNeeds m_Needs;
    bool m_SeesName;
    TXmlOwner<xmlDoc> m_Document;
    TXmlOwner<xmlXPathContext> m_Context;
    std::unordered_map<std::string, bool> m_Known; // by what the predicates see
    bool m_IsTrue = false;                         // of m_Look
    std::string m_Look;
    std::string m_NextLook;
};

} // namespace uvparse
