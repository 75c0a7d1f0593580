#include "Tests/Support/TreeShrinker.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace {

// A tag or what stands between two.
struct SPiece
{
    std::string text;
    std::size_t end = 0; // of a start tag: the piece of its end tag; otherwise its own number

    bool IsTag() const { return text.front() == '<'; }
};

std::string_view TagName(std::string_view tag)
{
    tag.remove_prefix(tag.starts_with("</") ? 2 : 1);
    return tag.substr(0, tag.find_first_of(" \t\r\n/>"));
}

std::vector<SPiece> Cut(std::string_view text)
{
    std::vector<SPiece> pieces;
    std::vector<std::size_t> open;
    while (!text.empty()) {
        std::size_t end = text.front() == '<' ? text.find('>') : text.find('<') - 1;
        end = text.front() != '<' && text.find('<') == text.npos ? text.size()
                                                                 : std::min(end, text.size() - 1) + 1;
        const std::size_t index = pieces.size();
        pieces.push_back({std::string(text.substr(0, end)), index});
        text.remove_prefix(end);
        const std::string& piece = pieces.back().text;
        if (!pieces.back().IsTag() || piece.ends_with("/>") || piece.starts_with("<!") ||
            piece.starts_with("<?"))
            continue;
        if (!piece.starts_with("</")) {
            open.push_back(index);
            continue;
        }
        while (!open.empty() && TagName(pieces[open.back()].text) != TagName(piece))
            open.pop_back();
        if (!open.empty()) {
            pieces[open.back()].end = index;
            open.pop_back();
        }
    }
    return pieces;
}

// Two ranges of a text go. The second comes after the first, or is empty.
struct SStep
{
    std::size_t from = 0, count = 0;
    std::size_t secondFrom = 0, secondCount = 0;

    std::size_t Gain() const { return count + secondCount; }

    std::string Apply(std::string text) const
    {
        text.erase(secondFrom, secondCount);
        return text.erase(from, count);
    }
};

// The steps by which a text gets smaller, those that take the most first.
std::vector<SStep> Steps(const std::string& text)
{
    const std::vector<SPiece> pieces = Cut(text);
    std::vector<std::size_t> starts;
    std::size_t length = 0;
    for (const SPiece& piece : pieces) {
        starts.push_back(length);
        length += piece.text.size();
    }
    starts.push_back(length);

    std::vector<SStep> steps;
    for (std::size_t at = 0; at < pieces.size(); ++at) {
        const SPiece& piece = pieces[at];
        const std::size_t from = starts[at], size = piece.text.size();
        const std::size_t end = starts[piece.end], behind = starts[piece.end + 1];
        steps.push_back({from, behind - from}); // the element with all that is in it
        if (piece.end > at) {
            steps.push_back({from, size, end, behind - end});    // its tags
            steps.push_back({from + size, end - from - size});   // its content
            steps.push_back({0, from, behind, length - behind}); // all but it
        }
        if (piece.IsTag() && piece.text.find('=') != piece.text.npos) {
            const std::size_t name = TagName(piece.text).size() + 1;
            const std::size_t bracket = piece.text.ends_with("/>") ? 2 : 1;
            steps.push_back({from + name, size - std::min(size, name + bracket)});
        }
        steps.push_back({from, size / 2});
        steps.push_back({from + size / 2, size - size / 2});
        steps.push_back({from, 1});
        steps.push_back({from + size - 1, 1});
    }
    std::stable_sort(steps.begin(), steps.end(),
                     [](const SStep& left, const SStep& right) { return left.Gain() > right.Gain(); });
    return steps;
}

} // namespace

std::string ShrinkTree(const std::string& text, const std::function<bool(const std::string&)>& fails,
                       std::size_t budget)
{
    constexpr std::size_t kCallCost = 500;
    std::string best = text;
    bool hasShrunk = true;
    while (hasShrunk) {
        hasShrunk = false;
        std::vector<SStep> steps = Steps(best);
        for (std::size_t next = 0; next < steps.size(); ++next) {
            const SStep step = steps[next];
            if (step.Gain() == 0 || step.Gain() >= best.size())
                continue;
            std::string smaller = step.Apply(best);
            if (budget < smaller.size() + kCallCost)
                return best;
            budget -= smaller.size() + kCallCost;
            if (!fails(smaller))
                continue;
            best = std::move(smaller);
            hasShrunk = true;
            // what would take more was tried
            steps = Steps(best);
            next = static_cast<std::size_t>(std::find_if(steps.begin(), steps.end(),
                                                         [&](const SStep& other) {
                                                             return other.Gain() < step.Gain() ||
                                                                    (other.Gain() == step.Gain() &&
                                                                     other.from >= step.from);
                                                         }) -
                                            steps.begin()) -
                   1;
        }
    }
    return best;
}
