#include "Preparation/Formatters/IncludeFile.h"

#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace {

bool HasNul(const std::string& text)
{
    return text.find('\0') != text.npos;
}

// What there is of the path as the file system has it, and the rest as it is written; empty if it can't be
// told.
std::filesystem::path Resolved(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    if (error)
        return {};
    std::filesystem::path resolved = std::filesystem::weakly_canonical(absolute, error);
    return error ? std::filesystem::path() : resolved;
}

} // namespace

CIncludeRoot::CIncludeRoot(const std::string& folder)
{
    if (folder.empty())
        return;
    m_Folder = HasNul(folder) ? std::filesystem::path() : Resolved(folder);
    if (!m_Folder.has_filename()) // a slash at the end is an empty last part
        m_Folder = m_Folder.parent_path();
    if (m_Folder.empty())
        m_Folder = "?"; // begins no absolute path, and so holds nothing
}

bool CIncludeRoot::Holds(const std::string& path) const
{
    if (m_Folder.empty())
        return true;
    if (HasNul(path))
        return false;
    const std::filesystem::path file = Resolved(path);
    return std::mismatch(m_Folder.begin(), m_Folder.end(), file.begin(), file.end()).first == m_Folder.end();
}

enIncludeFile ReadIncludeFile(const Uve::U8CString& path, std::size_t limit, std::string& text,
                              const CIncludeRoot& root)
{
    text.clear();
    if (HasNul(path))
        return enIncludeFile::missing;
    if (!root.Holds(path))
        return enIncludeFile::outside;
    // what isn't a regular file is never opened: a pipe would keep us waiting
    if (!Uve::File::Exists(path)) {
        std::error_code error;
        const auto status = std::filesystem::symlink_status(static_cast<const std::string&>(path), error);
        return std::filesystem::exists(status) ? enIncludeFile::unreadable : enIncludeFile::missing;
    }
    const long long size = Uve::File::GetFileSize(path);
    if (size < 0)
        return enIncludeFile::unreadable;
    if (static_cast<unsigned long long>(size) > limit)
        return enIncludeFile::tooLong;
    // files of the kernel say that they are empty, and some of them never end
    if (size == 0)
        return enIncludeFile::read;
    try {
        // the one encoding whose text doesn't end at a NUL byte
        const Uve::U8CString content = Uve::File::ReadAllText(path, Uve::File::ENCODING_SYSTEM);
        text.assign(content.data(), content.size());
    } catch (const std::runtime_error&) {
        return enIncludeFile::unreadable;
    }
    if (!HasNul(text))
        return enIncludeFile::read;
    text.clear();
    return enIncludeFile::binary;
}

std::string MissingIncludeText(enIncludeFile state, std::string_view name)
{
    std::string text;
    switch (state) {
    case enIncludeFile::outside:
        text = "include file not found below the folder of INCLUDE_ROOT: ";
        break;
    case enIncludeFile::unreadable:
    case enIncludeFile::binary:
        text = "include file that is no text: ";
        break;
    default:
        text = "include file not found: ";
    }
    return text.append(name);
}

std::string RealIncludePath(const std::string& path)
{
    if (HasNul(path))
        return path;
    std::filesystem::path resolved = Resolved(path);
    return resolved.empty() ? path : resolved.string();
}
