// What libxslt and libxml2 report while a stylesheet is compiled or applied, for the trace.
#pragma once

#include <string>
#include <string_view>
#include <thread>

struct _xsltTransformContext;

namespace Uve {

// Catches the messages of this thread for its own lifetime, but only those that nobody else wants: where the
// host has set a handler of its own, that one stays. Their own default handlers print, which a library
// mustn't.
//
// Handlers are the whole process's or thread's; one object at a time.
class CXslMessages
{
public:
    CXslMessages();
    ~CXslMessages();
    CXslMessages(const CXslMessages&) = delete;
    CXslMessages& operator=(const CXslMessages&) = delete;

    // For the transform of `context`, which must end before this object does.
    void Catch(_xsltTransformContext* context);

    void Add(std::string_view text);

    // Of a long text the beginning and the end: a stylesheet may print without end, and what made it fail
    // comes last.
    const std::string& Text() const { return m_Text; }

private:
    static void Receive(void* context, const char* format, ...) __attribute__((format(printf, 2, 3)));

    std::string m_Text;
    std::thread::id m_Thread;
    bool m_CatchesXslt = false;
    bool m_CatchesXml = false;
};

} // namespace Uve
