#include "Tools/uvparse/LegacyEncoding.h"

#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iconv.h>

namespace uvparse {

namespace {

constexpr auto kFailed = static_cast<std::size_t>(-1);

void* OpenConverter(const std::string& encoding)
{
    // A slash begins what would make iconv leave out or replace characters, and no name at all is the
    // encoding of whoever is logged in.
    if (encoding.empty() || encoding.find('/') != std::string::npos)
        throw CToolFailure("'" + encoding + "' is no encoding's name");
    iconv_t converter = iconv_open("UTF-8", encoding.c_str());
    if (reinterpret_cast<std::intptr_t>(converter) != -1)
        return converter;
    if (errno == EINVAL)
        throw CToolFailure("no encoding is called '" + encoding + "' ('iconv -l' lists the names)");
    throw CToolFailure("the encoding '" + encoding + "' can't be used: " + std::strerror(errno));
}

} // namespace

CLegacyDecoder::CLegacyDecoder(const std::string& encoding)
    : m_Encoding(encoding), m_Converter(OpenConverter(encoding))
{}

CLegacyDecoder::~CLegacyDecoder()
{
    iconv_close(m_Converter);
}

std::string CLegacyDecoder::Decode(std::string_view bytes)
{
    constexpr std::size_t kPiece = std::size_t{1} << 20;
    std::string piece(kPiece, '\0');
    std::string text;
    text.reserve(bytes.size());

    iconv(m_Converter, nullptr, nullptr, nullptr, nullptr);
    // iconv takes a pointer to bytes that may be written, and writes none.
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    // What an encoding with shift states still holds comes out at the end, when there is no more input.
    for (bool isFlushed = false; !isFlushed;) {
        isFlushed = inLeft == 0;
        char* out = piece.data();
        std::size_t outLeft = piece.size();
        const std::size_t result =
            iconv(m_Converter, isFlushed ? nullptr : &in, isFlushed ? nullptr : &inLeft, &out, &outLeft);
        const int error = errno;
        text.append(piece, 0, piece.size() - outLeft);
        const std::size_t offset = bytes.size() - inLeft;
        if (result != kFailed) {
            if (result > 0)
                throw SRefusal{"a character that has no exact counterpart in Unicode, before or", offset};
            continue;
        }
        if (error == E2BIG) {
            isFlushed = false;
            continue;
        }
        if (error == EINVAL || offset == bytes.size())
            throw SRefusal{"the " + m_Encoding + " text is cut off", offset};
        char byte[8];
        std::snprintf(byte, sizeof(byte), "0x%02X",
                      static_cast<unsigned int>(static_cast<unsigned char>(bytes[offset])));
        throw SRefusal{"not valid " + m_Encoding + ": byte " + byte, offset};
    }
    return text;
}

} // namespace uvparse
