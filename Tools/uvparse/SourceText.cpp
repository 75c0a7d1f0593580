#include "Tools/uvparse/SourceText.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvparse/LegacyEncoding.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <array>
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

// Takes the bytes, unless it refuses them.
std::string FromUTF8(std::string& bytes, std::size_t offset)
{
    const std::size_t invalid = UVDB::FindInvalidUTF8(bytes);
    if (invalid != std::string_view::npos) {
        char reason[40];
        std::snprintf(reason, sizeof(reason), "not valid UTF-8: byte 0x%02X",
                      static_cast<unsigned int>(static_cast<unsigned char>(bytes[invalid])));
        throw SRefusal{reason, invalid, kEncodingHint};
    }
    bytes.erase(0, offset);
    return std::move(bytes);
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

SSourceText DecodeByMark(std::string& bytes)
{
    const Uve::File::SEncodingMark mark = MarkOf(bytes);
    const auto offset = static_cast<std::size_t>(mark.markLength);
    switch (mark.encoding) {
    case Uve::File::ENCODING_UTF16LE:
        return {FromUTF16(bytes, offset, UVDB::UTF16LEToUTF8), {enFileBytes::Utf16, offset}};
    case Uve::File::ENCODING_UTF16BE:
        return {FromUTF16(bytes, offset, UVDB::UTF16BEToUTF8), {enFileBytes::Utf16, offset}};
    case Uve::File::ENCODING_UTF32LE:
        return {FromUTF32(bytes, offset, true), {enFileBytes::Utf32, offset}};
    case Uve::File::ENCODING_UTF32BE:
        return {FromUTF32(bytes, offset, false), {enFileBytes::Utf32, offset}};
    default:
        break;
    }
    // A NUL is looked for first: text in another encoding without a mark is full of them.
    const std::size_t nul = bytes.find('\0');
    if (nul != std::string::npos)
        throw SRefusal{"NUL byte, which source text can't hold,", nul, kEncodingHint};
    return {FromUTF8(bytes, offset), {enFileBytes::Utf8, offset}};
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

// Whether each byte is a character of its own, whatever stands beside it.
bool IsOneByteEach(std::string_view bytes, CLegacyDecoder& decoder)
{
    std::array<bool, 256> isKnown{};
    for (const char& byte : bytes) {
        bool& isByteKnown = isKnown[static_cast<unsigned char>(byte)];
        if (isByteKnown)
            continue;
        try {
            if (CountCodePoints(decoder.Decode(std::string_view(&byte, 1))) != 1)
                return false;
        } catch (const SRefusal&) {
            return false;
        }
        isByteKnown = true;
    }
    return true;
}

std::string DecodeByName(const std::string& bytes, const std::string& encoding, SFileBytes& form)
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
    if (text == bytes)
        form.form = enFileBytes::Utf8;
    else if (CountCodePoints(text) == bytes.size() && IsOneByteEach(bytes, decoder))
        form.form = enFileBytes::One;
    form.markLength = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    if (text.starts_with(kByteOrderMark))
        text.erase(0, kByteOrderMark.size());
    if (IsEbcdic(decoder))
        ReplaceAll(text, kNextLine, '\n');
    return text;
}

// One record after the other, so that none begins in the shift state that another one ended in.
std::string DecodeRecords(std::string_view bytes, const SSourceForm& form, SFileBytes& fileBytes)
{
    if (bytes.size() % form.recordLength != 0)
        throw SRefusal{"no whole records of " + std::to_string(form.recordLength) + " bytes: one begins",
                       bytes.size() - bytes.size() % form.recordLength};
    CLegacyDecoder decoder(form.encoding.empty() ? "UTF-8" : form.encoding);
    std::string text;
    bool isAsInFile = true;
    for (std::size_t at = 0; at < bytes.size(); at += form.recordLength) {
        try {
            const std::string_view record = bytes.substr(at, form.recordLength);
            const std::string decoded = decoder.Decode(record);
            isAsInFile = isAsInFile && decoded == record;
            text += decoded;
        } catch (const SRefusal& refusal) {
            throw SRefusal{refusal.reason, at + refusal.offset, refusal.advice};
        }
        text += '\n';
    }
    fileBytes.recordLength = form.recordLength;
    if (isAsInFile)
        fileBytes.form = enFileBytes::Utf8;
    else if (IsOneByteEach(bytes, decoder))
        fileBytes.form = enFileBytes::One;
    return text;
}

// Counted in the bytes themselves, which are the text where no encoding is named and no mark says otherwise.
SLineColumn PlaceIn(std::string_view bytes, std::size_t offset, const SSourceForm& form)
{
    const bool isText = form.encoding.empty() && form.recordLength == 0;
    const Uve::File::SEncodingMark mark = MarkOf(std::string(bytes.substr(0, 4)));
    const auto markLength = static_cast<std::size_t>(mark.markLength);
    if (!isText || offset < markLength || (markLength > 0 && mark.encoding != Uve::File::ENCODING_UTF8) ||
        UVDB::FindInvalidUTF8(bytes.substr(0, offset)) != std::string_view::npos)
        return {};
    const STextPlace place = CTextPlaces(bytes.substr(markLength)).Find(offset - markLength);
    return {place.line, place.column};
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

SSourceText DecodeSourceText(std::string bytes, const std::string& name, const SSourceForm& form)
{
    const auto refuse = [&](const SRefusal& refusal, std::optional<std::size_t> fileOffset,
                            SLineColumn place) {
        return CSourceRefusal(name + ": " + refusal.reason + " at byte offset " +
                                  std::to_string(refusal.offset) + refusal.advice,
                              fileOffset, place);
    };
    SSourceText source;
    try {
        if (form.recordLength > 0)
            source.text = DecodeRecords(bytes, form, source.bytes);
        else if (!form.encoding.empty())
            source.text = DecodeByName(bytes, form.encoding, source.bytes);
        else
            source = DecodeByMark(bytes);
    } catch (const SRefusal& refusal) {
        throw refuse(refusal, refusal.offset, PlaceIn(bytes, refusal.offset, form));
    }
    const std::size_t nul = source.text.find('\0');
    if (nul != std::string::npos) {
        const STextPlace place = CTextPlaces(source.text).Find(nul);
        throw refuse({"NUL character, which source text can't hold, in the text as UTF-8", nul}, {},
                     {place.line, place.column});
    }
    return source;
}

SSourceText ReadSourceText(const std::string& path, const SSourceForm& form)
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
