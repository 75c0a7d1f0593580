#include "Tools/uvparse/PreparedDiff.h"

#include "Tools/Support/ToolTerminal.h"
#include "Tools/uvparse/LineAlignment.h"
#include "Tools/uvparse/SourcePlaces.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace uvparse {

namespace {

// A line is: number, blank, text, blank, sign, blank, number, blank, text.
constexpr std::size_t kSeparators = 5;
constexpr std::size_t kLeastTextWidth = 8;

struct SFateLook
{
    char sign;
    const char* color;
};

// In the order of enLineFate.
constexpr SFateLook kFates[] = {
    {' ', ""}, {'|', "\033[33m"}, {'&', "\033[36m"}, {'<', "\033[31m"}, {'>', "\033[32m"},
};
constexpr char kTitleColor[] = "\033[1m";
constexpr char kNumberColor[] = "\033[2m";
constexpr char kEndOfColor[] = "\033[0m";

std::size_t DigitsOf(std::size_t number)
{
    return std::to_string(number).size();
}

// Blanks at the end of a line are no reason to show that it goes on.
std::string_view Trimmed(std::string_view line)
{
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

class CDiffWriter
{
public:
    CDiffWriter(std::size_t sourceLines, std::size_t preparedLines, const SDiffLook& look,
                const TTextSink& sink)
        : m_SourceDigits(DigitsOf(sourceLines)), m_PreparedDigits(DigitsOf(preparedLines)), m_Look(look),
          m_Sink(sink)
    {
        const std::size_t taken = m_SourceDigits + m_PreparedDigits + kSeparators;
        m_TextWidth = std::max(look.width > taken ? (look.width - taken) / 2 : 0, kLeastTextWidth);
    }

    void WriteTitles()
    {
        // Of a long path the end says most.
        const std::string& title = m_Look.sourceTitle;
        const std::size_t shown = StepBack(title, title.size(), m_TextWidth - 1, 0);
        Write(0, CountCodePoints(title) > m_TextWidth ? "\xE2\x80\xA6" + title.substr(shown) : title, ' ',
              kTitleColor, 0, m_Look.preparedTitle);
    }

    void WriteRow(const SLineRow& row)
    {
        const SFateLook& fate = kFates[static_cast<std::size_t>(row.fate)];
        Write(row.sourceNumber, row.source, fate.sign, fate.color, row.preparedNumber, row.prepared);
    }

private:
    void AppendNumber(std::size_t number, std::size_t digits)
    {
        if (number == 0) {
            m_Line.append(digits + 1, ' ');
            return;
        }
        char text[24];
        const char* const end = std::to_chars(text, std::end(text), number).ptr;
        m_Line.append(digits - static_cast<std::size_t>(end - text), ' ');
        SetColor(kNumberColor);
        m_Line.append(text, static_cast<std::size_t>(end - text));
        EndColor(kNumberColor);
        m_Line += ' ';
    }

    void SetColor(const char* color)
    {
        if (m_Look.isColored)
            m_Line += color;
    }

    void EndColor(const char* color)
    {
        if (m_Look.isColored && *color != '\0')
            m_Line += kEndOfColor;
    }

    // A number of 0 is left out.
    void Write(std::size_t sourceNumber, std::string_view source, char sign, const char* color,
               std::size_t preparedNumber, std::string_view prepared)
    {
        m_Line.clear();
        AppendNumber(sourceNumber, m_SourceDigits);
        SetColor(color);
        const std::size_t used = m_Cells.Append(Trimmed(source), m_TextWidth, m_Line);
        m_Line.append(m_TextWidth - used + 1, ' ');
        m_Line += sign;
        EndColor(color);
        m_Line += ' ';
        AppendNumber(preparedNumber, m_PreparedDigits);
        SetColor(color);
        m_Cells.Append(Trimmed(prepared), m_TextWidth, m_Line);
        EndColor(color);
        if (!m_Look.isColored)
            m_Line.resize(m_Line.find_last_not_of(' ') + 1);
        m_Line += '\n';
        m_Sink(m_Line);
    }

    CCellText m_Cells;
    std::size_t m_SourceDigits;
    std::size_t m_PreparedDigits;
    std::size_t m_TextWidth = 0;
    const SDiffLook& m_Look;
    const TTextSink& m_Sink;
    std::string m_Line; // of the row at hand
};

} // namespace

void WriteDiff(std::string_view source, std::string_view prepared, const CPreparedLines& lines,
               const SDiffLook& look, const TTextSink& sink)
{
    CDiffWriter writer(CountLines(source), CountLines(prepared), look, sink);
    writer.WriteTitles();
    AlignLines(source, prepared, lines, [&](const SLineRow& row) { writer.WriteRow(row); });
}

void WriteLines(std::string_view prepared, const CPreparedLines& lines, const std::string& prefix,
                bool isText, const TTextSink& sink)
{
    std::string row;
    for (CLineCursor line(prepared); !line.IsAtEnd(); line.Next()) {
        const std::optional<std::size_t> source = lines.SourceLineOf(line.Number());
        const std::string sourceNumber = source ? std::to_string(*source) : "-";
        row = prefix;
        if (isText)
            row.append(sourceNumber).append(1, ':');
        else
            row.append(std::to_string(line.Number())).append(1, '\t').append(sourceNumber);
        sink(row);
        if (isText)
            sink(line.Text());
        sink("\n");
    }
}

} // namespace uvparse
