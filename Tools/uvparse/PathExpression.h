// An XPath expression at work, and what of libxml2 takes part in that.
#pragma once

#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <memory>
#include <string>

namespace uvparse {

struct SFreeXml
{
    void operator()(xmlDoc* document) const;
    void operator()(xmlXPathContext* context) const;
    void operator()(xmlXPathCompExpr* expression) const;
    void operator()(xmlXPathObject* object) const;
    void operator()(xmlBuffer* buffer) const;
    void operator()(xmlChar* text) const;
};

template <class T>
using TXmlOwner = std::unique_ptr<T, SFreeXml>;

class CPathExpression
{
public:
    // `shown`: the expression that messages speak of, of which `text` may be a piece.
    // Throws: CToolFailure with the place in `text` at which it makes no sense.
    CPathExpression(const std::string& text, std::string shown);

    // Throws: CToolFailure.
    TXmlOwner<xmlXPathObject> Evaluate(xmlDoc* document) const;
    // For many nodes of the same document one after the other; the node is the one that `context` holds.
    TXmlOwner<xmlXPathObject> Evaluate(xmlXPathContext* context) const;

private:
    std::string m_Shown;
    TXmlOwner<xmlXPathCompExpr> m_Compiled;
};

} // namespace uvparse
