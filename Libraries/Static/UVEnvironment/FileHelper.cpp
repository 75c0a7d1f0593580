#include "UVEnvironment/FileHelper.h"

#include "UVEnvironment/UVECompat.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

// Bytes as they stand: a road over wide characters would lose names that aren't UTF-8.
fs::path ToPath(const Uve::U8CString& path)
{
    return fs::path(static_cast<const std::string&>(path));
}

Uve::U8CString FromPath(const fs::path& path)
{
    return Uve::U8CString(path.native());
}

int UsualMarkLength(Uve::File::Encoding encoding)
{
    switch (encoding) {
    case Uve::File::ENCODING_UTF8:
        return 3;
    case Uve::File::ENCODING_UTF16LE:
    case Uve::File::ENCODING_UTF16BE:
        return 2;
    case Uve::File::ENCODING_UTF32LE:
    case Uve::File::ENCODING_UTF32BE:
        return 4;
    default:
        return 0;
    }
}

Uve::U8CString ToUtf8(const std::string& bytes, Uve::File::Encoding encoding)
{
    namespace UTF8 = Uve::Encoding::UTF8;
    switch (encoding) {
    case Uve::File::ENCODING_SYSTEM:
        return UTF8::FromSystem(bytes.data(), bytes.size());
    case Uve::File::ENCODING_AUTO:
    case Uve::File::ENCODING_UTF8:
        return Uve::U8CString(bytes.c_str());
    case Uve::File::ENCODING_UTF16LE:
        return UTF8::FromUTF16LE(bytes.data(), bytes.size());
    case Uve::File::ENCODING_UTF16BE:
        return UTF8::FromUTF16BE(bytes.data(), bytes.size());
    case Uve::File::ENCODING_UTF32LE:
        return UTF8::FromUTF32LE(bytes.data(), bytes.size());
    case Uve::File::ENCODING_UTF32BE:
        return UTF8::FromUTF32BE(bytes.data(), bytes.size());
    }
    throw std::runtime_error("Unable to detect file encoding.");
}

