#include "Tools/uvgrammar-score/Faults.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace uvscore {

namespace {

constexpr std::array<const char*, kFaults> kNames = {
    "token deleted",    "token doubled",    "keyword instead of a token",
    "keyword inserted", "quote dropped",    "dollar quote dropped",
    "bracket dropped",  "delimiter dropped"};
constexpr std::string_view kQuotes = "'\"`";
constexpr std::string_view kBrackets = "()[]{}";

std::string_view TextOf(const STokenPlace& token, std::string_view text)
{
    return text.substr(token.begin, token.end - token.begin);
}

// The token of a keyword is called like it.
bool IsKeyword(const STokenPlace& token, std::string_view text)
{
    const std::string_view word = TextOf(token, text);
    const std::string_view name = token.name.substr(3);
    return word.size() > 1 && std::ranges::equal(word, name, [](char a, char b) {
               return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b && a != '_';
           });
}

// None if the token doesn't allow it.
std::vector<SEdit> EditsOf(enFault fault, const STokenPlace& token, std::string_view text,
                           const std::string& keyword)
{
    const std::string word(TextOf(token, text));
    const std::vector<SEdit> without = {{token.begin, token.end, ""}};
    bool isPossible = true;
    switch (fault) {
    case enFault::Deleted:
    case enFault::Delimiter:
        break;
    case enFault::Doubled:
        return {{token.end, token.end, ' ' + word}};
    case enFault::Keyword:
        if (keyword.empty() || word == keyword)
            return {};
        return {{token.begin, token.end, keyword}};
    case enFault::Inserted:
        if (keyword.empty())
            return {};
        return {{token.begin, token.begin, keyword + ' '}};
    case enFault::Quote:
        if (word.size() < 2 || kQuotes.find(word.back()) == std::string_view::npos)
            return {};
        return {{token.begin + word.find(word.back()), token.begin + word.find(word.back()) + 1, ""},
                {token.end - 1, token.end, ""}};
    case enFault::DollarQuote:
        isPossible = word.size() > 1 && word.front() == '$' && word.back() == '$';
        break;
    case enFault::Bracket:
        isPossible = word.size() == 1 && kBrackets.find(word) != std::string_view::npos;
        break;
    }
    return isPossible ? without : std::vector<SEdit>();
}

} // namespace

const char* NameOf(enFault fault)
{
    return kNames.at(static_cast<std::size_t>(fault));
}

std::vector<std::string> KeywordsOf(const std::vector<SCleanStatement>& statements, std::string_view text)
{
    std::vector<std::string> keywords;
    for (const SCleanStatement& statement : statements)
        for (const STokenPlace& token : statement.tokens)
            if (IsKeyword(token, text))
                keywords.emplace_back(TextOf(token, text));
    return keywords;
}

std::optional<SEdit> ChooseEdit(enFault fault, const SCleanStatement& statement, std::string_view text,
                                const std::vector<std::string>& keywords, CChance& chance)
{
    const std::string keyword = keywords.empty() ? "" : keywords[chance.Below(keywords.size())];
    if (statement.tokens.empty())
        return std::nullopt;
    // The last token is the delimiter. Without it two statements are one text, which is a fault of its own.
    const std::size_t delimiter = statement.tokens.size() - 1;
    std::vector<SEdit> possible;
    for (std::size_t i = 0; i < statement.tokens.size(); ++i)
        if ((i == delimiter) == (fault == enFault::Delimiter))
            std::ranges::move(EditsOf(fault, statement.tokens[i], text, keyword),
                              std::back_inserter(possible));
    if (possible.empty())
        return std::nullopt;
    return possible[chance.Below(possible.size())];
}

} // namespace uvscore
