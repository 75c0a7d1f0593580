#include "Stylesheets/ConditionComments.h"

#include <optional>
#include <stdexcept>

// The grammar of the comments is small enough to be read by hand, in one pass and without a stack that grows
// with the text. As regular expressions, all in ASCII:
//     comment   <!--([\w\s:;\*\/\[\]]*)-->
//     begin     \s*Condition:[\s\S]*
//     condition \s*Condition:\s*(\w+)(\/([\w\*]+)\s*(\[[\w; \*\t]+\])?\s*)?
//     end       \s*End\s+Condition\s*
// No place of them can be matched in two ways, so each part takes all it can.

namespace {

constexpr std::string_view kCommentOpening = "<!--";
constexpr std::string_view kCommentClosing = "-->";

bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsWordCharacter(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool IsSecondNameCharacter(char c)
{
    return IsWordCharacter(c) || c == '*';
}

bool IsListCharacter(char c)
{
    return IsWordCharacter(c) || c == ';' || c == ' ' || c == '*' || c == '\t';
}

bool IsCommentCharacter(char c)
{
    return IsWordCharacter(c) || IsSpace(c) || std::string_view(":;*/[]").find(c) != std::string_view::npos;
}

// Takes a text apart from its front.
class CReader
{
public:
    explicit CReader(std::string_view text) : m_Rest(text) {}

    template <class Class>
    std::string_view TakeRun(Class isInClass)
    {
        std::size_t length = 0;
        while (length < m_Rest.size() && isInClass(m_Rest[length]))
            ++length;
        const std::string_view run = m_Rest.substr(0, length);
        m_Rest.remove_prefix(length);
        return run;
    }

    bool Take(std::string_view word)
    {
        if (!m_Rest.starts_with(word))
            return false;
        m_Rest.remove_prefix(word.size());
        return true;
    }

    bool IsAtEnd() const { return m_Rest.empty(); }
    bool IsAt(char c) const { return m_Rest.starts_with(c); }

private:
    std::string_view m_Rest;
};

struct SComment
{
    std::size_t begin = 0;
    std::size_t end = 0; // after it
    std::string_view content;
};

std::optional<SComment> FindComment(std::string_view text, std::size_t from)
{
    while ((from = text.find(kCommentOpening, from)) != std::string_view::npos) {
        const std::size_t contentBegin = from + kCommentOpening.size();
        std::size_t contentEnd = contentBegin;
        while (contentEnd < text.size() && IsCommentCharacter(text[contentEnd]))
            ++contentEnd;
        if (text.substr(contentEnd).starts_with(kCommentClosing))
            return SComment{from, contentEnd + kCommentClosing.size(),
                            text.substr(contentBegin, contentEnd - contentBegin)};
        from = contentEnd; // no comment opens among the characters that a comment may hold
    }
    return std::nullopt;
}

bool TakeConditionWord(CReader& reader)
{
    reader.TakeRun(IsSpace);
    return reader.Take("Condition:");
}

bool IsConditionBegin(std::string_view content)
{
    CReader reader(content);
    return TakeConditionWord(reader);
}

bool IsConditionEnd(std::string_view content)
{
    CReader reader(content);
    reader.TakeRun(IsSpace);
    if (!reader.Take("End") || reader.TakeRun(IsSpace).empty() || !reader.Take("Condition"))
        return false;
    reader.TakeRun(IsSpace);
    return reader.IsAtEnd();
}

struct SCondition
{
    std::string_view name;
    std::optional<std::string_view> second;
    std::optional<std::string_view> list; // with its brackets
};

std::optional<SCondition> ReadCondition(std::string_view content)
{
    CReader reader(content);
    SCondition condition;
    if (!TakeConditionWord(reader))
        return std::nullopt;
    reader.TakeRun(IsSpace);
    condition.name = reader.TakeRun(IsWordCharacter);
    if (condition.name.empty())
        return std::nullopt;
    if (reader.Take("/")) {
        condition.second = reader.TakeRun(IsSecondNameCharacter);
        if (condition.second->empty())
            return std::nullopt;
        reader.TakeRun(IsSpace);
        if (reader.Take("[")) {
            const std::string_view inside = reader.TakeRun(IsListCharacter);
            if (inside.empty() || !reader.Take("]"))
                return std::nullopt;
            condition.list = std::string_view(inside.data() - 1, inside.size() + 2);
        }
        reader.TakeRun(IsSpace);
    }
    return reader.IsAtEnd() ? std::optional(condition) : std::nullopt;
}

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The words of a condition are ASCII; nothing else equals them in any case.
bool AreEqualNoCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerCase(a[i]) != LowerCase(b[i]))
            return false;
    }
    return true;
}

bool IsMet(std::string_view words, std::string_view value)
{
    return words == "*" || AreEqualNoCase(words, value);
}

template <class Class>
std::string_view Trim(std::string_view text, Class isInClass)
{
    while (!text.empty() && isInClass(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isInClass(text.back()))
        text.remove_suffix(1);
    return text;
}

bool IsItemOfList(std::string_view list, std::string_view value)
{
    std::string_view rest = Trim(list, [](char c) { return c == '[' || c == ';' || c == ']'; });
    for (;;) {
        const std::size_t end = rest.find(';');
        if (IsMet(Trim(rest.substr(0, end), IsSpace), value))
            return true;
        if (end == std::string_view::npos)
            return false;
        rest.remove_prefix(end + 1);
    }
}

bool IsSectionKept(std::string_view content, std::string_view first, std::string_view second,
                   std::string_view third)
{
    const auto condition = ReadCondition(content);
    return condition && AreEqualNoCase(condition->name, first) &&
           (!condition->second || IsMet(*condition->second, second)) &&
           (!condition->list || IsItemOfList(*condition->list, third));
}

enDeadCondition ReasonOfDeath(std::string_view content)
{
    CReader reader(content);
    TakeConditionWord(reader);
    reader.TakeRun(IsSpace);
    const bool hasName = !reader.TakeRun(IsWordCharacter).empty();
    const bool hasBlank = !reader.TakeRun(IsSpace).empty();
    if (hasName && reader.IsAt('['))
        return enDeadCondition::ListWithoutSecondName;
    if (hasName && hasBlank && reader.IsAtEnd())
        return enDeadCondition::BlankBehindName;
    return enDeadCondition::Malformed;
}

} // namespace

std::string ProcessGlobalVariables(const std::string& text, const std::string& first,
                                   const std::string& second, const std::string& third)
{
    std::string out;
    out.reserve(text.size());
    std::size_t from = 0;
    std::optional<SComment> open;
    while (const auto comment = FindComment(text, from)) {
        if (IsConditionBegin(comment->content)) {
            if (open)
                throw std::runtime_error("The previous Condition comment is not closed.");
            open = comment;
            out.append(text, from, comment->begin - from);
        } else {
            if (!IsConditionEnd(comment->content))
                throw std::runtime_error("Expected End Condition comment.");
            if (!open)
                throw std::runtime_error("The Condition comment should be before End Condition comment.");
            if (IsSectionKept(open->content, first, second, third))
                out.append(text, from, comment->begin - from);
            open.reset();
        }
        from = comment->end;
    }
    out.append(text, from);
    return out;
}

std::vector<SDeadCondition> FindDeadConditions(std::string_view text)
{
    std::vector<SDeadCondition> dead;
    std::size_t from = 0;
    while (const auto comment = FindComment(text, from)) {
        if (IsConditionBegin(comment->content) && !ReadCondition(comment->content))
            dead.push_back({comment->begin, ReasonOfDeath(comment->content), std::string(comment->content)});
        from = comment->end;
    }
    return dead;
}
