#include "Preparation/MacroHeaders.h"

#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>

namespace MacroPreprocessorChecker::internal {

namespace {

// Shared by all runs of the process.
class CMissingFiles
{
public:
    bool Has(const std::string& path)
    {
        const std::lock_guard lock(m_Mutex);
        return m_Paths.contains(path);
    }
    void Add(const std::string& path)
    {
        const std::lock_guard lock(m_Mutex);
        m_Paths.insert(path);
    }

private:
    std::mutex m_Mutex;
    std::set<std::string> m_Paths;
};

// From a path to the path as the file system spells it.
class RealFileNameMap
{
public:
    std::optional<std::string> Find(const std::string& path)
    {
        const std::lock_guard lock(m_Mutex);
        const auto at = m_Names.find(path);
        return at == m_Names.end() ? std::nullopt : std::optional(at->second);
    }
    void Add(const std::string& path, const std::string& real)
    {
        const std::lock_guard lock(m_Mutex);
        m_Names.try_emplace(path, real);
    }

private:
    std::mutex m_Mutex;
    std::map<std::string, std::string> m_Names;
};

CMissingFiles nonExistingFilesCache;
RealFileNameMap realFilePathMap; // whole paths
RealFileNameMap realFileNameMap; // directories

bool IsSlash(char c)
{
    return c == '/' || c == '\\';
}

bool IsAbsolute(std::string_view path)
{
    if (path.empty())
        return false;
    return IsSlash(path[0]) || (path.size() > 2 && path[1] == ':' && IsSlash(path[2]));
}

// Nothing that isn't there, or can't be spelled, is remembered.
std::optional<std::string> Spell(RealFileNameMap& known, const std::string& path)
{
    if (auto real = known.Find(path))
        return real;
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path.empty() ? "." : path, error);
    if (error)
        return std::nullopt;
    known.Add(path, real.string());
    return real.string();
}

} // namespace

std::string simplifyPath(const std::string& path)
{
    if (path.find_first_of("*?") != path.npos)
        return path;
    std::vector<std::string_view> parts;
    const std::string_view text = path;
    const std::size_t root =
        text.find_first_not_of('/') == text.npos ? text.size() : text.find_first_not_of('/');
    for (std::size_t from = root; from < text.size();) {
        const std::size_t end = std::min(text.find('/', from), text.size());
        const std::string_view part = text.substr(from, end - from);
        from = end + 1;
        if (part.empty() || (part == "." && end < text.size()))
            continue;
        if (part == ".." && !parts.empty() && parts.back() != "..")
            parts.pop_back();
        else if (part != ".." || root == 0)
            parts.push_back(part);
    }
    // two slashes in front name a host on some systems; more are one
    std::string simple(root == 2 ? 2 : (root > 0 ? 1 : 0), '/');
    for (const std::string_view part : parts) {
        if (!simple.empty() && simple.back() != '/')
            simple += '/';
        simple += part;
    }
    return simple;
}

std::vector<std::string> HeaderPlaces(const std::list<std::string>& includePaths,
                                      const std::string& sourceFile, const std::string& header, bool isSystem)
{
    if (header.empty())
        return {};
    if (IsAbsolute(header))
        return {simplifyPath(header)};
    std::vector<std::string> places;
    if (!isSystem) {
        const std::size_t slash = sourceFile.find_last_of("\\/");
        places.push_back(
            simplifyPath(slash == sourceFile.npos ? header : sourceFile.substr(0, slash + 1) + header));
    }
    for (const std::string& path : includePaths) {
        const bool wantsSlash = !path.empty() && !IsSlash(path.back());
        places.push_back(simplifyPath(std::string(path).append(wantsSlash ? "/" : "").append(header)));
    }
    return places;
}

bool OpenHeader(std::ifstream& stream, const std::string& simplePath)
{
    if (nonExistingFilesCache.Has(simplePath))
        return false;
    // a directory opens, a pipe waits and a device never ends
    std::error_code error;
    if (simplePath.find('\0') == simplePath.npos && std::filesystem::is_regular_file(simplePath, error) &&
        !error) {
        stream.open(simplePath, std::ios::binary);
        if (stream.is_open())
            return true;
        stream.clear();
    }
    nonExistingFilesCache.Add(simplePath);
    return false;
}

std::string realFilename(const std::string& path)
{
    if (auto known = realFilePathMap.Find(path))
        return *known;
    const std::size_t slash = path.find_last_of('/');
    const std::size_t name = slash == path.npos ? 0 : slash + 1;
    // directories repeat from header to header
    const auto directory = Spell(realFileNameMap, path.substr(0, name));
    if (!directory)
        return path;
    return Spell(realFilePathMap, *directory + '/' + path.substr(name)).value_or(path);
}

} // namespace MacroPreprocessorChecker::internal
