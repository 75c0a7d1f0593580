#include "Grammar/UVGrammarManifest.h"

#include "Grammar/UVGrammarKeeper.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <vector>

namespace {

constexpr const char* kParts[] = {"Lexer", "Parser"};
constexpr std::string_view kSources = "sources ";

struct SFileList
{
    std::vector<std::string> texts;
    std::vector<std::string> tables;
};

// Every file of a part, in the order of their names.
SFileList FilesOf(std::string_view part)
{
    SFileList files;
    const auto addTables = [&](const auto& names) {
        for (const std::string_view name : names)
            files.tables.push_back(std::string(name) + ".dat");
    };
    if (part == "Lexer") {
        files.texts = {"actions.dat", "defines.dat"};
        addTables(UVDBGrammarKeeper::tableFilesLexer);
    } else {
        files.texts = {"actions.dat", "const.dat", "defines.dat"};
        addTables(UVDBGrammarKeeper::tableFilesParser);
    }
    std::sort(files.tables.begin(), files.tables.end());
    return files;
}

std::string Hexadecimal(std::uint32_t checksum)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string shown;
    for (int shift = 28; shift >= 0; shift -= 4)
        shown += kDigits[(checksum >> shift) & 15];
    return shown;
}

std::string Shown(const STableFacts& facts)
{
    return std::to_string(facts.bytes) + ' ' + Hexadecimal(facts.checksum) + ' ' +
           std::to_string(facts.records);
}

// The next word of a line, and over the blank after it; empty at the end.
std::string_view TakeWord(std::string_view& line)
{
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

template <class T>
bool TakeNumber(std::string_view& line, T& value, int base)
{
    const std::string_view word = TakeWord(line);
    const auto read = std::from_chars(word.data(), word.data() + word.size(), value, base);
    return !word.empty() && read.ec == std::errc() && read.ptr == word.data() + word.size();
}

// Manifest text:
//     manifest = "language " name LF [ "sources " checksum LF ] { file }
//     file     = "file " part "/" name " " bytes " " checksum " " records LF
// bytes and records in decimal, checksums in eight hexadecimal digits, all of a file's of the unpacked
// content:
//     language Tally
//     sources 0e41c27b
//     file Lexer/accept.dat 164 5f2b1c09 40
// Each file of both parts has its line. The name of the language is told to the reader only: a folder may be
// renamed. The sources' checksum is for the tools that make tables anew.
class CManifestReader
{
public:
    CManifestReader(const std::string& directory, const std::string& text)
        : m_Directory(directory), m_Rest(text)
    {}

    // By part and name.
    std::map<std::string, STableFacts> Read()
    {
        std::string_view line = NextLine();
        if (TakeWord(line) != "language" || line.empty())
            Refuse("no language");
        std::map<std::string, STableFacts> facts;
        if (m_Rest.starts_with(kSources) && !SourcesOfManifest(std::string("\n").append(NextLine())))
            Refuse("not a checksum");
        while (!m_Rest.empty()) {
            line = NextLine();
            if (TakeWord(line) != "file")
                Refuse("neither a file nor the end");
            const std::string file(TakeWord(line));
            const std::string shown(line);
            STableFacts entry;
            if (!TakeNumber(line, entry.bytes, 10) || !TakeNumber(line, entry.checksum, 16) ||
                !TakeNumber(line, entry.records, 10) || Shown(entry) != shown)
                Refuse("not a size, a checksum and a count");
            if (!facts.emplace(file, entry).second)
                Refuse("another line for " + file);
        }
        std::size_t known = 0;
        for (const char* const part : kParts) {
            const SFileList files = FilesOf(part);
            for (const auto* const names : {&files.texts, &files.tables})
                for (const std::string& name : *names) {
                    ++known;
                    if (!facts.contains(std::string(part) + '/' + name))
                        Refuse("nothing about " + std::string(part) + '/' + name);
                }
        }
        if (facts.size() != known)
            Refuse("a file that no language has");
        return facts;
    }

private:
    std::string_view NextLine()
    {
        ++m_nLine;
        const std::size_t end = m_Rest.find('\n');
        if (end == std::string_view::npos)
            Refuse("the line has no end");
        const std::string_view line = m_Rest.substr(0, end);
        m_Rest.remove_prefix(end + 1);
        return line;
    }

    [[noreturn]] void Refuse(const std::string& what) const
    {
        RefuseTable(m_Directory, kManifestName, "line " + std::to_string(m_nLine) + ": " + what);
    }

    const std::string& m_Directory;
    std::string_view m_Rest;
    int m_nLine = 0;
};

} // namespace

