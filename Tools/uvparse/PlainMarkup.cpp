#include "Tools/uvparse/PlainMarkup.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace uvparse {

namespace {

// clang-format off
struct SEntity
{
    std::string_view text;
    char character;
    bool isWrittenInText; // by libxml2
    bool isWrittenInValue;
};

constexpr SEntity kEntities[] = {
//   text      character  in text  in value
    {"&amp;",  '&',       true,    true},
    {"&lt;",   '<',       true,    true},
    {"&gt;",   '>',       true,    true},
    {"&quot;", '"',       false,   true},
    {"&apos;", '\'',      false,   false},
    {"&#13;",  '\r',      true,    true},
    {"&#10;",  '\n',      false,   true},
    {"&#9;",   '\t',      false,   true},
};
// clang-format on

// What a byte is to a name, to a text between markup, or to a value between quotes.
constexpr unsigned int kNameStart = 1;
constexpr unsigned int kInName = 2;
constexpr unsigned int kWide = 4; // of a character beyond ASCII
constexpr unsigned int kReference = 8;
constexpr unsigned int kBreak = 16; // a line feed or tab, which a value can't hold as it is
constexpr unsigned int kNever = 32;

unsigned int KindOf(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_')
        return kNameStart | kInName;
    if ((c >= '0' && c <= '9') || c == '-' || c == '.')
        return kInName;
    if (byte >= 0x80)
        return kWide;
    if (byte == '&')
        return kReference;
    if (byte == '\n' || byte == '\t')
        return kBreak;
    return byte < 0x20 || byte == '<' || byte == '>' ? kNever : 0;
}

const auto kByteKinds = [] {
    std::array<unsigned char, 256> kinds{};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        kinds[i] = static_cast<unsigned char>(KindOf(static_cast<char>(i)));
    return kinds;
}();

unsigned int Kind(char c)
{
    return kByteKinds[static_cast<unsigned char>(c)];
}

// U+FFFE and U+FFFF, which XML can't hold.
bool HoldsNoncharacter(std::string_view text)
{
    return text.find("\xEF\xBF\xBE") != std::string_view::npos ||
           text.find("\xEF\xBF\xBF") != std::string_view::npos;
}

const SEntity* EntityAt(std::string_view text)
{
    const auto entity =
        std::ranges::find_if(kEntities, [&](const SEntity& row) { return text.starts_with(row.text); });
    return entity == std::end(kEntities) ? nullptr : entity;
}

bool IsWritten(const SEntity& entity, bool isValue)
{
    return isValue ? entity.isWrittenInValue : entity.isWrittenInText;
}

void AppendWritten(std::string_view text, bool isValue, std::string& written)
{
    for (std::size_t at = 0; !text.empty(); text.remove_prefix(at)) {
        at = std::min(text.find('&', 1), text.size());
        const SEntity* const entity = EntityAt(text);
        if (entity == nullptr || IsWritten(*entity, isValue)) {
            written += text.substr(0, at);
        } else {
            written += entity->character;
            at = entity->text.size();
        }
    }
}

} // namespace

bool IsPlainName(std::string_view text)
{
    return !text.empty() && (Kind(text.front()) & kNameStart) != 0 &&
           std::ranges::all_of(text, [](char c) { return (Kind(c) & kInName) != 0; });
}

SPlainText ExaminePlain(std::string_view text, bool isValue)
{
    unsigned int kinds = 0;
    for (const char c : text)
        kinds |= Kind(c);
    SPlainText found;
    found.hasReferences = (kinds & kReference) != 0;
    found.isPlain = (kinds & (kNever | (isValue ? kBreak : 0U))) == 0 &&
                    ((kinds & kWide) == 0 || (UVDB::IsValidUTF8(text) && !HoldsNoncharacter(text)));
    return found;
}

bool UnescapePlain(std::string_view text, bool isValue, std::string& unescaped, bool& isWrittenTheSame)
{
    while (true) {
        const std::size_t at = text.find('&');
        unescaped += text.substr(0, at);
        if (at == std::string_view::npos)
            return true;
        text.remove_prefix(at);
        const SEntity* const entity = EntityAt(text);
        if (entity == nullptr)
            return false;
        isWrittenTheSame = isWrittenTheSame && IsWritten(*entity, isValue);
        unescaped += entity->character;
        text.remove_prefix(entity->text.size());
    }
}

std::string AsWritten(std::string_view text, bool isValue)
{
    std::string written;
    CMarkupScanner scanner(text);
    std::string_view opened; // a tag that nothing has followed yet
    const auto writeOpened = [&](std::string_view close) {
        AppendWritten(opened.substr(0, opened.size() - std::min<std::size_t>(opened.size(), 1)), true,
                      written);
        written += opened.empty() ? std::string_view() : close;
        opened = {};
    };
    for (SMarkup markup; scanner.Next(markup);) {
        if (markup.kind == enMarkup::End && !opened.empty()) {
            writeOpened("/>");
            continue;
        }
        writeOpened(">");
        if (markup.kind == enMarkup::Start)
            opened = markup.text;
        else
            AppendWritten(markup.text, isValue || markup.kind == enMarkup::Empty, written);
    }
    return written;
}

} // namespace uvparse
