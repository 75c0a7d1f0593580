#include "Tools/Support/ToolTerminal.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cwchar>
#include <locale.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr std::size_t kPlainWidth = 130;
constexpr std::size_t kTabWidth = 8;
constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kControlSigns = 0x2400;
constexpr char32_t kDeleteSign = 0x2421;
constexpr char kEllipsis[] = "\xE2\x80\xA6";

bool IsDirection(char32_t codePoint)
{
    return (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
}

// Takes one character, or one byte that belongs to none, off the front.
char32_t TakeCodePoint(std::string_view& text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    const std::size_t behind = lead >= 0xF0 && lead < 0xF5   ? 3
                               : lead >= 0xE0 && lead < 0xF0 ? 2
                               : lead >= 0xC2 && lead < 0xE0 ? 1
                                                             : 0;
    if (behind == 0 || text.size() < behind)
        return kReplacement;
    char32_t codePoint = lead & (0x3Fu >> behind);
    for (std::size_t i = 0; i < behind; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return kReplacement;
        codePoint = codePoint << 6 | (byte & 0x3F);
    }
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    if (codePoint < kLeast[behind] || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        return kReplacement;
    text.remove_prefix(behind);
    return codePoint;
}

void AppendCodePoint(char32_t codePoint, std::string& out)
{
    const auto put = [&](char32_t bits) { out += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12);
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | codePoint >> 18);
        put(0x80 | (codePoint >> 12 & 0x3F));
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}

// What stands for a character that can't be shown as it is.
char32_t Shown(char32_t codePoint)
{
    if (codePoint < 0x20)
        return kControlSigns + codePoint;
    if (codePoint == 0x7F)
        return kDeleteSign;
    if ((codePoint >= 0x80 && codePoint < 0xA0) || IsDirection(codePoint))
        return kReplacement;
    return codePoint;
}

} // namespace

std::size_t StandardOutputWidth()
{
    struct winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
    const char* const columns = std::getenv("COLUMNS");
    const std::string_view text = columns == nullptr ? "" : columns;
    std::size_t width = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), width);
    return error == std::errc() && end == text.data() + text.size() && width > 0 ? width : kPlainWidth;
}

bool StandardOutputTakesColors()
{
    const char* const refusal = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && (refusal == nullptr || *refusal == '\0') && terminal != nullptr &&
           std::string_view(terminal) != "dumb";
}

CCellText::CCellText() : m_Locale(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}

CCellText::~CCellText()
{
    if (m_Locale != nullptr)
        freelocale(static_cast<locale_t>(m_Locale));
}

std::size_t CCellText::WidthOf(char32_t codePoint) const
{
    if (codePoint < 0x300 || m_Locale == nullptr)
        return 1;
    const locale_t before = uselocale(static_cast<locale_t>(m_Locale));
    const int width = wcwidth(static_cast<wchar_t>(codePoint));
    uselocale(before);
    return width < 0 ? 1 : static_cast<std::size_t>(width);
}

std::size_t CCellText::Append(std::string_view text, std::size_t width, std::string& out) const
{
    std::size_t used = 0;
    // Where an ellipsis would go: what stands after it is taken back if the text doesn't fit.
    std::size_t cutSize = out.size();
    std::size_t cutCells = 0;
    while (!text.empty()) {
        const char32_t codePoint = TakeCodePoint(text);
        const bool isTab = codePoint == '\t';
        const std::size_t cells = isTab ? kTabWidth - used % kTabWidth : WidthOf(Shown(codePoint));
        if (used + cells > width) {
            out.resize(cutSize);
            out += kEllipsis;
            return cutCells + 1;
        }
        if (isTab)
            out.append(cells, ' ');
        else
            AppendCodePoint(Shown(codePoint), out);
        used += cells;
        if (used < width) {
            cutSize = out.size();
            cutCells = used;
        }
    }
    return used;
}
