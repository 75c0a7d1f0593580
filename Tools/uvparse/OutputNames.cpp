#include "Tools/uvparse/OutputNames.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>

namespace uvparse {

namespace {

namespace fs = std::filesystem;

// The parts of an absolute path that is the same for every way to write it.
std::vector<fs::path> PartsOf(const std::string& file)
{
    const fs::path normal = fs::absolute(file).lexically_normal();
    return {normal.begin(), normal.end()};
}

} // namespace

COutputNames::COutputNames(const std::vector<std::string>& files)
{
    std::map<std::string, std::set<std::string>> byName;
    for (const std::string& file : files)
        byName[fs::path(file).filename().string()].insert(file);
    for (const auto& [name, sameNamed] : byName) {
        // how many parts all of them begin with; none of them is the file's own name
        const std::vector<fs::path> first = PartsOf(*sameNamed.begin());
        std::size_t common = first.size() - 1;
        for (const std::string& file : sameNamed) {
            const std::vector<fs::path> parts = PartsOf(file);
            const auto end = std::mismatch(first.begin(), first.end(), parts.begin(), parts.end()).first;
            common = std::min(common, static_cast<std::size_t>(end - first.begin()));
        }
        for (const std::string& file : sameNamed) {
            const std::vector<fs::path> parts = PartsOf(file);
            fs::path shown;
            for (std::size_t part = std::min(common, parts.size() - 1); part < parts.size(); ++part)
                shown /= parts[part];
            m_Names[file] = sameNamed.size() > 1 ? shown.string() : name;
        }
    }
}

} // namespace uvparse
