#include "UVEnvironment/UVEXmlText.h"

Uve::U8CString UVDBEscapeXML(const Uve::U8CString& text)
{
    std::string escaped;
    escaped.reserve(text.size() + text.size() / 16);
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '\'':
            escaped += "&apos;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\x0c':
            break;
        case '\x10':
            escaped += "ORVANTA_DATA_LINK_ESCAPE_REPLACER";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}
