// Texts before they are tokens: their encoding and line ends, and strings as literals.
#include "Preparation/MacroToken.h"
#include "Preparation/MacroTokenReader.h"

namespace MacroPreprocessorChecker::internal {

bool WantsDecoding(std::string_view bytes)
{
    return bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE") ||
           bytes.starts_with("\xEF\xBB\xBF") || bytes.find('\r') != bytes.npos;
}

std::string DecodeText(std::string bytes)
{
    const bool isBigEnd = bytes.starts_with("\xFE\xFF");
    if (isBigEnd || bytes.starts_with("\xFF\xFE")) {
        std::size_t kept = 0;
        for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
            const auto high = static_cast<unsigned char>(bytes[isBigEnd ? at : at + 1]);
            const auto low = static_cast<unsigned char>(bytes[isBigEnd ? at + 1 : at]);
            bytes[kept++] = high != 0 || low > 127 ? '\xFF' : static_cast<char>(low);
        }
        bytes.resize(kept);
    } else if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.erase(0, 3);
    }
    std::size_t kept = bytes.find('\r');
    if (kept == bytes.npos)
        return bytes;
    for (std::size_t at = kept; at < bytes.size(); ++at) {
        if (bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n')
            continue;
        bytes[kept++] = bytes[at] == '\r' ? '\n' : bytes[at];
    }
    bytes.resize(kept);
    return bytes;
}

std::string escapeString(std::string_view text)
{
    std::string escaped = "\"";
    for (const char c : text) {
        switch (c) {
        case '\n':
            escaped += "\\n";
            break;
        case '\t':
            escaped += "\\t";
            break;
        case '\\':
            escaped += "\\\\";
            break;
        case '"':
            escaped += "\\\"";
            break;
        default:
            escaped += c;
            break;
        }
    }
    escaped += '"';
    return escaped;
}

} // namespace MacroPreprocessorChecker::internal
