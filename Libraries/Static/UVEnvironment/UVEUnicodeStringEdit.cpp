#include "UVEnvironment/UVEUnicode.h"
#include "UVEnvironment/UVEUnicodeString.h"
#include "UVEnvironment/UVEUtf8Search.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

// What changes the text. A change forgets the remembered position, so the new length is counted afresh.
namespace Uve {

int U8CString::Insert(int index, const char* text) noexcept
{
    if (text && *text) {
        const std::size_t byteOffset =
            index <= 0 ? 0 : ByteOffsetOf(static_cast<std::uint64_t>(index)).value_or(size());
        insert(byteOffset, text);
    }
    return GetLength();
}

int U8CString::Delete(int index, int count) noexcept
{
    if (count > 0) {
        const std::uint64_t first = index < 0 ? 0 : static_cast<std::uint64_t>(index);
        if (const auto from = ByteOffsetOf(first)) {
            const std::size_t to = ByteOffsetOf(first + static_cast<std::uint64_t>(count)).value_or(size());
            erase(*from, to - *from);
        }
    }
    return GetLength();
}

int U8CString::Replace(const char* from, const char* to) noexcept
{
    if (!from || !*from)
        return 0;
    const std::size_t fromSize = std::strlen(from);
    const std::size_t toSize = to ? std::strlen(to) : 0;
    const char* const end = std::string::data() + size();
    const auto next = [&](const char* at) {
        return static_cast<const char*>(memmem(at, static_cast<std::size_t>(end - at), from, fromSize));
    };

    std::size_t count = 0;
    for (const char* at = std::string::data(); const char* hit = next(at); at = hit + fromSize)
        ++count;
    if (count == 0)
        return 0;

    std::string result;
    result.reserve(size() - count * fromSize + count * toSize);
    const char* at = std::string::data();
    while (const char* const hit = next(at)) {
        result.append(at, hit);
        result.append(to ? to : "", toSize);
        at = hit + fromSize;
    }
    result.append(at, end);
    assign(std::move(result));
    return static_cast<int>(count);
}

U8CString& U8CString::MakeUpper() noexcept
{
    return assign(utf8_to_uppercase(Bytes()));
}

U8CString& U8CString::MakeLower() noexcept
{
    return assign(utf8_to_lowercase(Bytes()));
}

U8CString& U8CString::MakeReverse() noexcept
{
    return assign(Detail::Utf8Reversed(Bytes()));
}

void U8CString::Format(const char* format, ...) noexcept
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, false, arguments);
    va_end(arguments);
}

void U8CString::AppendFormat(const char* format, ...) noexcept
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, true, arguments);
    va_end(arguments);
}

void U8CString::FormatImpl(const char* format, ...) noexcept
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, false, arguments);
    va_end(arguments);
}

void U8CString::AppendFormatImpl(const char* format, ...) noexcept
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, true, arguments);
    va_end(arguments);
}

void U8CString::FormatV(const char* format, bool append, va_list arguments) noexcept
{
    int byteCount = 0;
    if (format) {
        va_list measuring;
        va_copy(measuring, arguments);
        byteCount = std::vsnprintf(nullptr, 0, format, measuring);
        va_end(measuring);
    }
    if (byteCount <= 0) {
        if (!append)
            clear();
        return;
    }

    // Into memory of its own: arguments may point into this string.
    std::string text(static_cast<std::size_t>(byteCount), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    if (append)
        this->append(text);
    else
        assign(std::move(text));
    std::string::resize(find_last_not_of('\0') + 1);
}

char* U8CString::GetBuffer() noexcept
{
    return data();
}

char* U8CString::GetBuffer(int charCount) noexcept
{
    resize(static_cast<std::size_t>(std::max(charCount, 0)) * 4);
    return data();
}

char* U8CString::GetBufferBytes(int byteCount) noexcept
{
    resize(static_cast<std::size_t>(std::max(byteCount, 0)));
    return data();
}

void U8CString::ReleaseBuffer(int charCount) noexcept
{
    if (charCount < 0)
        resize(std::strlen(c_str()));
    else
        resize(Detail::Utf8ByteOffset(Bytes(), static_cast<std::size_t>(charCount)));
}

void U8CString::ReleaseBufferBytes(int byteCount) noexcept
{
    if (byteCount < 0)
        resize(std::strlen(c_str()));
    else
        resize(std::min(static_cast<std::size_t>(byteCount), size()));
}

} // namespace Uve
