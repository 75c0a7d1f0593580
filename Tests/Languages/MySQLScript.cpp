#include "Tests/Languages/MySQLScript.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

namespace {

using uvscore::STokenPlace;

bool IsDelimiter(const STokenPlace& token)
{
    return token.name == "T__SEMICOLON" || token.name == "T__STATEMENT_DELIMITER" ||
           token.name == "T__CLIENT_SEND";
}

// The language runs a comment whatever its version is, and the server looks at that.
void TakeVersionsOut(std::string& text, std::size_t begin, std::size_t end)
{
    constexpr std::string_view kLeft = "99999"; // it and those above run nowhere
    for (std::size_t at = begin; at + 3 < end; ++at) {
        if (text.compare(at, 3, "/*!") != 0 && text.compare(at, 4, "/*M!") != 0)
            continue;
        const std::size_t digits = text.find('!', at) + 1;
        std::size_t after = digits;
        while (after < end && std::isdigit(static_cast<unsigned char>(text[after])) != 0)
            ++after;
        const std::string_view version = std::string_view(text).substr(digits, after - digits);
        if (version.size() < kLeft.size() || version.substr(0, kLeft.size()) != kLeft)
            std::fill(text.begin() + static_cast<std::ptrdiff_t>(digits),
                      text.begin() + static_cast<std::ptrdiff_t>(after), ' ');
    }
}

// Between statements the client takes a line for a comment though no blank follows its minus signs. The server doesn't.
void MarkClientComments(std::string& text, std::size_t begin, std::size_t end)
{
    for (std::size_t at = begin; at + 1 < end; ++at)
        if ((at == 0 || text[at - 1] == '\n') && text.compare(at, 2, "--") == 0)
            text.replace(at, 2, "# ");
}

std::string DelimiterLine(const std::string& delimiter)
{
    return delimiter.empty() ? "" : "DELIMITER " + delimiter + '\n';
}

} // namespace

bool SScriptStatement::IsOfClient() const
{
    return std::ranges::any_of(tokens, [](const STokenPlace& token) {
        return token.name == "T__CLIENT_COMMAND" || token.name == "T__DELIMITER" ||
               token.name == "T__DELIMITER_TEXT";
    });
}

bool SScriptStatement::HasBody() const
{
    if (tokens.empty() || (tokens.front().name != "T__CREATE" && tokens.front().name != "T__ALTER"))
        return false;
    // CREATE OR REPLACE DEFINER = 'a'@'b' SQL SECURITY ... PROCEDURE, and nothing else before it.
    constexpr std::size_t kMostBefore = 12;
    constexpr std::string_view kOthers[] = {"T__TABLE", "T__VIEW", "T__DATABASE", "T__USER", "T__LPAREN"};
    for (std::size_t i = 0; i < std::min(tokens.size(), kMostBefore); ++i) {
        const std::string_view name = tokens[i].name;
        if (std::ranges::find(kOthers, name) != std::end(kOthers))
            return false;
        const bool isRoutine = name == "T__PROCEDURE" || name == "T__FUNCTION";
        if (isRoutine || name == "T__TRIGGER" || name == "T__EVENT")
            return !(isRoutine && tokens.front().name == "T__ALTER") &&
                   std::ranges::find(tokens, "T__SONAME", &STokenPlace::name) == tokens.end();
    }
    return false;
}

std::string SScriptStatement::AloneText(const std::string& changed) const
{
    return DelimiterLine(delimiter) + changed + (delimiter.empty() ? "" : '\n' + delimiter + '\n');
}

std::size_t SScriptStatement::AloneOffset() const
{
    return DelimiterLine(delimiter).size();
}

std::vector<SScriptStatement> CutMySqlScript(const uvscore::SParsedText& parsed)
{
    const std::string& prepared = parsed.prepared;
    const std::vector<STokenPlace> tokens = uvscore::FindTokens(parsed.result.output, prepared);
    std::string text = prepared;
    std::size_t end = 0;
    for (const STokenPlace& token : tokens) {
        TakeVersionsOut(text, end, token.begin);
        end = token.end;
    }

    std::vector<SScriptStatement> cut;
    for (uvscore::SStatement& statement :
         uvscore::FindStatements(parsed.result.output, prepared, parsed.result.findings)) {
        SScriptStatement one;
        const auto first = std::ranges::lower_bound(tokens, statement.begin, {}, &STokenPlace::begin);
        const auto last = std::ranges::lower_bound(tokens, statement.end, {}, &STokenPlace::begin);
        one.tokens.assign(first, last);
        one.begin = first == tokens.begin() ? 0 : std::prev(first)->end;
        one.begin = std::min(one.begin, statement.begin);
        MarkClientComments(text, one.begin, statement.begin);
        std::size_t textEnd = std::max(statement.end, last == tokens.end() ? text.size() : last->begin);
        for (auto token = last; token != first && IsDelimiter(*std::prev(token));) {
            --token;
            textEnd = token->begin;
            if (token->name == "T__STATEMENT_DELIMITER")
                one.delimiter = prepared.substr(token->begin, token->end - token->begin);
        }
        one.text = text.substr(one.begin, textEnd - one.begin);
        one.statement = std::move(statement);
        cut.push_back(std::move(one));
    }
    return cut;
}
