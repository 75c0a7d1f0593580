#include "Tools/uvparse/PathExpression.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/xmlerror.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <new>
#include <utility>

namespace uvparse {

namespace {

// While it lives, what libxml2 has to say comes here and not to standard error. Some of it says which name is
// unknown, some that a limit was hit and the result isn't whole.
class CXPathErrors
{
public:
    CXPathErrors()
        : m_Structured(xmlStructuredError), m_StructuredContext(xmlStructuredErrorContext),
          m_Generic(xmlGenericError), m_GenericContext(xmlGenericErrorContext)
    {
        xmlSetStructuredErrorFunc(this, &Take);
        xmlSetGenericErrorFunc(this, &TakeRemark);
    }
    CXPathErrors(const CXPathErrors&) = delete;
    CXPathErrors& operator=(const CXPathErrors&) = delete;
    ~CXPathErrors()
    {
        xmlSetStructuredErrorFunc(m_StructuredContext, m_Structured);
        xmlSetGenericErrorFunc(m_GenericContext, m_Generic);
    }

    bool HasFailed() const { return m_HasFailed; }
    std::string Text() const
    {
        return m_Remark.empty() || m_Text.empty() ? m_Text + m_Remark : m_Text + " (" + m_Remark + ')';
    }
    // In bytes into the expression.
    std::size_t Offset() const { return m_Offset; }

private:
    static void Take(void* self, xmlError* error)
    {
        auto& errors = *static_cast<CXPathErrors*>(self);
        if (error == nullptr || error->level < XML_ERR_ERROR || errors.m_HasFailed)
            return;
        errors.m_HasFailed = true;
        errors.m_Text = Trimmed(error->message == nullptr ? "" : error->message);
        errors.m_Offset = error->int1 > 0 ? static_cast<std::size_t>(error->int1) : 0;
    }

    static void TakeRemark(void* self, const char* format, ...)
    {
        char text[300];
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(text, sizeof(text), format, arguments);
        va_end(arguments);
        std::string remark = Trimmed(text);
        // The name of a function of libxml2's own says nothing to a user.
        if (remark.starts_with("xmlXPath"))
            remark.erase(0, std::min(remark.find(": "), remark.size() - 2) + 2);
        static_cast<CXPathErrors*>(self)->m_Remark = remark;
    }

    static std::string Trimmed(std::string text)
    {
        text.erase(text.find_last_not_of(" \n") + 1);
        return text;
    }

    xmlStructuredErrorFunc m_Structured;
    void* m_StructuredContext;
    xmlGenericErrorFunc m_Generic;
    void* m_GenericContext;
    std::string m_Text;
    std::string m_Remark;
    std::size_t m_Offset = 0;
    bool m_HasFailed = false;
};

TXmlOwner<xmlXPathCompExpr> Compile(const std::string& text)
{
    const TXmlOwner<xmlXPathContext> context(xmlXPathNewContext(nullptr));
    if (!context)
        throw std::bad_alloc();
    return TXmlOwner<xmlXPathCompExpr>(
        xmlXPathCtxtCompile(context.get(), reinterpret_cast<const xmlChar*>(text.c_str())));
}

} // namespace

void SFreeXml::operator()(xmlDoc* document) const
{
    xmlFreeDoc(document);
}
void SFreeXml::operator()(xmlXPathContext* context) const
{
    xmlXPathFreeContext(context);
}
void SFreeXml::operator()(xmlXPathCompExpr* expression) const
{
    xmlXPathFreeCompExpr(expression);
}
void SFreeXml::operator()(xmlXPathObject* object) const
{
    xmlXPathFreeObject(object);
}
void SFreeXml::operator()(xmlBuffer* buffer) const
{
    xmlBufferFree(buffer);
}
void SFreeXml::operator()(xmlChar* text) const
{
    Uve::FreeXml(text);
}

CPathExpression::CPathExpression(const std::string& text, std::string shown) : m_Shown(std::move(shown))
{
    CXPathErrors errors;
    if (!Compile(text))
        throw CToolFailure("--xpath '" + m_Shown + "': " + errors.Text() + " at character " +
                           std::to_string(CountCodePoints(text.substr(0, errors.Offset())) + 1));
    // libxml2 walks plain paths in a way of their own that passes over whatever lies deeper than 10000
    // elements. Brackets keep it off that way.
    m_Compiled = Compile('(' + text + ')');
    if (!m_Compiled)
        throw CToolFailure("--xpath '" + m_Shown + "': " + errors.Text());
}

TXmlOwner<xmlXPathObject> CPathExpression::Evaluate(xmlDoc* document) const
{
    const TXmlOwner<xmlXPathContext> context(xmlXPathNewContext(document));
    if (!context)
        throw std::bad_alloc();
    context->node = reinterpret_cast<xmlNode*>(document);
    return Evaluate(context.get());
}

TXmlOwner<xmlXPathObject> CPathExpression::Evaluate(xmlXPathContext* context) const
{
    CXPathErrors errors;
    TXmlOwner<xmlXPathObject> result(xmlXPathCompiledEval(m_Compiled.get(), context));
    if (!result || errors.HasFailed())
        throw CToolFailure("--xpath '" + m_Shown + "': " + errors.Text());
    return result;
}

} // namespace uvparse
