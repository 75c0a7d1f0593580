#include "Tools/Support/ToolTerminal.h"

#include "UVEnvironment/UVECodePoints.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cwchar>
#include <locale.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace CodePoints = Uve::CodePoints;

namespace {

constexpr std::size_t kPlainWidth = 130;
constexpr std::size_t kTabWidth = 8;
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
    const CodePoints::SDecoded decoded =
        CodePoints::DecodeUtf8(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    const bool isCharacter = decoded.kind == CodePoints::enDecoded::Character;
    text.remove_prefix(isCharacter ? decoded.length : 1);
    return isCharacter ? decoded.codePoint : CodePoints::kReplacement;
}

void AppendCodePoint(char32_t codePoint, std::string& out)
{
    char bytes[4];
    out.append(bytes, static_cast<std::size_t>(CodePoints::EncodeUtf8(codePoint, bytes)));
}

// What stands for a character that can't be shown as it is.
char32_t Shown(char32_t codePoint)
{
    if (codePoint < 0x20)
        return kControlSigns + codePoint;
    if (codePoint == 0x7F)
        return kDeleteSign;
    if ((codePoint >= 0x80 && codePoint < 0xA0) || IsDirection(codePoint))
        return CodePoints::kReplacement;
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
