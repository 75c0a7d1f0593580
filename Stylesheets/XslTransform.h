// One compiled stylesheet with its parameters: turns XML text into a result document.
//
// Over a plain call of libxslt it sets the limits of 40000 for templates and variables, turns what
// XML has no place for in the input (control characters, U+FFFE, U+FFFF) into "^", and passes whole XML
// documents as global parameters. It works on a stack of its own, so that those limits and not the caller's
// stack end a recursion. Stylesheets read no files but those of the rule folders beside the host's
// executable, write none, and reach no network.
//
// One object serves one thread. Compiling and applying change handlers of libxslt that the whole process
// shares, and put them back; all objects of the process therefore work one after another.
//
// Where the host has set no handlers of its own in libxslt and libxml2, what these report goes to the trace,
// in one record for each compiling and applying that reported something. Handlers of the host get it
// otherwise.
#pragma once

#include "UVEnvironment/UVEU8String.h"
#include "UVEnvironment/UVEXml.h"

#include <concepts>
#include <cstddef>
#include <map>
#include <string_view>

struct _xmlDoc;
struct _xsltStylesheet;
struct _xsltTransformContext;

namespace Uve {

class CXslMessages;
class CXslSandbox;

class XslTransform
{
public:
    // Compile. A stylesheet that can't be read or compiled leaves an object whose every apply gives null; the
    // reason stands in GetErrorText.
    explicit XslTransform(const u8string& stylesheet);
    XslTransform(const char* buffer, std::size_t size);
    ~XslTransform();
    XslTransform(const XslTransform&) = delete;
    XslTransform& operator=(const XslTransform&) = delete;

    // Transforms UTF-8 text. The text is copied once, the copy is gone before the transforming starts.
    // Returns: the result; null for an empty text, one that isn't XML, and every transform that failed: one
    //          that recursed too deep, was refused something, ended itself, or reported any other error.
    // Owner:   the caller, xmlFreeDoc. Copying or printing it may recurse: CallOnOwnStack is the place.
    [[nodiscard]] _xmlDoc* apply(const u8string& xml);
    [[nodiscard]] _xmlDoc* apply(const char* xml, std::size_t size);
    template <class Text>
    requires std::convertible_to<const Text&, std::string_view>
    [[nodiscard]] _xmlDoc* apply(const Text& xml)
    {
        const std::string_view bytes = xml;
        return apply(bytes.data(), bytes.size());
    }

    // The plain form: the document as it is, no parameters, libxslt's own limits.
    // Returns: as above; null for a null document.
    [[nodiscard]] _xmlDoc* apply(const XmlDocument& document);

    // Stores or replaces a parameter. `expression` is XPath, evaluated without a context node: a caller that
    // means a string quotes it. An expression that doesn't compile or evaluate fails the next apply.
    void addParam(const u8string& name, const u8string& expression);

    // Stores or replaces a parameter whose value is the node set with the document made from `xml`. A text
    // that doesn't parse, or needs other files, changes nothing. `name` may have a prefix that the
    // stylesheet's root element binds.
    void addParamXML(const u8string& name, const u8string& xml);

    void resetParams();

    // A transform that does more instructions, or more steps of XPath, fails and says so.
    void setOperationLimit(unsigned long limit) { m_OperationLimit = limit; }

    // Sets the error; the last one wins.
    void error(const u8string& text);

    bool HasError() const { return m_HasError; }
    const u8string& GetErrorText() const { return m_ErrorText; }

private:
    static void funcGenericError(void* context, const char* format, ...)
        __attribute__((format(printf, 2, 3)));

    void Compile(const char* buffer, std::size_t size);
    void ReadAndCompile(const char* buffer, std::size_t size);
    // Both on the own stack. Not `isFull` leaves out limits and parameters.
    _xmlDoc* Transform(_xmlDoc* document, bool isFull, const CXslSandbox& sandbox,
                       CXslMessages& messages) const;
    void AddXmlParams(_xsltTransformContext* context) const;

    _xmlDoc* m_StyleDoc = nullptr;
    _xsltStylesheet* m_Stylesheet = nullptr; // once it is there, m_StyleDoc belongs to it
    std::map<u8string, u8string> m_Params;
    std::map<u8string, XmlDocument> m_XmlParams;    // owns the documents
    unsigned long m_OperationLimit = 2'000'000'000; // flattening a tree of 250 MB stays below
    bool m_HasError = false;
    u8string m_ErrorText;
};

} // namespace Uve
