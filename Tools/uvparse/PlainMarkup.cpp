#include "Tools/uvparse/PlainMarkup.h"

#include "Tools/uvparse/MarkupScanner.h"
#include "UVEnvironment/UVEEncoding.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace uvparse {

namespace {

bool IsNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool IsNameCharacter(char c)
{
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

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

// What a byte is to a text between markup, or to a value between quotes.
enum class enByte : unsigned char
{
    Plain,
    Wide, // of a character beyond ASCII
    Reference,
    Break, // a line feed or tab, which a value can't hold as it is
    Never
};

enByte KindOf(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80)
        return enByte::Wide;
    if (byte == '&')
        return enByte::Reference;
    if (byte == '\n' || byte == '\t')
        return enByte::Break;
    return byte < 0x20 || byte == '<' || byte == '>' ? enByte::Never : enByte::Plain;
}

const auto kByteKinds = [] {
    std::array<enByte, 256> kinds{};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        kinds[i] = KindOf(static_cast<char>(i));
    return kinds;
}();

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
    return !text.empty() && IsNameStart(text.front()) && std::ranges::all_of(text, IsNameCharacter);
}

SPlainText ExaminePlain(std::string_view text, bool isValue)
{
    SPlainText found;
    bool isWide = false;
    for (const char c : text) {
        switch (kByteKinds[static_cast<unsigned char>(c)]) {
        case enByte::Plain:
            break;
        case enByte::Wide:
            isWide = true;
            break;
        case enByte::Reference:
            found.hasReferences = true;
            break;
        case enByte::Break:
            found.isPlain = found.isPlain && !isValue;
            break;
        case enByte::Never:
            found.isPlain = false;
            return found;
        }
    }
    found.isPlain = found.isPlain && (!isWide || (UVDB::IsValidUTF8(text) && !HoldsNoncharacter(text)));
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
