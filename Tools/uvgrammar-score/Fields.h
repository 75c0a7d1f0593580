// Lines of fields separated by tabs, in which one process tells another what it found.
#pragma once

#include "Tools/Support/ToolResults.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace uvscore {

inline void AppendFields(std::string& text, const std::vector<std::string>& fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0)
            text += '\t';
        AppendTsvText(fields[i], text);
    }
    text += '\n';
}

// A line, without its end.
class CFields
{
public:
    explicit CFields(std::string_view line)
    {
        for (std::size_t at = 0;; ++at) {
            const std::size_t end = std::min(line.find('\t', at), line.size());
            m_Fields.push_back(TsvText(line.substr(at, end - at)));
            at = end;
            if (at == line.size())
                return;
        }
    }

    std::size_t Count() const { return m_Fields.size(); }
    // A field that isn't there is empty, and what is no number is 0.
    std::string Text(std::size_t index) const { return index < Count() ? m_Fields[index] : std::string(); }
    std::uint64_t Number(std::size_t index) const
    {
        std::uint64_t number = 0;
        if (index < Count())
            std::from_chars(m_Fields[index].data(), m_Fields[index].data() + m_Fields[index].size(), number);
        return number;
    }

private:
    std::vector<std::string> m_Fields;
};

} // namespace uvscore
