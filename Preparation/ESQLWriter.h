// A text that is put together from parts of a source, and the source line of each of its lines.
#pragma once

#include "Preparation/PreparedText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace Esql {

constexpr std::string_view kExecSql = "EXEC SQL ";
constexpr std::string_view kBeginSection = "EXEC SQL BEGIN DECLARE SECTION;";
constexpr std::string_view kEndSection = "EXEC SQL END DECLARE SECTION;";

class CPreparedWriter
{
public:
    // The next part of the source.
    void Copy(std::string_view part)
    {
        while (!part.empty()) {
            const std::size_t end = part.find('\n');
            const std::size_t length = end == part.npos ? part.size() : end + 1;
            Append(part.substr(0, length));
            m_SourceLine += end != part.npos;
            part.remove_prefix(length);
        }
    }

    void Insert(std::string_view part) { Append(part); }

    SPreparedText Take() { return std::move(m_Prepared); }

private:
    // `part` holds a line feed at its end at most.
    void Append(std::string_view part)
    {
        if (m_Prepared.text.empty() || m_Prepared.text.back() == '\n')
            m_Prepared.sourceLines.push_back(m_SourceLine);
        m_Prepared.text.append(part);
    }

    SPreparedText m_Prepared;
    std::uint32_t m_SourceLine = 1;
};

} // namespace Esql
