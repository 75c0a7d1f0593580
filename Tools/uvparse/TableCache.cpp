#include "Tools/uvparse/TableCache.h"

#include <cstdlib>
#include <string>

namespace uvparse {

namespace {

constexpr const char* kVariable = "UVPARSER_CACHE";

// An absolute path from the environment, else an empty text.
std::string FolderIn(const char* variable)
{
    const char* const folder = std::getenv(variable);
    return folder != nullptr && *folder == '/' ? folder : "";
}

} // namespace

void ChooseTableCache(bool isWanted)
{
    if (!isWanted) {
        unsetenv(kVariable);
        return;
    }
    std::string caches = FolderIn("XDG_CACHE_HOME");
    if (caches.empty())
        if (const std::string home = FolderIn("HOME"); !home.empty())
            caches = home + "/.cache";
    if (!caches.empty())
        setenv(kVariable, (caches + "/uvparser").c_str(), 0);
}

} // namespace uvparse
