// Paths of files as URIs.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace uvparse {

// A path with whatever bytes as the path of a URI: what isn't unreserved there, other than '/', is written as
// "%" and two digits.
std::string UriPath(std::string_view path);

struct SFileUri
{
    std::string uri;
    bool isRelative = false; // to the folder
};

// Relative to `folder`, which is absolute, for a relative path that stays below it; else beginning with
// "file://".
// A path that goes up is resolved, links and all, as far as its folders exist.
SFileUri FileUriOf(const std::string& path, const std::filesystem::path& folder);

// The same for a folder, with a slash at its end.
std::string FolderUriOf(const std::filesystem::path& folder);

} // namespace uvparse
