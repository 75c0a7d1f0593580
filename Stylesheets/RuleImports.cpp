// How rule stylesheets take in others, on their text.
#include "Interfaces/UVDBResults.h"
#include "Stylesheets/XsltLoad.h"
#include "UVEnvironment/LogSystem.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

using Uve::U8CString;

namespace {

constexpr std::string_view kStylesheetBegin = "<xslt:stylesheet";
constexpr std::size_t kMaxNameLength = 4096;
constexpr std::size_t kMaxDepth = 100;
constexpr std::size_t kMaxImports = 10000;
constexpr std::size_t kMaxTotalSize = std::size_t{1} << 30;

void RemoveAll(std::string& text, std::string_view part)
{
    std::size_t from = text.find(part);
    if (from == std::string::npos)
        return;
    std::size_t kept = from;
    while (from != std::string::npos) {
        const std::size_t begin = from + part.size();
        from = text.find(part, begin);
        const std::size_t end = std::min(from, text.size());
        std::copy(text.data() + begin, text.data() + end, text.data() + kept);
        kept += end - begin;
    }
    text.resize(kept);
}

// What a stylesheet needs as a file of its own, but not inside another one. Its opening tag stays to be read,
// as a comment.
void RemoveOuterElement(std::string& text)
{
    RemoveAll(text, "<?xml version=\"1.0\"?>");
    const std::size_t begin = text.find(kStylesheetBegin);
    const std::size_t end = begin == std::string::npos ? begin : text.find('>', begin);
    if (end != std::string::npos) {
        text.insert(end + 1, "-->");
        text.insert(begin, "<!--");
    }
    RemoveAll(text, "</xslt:stylesheet>");
}

// Whether the path climbs above its start on the way, or isn't one.
bool LeadsOut(std::string_view path)
{
    if (path.find('\0') != std::string_view::npos)
        return true;
    int depth = 0;
    while (!path.empty()) {
        const std::string_view part = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(part.size() + 1, path.size()));
        if (part == "..")
            --depth;
        else if (!part.empty() && part != ".")
            ++depth;
        if (depth < 0)
            return true;
    }
    return false;
}

} // namespace

// One stylesheet with all that it takes in. The bounds count for all of it together, since a file that takes
// in the next one twice, and so on, would otherwise double with each.
class CRuleFiles::CImports
{
public:
    CImports(const CRuleFiles& files, const U8CString& first, const U8CString& second, const U8CString& third,
             const GlobalVariablesVisitor& visitor)
        : m_Files(files), m_First(first), m_Second(second), m_Third(third), m_Visitor(visitor)
    {}

    int Resolve(std::string& text)
    {
        const int result = Resolve(text, "<xslt:import href=\"");
        return result < UVDB_OK ? result : Resolve(text, "<xslt:include href=\"");
    }

    int Resolve(std::string& text, std::string_view tag)
    {
        std::string out;
        std::size_t from = 0;
        for (;;) {
            const std::size_t begin = text.find(tag, from);
            if (begin == std::string::npos)
                break;
            const std::size_t nameBegin = begin + tag.size();
            const std::size_t nameEnd = text.find('"', nameBegin);
            if (nameEnd == std::string::npos)
                return Fail(text.substr(begin, 80), "the name has no end");

            out.append(text, from, begin - from);
            const int result = Append(out, text.substr(nameBegin, nameEnd - nameBegin));
            if (result < UVDB_OK)
                return result;

            const std::size_t lineEnd = text.find('>', nameEnd);
            if (lineEnd == std::string::npos)
                return Fail(text.substr(begin, 80), "the line has no end");
            from = lineEnd + 1;
        }
        if (from == 0)
            return UVDB_OK;
        out.append(text, from);
        text = std::move(out);
        return UVDB_OK;
    }

private:
    // Appends the stylesheet that a line names.
    int Append(std::string& out, std::string name)
    {
        if (name.size() > kMaxNameLength)
            return Fail(name.substr(0, 80), "the name is too long");
        if (!m_Files.IsCrsMode()) {
            if (name.find(".crs") != std::string::npos)
                name.insert(0, ".Precompiled/");
            if (name.find(".xslt") != std::string::npos)
                name.insert(0, ".Precompiled/");
        }
        if (LeadsOut(name))
            return Fail(name, "the name leads out of the folder");
        if (std::find(m_Open.begin(), m_Open.end(), name) != m_Open.end())
            return Fail(name, "it takes in itself");
        if (m_Open.size() >= kMaxDepth || ++m_Count > kMaxImports)
            return Fail(name, "too many imports");

        std::string loaded;
        const int result = m_Files.LoadStylesheet(loaded, name);
        if (result < UVDB_OK)
            return Fail(name, "can't be loaded");
        if (loaded.size() > kMaxTotalSize - m_TotalSize)
            return Fail(name, "more than 1 GiB in all");
        m_TotalSize += loaded.size();

        if (name.find("GlobalVariables") != std::string::npos) {
            if (m_Visitor)
                m_Visitor(name, loaded);
            try {
                loaded = ProcessGlobalVariables(loaded, m_First, m_Second, m_Third);
            } catch (const std::runtime_error& error) {
                return Fail(name, error.what());
            }
        }
        RemoveOuterElement(loaded);

        m_Open.push_back(std::move(name));
        const int resolved = Resolve(loaded);
        m_Open.pop_back();
        if (resolved < UVDB_OK)
            return resolved;
        out += loaded;
        return UVDB_OK;
    }

    static int Fail(const std::string& name, const char* reason)
    {
        CLogWrapper::WriteTraceF("\nImport of \"%s\"... FAILED: %s\n", name.c_str(), reason);
        return UVDB_ERROR;
    }

    const CRuleFiles& m_Files;
    const std::string& m_First;
    const std::string& m_Second;
    const std::string& m_Third;
    const GlobalVariablesVisitor& m_Visitor;
    std::vector<std::string> m_Open; // inside which we stand
    std::size_t m_Count = 0;
    std::size_t m_TotalSize = 0;
};

int CRuleFiles::ResolveImports(U8CString& text, const U8CString& first, const U8CString& second,
                               const U8CString& third, const GlobalVariablesVisitor& visitor) const
{
    std::string bytes = std::move(text);
    const int result = CImports(*this, first, second, third, visitor).Resolve(bytes);
    text = std::move(bytes);
    return result;
}

int CRuleFiles::ResolveImports(U8CString& text, const U8CString& tag, const U8CString& first,
                               const U8CString& second, const U8CString& third,
                               const GlobalVariablesVisitor& visitor) const
{
    std::string bytes = std::move(text);
    const int result = CImports(*this, first, second, third, visitor).Resolve(bytes, tag);
    text = std::move(bytes);
    return result;
}