STableFacts FactsOfText(std::string_view content)
{
    const auto* const bytes = reinterpret_cast<const Bytef*>(content.data());
    return {content.size(), static_cast<std::uint32_t>(crc32_z(0, bytes, content.size())),
            static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'))};
}

CTableFolder::CTableFolder(const std::string& directory) : m_Directory(directory)
{
    const std::size_t slash = directory.find_last_of('/', directory.size() - 2);
    m_Part = directory.substr(slash + 1, directory.size() - slash - 2);
    const std::string language = directory.substr(0, slash + 1);
    const std::string path = language + kManifestName;
    std::string text;
    if (UVDBGrammarKeeper::ReadFromFile(text, path.c_str()) == 0) {
        for (auto& [file, facts] : CManifestReader(language, text).Read())
            if (file.starts_with(m_Part + '/'))
                m_Facts.emplace(file.substr(m_Part.size() + 1), facts);
    } else if (errno != ENOENT && errno != ENOTDIR)
        RefuseTable(language, kManifestName, std::strerror(errno));
}

void CTableFolder::Compare(const char* name, const STableFacts& found) const
{
    const auto known = m_Facts.find(name);
    if (known != m_Facts.end() && known->second != found)
        RefuseTable(m_Directory, name,
                    "size, checksum and records are " + Shown(found) + ", in " + kManifestName +
                        " they are " + Shown(known->second));
}

std::string CTableFolder::ReadText(const char* name) const
{
    std::string content = GetDatFile(m_Directory, m_Directory, name);
    Compare(name, FactsOfText(content));
    return content;
}

template <class T>
STableFacts CTableFolder::ReadTable(const char* name, STable<T>& table) const
{
    const std::string path = GetDatFilePath(m_Directory, m_Directory, name);
    STableFacts facts;
    table.values.reset(
        UVDBGrammarKeeper::GetBinaryTableFromFile<T>(path.c_str(), table.count, &facts.checksum));
    if (!table.values)
        RefuseTable(m_Directory, name, std::strerror(errno));
    facts.bytes = sizeof(std::uint32_t) + table.count * sizeof(T);
    facts.records = table.count;
    Compare(name, facts);
    return facts;
}

template STableFacts CTableFolder::ReadTable<int>(const char* name, STable<int>& table) const;
template STableFacts CTableFolder::ReadTable<unsigned>(const char* name, STable<unsigned>& table) const;

std::optional<std::uint32_t> SourcesOfManifest(std::string_view manifest)
{
    manifest.remove_prefix(std::min(manifest.find('\n'), manifest.size() - 1) + 1);
    std::uint32_t checksum = 0;
    if (!manifest.starts_with(kSources))
        return std::nullopt;
    manifest = manifest.substr(kSources.size(), manifest.find('\n') - kSources.size());
    const std::string shown(manifest);
    return TakeNumber(manifest, checksum, 16) && Hexadecimal(checksum) == shown ? std::optional(checksum)
                                                                                : std::nullopt;
}

std::string ComposeManifest(const std::string& directory, const std::string& language, std::uint32_t sources)
{
    std::string manifest = "language " + language + '\n';
    manifest.append(kSources).append(Hexadecimal(sources)).append(1, '\n');
    for (const char* const part : kParts) {
        const CTableFolder folder(directory + part + '/');
        const SFileList files = FilesOf(part);
        const auto add = [&](const std::string& name, const STableFacts& facts) {
            manifest.append("file ").append(part).append("/").append(name).append(" ");
            manifest.append(Shown(facts)).append("\n");
        };
        for (const std::string& name : files.texts)
            add(name, FactsOfText(folder.ReadText(name.c_str())));
        for (const std::string& name : files.tables) {
            STable<int> table;
            add(name, folder.ReadTable(name.c_str(), table));
        }
    }
    return manifest;
}
