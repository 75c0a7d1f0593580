#include "Catalogue/UVDBTypeTextName.h"

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

// The end of a bracket that opens at `open`. Bounds of arrays don't count.
std::size_t EndOfBounds(std::string_view text, std::size_t open)
{
    const std::size_t close = text.find(']', open);
    if (close == std::string_view::npos)
        throw CBadTypeText("the \"]\" is missing in " + Quoted(text));
    return close;
}

std::size_t EndOfPair(std::string_view text, std::size_t open)
{
    const std::size_t close = text.find_first_of("()", open + 1);
    if (close == std::string_view::npos)
        throw CBadTypeText("the \")\" is missing in " + Quoted(text));
    if (text[close] == '(')
        throw CBadTypeText("a parenthesis inside parentheses in " + Quoted(text));
    return close;
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
            // A name without a pair takes its parameters behind it, wherever they were written.
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

SFound FindWithoutAdditions(const SDataTypeTable& table, const SWritten& written)
{
    const SFound found = FindFitting(table, written, false);
    return found.span ? found : FindFitting(table, written, true);
}

} // namespace

namespace UVDBTypeText {

std::string Quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
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

SWritten TakeApart(std::string_view text)
{
    SWritten written;
    bool needsBlank = false; // in front of the next word
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        if (IsBlank(character)) {
            needsBlank = !written.name.empty();
            continue;
        }
        switch (character) {
        case '(': {
            const std::size_t close = EndOfPair(text, i);
            if (!written.pairs.empty() && written.pairs.back().offset == written.name.size())
                throw CBadTypeText("two pairs of parentheses in one place in " + Quoted(text));
            written.pairs.push_back({written.name.size(), SplitItems(text.substr(i + 1, close - i - 1))});
            i = close;
            needsBlank = true;
            break;
        }
        case '[':
            i = EndOfBounds(text, i);
            written.name += "[]";
            needsBlank = true;
            break;
        case ')':
        case ']':
        case ',':
        case ';':
        case '\'':
            throw CBadTypeText("unexpected " + Quoted({&character, 1}) + " in " + Quoted(text));
        default:
            if (static_cast<unsigned char>(character) < ' ' || character == '\x7f')
                throw CBadTypeText("a control character in the type");
            if (needsBlank && !written.name.empty())
                written.name += ' ';
            needsBlank = false;
            written.name += character;
        }
    }
    const bool hasLetter = std::ranges::any_of(written.name, [](char character) {
        return IsWordCharacter(character) && (character < '0' || character > '9');
    });
    if (!hasLetter)
        throw CBadTypeText("there is no type name in " + Quoted(text));
    return written;
}

std::string WithPairs(const SWritten& written)
{
    std::string name = written.name;
    for (auto pair = written.pairs.rbegin(); pair != written.pairs.rend(); ++pair)
        name.insert(std::min(pair->offset, name.size()), "()");
    return name;
}

SFound FindTypeName(const SDataTypeTable& table, SWritten& written)
{
    SFound found = FindWithoutAdditions(table, written);
    if (found.span)
        return found;
    // How texts are stored and ordered isn't the type's.
    for (const std::string_view addition : {" CHARACTER SET ", " COLLATE "}) {
        const std::size_t at = written.name.find(addition);
        if (at == std::string::npos)
            continue;
        SWritten shorter = written;
        shorter.name.resize(at);
        std::erase_if(shorter.pairs, [at](const SPair& pair) { return pair.offset > at; });
        found = FindWithoutAdditions(table, shorter);
        if (found.span) {
            written = shorter;
            return found;
        }
    }
    return found;
}

bool TakeIdentity(DB_VERSION_INFO version, SWritten& written)
{
    constexpr std::string_view kIdentity = " IDENTITY";

    if ((version.db != UVDB_DB_MSSQL && version.db != UVDB_DB_SYBASE) || !written.name.ends_with(kIdentity))
        return false;
    written.name.resize(written.name.size() - kIdentity.size());
    std::erase_if(written.pairs, [&](const SPair& pair) { return pair.offset > written.name.size(); });
    return true;
}

} // namespace UVDBTypeText
