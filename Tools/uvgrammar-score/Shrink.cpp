#include "Tools/uvgrammar-score/Shrink.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-score/ScoreReport.h"

#include <algorithm>
#include <optional>

namespace uvscore {

namespace {

constexpr std::size_t kMostParses = 20000;

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsWord(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || static_cast<unsigned char>(c) >= 0x80;
}

std::string Joined(const std::vector<std::string>& pieces)
{
    std::string text;
    for (const std::string& piece : pieces)
        text += piece;
    return text;
}

// The failure that comes first in the text.
std::optional<SFailure> FirstFailure(const SParsedText& text)
{
    const auto& findings = text.result.findings;
    const uvparse::SFinding* first = nullptr;
    for (const uvparse::SFinding& finding : findings)
        if (!finding.isReported && (first == nullptr || finding.offset < first->offset))
            first = &finding;
    return first == nullptr ? std::nullopt : std::optional(FailureOf(*first));
}

} // namespace

std::vector<std::string> CutIntoPieces(std::string_view text)
{
    std::vector<std::string> pieces;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = at + 1;
        const char first = text[at];
        if (IsWord(first)) {
            while (end < text.size() && IsWord(text[end]))
                ++end;
        } else if (first == '\'' || first == '"') {
            const std::size_t close = text.find(first, end);
            end = close == std::string_view::npos ? end : close + 1;
        }
        while (end < text.size() && IsBlank(text[end]))
            ++end;
        pieces.emplace_back(text.substr(at, end - at));
        at = end;
    }
    return pieces;
}

std::string ShrinkText(std::string_view text, const std::function<bool(const std::string&)>& fails,
                       std::size_t most)
{
    std::vector<std::string> pieces = CutIntoPieces(text);
    const auto failsStill = [&](const std::vector<std::string>& tried) {
        return most > 0 && most-- > 0 && fails(Joined(tried));
    };
    // Once nothing of a length can be left out, half of it is tried, and single pieces until none can.
    std::size_t length = std::max<std::size_t>(pieces.size() / 2, 1);
    while (most > 0) {
        bool isShorter = false;
        for (std::size_t at = 0; at < pieces.size();) {
            std::vector<std::string> rest = pieces;
            const auto from = rest.begin() + static_cast<std::ptrdiff_t>(at);
            rest.erase(from, from + static_cast<std::ptrdiff_t>(std::min(length, pieces.size() - at)));
            if (failsStill(rest)) {
                pieces = std::move(rest);
                isShorter = true;
            } else {
                at += length;
            }
        }
        if (length > 1)
            length /= 2;
        else if (!isShorter)
            break;
    }
    for (std::string& piece : pieces) {
        const std::size_t blanks = std::min(piece.find_last_not_of(" \t\n\v\f\r") + 1, piece.size());
        if (piece.size() - blanks < 2)
            continue;
        const std::string before = std::exchange(piece, piece.substr(0, blanks) + ' ');
        if (!failsStill(pieces))
            piece = before;
    }
    return Joined(pieces);
}

std::string ShrinkFirstFailure(CTextParser& parser, const std::string& path)
{
    const SScoredFile file = ScoreFile(parser, path);
    if (file.state == enFileState::NoText)
        throw CToolFailure(path + ": " + file.problem);
    const auto statement =
        std::ranges::find_if(file.statements, [](const auto& one) { return !one.IsClean(); });
    if (statement == file.statements.end())
        throw CToolFailure(path + ": every statement is clean");
    const SFailure failure = statement->failures.front();
    const auto fails = [&](const std::string& text) {
        const std::optional<SFailure> first = FirstFailure(parser.ParseText(text, path));
        return first && *first == failure;
    };
    // A failure may need what stands before its statement.
    std::string text = statement->text;
    if (!fails(text)) {
        text = parser.ParseFile(path).prepared.substr(0, statement->begin + statement->size);
        if (!fails(text))
            throw CToolFailure(path + ':' + std::to_string(statement->line) + ": " + TitleOf(failure) +
                               ": the failure doesn't come again in the text up to here");
    }
    return path + ':' + std::to_string(statement->line) + ": " + TitleOf(failure) + '\n' +
           ShrinkText(text, fails, kMostParses) + '\n';
}

} // namespace uvscore
