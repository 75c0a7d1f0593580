// The divided elements of a tree as a document of their own, each with all of the text that is in it.
#pragma once

#include "Tools/uvparse/CompactTree.h"
#include "Tools/uvparse/PathExpression.h"

#include <string>

namespace uvparse {

class CDividedElements
{
public:
    // The part at hand, of each in turn.
    void Add(const CCompactTree& parts);

    bool IsEmpty() const { return !m_Document; }
    // Places of its nodes are found as those of a part are.
    xmlDoc* GetDocument();

private:
    void AddContents(const CCompactTree& parts, const xmlNode* from, xmlNode* to);
    void AddText(xmlNode* to);
    xmlNode* AddElement(const CCompactTree& parts, const xmlNode* element, xmlNode* to);

    TXmlOwner<xmlDoc> m_Document;
    std::string m_Text; // read, and not in a node yet
};

} // namespace uvparse
