#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarKeeperText.h"
#include "Stylesheets/Archive/Compressor.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <type_traits>

namespace {

constexpr std::string_view kDigits = "0123456789";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsWordCharacter(char c)
{
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

std::span<const std::string_view> TablesOf(const std::string& path)
{
    if (UVDBGrammarKeeper::IsFileLexer(path))
        return UVDBGrammarKeeper::tableFilesLexer;
    return UVDBGrammarKeeper::tableFilesParser;
}

bool ReadSource(std::string& text, const std::string& source)
{
    if (UVDBGrammarKeeper::ReadFromFile(text, source.c_str()) == 0)
        return true;
    CLogWrapper::WriteTraceF("\nUVGrammarKeeper: Can't read file: %s, error: %d", source.c_str(), errno);
    return false;
}

struct STablePlace
{
    std::string_view name;
    std::size_t end = 0; // offset after the "="
};

// The table whose declaration begins at `at`, as yy_accept[128] = or yypact[] =; an empty name if none does.
STablePlace TableAt(std::string_view text, std::size_t at, std::span<const std::string_view> names)
{
    std::string_view rest = text.substr(at + 2);
    if (rest.starts_with('_'))
        rest.remove_prefix(1);
    for (const std::string_view name : names) {
        if (!rest.starts_with(name))
            continue;
        std::string_view behind = rest.substr(name.size());
        if (!behind.starts_with('['))
            continue;
        behind.remove_prefix(std::min(behind.find_first_not_of(kDigits, 1), behind.size()));
        constexpr std::string_view kOpening = "] =";
        if (behind.starts_with(kOpening))
            return {name, text.size() - behind.size() + kOpening.size()};
    }
    return {};
}

// The next declaration of one of the tables from `at` on.
STablePlace FindTable(std::string_view text, std::size_t at, std::span<const std::string_view> names)
{
    for (; (at = text.find("yy", at)) != std::string_view::npos; ++at) {
        const STablePlace place = TableAt(text, at, names);
        if (!place.name.empty())
            return place;
    }
    return {};
}

template <class T>
void WriteTable(std::string_view initialiser, const std::string& path)
{
    const std::vector<T> table = UVDBGrammarKeeper::GetFileTable<T>(initialiser);
    const std::size_t bytes = table.size() * sizeof(T);
    const int written = CompressBinary(path, table.data(), static_cast<unsigned>(bytes));
    if (written < 0 || static_cast<std::size_t>(written) < bytes)
        throw Uve::U8CString("\nUVParser ERROR: Failed to wite a file: " + path);
}

struct STableKind
{
    std::string_view name;
    bool isUnsigned = false;
};

// clang-format off
constexpr STableKind kTableKinds[] = {
    {"accept",             false},
    {"base",               false},
    {"chk",                false},
    {"def",                false},
    {"NUL_trans",          false},
    {"nxt",                false},
    {"rule_can_match_eol", false},
    {"acclist",            false},
    {"translate",          true },
    {"defact",             true },
    {"defgoto",            false},
    {"table",              false},
    {"pgoto",              false},
    {"pact",               false},
    {"check",              false},
    {"r1",                 true },
    {"r2",                 true },
    {"stos",               true },
};
// clang-format on

void SaveTable(std::string_view name, std::string_view initialiser, const std::string& directory)
{
    const auto* const kind = std::find_if(std::begin(kTableKinds), std::end(kTableKinds),
                                          [name](const STableKind& row) { return row.name == name; });
    if (kind == std::end(kTableKinds))
        throw Uve::U8CString("\nUVParser ERROR: Unknown table: " + std::string(name));
    const std::string path = directory + std::string(name) + ".dat";
    if (kind->isUnsigned)
        WriteTable<unsigned int>(initialiser, path);
    else
        WriteTable<int>(initialiser, path);
}

// "name = number" from `at` on, blanks as the generator sets them. Moves `at` after the pair.
// Returns: false if there is none before the end of the text.
bool NextEnumerator(std::string_view text, std::size_t& at, std::string_view& name, std::string_view& value)
{
    constexpr std::string_view kBetween = " = ";
    for (; (at = text.find(kBetween, at)) != std::string_view::npos; ++at) {
        std::size_t nameAt = at;
        while (nameAt > 0 && IsWordCharacter(text[nameAt - 1]))
            --nameAt;
        const std::size_t valueAt = at + kBetween.size();
        const std::size_t valueEnd = std::min(text.find_first_not_of(kDigits, valueAt), text.size());
        if (nameAt == at || valueEnd == valueAt)
            continue;
        name = text.substr(nameAt, at - nameAt);
        value = text.substr(valueAt, valueEnd - valueAt);
        at = valueEnd;
        return true;
    }
    return false;
}

void AppendDefine(std::string& out, std::string_view name, std::string_view value)
{
    out.append(name).append(1, ' ').append(value).append(1, '\n');
}

int WriteText(const std::string& text, const std::string& path, const char* operation)
{
    if (UVDBGrammarKeeper::WriteToFile(text, path.c_str()) == 0)
        return 0;
    CLogWrapper::WriteTraceF("\nUVGrammarKeeper: %s: Unknown error", operation);
    return -1;
}

} // namespace

int UVDBGrammarKeeper::WriteToFile(const std::string& content, const char* path)
{
    std::FILE* const file = std::fopen(path, "wb");
    if (file == nullptr)
        return -1;
    const bool isWritten = std::fwrite(content.data(), 1, content.size(), file) == content.size();
    return std::fclose(file) == 0 && isWritten ? 0 : -1;
}

bool UVDBGrammarKeeper::IsFileLexer(const std::string& path)
{
    const std::size_t slash = path.find_last_of("/\\");
    return path.find("Lexer", slash == std::string::npos ? 0 : slash + 1) != std::string::npos;
}

std::string UVDBGrammarKeeper::GetTableNames(const std::string& path)
{
    std::string names;
    for (const std::string_view name : TablesOf(path)) {
        if (!names.empty())
            names += '|';
        names += name;
    }
    return names;
}

template <class T>
std::vector<T> UVDBGrammarKeeper::GetFileTable(std::string_view text)
{
    std::vector<T> table{0};
    std::size_t at = 0;
    while (true) {
        at = std::min(text.find_first_not_of("\n\r\t,\"'{ ", at), text.size());
        const bool isQuoted = at > 0 && text[at - 1] == '"';
        const std::size_t end = std::min(text.find_first_of(isQuoted ? "\"" : "\n\r\t/ ,}", at), text.size());
        const std::string entry(text.substr(at, end - at));
        char* entryEnd = nullptr;
        if constexpr (std::is_unsigned_v<T>)
            table.push_back(static_cast<T>(std::strtoul(entry.c_str(), &entryEnd, 0)));
        else
            table.push_back(static_cast<T>(std::strtol(entry.c_str(), &entryEnd, 10)));
        if (entry.empty() || *entryEnd != '\0')
            throw std::runtime_error("not a table of numbers");
        const std::size_t next = std::min(text.find_first_not_of("\n\r\t,\"'{} ", end), text.size());
        const std::string_view between = text.substr(end, next - end);
        if (between.find('}') != std::string_view::npos)
            break;
        at = next;
    }
    table.front() = static_cast<T>(table.size() - 1);
    return table;
}

template std::vector<int> UVDBGrammarKeeper::GetFileTable<int>(std::string_view text);
template std::vector<unsigned int> UVDBGrammarKeeper::GetFileTable<unsigned int>(std::string_view text);

int UVDBGrammarKeeper::SaveTablesToFile(const std::string& source, const std::string& directory)
{
    std::string text;
    if (!ReadSource(text, source))
        return -1;
    try {
        const auto names = TablesOf(source);
        STablePlace place;
        while (!(place = FindTable(text, place.end, names)).name.empty()) {
            const std::string_view rest = std::string_view(text).substr(place.end);
            SaveTable(place.name, rest.substr(std::min(rest.find('{'), rest.size())), directory);
        }
    } catch (const std::exception&) {
        CLogWrapper::WriteTrace("\nUVGrammarKeeper: SaveTablesToFile(): Unknown error");
        return -1;
    }
    return 0;
}

int UVDBGrammarKeeper::SaveConstantsToFile(const std::string& source, const std::string& directory)
{
    constexpr std::string_view kDefine = "#define YYFINAL ";
    constexpr const char* kOperation = "SaveConstantsToFile";
    std::string text;
    if (!ReadSource(text, source))
        return -1;
    CGeneratedText cursor(text);
    const bool isFound = cursor.Seek(kDefine);
    cursor.Advance(kDefine.size());
    cursor.SkipSymbols(CGeneratedText::kWhiteSpace);
    const std::size_t valueAt = cursor.ByteOffset();
    cursor.SkipSymbols(kDigits);
    const std::string value(cursor.From(valueAt));
    if (!isFound || value.empty()) {
        CLogWrapper::WriteTraceF("\nUVGrammarKeeper: %s: Unknown error", kOperation);
        return -1;
    }
    return WriteText("YYFINAL " + value + '\n', directory + "const.dat", kOperation);
}

int UVDBGrammarKeeper::SaveDefinesToFile(const std::string& source, const std::string& directory,
                                         std::string& out)
{
    std::string text;
    if (!ReadSource(text, source))
        return -1;
    const std::string path = directory + "defines.dat";
    return IsFileLexer(source) ? SaveLexerDefinesToFile(text, path, out)
                               : SaveParserDefinesToFile(text, path, out);
}

int UVDBGrammarKeeper::SaveParserDefinesToFile(const std::string& text, const std::string& path,
                                               std::string& out)
{
    out.clear();
    CGeneratedText cursor(text);
    if (!cursor.Seek("enum yytokentype")) {
        CLogWrapper::WriteTrace("\nUVGrammarKeeper: SaveDefinesToFile: Unknown error");
        return -1;
    }
    const std::size_t from = cursor.ByteOffset();
    cursor.SkipUntilSymbols("}");
    const std::string_view enumeration = cursor.From(from);
    std::size_t at = 0;
    std::string_view name;
    std::string_view value;
    while (NextEnumerator(enumeration, at, name, value))
        AppendDefine(out, name, value);
    return WriteText(out, path, "SaveDefinesToFile");
}

int UVDBGrammarKeeper::SaveLexerDefinesToFile(const std::string& text, const std::string& path,
                                              std::string& out)
{
    constexpr std::string_view kDefine = "#define";
    out.clear();
    CGeneratedText cursor(text);
    if (!cursor.Seek("YY_HEADER_EXPORT_START_CONDITIONS")) {
        CLogWrapper::WriteTrace("\nUVGrammarKeeper: SaveDefinesToFile: Unknown error");
        return -1;
    }
    for (cursor.SkipLine(); !cursor.AtEnd() && !cursor.StartsWith("#endif"); cursor.SkipLine()) {
        if (!cursor.StartsWith(kDefine))
            continue;
        cursor.Advance(kDefine.size());
        cursor.SkipSymbols(" \t");
        const std::size_t nameAt = cursor.ByteOffset();
        while (IsWordCharacter(cursor.Peek()))
            cursor.Advance(1);
        const std::string_view name = cursor.From(nameAt);
        cursor.SkipSymbols(" \t");
        const std::size_t valueAt = cursor.ByteOffset();
        cursor.SkipSymbols(kDigits);
        const std::string_view value = cursor.From(valueAt);
        if (!name.empty() && !value.empty())
            AppendDefine(out, name, value);
    }
    return WriteText(out, path, "SaveDefinesToFile");
}
