// An XPath expression cut into its words and signs.
#pragma once

#include <string_view>
#include <vector>

namespace uvparse {

enum class enPathToken
{
    End,
    Name, // also of functions, axes and operators
    Number,
    Literal,
    Symbol
};

struct SPathToken
{
    enPathToken kind = enPathToken::End;
    std::string_view text;
};

// Views into `expression`, in order. The last one is the End; of what can't be read, it is the symbol "?",
// which nothing expects.
std::vector<SPathToken> ReadPathTokens(std::string_view expression);

} // namespace uvparse
