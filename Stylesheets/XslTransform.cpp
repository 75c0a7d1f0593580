#include "Stylesheets/XslTransform.h"

#include "Stylesheets/OwnStack.h"
#include "Stylesheets/XslMessages.h"
#include "Stylesheets/XslSandbox.h"
#include "Stylesheets/XsltVariables.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEXmlRead.h"
#include "UVEnvironment/UVEXmlTree.h"

#include <libxml/hash.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxml/xpath.h>
#include <libxslt/transform.h>
#include <libxslt/variables.h>
#include <libxslt/xslt.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Uve {

namespace {

// How deep templates may nest and how many variables there may be at a time.
constexpr int kTemplateLimit = 40000;

constexpr int kGlobalVariableBuckets = 20;

struct SXmlDocDeleter
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using CXmlDocPtr = std::unique_ptr<xmlDoc, SXmlDocDeleter>;

struct STransformContextDeleter
{
    void operator()(xsltTransformContext* context) const { xsltFreeTransformContext(context); }
};
using CTransformContextPtr = std::unique_ptr<xsltTransformContext, STransformContextDeleter>;

const xmlChar* XmlText(const u8string& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

const char* PlainText(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

// The characters that XML has no place for: control characters, U+FFFE and U+FFFF.
class EscapeInvalidChars
{
public:
    static constexpr std::string_view szC0hars =
        "\x01\x02\x03\x04\x05\x06\x07\x08\x0b\x0c\x0e\x0f\x10\x11\x12\x13"
        "\x14\x15\x16\x17\x18\x19\x1a\x1b\x1c\x1d\x1e\x1f";

    static void Escape(std::string& text)
    {
        for (char& byte : text) {
            if (kIsInvalid[static_cast<unsigned char>(byte)])
                byte = '^';
        }
        EscapeNonCharacters(text);
    }

private:
    static constexpr std::array<bool, 256> MakeTable()
    {
        std::array<bool, 256> table{};
        for (const char byte : szC0hars)
            table[static_cast<unsigned char>(byte)] = true;
        return table;
    }

    // Of U+FFFE and U+FFFF nothing but the last byte differs.
    static void EscapeNonCharacters(std::string& text)
    {
        constexpr std::string_view kFront = "\xEF\xBF";
        std::size_t from = text.find(kFront);
        std::size_t kept = from;
        while (from != std::string::npos) {
            const std::size_t last = from + kFront.size();
            const bool isInvalid = last < text.size() && (text[last] == '\xBE' || text[last] == '\xBF');
            const std::size_t next = text.find(kFront, last);
            const std::size_t end = std::min(next, text.size());
            if (isInvalid) {
                text[kept++] = '^';
                from = last + 1;
            }
            kept = static_cast<std::size_t>(std::copy(text.begin() + static_cast<std::ptrdiff_t>(from),
                                                      text.begin() + static_cast<std::ptrdiff_t>(end),
                                                      text.begin() + static_cast<std::ptrdiff_t>(kept)) -
                                            text.begin());
            from = next;
        }
        if (kept != std::string::npos)
            text.resize(kept);
    }

    static const std::array<bool, 256> kIsInvalid;
};
static_assert(EscapeInvalidChars::szC0hars.size() == 28);

constexpr std::array<bool, 256> EscapeInvalidChars::kIsInvalid = EscapeInvalidChars::MakeTable();

// Why the last text couldn't be read.
std::string DescribeXmlError()
{
    const xmlError* const failure = xmlGetLastError();
    if (failure == nullptr || failure->message == nullptr)
        return "the text isn't acceptable XML\n";
    return "line " + std::to_string(failure->line) + ": " + failure->message;
}

// The copy of the text is gone when this returns.
CXmlDocPtr ReadInput(std::string_view xml, CXslMessages& messages)
{
    std::string text(xml);
    EscapeInvalidChars::Escape(text);
    xmlResetLastError();
    CXmlDocPtr document(ReadXml(text.data(), text.size()));
    if (document == nullptr)
        messages.Add("input, " + DescribeXmlError());
    return document;
}

void FreeXmlParam(const XmlDocument& value)
{
    if (value.isDocument())
        xmlFreeDoc(value.doc());
    else if (!value.isNull())
        xmlFreeNode(value.node());
}

// libxslt's handler of the moment for the length of a scope.
class CXsltHandlerScope
{
public:
    CXsltHandlerScope(void* context, xmlGenericErrorFunc handler)
        : m_EarlierHandler(XsltErrorHandler()), m_EarlierContext(XsltErrorContext())
    {
        xsltSetGenericErrorFunc(context, handler);
    }
    ~CXsltHandlerScope() { xsltSetGenericErrorFunc(m_EarlierContext, m_EarlierHandler); }
    CXsltHandlerScope(const CXsltHandlerScope&) = delete;
    CXsltHandlerScope& operator=(const CXsltHandlerScope&) = delete;

private:
    xmlGenericErrorFunc m_EarlierHandler;
    void* m_EarlierContext;
};

// Makes `node` the value of a global parameter, ahead of the default that the stylesheet has for it.
void AddXmlParam(xsltTransformContext* context, const xmlChar* name, const xmlChar* uri, xmlNode* node)
{
    const auto report = [&](const char* format) {
        xsltTransformError(context, nullptr, nullptr, format, PlainText(name));
    };
    constexpr const char* kDefinedTwice = "Global parameter %s already defined\n";
    if (xmlHashLookup2(context->globalVars, name, uri) != nullptr) {
        report(kDefinedTwice);
        return;
    }
    // libxslt frees it with the table, by its own allocator.
    auto* const element = static_cast<xsltStackElem*>(AllocateXml(sizeof(xsltStackElem)));
    if (element == nullptr) {
        report("xsltNewStackElem : malloc failed\n");
        return;
    }
    *element = {};
    element->computed = 1;
    element->name = name;
    element->nameURI = uri;
    element->value = xmlXPathNewNodeSet(node);
    if (xmlHashAddEntry2(context->globalVars, name, uri, element) != 0) {
        xmlXPathFreeObject(element->value);
        FreeXml(element);
        report(kDefinedTwice);
    }
}

void Trace(const std::string& messages)
{
    if (messages.empty())
        return;
    const std::size_t end = messages.find_last_not_of('\n') + 1;
    CLogWrapper::WriteTraceF("\nXslTransform: %.*s", static_cast<int>(end), messages.c_str());
}

// Runs `work` with handlers and permissions as every use of libxslt here needs them, and traces what was
// reported.
// Returns: false if there was no memory for it and it didn't run.
template <class Work>
bool RunConfined(Work&& work)
{
    std::string reported;
    bool hasRun = false;
    {
        const CXslSandbox sandbox;
        CXslMessages messages;
        hasRun = sandbox.IsClosed() && CallOnOwnStack([&] { work(sandbox, messages); });
        if (!hasRun)
            messages.Add("no memory for a stack of its own\n");
        reported = messages.Text();
    }
    // The log is the host's code: it runs without locks, on the host's stack.
    Trace(reported);
    return hasRun;
}

} // namespace

XslTransform::XslTransform(const u8string& stylesheet) : XslTransform(stylesheet.data(), stylesheet.bytes())
{}

XslTransform::XslTransform(const char* buffer, std::size_t size)
{
    Compile(buffer, size);
}

XslTransform::~XslTransform()
{
    const auto release = [this] {
        resetParams();
        if (m_Stylesheet != nullptr)
            xsltFreeStylesheet(m_Stylesheet);
        else if (m_StyleDoc != nullptr)
            xmlFreeDoc(m_StyleDoc);
    };
    // Both libraries free without recursing; the own stack is for versions that don't.
    if (!CallOnOwnStack(release))
        release();
}

void XslTransform::error(const u8string& text)
{
    m_HasError = true;
    m_ErrorText = text;
}

// C code calls this: nothing may be thrown through it.
void XslTransform::funcGenericError(void* context, const char* format, ...)
{
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    const int length = vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (context == nullptr || length < 0)
        return;
    try {
        static_cast<XslTransform*>(context)->error(text);
    } catch (...) {
        static_cast<XslTransform*>(context)->m_HasError = true;
    }
}

void XslTransform::Compile(const char* buffer, std::size_t size)
{
    const bool hasRun = RunConfined([&](const CXslSandbox&, CXslMessages&) {
        const CXsltHandlerScope handler(this, &XslTransform::funcGenericError);
        ReadAndCompile(buffer, size);
    });
    if (m_Stylesheet == nullptr && m_ErrorText.empty())
        error(hasRun ? "the stylesheet can't be compiled" : "no memory for a stack of its own");
}

void XslTransform::ReadAndCompile(const char* buffer, std::size_t size)
{
    xmlResetLastError();
    m_StyleDoc = ReadXml(buffer, size);
    if (m_StyleDoc == nullptr)
        error(DescribeXmlError());
    else if (IsTreeDeeperThan(m_StyleDoc, kOwnStackTreeDepth))
        error("the stylesheet nests too deep");
    else if (HasExternalEntities(m_StyleDoc))
        error("the stylesheet needs external entities");
    else
        m_Stylesheet = xsltParseStylesheetDoc(m_StyleDoc);
}

void XslTransform::addParam(const u8string& name, const u8string& expression)
{
    m_Params.insert_or_assign(name, expression);
}

void XslTransform::addParamXML(const u8string& name, const u8string& xml)
{
    CXmlDocPtr document(XmlDocument::createDocumentXml(xml).doc());
    if (document == nullptr || HasExternalEntities(document.get()) ||
        IsTreeDeeperThan(document.get(), kOwnStackTreeDepth))
        return;
    XmlDocument& entry = m_XmlParams[name];
    FreeXmlParam(entry);
    entry = XmlDocument(document.release());
}

void XslTransform::resetParams()
{
    for (auto& [name, value] : m_XmlParams)
        FreeXmlParam(value);
    m_XmlParams.clear();
    m_Params.clear();
}

xmlDoc* XslTransform::apply(const u8string& xml)
{
    return apply(xml.data(), xml.bytes());
}

xmlDoc* XslTransform::apply(const char* xml, std::size_t size)
{
    if (m_Stylesheet == nullptr || xml == nullptr || size == 0)
        return nullptr;
    CXmlDocPtr result;
    const bool hasRun = RunConfined([&](const CXslSandbox& sandbox, CXslMessages& messages) {
        const CXmlDocPtr document = ReadInput({xml, size}, messages);
        if (document != nullptr)
            result.reset(Transform(document.get(), true, sandbox, messages));
    });
    return hasRun ? result.release() : nullptr;
}

xmlDoc* XslTransform::apply(const XmlDocument& document)
{
    if (m_Stylesheet == nullptr || document.doc() == nullptr)
        return nullptr;
    CXmlDocPtr result;
    const bool hasRun = RunConfined([&](const CXslSandbox& sandbox, CXslMessages& messages) {
        result.reset(Transform(document.doc(), false, sandbox, messages));
    });
    return hasRun ? result.release() : nullptr;
}

xmlDoc* XslTransform::Transform(xmlDoc* document, bool isFull, const CXslSandbox& sandbox,
                                CXslMessages& messages) const
{
    if (IsTreeDeeperThan(document, kOwnStackTreeDepth)) {
        messages.Add("the input nests too deep\n");
        return nullptr;
    }
    if (HasExternalEntities(document)) {
        messages.Add("the input needs external entities\n");
        return nullptr;
    }
    const CTransformContextPtr context(xsltNewTransformContext(m_Stylesheet, document));
    if (context == nullptr || !sandbox.Confine(context.get())) {
        messages.Add("no memory for a transform\n");
        return nullptr;
    }
    messages.Catch(context.get());
    context->opLimit = m_OperationLimit;
    context->xpathCtxt->opLimit = m_OperationLimit;
    if (isFull) {
        if (context->globalVars == nullptr)
            context->globalVars = xmlHashCreate(kGlobalVariableBuckets);
        context->maxTemplateDepth = kTemplateLimit;
        context->maxTemplateVars = kTemplateLimit;
        for (const auto& [name, expression] : m_Params)
            xsltEvalOneUserParam(context.get(), XmlText(name), XmlText(expression));
        // What these report has a consequence of its own, and the transform goes on.
        const xsltTransformState state = context->state;
        AddXmlParams(context.get());
        context->state = state;
    }
    CXmlDocPtr result(
        xsltApplyStylesheetUser(m_Stylesheet, document, nullptr, nullptr, nullptr, context.get()));
    // After an error libxslt may go on and give what it has; the caller couldn't tell that from a result.
    if (context->state != XSLT_STATE_OK)
        return nullptr;
    return result.release();
}

void XslTransform::AddXmlParams(xsltTransformContext* context) const
{
    const xmlNode* const root = xmlDocGetRootElement(m_Stylesheet->doc);
    for (const auto& [name, value] : m_XmlParams) {
        if (value.isNull())
            continue;
        const xmlChar* prefix = nullptr;
        const xmlChar* const localName = xsltSplitQName(context->dict, XmlText(name), &prefix);
        const xmlChar* uri = nullptr;
        if (prefix != nullptr) {
            const xmlNs* const binding = xmlSearchNs(m_Stylesheet->doc, const_cast<xmlNode*>(root), prefix);
            if (binding != nullptr)
                uri = xmlDictLookup(context->dict, binding->href, -1);
            else
                xsltTransformError(context, nullptr, nullptr,
                                   "user param : no namespace bound to prefix %s\n", PlainText(prefix));
        }
        AddXmlParam(context, localName, uri, value.node());
    }
}

} // namespace Uve
