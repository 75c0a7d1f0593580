#include "Preparation/Formatters/PascalDirectives.h"

#include "Preparation/Formatters/AsciiLetters.h"
#include "Preparation/Formatters/SourceLines.h"

#include <algorithm>

namespace {

struct SDirectiveName
{
    std::string_view name;
    enPascalDirective kind;
    enSymbolCondition condition = enSymbolCondition::None;
};

// clang-format off
constexpr SDirectiveName kNames[] = {
    {"ELSE",   enPascalDirective::Else                                          },
    {"ELSEIF", enPascalDirective::ElseIf                                        },
    {"ENDIF",  enPascalDirective::End                                           },
    {"IF",     enPascalDirective::Condition                                     },
    {"IFDEF",  enPascalDirective::Condition, enSymbolCondition::IsDefined       },
    {"IFEND",  enPascalDirective::End                                           },
    {"IFNDEF", enPascalDirective::Condition, enSymbolCondition::IsNotDefined    },
    {"IFOPT",  enPascalDirective::Condition                                     },
    {"UNDEF",  enPascalDirective::Undefine                                      },
};
// clang-format on

std::string_view FirstWord(std::string_view text)
{
    return text.substr(0,
                       static_cast<std::size_t>(std::ranges::find_if_not(text, IsAsciiWord) - text.begin()));
}

class CScanner
{
public:
    explicit CScanner(std::string_view source) : m_Source(source) {}

    std::vector<SPascalDirective> Run()
    {
        while (m_At < m_Source.size()) {
            const char character = m_Source[m_At];
            if (character == '\'')
                SkipLiteral();
            else if (character == '{')
                TakeComment(1, "}");
            else if (m_Source.substr(m_At, 2) == "(*")
                TakeComment(2, "*)");
            else if (m_Source.substr(m_At, 2) == "//")
                m_At = std::min(m_Source.find('\n', m_At), m_Source.size());
            else
                ++m_At;
        }
        return std::move(m_Directives);
    }

private:
    // A literal ends with its line at the latest.
    void SkipLiteral()
    {
        const std::size_t end = m_Source.find_first_of("'\n", m_At + 1);
        m_At = end == m_Source.npos ? m_Source.size() : end + 1;
    }

    void TakeComment(std::size_t opening, std::string_view closing)
    {
        const std::size_t begin = m_At;
        const std::size_t close = m_Source.find(closing, begin + opening);
        m_At = close == m_Source.npos ? m_Source.size() : close + closing.size();
        if (close != m_Source.npos && m_Source.substr(begin + opening).starts_with('$'))
            TakeDirective(begin, begin + opening + 1, close);
    }

    void TakeDirective(std::size_t begin, std::size_t nameBegin, std::size_t close)
    {
        const std::string_view inner = m_Source.substr(nameBegin, close - nameBegin);
        const std::string_view name = FirstWord(inner);
        const auto known = std::ranges::find_if(
            kNames, [&](const SDirectiveName& row) { return EqualsAsciiNoCase(name, row.name); });
        if (known == std::end(kNames))
            return;
        m_Line += static_cast<std::uint32_t>(
            std::ranges::count(m_Source.substr(m_Counted, begin - m_Counted), '\n'));
        m_Counted = begin;
        SPascalDirective& directive = m_Directives.emplace_back();
        directive.kind = known->kind;
        directive.condition = known->condition;
        directive.begin = begin;
        directive.end = m_At;
        directive.nameBegin = nameBegin;
        directive.line = m_Line;
        directive.text = m_Source.substr(begin, m_At - begin);
        directive.symbol = FirstWord(WithoutLeadingBlanks(inner.substr(name.size())));
    }

    std::string_view m_Source;
    std::size_t m_At = 0;
    std::size_t m_Counted = 0; // up to here the line feeds are in m_Line
    std::uint32_t m_Line = 1;
    std::vector<SPascalDirective> m_Directives;
};

// Every directive of a construct learns whether the construct begins and ends.
void Balance(std::vector<SPascalDirective>& directives)
{
    std::vector<std::vector<std::size_t>> open; // the directives of each construct that is open
    for (std::size_t at = 0; at != directives.size(); ++at) {
        SPascalDirective& directive = directives[at];
        if (directive.kind == enPascalDirective::Undefine)
            continue;
        directive.isBalanced = false;
        if (directive.kind == enPascalDirective::Condition)
            open.emplace_back();
        directive.isStray = open.empty();
        if (directive.isStray)
            continue;
        open.back().push_back(at);
        if (directive.kind == enPascalDirective::End) {
            for (const std::size_t member : open.back())
                directives[member].isBalanced = true;
            open.pop_back();
        }
    }
}

} // namespace

std::vector<SPascalDirective> FindPascalDirectives(std::string_view source)
{
    std::vector<SPascalDirective> directives = CScanner(source).Run();
    Balance(directives);
    return directives;
}
