#include "Tools/uvgrammar-elements/Examples.h"

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvgrammar-test/CaseFile.h"
#include "Tools/uvgrammar-test/Outline.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <tuple>
#include <vector>

namespace uvelements {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f";
constexpr std::string_view kSpace = "T__SPACE";

std::vector<fs::path> CaseFiles(const fs::path& language)
{
    std::vector<fs::path> files;
    std::error_code failed;
    for (fs::directory_iterator entry(language / "Tests", failed), end; !failed && entry != end;
         entry.increment(failed))
        if (entry->path().extension() == ".tests")
            files.push_back(entry->path());
    std::ranges::sort(files);
    return files;
}

struct SPiece
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

// Where the leaves of a tree stand in the text, one after the other; a tree is often shown in part, and leaves out blanks.
// Nothing at all if they aren't found: the text was prepared for the parser.
std::optional<std::vector<SPiece>> FindLeaves(const std::string& text,
                                              const std::vector<uvtest::SOutlineElement>& elements)
{
    std::vector<SPiece> places(elements.size());
    std::size_t first = 0;
    while (true) {
        std::size_t at = first;
        bool isFirst = true;
        bool isFound = true;
        for (std::size_t i = 0; i < elements.size() && isFound; ++i) {
            const std::string& leaf = elements[i].text;
            if (leaf.empty())
                continue;
            if (isFirst) {
                at = text.find(leaf, first);
                if (at == std::string::npos)
                    return {};
                first = at + 1;
            } else if (text.compare(at, leaf.size(), leaf) != 0) {
                at = std::min(text.find_first_not_of(kBlanks, at), text.size());
                isFound = text.compare(at, leaf.size(), leaf) == 0;
            }
            isFirst = false;
            places[i] = {at, at + leaf.size()};
            at += leaf.size();
        }
        if (isFirst)
            return {};
        if (isFound)
            return places;
    }
}

class CExamples
{
public:
    void Add(const uvtest::SCase& one, const std::string& file)
    {
        if (!one.expected || one.isRaw)
            return;
        uvtest::TLines lines = *one.expected;
        const auto firstFinding = std::ranges::find_if(
            lines, [](const std::string& line) { return line.starts_with(uvtest::kFindingMark); });
        const bool hasMistake = firstFinding != lines.end();
        lines.erase(firstFinding, lines.end());
        const std::vector<uvtest::SOutlineElement> elements = uvtest::ElementsOfLines(lines);
        std::vector<bool> hasText(elements.size());
        for (std::size_t i = 0; i < elements.size(); ++i)
            if (IsOfText(elements[i]))
                for (std::size_t at = i; at != std::string_view::npos; at = elements[at].parent)
                    hasText[at] = true;
        const std::vector<SPiece> pieces = FindPieces(one.text, elements);
        for (std::size_t i = 0; i < elements.size(); ++i) {
            const std::string& name = elements[i].name;
            if (name.empty() || name.starts_with("T__") || !hasText[i])
                continue;
            const bool isWhole = pieces[i].begin == pieces[i].end;
            const SPiece piece = isWhole ? SPiece{0, one.text.size()} : pieces[i];
            if (piece.begin < piece.end)
                Offer(name, {one.text.substr(piece.begin, piece.end - piece.begin), file, one.line, isWhole,
                             hasMistake});
        }
    }

    std::map<std::string, SExample> Take() { return std::move(m_Examples); }

private:
    // Spaces belong to no element.
    static bool IsOfText(const uvtest::SOutlineElement& element)
    {
        return !element.text.empty() && element.name != kSpace;
    }

    // Empty for elements that aren't found. The trees of a text may be several: what an expression selects need not stand
    // side by side.
    static std::vector<SPiece> FindPieces(const std::string& text,
                                          const std::vector<uvtest::SOutlineElement>& elements)
    {
        std::vector<SPiece> pieces(elements.size());
        for (std::size_t begin = 0; begin < elements.size();) {
            std::size_t end = begin + 1;
            while (end < elements.size() && elements[end].parent != std::string_view::npos)
                ++end;
            const std::vector<uvtest::SOutlineElement> tree(
                elements.begin() + static_cast<std::ptrdiff_t>(begin),
                elements.begin() + static_cast<std::ptrdiff_t>(end));
            if (const auto leaves = FindLeaves(text, tree))
                Spread(elements, begin, *leaves, pieces);
            begin = end;
        }
        return pieces;
    }

    // From leaves to what they are in.
    static void Spread(const std::vector<uvtest::SOutlineElement>& elements, std::size_t begin,
                       const std::vector<SPiece>& leaves, std::vector<SPiece>& pieces)
    {
        for (std::size_t i = 0; i < leaves.size(); ++i) {
            const std::size_t leaf = begin + i;
            if (!IsOfText(elements[leaf]))
                continue;
            for (std::size_t at = leaf; at != std::string_view::npos; at = elements[at].parent) {
                SPiece& piece = pieces[at];
                if (piece.begin == piece.end)
                    piece.begin = leaves[i].begin;
                piece.end = leaves[i].end;
            }
        }
    }

    void Offer(const std::string& name, SExample example)
    {
        const auto rank = [](const SExample& one) {
            return std::tuple(one.hasMistake, one.isWhole, one.text.size());
        };
        const auto [known, isNew] = m_Examples.emplace(name, example);
        if (!isNew && rank(example) < rank(known->second))
            known->second = std::move(example);
    }

    std::map<std::string, SExample> m_Examples;
};

} // namespace

std::map<std::string, SExample> FindExamples(const std::string& language)
{
    CExamples examples;
    for (const fs::path& path : CaseFiles(language)) {
        try {
            const uvtest::SCaseFile file = uvtest::ReadCaseFile(path.string(), ReadWholeFile(path.string()));
            for (const uvtest::SCase& one : file.cases)
                examples.Add(one, path.lexically_relative(language).generic_string());
        } catch (const uvtest::CCaseFileError& e) {
            throw CToolFailure(path.string() + ':' + std::to_string(e.Line()) + ": " + e.what());
        }
    }
    return examples.Take();
}

} // namespace uvelements
