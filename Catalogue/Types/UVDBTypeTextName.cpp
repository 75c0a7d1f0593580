#include "Catalogue/Types/UVDBTypeTextName.h"

#include "Catalogue/UVDBDatabaseKinds.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace {

using namespace UVDBTypeText;

bool IsBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool IsWordCharacter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '_' ||
           static_cast<unsigned char>(character) >= 0x80;
}

// ---- Taking the text apart ----

// No type has a longer name, and no message shows more of a text.
constexpr std::size_t kShownBytes = 200;

bool QuotesByBrackets(DB_VERSION_INFO version)
{
    return version.db == UVDB_DB_MSSQL || version.db == UVDB_DB_SYBASE || version.db == UVDB_DB_ACCESS;
}

bool EscapesByBackslash(DB_VERSION_INFO version)
{
    return version.db == UVDB_DB_MySQL || version.db == UVDB_DB_SingleStoreDB || version.db == UVDB_DB_GBASE;
}

// The marks that open a quoted name, and what closes it; 0 for other characters.
char ClosingMark(DB_VERSION_INFO version, char open)
{
    if (open == '[')
        return QuotesByBrackets(version) ? ']' : '\0';
    return open == '"' || open == '`' ? open : '\0';
}

// One text on the way through TakeApart.
class CTextReader
{
public:
    CTextReader(DB_VERSION_INFO version, std::string_view text) : m_Version(version), m_Text(text) {}

    SWritten Read();

private:
    void ReadPair();
    void ReadBounds();
    // What stands between a mark and `close`, which is doubled inside; goes on after the closing one.
    std::string ReadQuoted(char close, bool hasEscapes);
    void ReadCharacter(char character);
    void AddWord(std::string_view word);
    [[noreturn]] void FailMissing(char mark) const
    {
        throw CBadTypeText("the " + Quoted({&mark, 1}) + " is missing in " + Quoted(m_Text));
    }

    const DB_VERSION_INFO m_Version;
    const std::string_view m_Text;
    std::size_t m_At = 0;
    bool m_NeedsBlank = false; // before the next word
    SWritten m_Written;
};

void CTextReader::AddWord(std::string_view word)
{
    if (m_NeedsBlank && !m_Written.name.empty())
        m_Written.name += ' ';
    m_NeedsBlank = false;
    m_Written.name += word;
}

std::string CTextReader::ReadQuoted(char close, bool hasEscapes)
{
    std::string content;
    for (++m_At; m_At < m_Text.size(); ++m_At) {
        const char character = m_Text[m_At];
        const char next = m_At + 1 < m_Text.size() ? m_Text[m_At + 1] : '\0';
        if (character == close && next != close) {
            ++m_At;
            return content;
        }
        if (character == close || (character == '\\' && hasEscapes && m_At + 1 < m_Text.size()))
            ++m_At;
        content += m_Text[m_At];
    }
    FailMissing(close);
}

void CTextReader::ReadPair()
{
    if (!m_Written.pairs.empty() && m_Written.pairs.back().offset == m_Written.name.size())
        throw CBadTypeText("two pairs of parentheses in one place in " + Quoted(m_Text));
    SPair pair{m_Written.name.size(), {}};
    std::string item;
    bool hasItem = false;
    const auto end = [&](bool isLast) {
        item = Trimmed(item);
        // A blank pair has no items.
        if (hasItem || !isLast || !item.empty() || !pair.items.empty())
            pair.items.push_back(std::move(item));
        item.clear();
        hasItem = false;
    };
    for (++m_At; m_At < m_Text.size();) {
        const char character = m_Text[m_At];
        if (character == '\'' || character == '"') {
            item += '\'' + ReadQuoted(character, EscapesByBackslash(m_Version)) + '\'';
            hasItem = true;
            continue;
        }
        ++m_At;
        if (character == '(')
            throw CBadTypeText("a parenthesis inside parentheses in " + Quoted(m_Text));
        if (character == ')') {
            end(true);
            m_Written.pairs.push_back(std::move(pair));
            m_NeedsBlank = true;
            return;
        }
        if (character == ',')
            end(false);
        else
            item += UpperCase({&character, 1});
    }
    FailMissing(')');
}

