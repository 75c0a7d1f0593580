#include "UVEnvironment/UVECompat.h"

#include "UVEnvironment/FileHelper.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

namespace {

unsigned char ToLower(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

// Puts as much of `part` into `target` as a buffer of _splitpath takes.
void CopyPart(char* target, std::string_view part)
{
    if (target == nullptr)
        return;
    const std::size_t length = std::min(part.size(), Uve::Compat::kSplitPathSize - 1);
    part.copy(target, length);
    target[length] = '\0';
}

// Copies `length` bytes of `source` after the `used` bytes of `target`.
int CopyBounded(char* target, std::size_t size, std::size_t used, const char* source, std::size_t length)
{
    if (used >= size || length >= size - used) {
        target[0] = '\0';
        return ERANGE;
    }
    std::memmove(target + used, source, length);
    target[used + length] = '\0';
    return 0;
}

// The bounded copies share their tests of arguments. A target is cleared where there is one to clear.
bool IsUsable(char* target, std::size_t size, const void* source)
{
    if (target == nullptr || size == 0)
        return false;
    if (source == nullptr)
        target[0] = '\0';
    return source != nullptr;
}

} // namespace

namespace Uve::Compat {

U8CString GetCurrentProcessExePath()
{
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length <= 0 ? U8CString() : U8CString(path, static_cast<std::size_t>(length));
}

int GetLastError()
{
    return errno;
}

U8CString GetLastErrorMessage()
{
    return U8CString(std::strerror(errno));
}

int stricmp(const char* a, const char* b)
{
    return _strnicmp(a, b, SIZE_MAX);
}

int _strnicmp(const char* a, const char* b, std::size_t count)
{
    const char* const left = a == nullptr ? "" : a;
    const char* const right = b == nullptr ? "" : b;
    for (std::size_t i = 0; i < count; ++i) {
        const int difference = ToLower(left[i]) - ToLower(right[i]);
        if (difference != 0 || left[i] == '\0')
            return difference;
    }
    return 0;
}

int strcpy_s(char* target, std::size_t size, const char* source)
{
    if (!IsUsable(target, size, source))
        return EINVAL;
    return CopyBounded(target, size, 0, source, std::strlen(source));
}

int strcat_s(char* target, std::size_t size, const char* source)
{
    if (!IsUsable(target, size, source))
        return EINVAL;
    return CopyBounded(target, size, strnlen(target, size), source, std::strlen(source));
}

int strncpy_s(char* target, std::size_t size, const char* source, std::size_t count)
{
    if (!IsUsable(target, size, source))
        return EINVAL;
    return CopyBounded(target, size, 0, source, strnlen(source, count));
}

int memcpy_s(void* target, std::size_t size, const void* source, std::size_t count)
{
    if (count == 0)
        return 0;
    if (target == nullptr)
        return EINVAL;
    if (source == nullptr || count > size) {
        std::memset(target, 0, size);
        return source == nullptr ? EINVAL : ERANGE;
    }
    std::memcpy(target, source, count);
    return 0;
}

int _strupr_s(char* text, std::size_t size)
{
    if (text == nullptr)
        return EINVAL;
    const std::size_t length = strnlen(text, size);
    if (length == size) {
        if (size != 0)
            text[0] = '\0';
        return EINVAL;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= 'a' && text[i] <= 'z')
            text[i] = static_cast<char>(text[i] - ('a' - 'A'));
    }
    return 0;
}

int ctime_s(char* target, std::size_t size, const std::time_t* time)
{
    if (!IsUsable(target, size, time))
        return EINVAL;
    // A year of ten digits makes the longest text.
    char text[64];
    std::tm parts;
    if (localtime_r(time, &parts) == nullptr || asctime_r(&parts, text) == nullptr) {
        target[0] = '\0';
        return EINVAL;
    }
    return strcpy_s(target, size, text);
}

int localtime_s(std::tm* target, const std::time_t* time)
{
    if (target == nullptr || time == nullptr)
        return EINVAL;
    return localtime_r(time, target) == nullptr ? EINVAL : 0;
}

int fopen_s(std::FILE** file, const char* path, const char* mode)
{
    if (file == nullptr)
        return EINVAL;
    *file = nullptr;
    if (path == nullptr || mode == nullptr)
        return EINVAL;
    *file = std::fopen(path, mode);
    return *file == nullptr ? errno : 0;
}

std::FILE* fopen(const char* path, const char* mode)
{
    std::FILE* file = nullptr;
    const int error = fopen_s(&file, path, mode);
    if (error != 0)
        errno = error;
    return file;
}

unsigned long long _strtoui64(const char* text, char** end, int base)
{
    return std::strtoull(text, end, base);
}

long long _strtoi64(const char* text, char** end, int base)
{
    return std::strtoll(text, end, base);
}

unsigned long strtoul(const char* text, char** end, int base)
{
    return std::strtoul(text, end, base);
}

long strtol(const char* text, char** end, int base)
{
    return std::strtol(text, end, base);
}

long long _atoi64(const char* text)
{
    return std::strtoll(text, nullptr, 10);
}

char* itoa(int value, char* target, int base)
{
    if (target == nullptr)
        return nullptr;
    char* next = target;
    if (base >= 2 && base <= 36) {
        const bool hasSign = base == 10 && value < 0;
        unsigned int rest = static_cast<unsigned int>(value);
        if (hasSign) {
            *next++ = '-';
            rest = 0u - rest;
        }
        char* const digits = next;
        do {
            const unsigned int digit = rest % static_cast<unsigned int>(base);
            *next++ = static_cast<char>(digit < 10 ? '0' + digit : 'a' + (digit - 10));
            rest /= static_cast<unsigned int>(base);
        } while (rest != 0);
        std::reverse(digits, next);
    }
    *next = '\0';
    return target;
}

unsigned int GetTempFileNameW(const U8CString& path, const U8CString& prefix, unsigned int unique,
                              U8CString& out)
{
    std::string name = path.empty() ? "." : path.c_str();
    name += '/';
    name += prefix.Left(3).c_str();
    if (unique != 0) {
        char number[16];
        std::snprintf(number, sizeof number, "%x", unique);
        name += number;
    }
    name += "XXXXXX";
    const int file = mkstemp(name.data());
    if (file < 0) {
        out.clear();
        return 0;
    }
    close(file);
    out = name;
    return 1;
}

int GetTempPathW(U8CString& out)
{
    std::error_code error;
    out = std::filesystem::temp_directory_path(error).string();
    if (error)
        out.clear();
    return error ? 0 : 1;
}

int GetTemporaryFilePath(const U8CString& name, U8CString& out)
{
    U8CString directory;
    if (GetTempPathW(directory) == 0) {
        out.clear();
        return 0;
    }
    out = Path::Combine(directory, name);
    return 1;
}

int GetUserDirectory(U8CString& out)
{
    out.clear();
    char buffer[16384];
    passwd entry;
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer, sizeof buffer, &found) != 0 || found == nullptr ||
        entry.pw_dir == nullptr)
        return 0;
    out = entry.pw_dir;
    return 1;
}

int GetPublicDirectory(U8CString& out)
{
    out = "/usr/local/share";
    return 1;
}

void _splitpath(const char* path, char* drive, char* directory, char* name, char* extension)
{
    const std::string_view whole = path == nullptr ? "" : path;
    const std::size_t slash = whole.rfind('/');
    const std::size_t nameAt = slash == std::string_view::npos ? 0 : slash + 1;
    std::size_t dot = whole.rfind('.');
    if (dot == std::string_view::npos || dot < nameAt)
        dot = whole.size();
    CopyPart(drive, "");
    CopyPart(directory, whole.substr(0, nameAt));
    CopyPart(name, whole.substr(nameAt, dot - nameAt));
    CopyPart(extension, whole.substr(dot));
}

bool IsCharAlphaNumeric(char character)
{
    const unsigned char lower = ToLower(character);
    return (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9');
}

int _isatty(int file)
{
    return isatty(file);
}

int _fileno(std::FILE* file)
{
    return file == nullptr ? -1 : fileno(file);
}

unsigned int GetACP()
{
    // UTF-8, the system's encoding
    return 65001;
}

void ClearReadOnlyFlag(const U8CString&) {}

} // namespace Uve::Compat
