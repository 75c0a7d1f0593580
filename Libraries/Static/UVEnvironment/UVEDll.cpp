#include "UVEnvironment/UVEDll.h"

#include "UVEnvironment/FileHelper.h"

#include <filesystem>
#include <system_error>

namespace Uve::DLL::Detail {

std::shared_ptr<boost::dll::shared_library> LoadLibrary(const std::string& libraryName)
{
    constexpr auto kMode = boost::dll::load_mode::search_system_folders;
    auto library = std::make_shared<boost::dll::shared_library>();
    boost::dll::fs::error_code error;
    library->load(libraryName, error, kMode);
    if (library->is_loaded())
        return library;

    if (libraryName.find('/') == std::string::npos) {
        const std::filesystem::path beside = std::filesystem::path(GetPathOfExe().c_str()) / libraryName;
        std::error_code missing;
        if (std::filesystem::is_regular_file(beside, missing)) {
            library->load(beside, kMode);
            return library;
        }
    }
    // Once more, for the exception with the loader's own words.
    library->load(libraryName, kMode);
    return library;
}

} // namespace Uve::DLL::Detail
