#include "Stylesheets/XslMessages.h"

#include "Stylesheets/XsltVariables.h"

#include <libxml/xmlerror.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <cstdarg>
#include <cstddef>
#include <cstdio>

namespace Uve {

namespace {

constexpr std::size_t kLongestMessage = 4096;
constexpr std::size_t kKeptAtFront = std::size_t{16} << 10;
constexpr std::size_t kKeptAtBack = std::size_t{16} << 10;
constexpr std::string_view kLeftOut = "\n...\n";

// Both libraries keep their default handlers to themselves, but install them where none is given.
xmlGenericErrorFunc DefaultXsltHandler()
{
    static const xmlGenericErrorFunc handler = [] {
        const xmlGenericErrorFunc current = XsltErrorHandler();
        void* const currentContext = XsltErrorContext();
        xsltSetGenericErrorFunc(nullptr, nullptr);
        const xmlGenericErrorFunc standard = XsltErrorHandler();
        xsltSetGenericErrorFunc(currentContext, current);
        return standard;
    }();
    return handler;
}

xmlGenericErrorFunc DefaultXmlHandler()
{
    static const xmlGenericErrorFunc handler = [] {
        const xmlGenericErrorFunc current = xmlGenericError;
        void* const currentContext = xmlGenericErrorContext;
        xmlSetGenericErrorFunc(nullptr, nullptr);
        const xmlGenericErrorFunc standard = xmlGenericError;
        xmlSetGenericErrorFunc(currentContext, current);
        return standard;
    }();
    return handler;
}

// The default handlers take null for the standard error, and write that into it at their first use.
bool IsDefaultContext(const void* context)
{
    return context == nullptr || context == stderr;
}

__attribute__((format(printf, 1, 0))) std::string Format(const char* format, va_list arguments)
{
    char text[kLongestMessage];
    if (vsnprintf(text, sizeof text, format, arguments) < 0)
        return {};
    return text;
}

} // namespace

CXslMessages::CXslMessages() : m_Thread(std::this_thread::get_id())
{
    m_CatchesXslt = XsltErrorHandler() == DefaultXsltHandler() && IsDefaultContext(XsltErrorContext());
    if (m_CatchesXslt)
        xsltSetGenericErrorFunc(this, &CXslMessages::Receive);
    m_CatchesXml = xmlStructuredError == nullptr && xmlGenericError == DefaultXmlHandler() &&
                   IsDefaultContext(xmlGenericErrorContext);
    if (m_CatchesXml)
        xmlSetGenericErrorFunc(this, &CXslMessages::Receive);
}

CXslMessages::~CXslMessages()
{
    if (m_CatchesXml)
        xmlSetGenericErrorFunc(nullptr, nullptr);
    if (m_CatchesXslt)
        xsltSetGenericErrorFunc(nullptr, nullptr);
}

void CXslMessages::Catch(_xsltTransformContext* context)
{
    if (m_CatchesXslt)
        xsltSetTransformErrorFunc(context, this, &CXslMessages::Receive);
}

void CXslMessages::Add(std::string_view text)
{
    m_Text += text;
    if (m_Text.size() > 2 * (kKeptAtFront + kKeptAtBack))
        m_Text.replace(kKeptAtFront, m_Text.size() - kKeptAtFront - kKeptAtBack, kLeftOut);
}

// C code calls this: nothing may be thrown through it.
void CXslMessages::Receive(void* context, const char* format, ...)
{
    auto& messages = *static_cast<CXslMessages*>(context);
    va_list arguments;
    va_start(arguments, format);
    try {
        const std::string text = Format(format, arguments);
        // libxslt's handler is one for all threads: what another one of the host reports goes where it went
        // before.
        if (messages.m_Thread == std::this_thread::get_id())
            messages.Add(text);
        else
            fputs(text.c_str(), stderr);
    } catch (...) {
        // Without memory for the message there is none.
    }
    va_end(arguments);
}

} // namespace Uve
