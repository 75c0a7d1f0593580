#include "Tools/uvgrammar-test/LineDifference.h"

#include <algorithm>
#include <cstddef>

namespace uvtest {

namespace {

using TLines = std::vector<std::string>;

constexpr std::size_t kContext = 3;
// Beyond this many comparisons what differs is shown as two blocks.
constexpr std::size_t kMostCells = std::size_t{1} << 22;

struct SRow
{
    char sign;
    const std::string* line;
};

// The rows of a longest common subsequence of the lines between the two positions and the two ends.
void AppendMiddle(const TLines& before, const TLines& after, std::size_t begin, std::size_t beforeEnd,
                  std::size_t afterEnd, std::vector<SRow>& rows)
{
    const std::size_t height = beforeEnd - begin;
    const std::size_t width = afterEnd - begin;
    std::size_t i = 0;
    std::size_t j = 0;
    if (width == 0 || height <= kMostCells / width) {
        // At [i][j]: the lines that what begins there has in common.
        std::vector<std::vector<std::size_t>> common(height + 1, std::vector<std::size_t>(width + 1));
        for (std::size_t down = height; down-- > 0;)
            for (std::size_t right = width; right-- > 0;)
                common[down][right] = before[begin + down] == after[begin + right]
                                          ? common[down + 1][right + 1] + 1
                                          : std::max(common[down + 1][right], common[down][right + 1]);
        while (i < height && j < width) {
            if (before[begin + i] == after[begin + j]) {
                rows.push_back({' ', &before[begin + i++]});
                ++j;
            } else if (common[i + 1][j] >= common[i][j + 1]) {
                rows.push_back({'-', &before[begin + i++]});
            } else {
                rows.push_back({'+', &after[begin + j++]});
            }
        }
    }
    for (; i < height; ++i)
        rows.push_back({'-', &before[begin + i]});
    for (; j < width; ++j)
        rows.push_back({'+', &after[begin + j]});
}

} // namespace

std::string DifferenceText(const TLines& before, const TLines& after)
{
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t begin = 0;
    while (begin < shorter && before[begin] == after[begin])
        ++begin;
    std::size_t same = 0; // at the ends
    while (same < shorter - begin && before[before.size() - 1 - same] == after[after.size() - 1 - same])
        ++same;

    std::vector<SRow> rows;
    for (std::size_t i = 0; i < begin; ++i)
        rows.push_back({' ', &before[i]});
    AppendMiddle(before, after, begin, before.size() - same, after.size() - same, rows);
    for (std::size_t i = before.size() - same; i < before.size(); ++i)
        rows.push_back({' ', &before[i]});

    std::vector<bool> isShown(rows.size());
    bool isEqual = true;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].sign == ' ')
            continue;
        isEqual = false;
        for (std::size_t near = i - std::min(i, kContext); near <= std::min(i + kContext, rows.size() - 1);
             ++near)
            isShown[near] = true;
    }
    std::string text;
    for (std::size_t i = 0; i < rows.size() && !isEqual; ++i) {
        if (isShown[i])
            text.append(1, rows[i].sign).append(1, ' ').append(*rows[i].line).append(1, '\n');
        else if (i == 0 || isShown[i - 1])
            text += "...\n";
    }
    return text;
}

} // namespace uvtest
