#include "Preparation/ESQLPatterns.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Esql {

namespace {

struct SDollarWord
{
    std::string_view word;
    enDollar kind;
};

constexpr auto P = enDollar::Preprocessor;
constexpr auto S = enDollar::Statement;

// What the "$" before a word means. Those of the preprocessor stand right after it.
// clang-format off
constexpr SDollarWord kDollarWords[] = {
    {"include",    P}, {"define",     P}, {"undef",      P}, {"ifdef",      P}, {"ifndef",     P},
    {"elif",       P}, {"else",       P}, {"endif",      P},
    {"select",     S}, {"prepare",    S}, {"open",       S}, {"close",      S}, {"insert",     S},
    {"update",     S}, {"execute",    S}, {"connect",    S}, {"disconnect", S}, {"declare",    S},
    {"fetch",      S}, {"set",        S}, {"type",       S}, {"var",        S}, {"whenever",   S},
    {"arraylen",   S}, {"allocate",   S}, {"alter",      S}, {"analyze",    S}, {"audit",      S},
    {"comment",    S}, {"create",     S}, {"drop",       S}, {"grant",      S}, {"noaudit",    S},
    {"rename",     S}, {"revoke",     S}, {"truncate",   S}, {"delete",     S}, {"explain",    S},
    {"lock",       S}, {"commit",     S}, {"rollback",   S}, {"savepoint",  S}, {"describe",   S},
    {"free",       S}, {"begin",      S},
};
// clang-format on
static_assert(std::size(kDollarWords) == 45);
constexpr std::size_t kLongestDollarWord = 10;

constexpr std::string_view kStartingTypes[] = {
    "short", "char",   "int",      "int1",       "int2",     "int4",    "int8",       "double", "long",
    "float", "dec_t",  "decimal",  "fixchar",    "string",   "date",    "datetime",   "dtime",  "dtime_t",
    "loc_t", "row",    "intrvl_t", "collection", "lvarchar", "boolean", "ifx_int8_t", "mint",   "ifx_lo_t",
    "mlong", "mshort", "mchar",    "ifx_loc_t",  "bigint",   "struct",  "typedef",
};

constexpr std::string_view kBuiltInTypes[] = {"short", "char",  "int",     "double",
                                              "long",  "float", "varchar", "struct"};

// 0 for the end of the text, which is no letter of a name.
char LowerAt(std::string_view text, std::size_t at)
{
    return at < text.size() ? Lower(text[at]) : '\0';
}

// The order of a name in small letters and the text at `at`; a name that the text begins with is equal.
int CompareName(std::string_view name, std::string_view text, std::size_t at)
{
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (at + i >= text.size())
            return 1;
        const auto left = static_cast<unsigned char>(name[i]);
        const auto right = static_cast<unsigned char>(Lower(text[at + i]));
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

// The place after "begin declare section" or "end declare section"; kNowhere for anything else.
std::size_t SectionMarkEnd(std::string_view text, std::size_t at, std::string_view first)
{
    for (const std::string_view word : {first, std::string_view("declare")}) {
        if (!BeginsWithWord(text, at, word))
            return kNowhere;
        at = SkipSpace(text, at + word.size());
    }
    constexpr std::string_view kSection = "section";
    return BeginsWith(text, at, kSection) ? at + kSection.size() : kNowhere;
}

// With "$" the mark ends in ";" and white space, and nothing stands before the ";".
bool IsDollarSectionMark(std::string_view text, std::size_t at, std::string_view first)
{
    const std::size_t end = SectionMarkEnd(text, SkipSpace(text, at), first);
    return end != kNowhere && end + 1 < text.size() && text[end] == ';' && IsSpace(text[end + 1]);
}

bool IsExecSqlSectionMark(std::string_view text, std::size_t at, std::string_view first)
{
    const std::size_t end = SectionMarkEnd(text, at, first);
    return end != kNowhere && LowerAt(text, SkipSpace(text, end)) == ';';
}

// Calls `visit(from, behind, isDollar)` for each "$" and each "exec sql" that is in no comment, in their
// order.
template <class Visit>
void VisitNotations(std::string_view text, const CComments& comments, Visit visit)
{
    std::size_t dollar = text.find('$');
    SSpan exec = FindExecSql(text, 0, comments);
    while (dollar != kNowhere || exec.from != kNowhere) {
        if (dollar < exec.from) {
            if (!comments.Contains(dollar))
                visit(dollar, dollar + 1, true);
            dollar = text.find('$', dollar + 1);
        } else {
            visit(exec.from, exec.end, false);
            exec = FindExecSql(text, exec.end, comments);
        }
    }
}

} // namespace

bool BeginsWith(std::string_view text, std::size_t at, std::string_view word)
{
    if (at > text.size() || text.size() - at < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (Lower(text[at + i]) != word[i])
            return false;
    return true;
}

bool BeginsWithWord(std::string_view text, std::size_t at, std::string_view word)
{
    return BeginsWith(text, at, word) && at + word.size() < text.size() && IsSpace(text[at + word.size()]);
}

// ---- Comments ----

CComments::CComments(std::string_view text)
{
    for (std::size_t from = text.find("/*"); from != kNowhere;) {
        const std::size_t end = text.find("*/", from + 2);
        if (end == kNowhere)
            break;
        m_Blocks.push_back({from, end + 2});
        from = text.find("/*", end + 2);
    }
    for (std::size_t from = text.find("//"); from != kNowhere;) {
        const std::size_t end = text.find_first_of("\r\n", from + 2);
        if (end == kNowhere)
            break;
        if (text[end] == '\n' || LowerAt(text, end + 1) == '\n')
            m_Lines.push_back({from, end});
        from = text.find("//", end);
    }
}

bool CComments::Contains(const std::vector<SSpan>& spans, std::size_t at)
{
    const auto behind = std::ranges::upper_bound(spans, at, {}, &SSpan::from);
    return behind != spans.begin() && at < std::prev(behind)->end;
}

// ---- Types ----

void CTypeNames::Add(std::vector<std::string> names)
{
    for (std::string& name : names) {
        if (name.empty() || name.size() > kLongestName)
            continue;
        std::ranges::transform(name, name.begin(), Lower);
        m_Names.push_back(std::move(name));
    }
    std::ranges::sort(m_Names);
    // a name after another that it begins with adds nothing
    const auto isLonger = [](const std::string& first, const std::string& second) {
        return second.starts_with(first);
    };
    m_Names.erase(std::unique(m_Names.begin(), m_Names.end(), isLonger), m_Names.end());
}

bool CTypeNames::BeginsAt(std::string_view text, std::size_t at) const
{
    if (std::ranges::any_of(kStartingTypes,
                            [&](std::string_view type) { return BeginsWith(text, at, type); }))
        return true;
    return std::ranges::binary_search(m_Names, 0, std::ranges::less(),
                                      [&](const std::string& name) { return CompareName(name, text, at); });
}

bool IsStartingType(std::string_view word)
{
    return std::ranges::any_of(kStartingTypes, [&](std::string_view type) {
        return type.size() == word.size() && BeginsWith(word, 0, type);
    });
}

bool BeginsWithBuiltInType(std::string_view text, std::size_t at)
{
    return std::ranges::any_of(kBuiltInTypes,
                               [&](std::string_view type) { return BeginsWith(text, at, type); });
}

std::size_t BinaryTypeEnd(std::string_view text, std::size_t at)
{
    if (BeginsWithWord(text, at, "fixed"))
        at += 6;
    else if (BeginsWithWord(text, at, "var"))
        at = SkipSpace(text, at + 3);
    else
        return kNowhere;
    return BeginsWithWord(text, at, "binary") ? at + 6 : kNowhere;
}

// ---- Statements ----

enDollar ClassifyDollar(std::string_view behind, bool isAdjacent)
{
    const std::size_t from = SkipSpace(behind, 0);
    isAdjacent = isAdjacent && from == 0;
    if (isAdjacent && BeginsWith(behind, 0, "endif"))
        return enDollar::Preprocessor;
    std::size_t end = from;
    while (end - from <= kLongestDollarWord && LowerAt(behind, end) >= 'a' && LowerAt(behind, end) <= 'z')
        ++end;
    const char next = LowerAt(behind, end);
    for (const SDollarWord& row : kDollarWords) {
        if (row.word.size() != end - from || !BeginsWith(behind, from, row.word))
            continue;
        const bool isHit = row.kind == enDollar::Statement
                               ? IsSpace(next)
                               : isAdjacent && (next == ' ' || next == '|' || next == '\t');
        return isHit ? row.kind : enDollar::Nothing;
    }
    return enDollar::Nothing;
}

bool EndsDeclareSection(std::string_view behind)
{
    return IsDollarSectionMark(behind, 0, "end");
}

SSpan FindExecSql(std::string_view text, std::size_t from, const CComments& comments)
{
    for (std::size_t x = from + 1; x < text.size(); ++x) {
        if (Lower(text[x]) != 'x' || x - 1 < from || !BeginsWithWord(text, x - 1, "exec"))
            continue;
        const std::size_t sql = SkipSpace(text, x + 3);
        if (BeginsWithWord(text, sql, "sql") && !comments.Contains(x - 1))
            return {x - 1, SkipSpace(text, sql + 3)};
        x = sql - 1;
    }
    return {kNowhere, kNowhere};
}

std::vector<SSpan> FindStatements(std::string_view text, const CComments& comments)
{
    std::vector<SSpan> statements;
    VisitNotations(text, comments, [&](std::size_t from, std::size_t behind, bool isDollar) {
        if (!statements.empty() && from < statements.back().end)
            return;
        if (isDollar) {
            // a binary type looks like the statement "var", and only like that
            const bool isStatement = ClassifyDollar(text.substr(behind)) == enDollar::Statement &&
                                     BinaryTypeEnd(text, SkipSpace(text, behind)) == kNowhere;
            if (!isStatement && !EndsDeclareSection(text.substr(behind)))
                return;
        }
        statements.push_back({from, std::min(text.find(';', behind), text.size())});
    });
    return statements;
}

std::vector<SSpan> FindDeclareSections(std::string_view text, const CComments& comments)
{
    std::vector<SSpan> sections;
    std::size_t open = kNowhere;
    VisitNotations(text, comments, [&](std::size_t from, std::size_t behind, bool isDollar) {
        const auto isMark = isDollar ? &IsDollarSectionMark : &IsExecSqlSectionMark;
        if (open == kNowhere) {
            if (isMark(text, behind, "begin"))
                open = from;
        } else if (isMark(text, behind, "end")) {
            sections.push_back({open, from});
            open = kNowhere;
        }
    });
    return sections;
}

} // namespace Esql
