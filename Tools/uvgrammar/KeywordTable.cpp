#include "Tools/uvgrammar/KeywordTable.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view kBlanks = " \t\r";

// The next word of a row, or a text in quotes with them.
// Returns: an empty view at the end.
std::string_view TakeWord(std::string_view& row)
{
    row.remove_prefix(std::min(row.find_first_not_of(kBlanks), row.size()));
    std::size_t end = std::min(row.find_first_of(kBlanks), row.size());
    if (!row.empty() && row.front() == '"') {
        const std::size_t close = row.find('"', 1);
        end = close == std::string_view::npos ? row.size() : close + 1;
    }
    const std::string_view word = row.substr(0, end);
    row.remove_prefix(end);
    return word;
}

bool IsName(std::string_view word)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    return !word.empty() && isLetter(word.front()) && std::all_of(word.begin(), word.end(), [&](char c) {
        return isLetter(c) || (c >= '0' && c <= '9');
    });
}

bool IsQuoted(std::string_view word)
{
    return word.size() > 2 && word.front() == '"' && word.back() == '"' &&
           word.find('\\') == std::string_view::npos;
}

bool ReadNumber(std::string_view word, int& number)
{
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    return !word.empty() && read.ec == std::errc() && read.ptr == word.data() + word.size() && number >= 0;
}

std::string UpperCase(std::string_view word)
{
    std::string upper(word);
    for (char& c : upper)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return upper;
}

} // namespace

bool CKeywordTable::HasGroup(std::string_view group) const
{
    return std::any_of(m_Words.begin(), m_Words.end(), [&](const auto& entry) {
        const auto& groups = entry.second.groups;
        return std::find(groups.begin(), groups.end(), group) != groups.end();
    });
}

void CKeywordTable::Read(CSourceFiles& files, const CSourceFile& includer, std::size_t offset,
                         const std::string& name, CToolMessages& messages)
{
    if (const CSourceFile* const file = files.Include(includer, offset, name, messages))
        ReadFile(files, *file, messages);
}

void CKeywordTable::ReadFile(CSourceFiles& files, const CSourceFile& file, CToolMessages& messages)
{
    int color = 1;
    for (int line = 1; line <= file.LineCount(); ++line) {
        const std::size_t offset = file.LineStart(line);
        std::string_view row = file.Line(line);
        const std::string_view whole = row;
        const std::string_view word = TakeWord(row);
        if (word.empty() || word.front() == '#')
            continue;
        if (word == "%include") {
            const std::string_view name = TakeWord(row);
            if (IsQuoted(name) && TakeWord(row).empty())
                Read(files, file, offset, std::string(name.substr(1, name.size() - 2)), messages);
            else
                messages.Write(enSeverity::Error, file.PlaceAt(offset), "%include takes one path in quotes");
        } else if (word == "%color") {
            if (!ReadNumber(TakeWord(row), color) || !TakeWord(row).empty())
                messages.Write(enSeverity::Error, file.PlaceAt(offset), "%color takes one number");
        } else
            ReadRow(file, offset, whole, color, messages);
    }
}

std::set<std::string> CKeywordTable::RemovedTokens() const
{
    std::set<std::string> tokens;
    for (const std::string& token : m_Removed)
        tokens.insert("T" + token);
    for (const auto& [word, keyword] : m_Words)
        tokens.erase("T" + keyword.token);
    return tokens;
}

void CKeywordTable::ReadRow(const CSourceFile& file, std::size_t offset, std::string_view row, int color,
                            CToolMessages& messages)
{
    const auto complain = [&](const std::string& text) {
        messages.Write(enSeverity::Error, file.PlaceAt(offset), text);
    };
    std::string_view rest = row;
    const std::string_view first = TakeWord(rest);
    if (first == "-")
        return Remove(file, offset, rest, messages);
    const bool takesPlace = first == "=";
    if (!takesPlace)
        rest = row;

    SKeyword keyword{{}, {}, color, {}, {}, &file, offset};
    const std::size_t colon = rest.find(':');
    if (colon != std::string_view::npos && rest.substr(0, colon).find('"') == std::string_view::npos) {
        std::string_view groups = rest.substr(0, colon), words = rest.substr(colon + 1);
        for (std::string_view group = TakeWord(groups); !group.empty(); group = TakeWord(groups)) {
            if (!IsName(group))
                complain(std::string("'").append(group).append("' is no group"));
            keyword.groups.emplace_back(group);
        }
        for (std::string_view word = TakeWord(words); !word.empty(); word = TakeWord(words)) {
            keyword.word = word;
            keyword.token = "__" + UpperCase(word);
            Add(keyword, takesPlace, messages);
        }
        return;
    }
    keyword.word = TakeWord(rest);
    keyword.token = "__" + UpperCase(keyword.word);
    for (std::string_view next = TakeWord(rest); !next.empty(); next = TakeWord(rest)) {
        if (IsQuoted(next))
            keyword.spellings.emplace_back(next.substr(1, next.size() - 2));
        else if (next.starts_with("token=") && IsName(next.substr(6)))
            keyword.token = std::string("__").append(next.substr(6));
        else if (next.starts_with("color=") && ReadNumber(next.substr(6), keyword.color))
            continue;
        else if (IsName(next))
            keyword.groups.emplace_back(next);
        else
            complain(std::string("'").append(next).append(
                "' is no group, token=NAME, color=NUMBER or \"spelling\""));
    }
    Add(std::move(keyword), takesPlace, messages);
}

void CKeywordTable::Add(SKeyword keyword, bool takesPlace, CToolMessages& messages)
{
    const auto complain = [&](const std::string& text) {
        messages.Write(enSeverity::Error, keyword.file->PlaceAt(keyword.offset), text);
    };
    if (!IsName(keyword.word))
        return complain("'" + keyword.word + "' can't be a word of the language: its token gets its name");
    const auto known = m_Words.find(keyword.word);
    if (!takesPlace && known != m_Words.end())
        return complain("the word " + keyword.word + " is there already, in " + known->second.file->Path() +
                        ':' + std::to_string(known->second.file->LineAt(known->second.offset)) +
                        "; '= " + keyword.word + "' takes its place");
    if (takesPlace && (known == m_Words.end() || known->second.file == keyword.file))
        return complain("no included table has the word " + keyword.word);
    if (keyword.spellings.empty())
        keyword.spellings.emplace_back(keyword.word);
    m_Words.insert_or_assign(keyword.word, std::move(keyword));
}

void CKeywordTable::Remove(const CSourceFile& file, std::size_t offset, std::string_view words,
                           CToolMessages& messages)
{
    for (std::string_view word = TakeWord(words); !word.empty(); word = TakeWord(words)) {
        const auto known = m_Words.find(std::string(word));
        if (known == m_Words.end() || known->second.file == &file) {
            messages.Write(enSeverity::Error, file.PlaceAt(offset),
                           "no included table has the word " + std::string(word));
            continue;
        }
        m_Removed.insert(known->second.token);
        m_Words.erase(known);
    }
}
