// Text in an encoding that the user names, such as "CP1252" or "SHIFT_JIS". The names are those of iconv.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace uvparse {

// Input that is refused, and the byte offset at which it went wrong.
struct SRefusal
{
    std::string reason;
    std::size_t offset;
    const char* advice = "";
};

class CLegacyDecoder
{
public:
    // Throws: CToolFailure if no encoding has this name.
    explicit CLegacyDecoder(const std::string& encoding);
    ~CLegacyDecoder();

    CLegacyDecoder(const CLegacyDecoder&) = delete;
    CLegacyDecoder& operator=(const CLegacyDecoder&) = delete;

    // The bytes as UTF-8, whole: nothing is left out and nothing is replaced.
    // Throws: SRefusal.
    std::string Decode(std::string_view bytes);

private:
    std::string m_Encoding;
    void* m_Converter;
};

} // namespace uvparse