// Bounds of arrays don't count, and neither does how many there are.
void CTextReader::ReadBounds()
{
    const std::size_t close = m_Text.find(']', m_At);
    if (close == std::string_view::npos)
        FailMissing(']');
    m_At = close + 1;
    if (!m_Written.name.ends_with("[]"))
        m_Written.name += "[]";
    m_NeedsBlank = true;
}

void CTextReader::ReadCharacter(char character)
{
    constexpr std::string_view kUnexpected = ")],;";

    if (kUnexpected.find(character) != std::string_view::npos)
        throw CBadTypeText("unexpected " + Quoted({&character, 1}) + " in " + Quoted(m_Text));
    if (static_cast<unsigned char>(character) < ' ' || character == '\x7f')
        throw CBadTypeText("a control character in the type");
    AddWord({&character, 1});
    ++m_At;
}

SWritten CTextReader::Read()
{
    while (m_At < m_Text.size()) {
        const char character = m_Text[m_At];
        if (IsBlank(character)) {
            m_NeedsBlank = !m_Written.name.empty();
            ++m_At;
        } else if (character == '(') {
            ReadPair();
        } else if (const char close = ClosingMark(m_Version, character)) {
            AddWord(ReadQuoted(close, false));
        } else if (character == '[') {
            ReadBounds();
        } else if (character == '\'') {
            ReadQuoted(character, EscapesByBackslash(m_Version));
            AddWord("''");
        } else {
            ReadCharacter(character);
        }
    }
    const bool hasLetter = std::ranges::any_of(m_Written.name, [](char character) {
        return IsWordCharacter(character) && (character < '0' || character > '9');
    });
    if (!hasLetter)
        throw CBadTypeText("there is no type name in " + Quoted(m_Text));
    return std::move(m_Written);
}

// ---- Finding the name ----

// Spellings that mean the same in every database. Longer ones go first.
struct SSpelling
{
    std::string_view written;
    std::string_view canonical;
};

constexpr SSpelling kSpellings[] = {
    {"NATIONAL CHARACTER VARYING", "NVARCHAR"},
    {"NATIONAL CHAR VARYING", "NVARCHAR"},
    {"NCHAR VARYING", "NVARCHAR"},
    {"NATIONAL CHARACTER", "NCHAR"},
    {"NATIONAL CHAR", "NCHAR"},
    {"NATIONAL VARCHAR", "NVARCHAR"},
    {"CHARACTER LARGE OBJECT", "CLOB"},
    {"CHAR LARGE OBJECT", "CLOB"},
    {"BINARY LARGE OBJECT", "BLOB"},
    {"CHARACTER VARYING", "VARCHAR"},
    {"CHAR VARYING", "VARCHAR"},
    {"CHARACTER", "CHAR"},
    {"BINARY VARYING", "VARBINARY"},
    {"BIT VARYING", "VARBIT"},
    {"DOUBLE PRECISION", "DOUBLE"},
    {"INTEGER", "INT"},
    {"DEC", "DECIMAL"},
    {"TIMESTAMP WITH LOCAL TIME ZONE", "TIMESTAMP WITH LOCAL TIME Z"},
    {"TIMESTAMP WITHOUT TIME ZONE", "TIMESTAMP"},
    {"TIME WITHOUT TIME ZONE", "TIME"},
};

// A table's name like a written one: its pairs are empty.
SWritten TakeApartKey(std::string_view key)
{
    SWritten written;
    for (std::size_t i = 0; i < key.size(); ++i) {
        if (key.substr(i).starts_with("()")) {
            written.pairs.push_back({written.name.size(), {}});
            ++i;
        } else
            written.name += key[i];
    }
    return written;
}

constexpr std::size_t kAppended = 1000; // worse than any pair left out

