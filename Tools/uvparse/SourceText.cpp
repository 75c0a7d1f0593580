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

// In place: the text gets shorter.
void ReplaceAll(std::string& text, std::string_view what, char replacement)
{
    std::size_t to = 0;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, from)) {
        std::char_traits<char>::move(text.data() + to, text.data() + from, at - from);
        to += at - from;
        text[to++] = replacement;
        from = at + what.size();
    }
    if (from == 0)
        return;
    std::char_traits<char>::move(text.data() + to, text.data() + from, text.size() - from);
    text.resize(to + text.size() - from);
}

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

// What the files of mainframes end lines with, and the blank of every EBCDIC code page.
constexpr std::string_view kNextLine = "\xC2\x85";
constexpr std::string_view kEbcdicBlank = "\x40";

bool IsEbcdic(CLegacyDecoder& decoder)
{
    try {
        return decoder.Decode(kEbcdicBlank) == " ";
    } catch (const SRefusal&) {
        return false;
    }
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
    if (IsEbcdic(decoder))
        ReplaceAll(text, kNextLine, '\n');
    return text;
}

// One record after the other, so that none begins in the shift state that another one ended in.
std::string DecodeRecords(std::string_view bytes, const SSourceForm& form)
{
    if (bytes.size() % form.recordLength != 0)
        throw SRefusal{"no whole records of " + std::to_string(form.recordLength) + " bytes: one begins",
                       bytes.size() - bytes.size() % form.recordLength};
    CLegacyDecoder decoder(form.encoding.empty() ? "UTF-8" : form.encoding);
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += form.recordLength) {
        try {
            text += decoder.Decode(bytes.substr(at, form.recordLength));
        } catch (const SRefusal& refusal) {
            throw SRefusal{refusal.reason, at + refusal.offset, refusal.advice};
        }
        text += '\n';
    }
    return text;
}

// The bytes that a character takes at least.
std::size_t UnitOf(std::string_view bytes, const SSourceForm& form)
{
    if (form.encoding.empty()) {
        const Uve::File::Encoding encoding = MarkOf(std::string(bytes.substr(0, 4))).encoding;
        const bool isUtf16 =
            encoding == Uve::File::ENCODING_UTF16LE || encoding == Uve::File::ENCODING_UTF16BE;
        const bool isUtf32 =
            encoding == Uve::File::ENCODING_UTF32LE || encoding == Uve::File::ENCODING_UTF32BE;
        return isUtf32 ? 4 : isUtf16 ? 2 : 1;
    }
    CLegacyDecoder decoder(form.encoding);
    for (const std::size_t unit : {std::size_t{1}, std::size_t{2}}) {
        try {
            decoder.Decode(std::string(unit, '\0'));
            return unit;
        } catch (const SRefusal&) {
        }
    }
    return 4;
}

// Looks on from `searched`, and sets it to where the next piece begins.
bool HasNulUnit(std::string_view bytes, std::size_t unit, std::size_t& searched)
{
    if (unit == 1)
        return bytes.find('\0', std::exchange(searched, bytes.size())) != std::string_view::npos;
    for (; searched + unit <= bytes.size(); searched += unit)
        if (bytes.substr(searched, unit).find_first_not_of('\0') == std::string_view::npos)
            return true;
    return false;
}

} // namespace

std::string DecodeSourceText(std::string bytes, const std::string& name, const SSourceForm& form)
{
    try {
        std::string text = form.recordLength > 0   ? DecodeRecords(bytes, form)
                           : form.encoding.empty() ? DecodeByMark(std::move(bytes))
                                                   : DecodeByName(bytes, form.encoding);
        const std::size_t nul = text.find('\0');
        if (nul != std::string::npos)
            throw SRefusal{"NUL character, which source text can't hold, in the text as UTF-8", nul};
        return text;
    } catch (const SRefusal& refusal) {
        throw CToolFailure(name + ": " + refusal.reason + " at byte offset " +
                           std::to_string(refusal.offset) + refusal.advice);
    }
}

std::string ReadSourceText(const std::string& path, const SSourceForm& form)
{
    std::size_t searched = 0;
    const auto hasNul = [&](std::string_view bytes) {
        const std::size_t unit = UnitOf(bytes, form);
        return bytes.size() >= unit && HasNulUnit(bytes, unit, searched);
    };
    return DecodeSourceText(ReadWholeFile(path, hasNul), path, form);
}

std::string PreparedText(std::string text)
{
    ReplaceAll(text, kZeroWidthSpace, ' ');
    return text;
}

} // namespace uvparse
