// What stylesheets are allowed: reading XML files of the rule folders, and nothing else.
#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

struct _xmlDoc;
struct _xsltTransformContext;

namespace Uve {

// The canonical path of the file that `uri` (a path or a file URI) names, if it is a regular file below one
// of the rule folders, links resolved.
std::optional<std::string> FindRuleFile(const char* uri);

// True if the document declares entities whose text lies in other files. Nobody loads these, so what is there
// of the document isn't all of it.
bool HasExternalEntities(const _xmlDoc* document);

// True if an element of the tree has more than `limit` ancestors.
bool IsTreeDeeperThan(const _xmlDoc* document, std::size_t limit);

// Confines libxslt for its own lifetime, on this thread and wherever it looks at settings of the whole
// process; they are put back at the end. Whoever wants a second sandbox waits, unless it is the same thread.
class CXslSandbox
{
public:
    CXslSandbox();
    ~CXslSandbox();
    CXslSandbox(const CXslSandbox&) = delete;
    CXslSandbox& operator=(const CXslSandbox&) = delete;

    // False if memory for the settings ran out; nothing is confined then.
    bool IsClosed() const { return m_Earlier != nullptr; }

    // The settings of one transform.
    // Returns: false if they couldn't be made.
    [[nodiscard]] bool Confine(_xsltTransformContext* context) const;

private:
    struct SEarlier;

    std::unique_lock<std::recursive_mutex> m_Lock;
    std::unique_ptr<SEarlier> m_Earlier; // what the process had set; null: nothing is confined
};

} // namespace Uve
