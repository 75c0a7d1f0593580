#include "Tools/uvgrammar-score/Inputs.h"

#include "Tools/Support/ToolFiles.h"
#include "UVEnvironment/UVEUnicode.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace uvscore {

namespace fs = std::filesystem;

namespace {

bool HasExtension(const fs::path& path, const std::set<std::string>& extensions)
{
    const std::string extension = path.extension().string();
    return extensions.empty() ||
           (extension.size() > 1 && extensions.count(Uve::utf8_to_lowercase(extension.substr(1))) != 0);
}

} // namespace

SInputs CollectInputs(const std::vector<std::string>& named, const std::set<std::string>& extensions)
{
    SInputs inputs;
    std::set<std::string> taken;
    for (const std::string& name : named) {
        std::error_code failed;
        if (!fs::is_directory(name, failed)) {
            if (!fs::exists(name, failed))
                throw CToolFailure(name + ": no such file or folder");
            if (taken.insert(name).second)
                inputs.files.push_back(name);
            continue;
        }
        std::vector<std::string> found;
        for (fs::recursive_directory_iterator entry(name, failed), end; !failed && entry != end;
             entry.increment(failed)) {
            std::error_code ignored;
            if (!entry->is_regular_file(ignored))
                continue;
            const std::string path = entry->path().string();
            if (!HasExtension(entry->path(), extensions))
                ++inputs.passedOver;
            else if (taken.insert(path).second)
                found.push_back(path);
        }
        if (failed)
            throw CToolFailure(name + ": " + failed.message());
        std::ranges::sort(found);
        inputs.files.insert(inputs.files.end(), found.begin(), found.end());
    }
    return inputs;
}

} // namespace uvscore