// `*` stands for any text, `?` for one byte of a character's bytes. On a mismatch the last `*` takes one byte
// more: no recursion, at most name times mask steps.
bool MatchesMask(std::string_view name, std::string_view mask)
{
    std::size_t nameAt = 0;
    std::size_t maskAt = 0;
    std::size_t starAt = std::string_view::npos;
    std::size_t starTook = 0;
    const auto skipCharacter = [&](std::size_t at) {
        ++at;
        while (at < name.size() && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80)
            ++at;
        return at;
    };
    while (nameAt < name.size()) {
        if (maskAt < mask.size() && mask[maskAt] == '*') {
            starAt = maskAt++;
            starTook = nameAt;
        } else if (maskAt < mask.size() && mask[maskAt] == '?') {
            nameAt = skipCharacter(nameAt);
            ++maskAt;
        } else if (maskAt < mask.size() && mask[maskAt] == name[nameAt]) {
            ++nameAt;
            ++maskAt;
        } else if (starAt != std::string_view::npos) {
            maskAt = starAt + 1;
            nameAt = ++starTook;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of('*', maskAt) == std::string_view::npos;
}

} // namespace

namespace Uve::Path {

U8CString Combine(const U8CString& a, const U8CString& b)
{
    if (a.empty())
        return b;
    if (b.empty())
        return a;
    const fs::path second = ToPath(b);
    return second.has_root_directory() ? b : FromPath(ToPath(a) / second);
}

U8CString Combine(const U8CString& a, const U8CString& b, const U8CString& c)
{
    return Combine(Combine(a, b), c);
}

U8CString GetFullPath(const U8CString& path)
{
    return GetFullPath(path, GetCurrentPath());
}

U8CString GetFullPath(const U8CString& path, const U8CString& base)
{
    const fs::path absoluteBase = IsAbsolute(base) ? ToPath(base) : ToPath(GetCurrentPath()) / ToPath(base);
    return FromPath((absoluteBase / ToPath(path)).lexically_normal());
}

U8CString GetCurrentPath()
{
    std::error_code error;
    const fs::path path = fs::current_path(error);
    return error ? U8CString() : FromPath(path);
}

U8CString GetExePath()
{
    return Compat::GetCurrentProcessExePath();
}

U8CString GetDirectory(const U8CString& path)
{
    return FromPath(ToPath(path).parent_path());
}

U8CString GetFileName(const U8CString& path, bool withExtension)
{
    return FromPath(withExtension ? ToPath(path).filename() : ToPath(path).stem());
}

U8CString GetExtension(const U8CString& path, bool withDot)
{
    const std::string extension = ToPath(path).extension().native();
    return U8CString(withDot || extension.empty() ? extension : extension.substr(1));
}

bool IsAbsolute(const U8CString& path)
{
    return ToPath(path).has_root_directory();
}

bool IsRelative(const U8CString& path)
{
    return !IsAbsolute(path);
}

} // namespace Uve::Path

namespace Uve::File {

bool Exists(const U8CString& path)
{
    std::error_code error;
    return fs::is_regular_file(ToPath(path), error);
}

bool Delete(const U8CString& path)
{
    if (!Exists(path))
        return true;
    std::error_code error;
    fs::remove(ToPath(path), error);
    return !error;
}

bool MakeFileExecutable(const U8CString& path)
{
    std::error_code error;
    fs::permissions(ToPath(path), fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec,
                    fs::perm_options::add, error);
    return !error;
}

long long GetFileSize(const U8CString& path)
{
    std::error_code error;
    const std::uintmax_t size = fs::file_size(ToPath(path), error);
    return error ? -1 : static_cast<long long>(size);
}

bool WriteAllText(const U8CString& path, std::string_view text)
{
    // Reading too is what keeps the stream from cutting the file, and from making a missing one.
    std::fstream stream(ToPath(path), std::ios::in | std::ios::out | std::ios::binary);
    if (!stream.is_open())
        stream.open(ToPath(path), std::ios::out | std::ios::binary);
    if (!stream.is_open())
        return false;
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    return !stream.fail();
}

U8CString ReadAllText(const U8CString& path)
{
    return ReadAllText(path, ENCODING_AUTO);
}

U8CString ReadAllText(const U8CString& path, Encoding encoding)
{
    if (!Exists(path))
        throw std::runtime_error("Unable to open file. File does not exists.");
    constexpr const char* kUnreadable =
        "Unable to open file. The file does not exist, or there are insufficient read permissions.";
    std::ifstream stream(ToPath(path), std::ios::binary | std::ios::ate);
    if (!stream.is_open())
        throw std::runtime_error(kUnreadable);
    const std::streamoff size = stream.tellg();
    stream.seekg(0);

    const SEncodingMark mark = DetectEncoding(stream, encoding);
    stream.clear();
    std::string bytes;
    if (size > mark.markLength) {
        bytes.resize(static_cast<std::size_t>(size - mark.markLength));
        stream.seekg(mark.markLength);
        stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (stream.bad())
            throw std::runtime_error(kUnreadable);
        bytes.resize(static_cast<std::size_t>(stream.gcount()));
    }
    return ToUtf8(bytes, mark.encoding);
}

SEncodingMark DetectEncoding(std::istream& stream, Encoding requested)
{
    struct SMark
    {
        std::string_view bytes;
        Encoding encoding;
    };
    using namespace std::string_view_literals;
    // The four bytes come first: they begin with a shorter mark.
    constexpr SMark kMarks[] = {
        {"\xFF\xFE\x00\x00"sv, ENCODING_UTF32LE}, {"\xFF\xFE"sv, ENCODING_UTF16LE},
        {"\xFE\xFF"sv, ENCODING_UTF16BE},         {"\xEF\xBB\xBF"sv, ENCODING_UTF8},
        {"\x00\x00\xFE\xFF"sv, ENCODING_UTF32BE},
    };
    char first[4];
    stream.read(first, sizeof first);
    const std::string_view head(first, static_cast<std::size_t>(stream.gcount()));
    for (const SMark& mark : kMarks) {
        if (head.starts_with(mark.bytes))
            return {static_cast<int>(mark.bytes.size()), mark.encoding};
    }
    return {UsualMarkLength(requested), requested};
}

} // namespace Uve::File

namespace Uve::Directory {

bool Exists(const U8CString& path)
{
    std::error_code error;
    return fs::is_directory(ToPath(path), error);
}

bool Create(const U8CString& path)
{
    std::error_code error;
    fs::create_directories(ToPath(path), error);
    return Exists(path);
}

bool Delete(const U8CString& path, bool recursive)
{
    if (!Exists(path))
        return true;
    std::error_code error;
    if (recursive)
        fs::remove_all(ToPath(path), error);
    else
        fs::remove(ToPath(path), error);
    return !error;
}

std::vector<U8CString> GetFiles(const U8CString& path)
{
    return GetFiles(path, "*");
}

std::vector<U8CString> GetFiles(const U8CString& path, const U8CString& mask)
{
    std::vector<U8CString> files;
    std::error_code error;
    fs::directory_iterator entry(ToPath(path), error);
    while (!error && entry != fs::directory_iterator()) {
        std::error_code gone;
        if (entry->is_regular_file(gone) && MatchesMask(entry->path().filename().native(), mask))
            files.push_back(FromPath(entry->path()));
        entry.increment(error);
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace Uve::Directory

namespace Uve {

U8CString GetPathOfExe()
{
    return Path::GetDirectory(Path::GetExePath());
}

bool UVMakeDir(const char* path)
{
    const U8CString name(path);
    return mkdir(name.c_str(), 0700) == 0 || Directory::Exists(name);
}

bool UVMakeFullDir(const char* path)
{
    const std::string whole = path == nullptr ? "" : path;
    // Upwards until a directory stands, then down again over the places that were cut.
    std::vector<std::size_t> cuts;
    std::size_t length = whole.size();
    while (!UVMakeDir(whole.substr(0, length).c_str())) {
        cuts.push_back(length);
        length = length == 0 ? std::string::npos : whole.find_last_of("/\\", length - 1);
        if (length == std::string::npos || length == 0)
            break;
    }
    for (auto cut = cuts.rbegin(); cut != cuts.rend(); ++cut) {
        if (!UVMakeDir(whole.substr(0, *cut).c_str()))
            return false;
    }
    return true;
}

bool UVFileExists(const char* path)
{
    return File::Exists(U8CString(path));
}

U8CString UVGetCurrentDir()
{
    return Path::GetCurrentPath();
}

U8CString UVGetUserProfileDir()
{
    U8CString directory;
    Compat::GetUserDirectory(directory);
    return directory;
}

U8CString UVMakePath(const char* directory, const char* name)
{
    return Path::Combine(U8CString(directory), U8CString(name));
}

U8CString UVGetTmpFileName()
{
    std::srand(static_cast<unsigned int>(std::clock()));
    char name[64];
    const int first = std::rand();
    std::snprintf(name, sizeof name, "is_tmp%x%x", static_cast<unsigned int>(first),
                  static_cast<unsigned int>(std::rand()));
    return U8CString(name);
}

int GetScriptQuantityLines(const U8CString& text)
{
    int lines = 0;
    int position = 0;
    while (text.Tokenize("\n", position), position != -1)
        ++lines;
    return lines;
}

} // namespace Uve