std::optional<SFit> Fit(const SWritten& written, const SWritten& key)
{
    SFit fit;
    for (const SPair& pair : written.pairs) {
        const auto found = std::ranges::find(key.pairs, pair.offset, &SPair::offset);
        if (found == key.pairs.end()) {
            // A name without a pair takes its parameters after it, wherever they were written.
            if (!key.pairs.empty() || written.pairs.size() > 1)
                return std::nullopt;
            return SFit{kAppended, {0}};
        }
        fit.groups.push_back(static_cast<std::size_t>(found - key.pairs.begin()));
    }
    if (!std::ranges::is_sorted(fit.groups, std::ranges::less_equal()))
        return std::nullopt;
    fit.unused = key.pairs.size() - written.pairs.size();
    return fit;
}

// Whether `key` without its pairs is `name`.
bool IsSameWithoutPairs(std::string_view key, std::string_view name)
{
    while (!key.empty()) {
        if (key.starts_with("()")) {
            key.remove_prefix(2);
            continue;
        }
        if (name.empty() || key.front() != name.front())
            return false;
        key.remove_prefix(1);
        name.remove_prefix(1);
    }
    return name.empty();
}

// The name of the table whose pairs fit best.
SFound FindFitting(const SDataTypeTable& table, const SWritten& written, bool bySpelling)
{
    SFound best;
    std::size_t bestRank = 0;
    const SWritten wanted = bySpelling ? Canonical(written) : written;
    for (const STypeNameSpan& span : table.names) {
        if (!bySpelling && !IsSameWithoutPairs(span.name, wanted.name))
            continue;
        SWritten key = TakeApartKey(span.name);
        const bool isPlain = key.name == wanted.name;
        if (bySpelling)
            key = Canonical(std::move(key));
        if (key.name != wanted.name)
            continue;
        std::optional<SFit> fit = Fit(wanted, key);
        if (!fit)
            continue;
        // Of two spellings that fit alike, the plain one.
        const std::size_t rank = 2 * fit->unused + (isPlain ? 0 : 1);
        if (!best.span || rank < bestRank) {
            best = {&span, std::move(*fit)};
            bestRank = rank;
        }
    }
    return best;
}

} // namespace

namespace UVDBTypeText {

std::string Quoted(std::string_view text)
{
    if (text.size() <= kShownBytes)
        return std::string("\"").append(text).append("\"");
    std::size_t end = kShownBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return std::string("\"").append(text.substr(0, end)).append("...\"");
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& character : upper) {
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    }
    return upper;
}

std::vector<std::string> SplitItems(std::string_view inner)
{
    std::vector<std::string> items;
    if (Trimmed(inner).empty())
        return items;
    for (std::size_t begin = 0; begin <= inner.size();) {
        const std::size_t end = std::min(inner.find(',', begin), inner.size());
        items.push_back(UpperCase(Trimmed(inner.substr(begin, end - begin))));
        begin = end + 1;
    }
    return items;
}

SWritten TakeApart(DB_VERSION_INFO version, std::string_view text)
{
    return CTextReader(version, text).Read();
}

std::string WithPairs(const SWritten& written)
{
    std::string name = written.name;
    for (auto pair = written.pairs.rbegin(); pair != written.pairs.rend(); ++pair)
        name.insert(std::min(pair->offset, name.size()), "()");
    return name;
}

SWritten Canonical(SWritten written)
{
    for (const SSpelling& spelling : kSpellings) {
        const std::size_t length = spelling.written.size();
        if (!written.name.starts_with(spelling.written) ||
            (written.name.size() > length && IsWordCharacter(written.name[length])))
            continue;
        written.name.replace(0, length, spelling.canonical);
        for (SPair& pair : written.pairs) {
            pair.offset = pair.offset < length ? std::min(pair.offset, spelling.canonical.size())
                                               : pair.offset - length + spelling.canonical.size();
        }
        break;
    }
    return written;
}

SFound FindTypeName(const SDataTypeTable& table, const SWritten& written)
{
    const SFound found = FindFitting(table, written, false);
    return found.span ? found : FindFitting(table, written, true);
}

} // namespace UVDBTypeText
