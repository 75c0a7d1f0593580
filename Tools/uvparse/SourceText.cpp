#include "Tools/uvparse/SourceText.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/LegacyEncoding.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <sstream>
#include <string_view>
#include <utility>

namespace uvparse {

namespace {

constexpr std::string_view kZeroWidthSpace = "\xE2\x80\x8B";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kEncodingHint[] = "; if the text is in another encoding, name it with --encoding";

using Converter = int (*)(unsigned char*, int*, const unsigned char*, int*);

// The converters count in int, so the text goes through them in pieces.
std::string FromUTF16(std::string_view bytes, std::size_t offset, Converter convert)
{
    constexpr std::size_t kPiece = std::size_t{1} << 20;
    std::string text;
    std::string piece(kPiece * 2, '\0');
    while (offset < bytes.size()) {
        int inSize = static_cast<int>(std::min(kPiece, bytes.size() - offset));
        int outSize = static_cast<int>(piece.size());
        const int result = convert(reinterpret_cast<unsigned char*>(piece.data()), &outSize,
                                   reinterpret_cast<const unsigned char*>(bytes.data()) + offset, &inSize);
        offset += static_cast<std::size_t>(inSize);
        if (result < 0)
            throw SRefusal{"not well-formed UTF-16", offset};
        if (inSize == 0)
            throw SRefusal{"the UTF-16 text is cut off", offset};
        text.append(piece, 0, static_cast<std::size_t>(outSize));
    }
    return text;
}

std::string FromUTF32(std::string_view bytes, std::size_t offset, bool isLittleEndian)
{
    std::string text;
    for (; offset + 4 <= bytes.size(); offset += 4) {
        unsigned int codePoint = 0;
        for (std::size_t i = 0; i < 4; ++i)
            codePoint =
                codePoint << 8 | static_cast<unsigned char>(bytes[offset + (isLittleEndian ? 3 - i : i)]);
        if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
            throw SRefusal{"not well-formed UTF-32", offset};
        char sequence[4];
        text.append(sequence, static_cast<std::size_t>(Uve::Encoding::UTF8::cp2UTF8(codePoint, sequence)));
    }
    if (offset != bytes.size())
        throw SRefusal{"the UTF-32 text is cut off", offset};
    return text;
}

std::string FromUTF8(std::string bytes, std::size_t offset)
{
    const std::size_t invalid = UVDB::FindInvalidUTF8(bytes);
    if (invalid != std::string_view::npos) {
        char reason[40];
        std::snprintf(reason, sizeof(reason), "not valid UTF-8: byte 0x%02X",
                      static_cast<unsigned int>(static_cast<unsigned char>(bytes[invalid])));
        throw SRefusal{reason, invalid, kEncodingHint};
    }
    bytes.erase(0, offset);
    return bytes;
}

Uve::File::SEncodingMark MarkOf(const std::string& bytes)
{
    std::istringstream start(bytes.substr(0, 4));
    return Uve::File::DetectEncoding(start, Uve::File::ENCODING_AUTO);
}

const char* NameOfMark(Uve::File::Encoding encoding)
{
    switch (encoding) {
    case Uve::File::ENCODING_UTF16LE:
    case Uve::File::ENCODING_UTF16BE:
        return "UTF-16";
    case Uve::File::ENCODING_UTF32LE:
    case Uve::File::ENCODING_UTF32BE:
        return "UTF-32";
    default:
        return "UTF-8";
    }
}

std::string DecodeByMark(std::string bytes)
{
    const Uve::File::SEncodingMark mark = MarkOf(bytes);
    const auto offset = static_cast<std::size_t>(mark.markLength);
    switch (mark.encoding) {
    case Uve::File::ENCODING_UTF16LE:
        return FromUTF16(bytes, offset, UVDB::UTF16LEToUTF8);
    case Uve::File::ENCODING_UTF16BE:
        return FromUTF16(bytes, offset, UVDB::UTF16BEToUTF8);
    case Uve::File::ENCODING_UTF32LE:
        return FromUTF32(bytes, offset, true);
    case Uve::File::ENCODING_UTF32BE:
        return FromUTF32(bytes, offset, false);
    default:
        break;
    }
    // A NUL is looked for first: text in another encoding without a mark is full of them.
    const std::size_t nul = bytes.find('\0');
    if (nul != std::string::npos)
        throw SRefusal{"NUL byte, which source text can't hold,", nul, kEncodingHint};
    return FromUTF8(std::move(bytes), offset);
}

bool IsMark(std::string_view text)
{
    return text.empty() || text == kByteOrderMark;
}

std::string DecodeByName(const std::string& bytes, const std::string& encoding)
{
    CLegacyDecoder decoder(encoding);
    const Uve::File::SEncodingMark mark = MarkOf(bytes);
    if (mark.markLength > 0) {
        bool isOfEncoding = false;
        try {
            isOfEncoding = IsMark(
                decoder.Decode(std::string_view(bytes).substr(0, static_cast<std::size_t>(mark.markLength))));
        } catch (const SRefusal&) {
        }
        if (!isOfEncoding)
            throw SRefusal{std::string("byte order mark of ") + NameOfMark(mark.encoding) +
                               ", while --encoding names " + encoding + ",",
                           0};
    }
    std::string text = decoder.Decode(bytes);
    if (text.starts_with(kByteOrderMark))
        text.erase(0, kByteOrderMark.size());
    return text;
}

} // namespace

std::string DecodeSourceText(std::string bytes, const std::string& name, const std::string& encoding)
{
    try {
        std::string text = encoding.empty() ? DecodeByMark(std::move(bytes)) : DecodeByName(bytes, encoding);
        const std::size_t nul = text.find('\0');
        if (nul != std::string::npos)
            throw SRefusal{"NUL character, which source text can't hold, in the text as UTF-8", nul};
        return text;
    } catch (const SRefusal& refusal) {
        throw CToolFailure(name + ": " + refusal.reason + " at byte offset " +
                           std::to_string(refusal.offset) + refusal.advice);
    }
}

std::string ReadSourceText(const std::string& path, const std::string& encoding)
{
    return DecodeSourceText(ReadWholeFile(path), path, encoding);
}

std::string PreparedText(const std::string& text)
{
    std::string prepared;
    prepared.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t at = text.find(kZeroWidthSpace); at != std::string::npos;
         at = text.find(kZeroWidthSpace, from)) {
        prepared.append(text, from, at - from).append(1, ' ');
        from = at + kZeroWidthSpace.size();
    }
    return prepared.append(text, from);
}

} // namespace uvparse
