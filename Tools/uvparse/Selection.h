// What an XPath expression selects in a tree.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/PathNeeds.h"
#include "Tools/uvparse/PathScope.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace uvparse {

class CPathExpression;

struct SSelectionLook
{
    std::string prefix; // before each result
    bool isPretty = false;
};

class CSelector
{
public:
    // `partSize`: bytes of a tree's text, a large tree is searched in parts of this size where the expression
    // allows that.
    // Throws: CToolFailure with the place in `expression` at which it makes no sense.
    explicit CSelector(std::string expression, std::size_t partSize = std::size_t{1} << 18);
    ~CSelector();

    CSelector(const CSelector&) = delete;
    CSelector& operator=(const CSelector&) = delete;

    // Writes what is selected in `tree`, a line feed after each: nodes as XML in document order, a string, a
    // number or a boolean as it is. An empty tree has nothing to select from.
    // Returns: whether anything was found: a node, or a value that isn't an empty string, zero or false.
    // Throws:  CToolFailure; `name` is what it calls the tree.
    bool Write(std::string_view tree, const std::string& name, const SSelectionLook& look,
               const TTextSink& sink) const;

private:
    struct SFound;
    struct SResult;

    SResult SearchParts(std::string_view tree) const;
    SResult SearchWhole(std::string_view tree) const;
    bool IsEnough(SResult& found) const;
    void Answer(SResult& found, std::size_t count) const;
    bool WriteFromDocument(std::string_view tree, const std::string& name, const SSelectionLook& look,
                           const TTextSink& sink) const;

    std::string m_Text;
    SPathScope m_Scope;
    SPathNeeds m_Needs;
    std::size_t m_PartSize;
    std::unique_ptr<CPathExpression> m_Expression;
    std::unique_ptr<CPathExpression> m_Path; // of the scope, for the parts
};

} // namespace uvparse
