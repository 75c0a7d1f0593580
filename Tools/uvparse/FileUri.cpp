#include "Tools/uvparse/FileUri.h"

#include <algorithm>
#include <system_error>

namespace fs = std::filesystem;

namespace uvparse {

namespace {

constexpr std::string_view kUnreserved =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";

bool GoesUp(const fs::path& path)
{
    return std::ranges::find(path, fs::path("..")) != path.end();
}

fs::path Resolved(const fs::path& path)
{
    std::error_code failed;
    const fs::path resolved = fs::weakly_canonical(path, failed);
    return failed ? path.lexically_normal() : resolved;
}

} // namespace

std::string UriPath(std::string_view path)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string uri;
    for (const char c : path) {
        if (kUnreserved.find(c) != std::string_view::npos) {
            uri += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        uri.append(1, '%').append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 0xF]);
    }
    return uri;
}

SFileUri FileUriOf(const std::string& path, const fs::path& folder)
{
    const fs::path given(path);
    if (!GoesUp(given)) {
        const fs::path normal = given.lexically_normal();
        return given.is_absolute() ? SFileUri{"file://" + UriPath(normal.string()), false}
                                   : SFileUri{UriPath(normal.string()), true};
    }
    const fs::path resolved = Resolved(folder / given);
    const fs::path below = resolved.lexically_relative(Resolved(folder));
    if (given.is_relative() && !below.empty() && !GoesUp(below))
        return {UriPath(below.string()), true};
    return {"file://" + UriPath(resolved.string()), false};
}

std::string FolderUriOf(const fs::path& folder)
{
    std::string uri = "file://" + UriPath(folder.string());
    return uri.ends_with('/') ? uri : uri + '/';
}

} // namespace uvparse
