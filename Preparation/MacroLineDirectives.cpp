#include "Preparation/MacroLineDirectives.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace MacroPreprocessorChecker::internal {

namespace {

constexpr std::size_t kMostTokens = 4; // of a line directive

std::string Unquoted(std::string_view quoted)
{
    const std::size_t from = quoted.find('"') + 1;
    return std::string(quoted.substr(from, quoted.size() - from - 1));
}

// Two backslashes stand for one.
std::string FileOfDirective(std::string_view quoted)
{
    std::string name = Unquoted(quoted);
    std::size_t kept = 0;
    for (std::size_t at = 0; at < name.size(); ++at) {
        name[kept++] = name[at];
        if (name[at] == '\\' && at + 1 < name.size() && name[at + 1] == '\\')
            ++at;
    }
    name.resize(kept);
    return name;
}

SLineDirective LineDirective(const Token* number, const Token* name)
{
    SLineDirective directive{SLineDirective::KIND_LINE, 0, std::nullopt};
    directive.line = static_cast<std::uint32_t>(
        std::clamp<long long>(stringToLL(number->str), 0, std::numeric_limits<std::int32_t>::max()));
    if (name != nullptr)
        directive.file = FileOfDirective(name->str);
    return directive;
}

} // namespace

SLineDirective LineDirectiveOf(const TokenList& list)
{
    const Token* hash = list.last;
    std::size_t significant = 0;
    for (const Token* token = list.last; token != nullptr && token->sourceLine == list.last->sourceLine;
         token = token->previous) {
        if (token->IsWhite())
            continue;
        hash = token;
        if (++significant > kMostTokens)
            return {};
    }
    const std::string line = list.lastLine(kMostTokens);
    const Token* const second = NextSignificant(hash);
    if (line == "# file %str%")
        return {SLineDirective::KIND_FILE, 0, Unquoted(NextSignificant(second)->str)};
    if (line == "# line %num%")
        return LineDirective(NextSignificant(second), nullptr);
    if (line == "# line %num% %str%") {
        const Token* const number = NextSignificant(second);
        return LineDirective(number, NextSignificant(number));
    }
    if (line == "# %num% %str%")
        return LineDirective(second, NextSignificant(second));
    return {line == "# endfile" ? SLineDirective::KIND_END_OF_FILE : SLineDirective::KIND_NONE, 0,
            std::nullopt};
}

} // namespace MacroPreprocessorChecker::internal
