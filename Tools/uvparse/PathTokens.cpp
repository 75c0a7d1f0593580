#include "Tools/uvparse/PathTokens.h"

#include <algorithm>
#include <cstddef>

namespace uvparse {

std::vector<SPathToken> ReadPathTokens(std::string_view text)
{
    const auto isNameStart = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || (c & 0x80) != 0;
    };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::vector<SPathToken> tokens;
    std::size_t at = 0;
    const auto take = [&](enPathToken kind, std::size_t size) {
        tokens.push_back({kind, text.substr(at, size)});
        at += size;
    };
    const auto sizeWhile = [&](auto&& belongs) {
        const std::string_view rest = text.substr(at);
        return static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), belongs) - rest.begin());
    };
    while ((at = std::min(text.find_first_not_of(" \t\r\n", at), text.size())) < text.size()) {
        const char c = text[at];
        const std::string_view two = text.substr(at, 2);
        if (isNameStart(c)) {
            take(enPathToken::Name,
                 sizeWhile([&](char n) { return isNameStart(n) || isDigit(n) || n == '-' || n == '.'; }));
        } else if (isDigit(c) || (c == '.' && two.size() == 2 && isDigit(two[1]))) {
            take(enPathToken::Number, sizeWhile([&](char n) { return isDigit(n) || n == '.'; }));
        } else if (c == '"' || c == '\'') {
            const std::size_t end = text.find(c, at + 1);
            if (end == std::string_view::npos)
                break;
            take(enPathToken::Literal, end + 1 - at);
        } else if (two == "::" || two == "//" || two == ".." || two == "!=" || two == "<=" || two == ">=") {
            take(enPathToken::Symbol, 2);
        } else {
            take(enPathToken::Symbol, 1);
        }
    }
    tokens.push_back(at == text.size() ? SPathToken{} : SPathToken{enPathToken::Symbol, "?"});
    return tokens;
}

} // namespace uvparse
