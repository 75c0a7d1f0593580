#include "Tools/uvparse/PreparedLines.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace uvparse {

namespace {

// Takes a positive number and the separator after it off the front of `line`.
bool TakeNumber(std::string_view& line, std::size_t& number)
{
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    const auto length = static_cast<std::size_t>(end - line.data());
    if (error != std::errc() || number == 0 || (length < line.size() && line[length] != '\t'))
        return false;
    line.remove_prefix(std::min(length + 1, line.size()));
    return true;
}

} // namespace

CPreparedLines::CPreparedLines(std::string_view pass, std::string_view list) : m_IsIdentity(pass.empty())
{
    if (m_IsIdentity)
        return;
    constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();
    std::size_t firstFree = 1;
    for (CLineCursor lines(list); !lines.IsAtEnd(); lines.Next()) {
        std::string_view line = lines.Text();
        SRun run{};
        if (!TakeNumber(line, run.prepared) || !TakeNumber(line, run.source) ||
            !TakeNumber(line, run.count) || !line.empty() || run.prepared < firstFree ||
            run.count > kMost - run.prepared || run.count > kMost - run.source) {
            m_Runs.clear();
            return;
        }
        firstFree = run.prepared + run.count;
        m_Runs.push_back(run);
    }
}

std::optional<std::size_t> CPreparedLines::SourceLineOf(std::size_t preparedLine) const
{
    if (m_IsIdentity)
        return preparedLine;
    const auto behind =
        std::upper_bound(m_Runs.begin(), m_Runs.end(), preparedLine,
                         [](std::size_t line, const SRun& run) { return line < run.prepared; });
    if (behind == m_Runs.begin() || preparedLine - behind[-1].prepared >= behind[-1].count)
        return std::nullopt;
    return behind[-1].source + (preparedLine - behind[-1].prepared);
}

void CLineCursor::Take()
{
    if (m_Rest.empty()) {
        m_Line = {};
        m_Number = 0;
        return;
    }
    const std::size_t end = std::min(m_Rest.find('\n'), m_Rest.size());
    m_Line = m_Rest.substr(0, end);
    m_Rest.remove_prefix(std::min(end + 1, m_Rest.size()));
    m_Number = ++m_Taken;
}

std::size_t CountLines(std::string_view text)
{
    const auto feeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    return feeds + (text.empty() || text.back() == '\n' ? 0 : 1);
}

} // namespace uvparse
