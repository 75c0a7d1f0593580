#include "Preparation/Formatters/IncludeFile.h"

#include "UVEnvironment/FileHelper.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

enIncludeFile ReadIncludeFile(const Uve::U8CString& path, std::size_t limit, std::string& text)
{
    text.clear();
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
    try {
        // the one encoding whose text doesn't end at a NUL byte
        const Uve::U8CString content = Uve::File::ReadAllText(path, Uve::File::ENCODING_SYSTEM);
        text.assign(content.data(), content.size());
        return enIncludeFile::read;
    } catch (const std::runtime_error&) {
        return enIncludeFile::unreadable;
    }
}
