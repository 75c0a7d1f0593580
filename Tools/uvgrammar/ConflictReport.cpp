#include "Tools/uvgrammar/ConflictReport.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

namespace {

constexpr std::size_t kMostItems = 6;
constexpr std::size_t kMostTokens = 8;

struct SAction
{
    bool isShift = false;
    std::string reduced; // unless it is a shift
};

// A state of the report, the lines of which are
//     item   = number ( left ":" | "|" ) { symbol } "." { symbol }
//     action = "    " token ( "shift, ..." | "reduce using rule" number "(" left ")" ) or, if it is disabled, the same in "[]"
struct SState
{
    std::vector<std::string> items;
    std::map<std::string, SAction> taken;                      // by token
    std::vector<std::pair<std::string, std::string>> disabled; // token, what would be reduced
};

// The symbol in the brackets at the end of "reduce using rule 7 (w)".
std::string ReducedSymbol(const std::string& text)
{
    const std::size_t open = text.rfind(" (");
    const std::size_t close = text.rfind(')');
    return open == std::string::npos || close == std::string::npos ? std::string()
                                                                   : text.substr(open + 2, close - open - 2);
}

void TakeLine(SState& state, std::string& left, const std::string& line)
{
    std::istringstream words(line);
    std::string first;
    std::string second;
    if (!(words >> first >> second))
        return;
    if (first.find_first_not_of("0123456789") == std::string::npos) {
        if (second != "|")
            left = second;
        std::string item = left;
        for (std::string word; words >> word;)
            item.append(" ").append(word);
        state.items.push_back(std::move(item));
        return;
    }
    if (second.starts_with("[reduce"))
        state.disabled.emplace_back(first, ReducedSymbol(line));
    else if (second == "reduce")
        state.taken.emplace(first, SAction{false, ReducedSymbol(line)});
    else if (second == "shift,")
        state.taken.emplace(first, SAction{true, {}});
}

bool IsComplete(const std::string& item)
{
    return item.ends_with(" .");
}

// What concerns the conflict first: the complete items of its symbols, then those that go on with a token of it.
std::vector<std::string> Sorted(const SState& state, const SConflict& conflict)
{
    const auto rank = [&](const std::string& item) {
        const std::string left = item.substr(0, item.find(':'));
        if (IsComplete(item))
            return left == conflict.reduced || left == conflict.other ? 0 : 1;
        const std::size_t dot = item.find(" . ");
        const std::string next = item.substr(dot + 3, item.find(' ', dot + 3) - dot - 3);
        return std::ranges::find(conflict.tokens, next) != conflict.tokens.end() ? 2 : 3;
    };
    std::vector<std::string> items = state.items;
    std::ranges::stable_sort(items, {}, rank);
    return items;
}

void AddState(const SState& state, std::map<std::tuple<std::string, std::string>, SConflict>& found)
{
    std::map<std::tuple<std::string, std::string>, std::set<std::string>> pairs;
    for (const auto& [token, reduced] : state.disabled) {
        const auto action = state.taken.find(token);
        pairs[{reduced, action == state.taken.end() ? std::string() : action->second.reduced}].insert(token);
    }
    for (const auto& [names, tokens] : pairs) {
        SConflict& conflict = found[names];
        if (++conflict.states > 1)
            continue;
        std::tie(conflict.reduced, conflict.other) = names;
        conflict.tokens.assign(tokens.begin(), tokens.end());
        conflict.items = Sorted(state, conflict);
    }
}

// The first ones, and how many more there are.
std::string Some(const std::vector<std::string>& words, std::size_t most)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(words.size(), most); ++i)
        text.append(i == 0 ? "" : " ").append(words[i]);
    if (words.size() > most)
        text.append(" and ").append(std::to_string(words.size() - most)).append(" more");
    return text;
}

} // namespace

std::vector<SConflict> ReadConflicts(std::string_view report)
{
    std::map<std::tuple<std::string, std::string>, SConflict> found;
    std::istringstream lines{std::string(report)};
    SState state;
    std::string left;
    bool isState = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("State ") && line.find("conflicts:") == std::string::npos) {
            AddState(state, found);
            state = {};
            isState = true;
        } else if (isState && line.starts_with(' ')) {
            TakeLine(state, left, line);
        }
    }
    AddState(state, found);
    std::vector<SConflict> conflicts;
    conflicts.reserve(found.size());
    for (auto& entry : found)
        conflicts.push_back(std::move(entry.second));
    std::ranges::stable_sort(conflicts, std::ranges::greater(), &SConflict::states);
    return conflicts;
}

std::string ConflictText(const SConflict& conflict)
{
    std::string text = "before " + Some(conflict.tokens, kMostTokens) + " it is open whether there is ";
    text += conflict.other.empty() ? "a whole " + conflict.reduced + " or more of it comes"
                                   : conflict.reduced + " or " + conflict.other;
    if (conflict.states > 1)
        text.append(", in ").append(std::to_string(conflict.states)).append(" states");
    const std::size_t shown = std::min(conflict.items.size(), kMostItems);
    for (std::size_t i = 0; i < shown; ++i)
        text.append("\n    ").append(conflict.items[i]);
    if (conflict.items.size() > shown)
        text.append("\n    and ").append(std::to_string(conflict.items.size() - shown)).append(" more rules");
    return text;
}
