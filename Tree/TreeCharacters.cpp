#include "Tree/TreeCharacters.h"

#include "UVEnvironment/UVECodePoints.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

constexpr SReference kReferences[] = {
    {"&lt;", '<', true},    {"&gt;", '>', true},     {"&amp;", '&', true},
    {"&quot;", '"', false}, {"&apos;", '\'', false},
};

constexpr std::size_t kNonCharacterBytes = 3;

} // namespace

bool IsTreeName(std::string_view name)
{
    return !name.empty() && name.size() <= kLongestTreeName && Is(name.front(), kNameStart) &&
           std::all_of(name.begin(), name.end(), [](char c) { return Is(c, kNameByte); });
}

bool IsTreeText(std::string_view text)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighBits = 0x80 * kOnes;
    for (std::size_t at = 0;;) {
        // eight bytes in one go, as long as they are ASCII and none is a NUL
        for (std::uint64_t bytes = 0; at + sizeof bytes <= text.size(); at += sizeof bytes) {
            std::memcpy(&bytes, text.data() + at, sizeof bytes);
            if ((((bytes - kOnes) | bytes) & kHighBits) != 0)
                break;
        }
        while (at < text.size() && static_cast<signed char>(text[at]) > 0)
            ++at;
        if (at == text.size())
            return true;
        const std::size_t length = text[at] == 0 ? 0 : MultibyteLength(text.substr(at));
        if (length == 0)
            return false;
        at += length;
    }
}

const SReference* FindReference(std::string_view text)
{
    const auto* const found = std::find_if(std::begin(kReferences), std::end(kReferences),
                                           [&](const SReference& row) { return text.starts_with(row.text); });
    return found != std::end(kReferences) ? found : nullptr;
}

std::size_t DecodeCharacterReference(std::string_view text, unsigned int& codePoint)
{
    const bool isHex = text.starts_with("&#x");
    std::size_t at = isHex ? 3 : 2;
    const std::size_t first = at;
    codePoint = 0;
    for (; at < text.size() && text[at] != ';'; ++at) {
        const char c = text[at];
        unsigned int digit = 16;
        if (c >= '0' && c <= '9')
            digit = static_cast<unsigned int>(c - '0');
        else if (isHex && ((c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F')))
            digit = static_cast<unsigned int>((c | 0x20) - 'a') + 10;
        if (digit == 16)
            return 0;
        codePoint = codePoint * (isHex ? 16 : 10) + digit;
        if (codePoint > Uve::CodePoints::kLast)
            return 0;
    }
    const bool isCharacter = codePoint >= 0x20 || codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    if (at == first || at == text.size() || !isCharacter || !Uve::CodePoints::IsScalarValue(codePoint) ||
        codePoint == 0xFFFE || codePoint == 0xFFFF)
        return 0;
    return at + 1;
}

std::size_t MultibyteLength(std::string_view text)
{
    const auto decoded =
        Uve::CodePoints::DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return decoded.kind == Uve::CodePoints::enDecoded::Character ? decoded.length : 0;
}

bool IsNonCharacter(std::string_view text)
{
    return text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF");
}

namespace {

// Hands the characters of a run over: spans that need nothing, and each character that may need something.
template <class Sink>
void ForEachPiece(std::string_view run, enRun kind, Sink&& sink)
{
    std::size_t at = 0;
    while (at < run.size()) {
        const std::size_t from = at;
        while (at < run.size() && (kByteClasses[static_cast<unsigned char>(run[at])] & kPlainValue) != 0)
            ++at;
        if (at > from)
            sink(run.substr(from, at - from));
        if (at == run.size())
            return;
        char c = run[at];
        if (c == '&' && kind != enRun::Comment) {
            const std::string_view rest = run.substr(at);
            if (const SReference* const reference = FindReference(rest)) {
                sink(std::string_view(&reference->character, 1));
                at += reference->text.size();
                continue;
            }
            unsigned int codePoint = 0;
            at += DecodeCharacterReference(rest, codePoint);
            char bytes[4];
            sink(std::string_view(bytes,
                                  static_cast<std::size_t>(Uve::CodePoints::EncodeUtf8(codePoint, bytes))));
            continue;
        }
        if (IsNonCharacter(run.substr(at))) {
            sink("^");
            at += kNonCharacterBytes;
            continue;
        }
        ++at;
        if (c == '\r') {
            at += at < run.size() && run[at] == '\n' ? 1U : 0U;
            c = '\n';
        }
        if (Is(c, kBlank) && kind == enRun::Value)
            c = ' ';
        else if (Is(c, kControl))
            c = '^';
        sink(std::string_view(&c, 1));
    }
}

std::string_view EscapedInText(char c)
{
    switch (c) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    case '\r':
        return "&#13;";
    default:
        return {};
    }
}

std::string_view EscapedInValue(char c)
{
    switch (c) {
    case '"':
        return "&quot;";
    case '\t':
        return "&#9;";
    case '\n':
        return "&#10;";
    default:
        return EscapedInText(c);
    }
}

} // namespace

void AppendCharacters(std::string_view run, enRun kind, std::string& out)
{
    ForEachPiece(run, kind, [&](std::string_view piece) { out += piece; });
}

void AppendSerialised(std::string_view run, enRun kind, std::string& out)
{
    ForEachPiece(run, kind, [&](std::string_view piece) {
        std::string_view escaped;
        if (piece.size() == 1 && kind != enRun::Comment)
            escaped = kind == enRun::Text ? EscapedInText(piece[0]) : EscapedInValue(piece[0]);
        out += escaped.empty() ? piece : escaped;
    });
}

void AppendEscapedValue(std::string_view characters, std::string& out)
{
    for (std::size_t at = 0; at < characters.size(); ++at) {
        const std::string_view escaped = EscapedInValue(characters[at]);
        if (escaped.empty())
            out += characters[at];
        else
            out += escaped;
    }
}
