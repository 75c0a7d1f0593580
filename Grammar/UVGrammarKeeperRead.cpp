#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarTableFile.h"
#include "Stylesheets/Archive/Compressor.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <zlib.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace {

// Folders come with a slash at their end, so that paths hold two of them; a reader needs to see one.
std::string ShownPath(std::string path)
{
    for (std::size_t at = path.find("//"); at != std::string::npos; at = path.find("//", at))
        path.erase(at, 1);
    return path;
}

// `error` is the system's. That a file isn't there needs no second word.
[[noreturn]] void ThrowFileNotFound(const std::string& path, int error = ENOENT)
{
    throw Uve::U8CString("\nUVParser ERROR: File not found: " + ShownPath(path) +
                         (error == ENOENT ? std::string() : std::string(": ") + std::strerror(error)));
}

// Neither the plain file nor the packed one can be seen.
[[noreturn]] void ThrowNeitherFound(const std::string& plain)
{
    ThrowFileNotFound(plain, access(plain.c_str(), F_OK) != 0 ? errno : ENOENT);
}

[[noreturn]] void ThrowBadTable(const std::string& path)
{
    throw Uve::U8CString("\nUVParser ERROR: Could not construct a table from file: " + ShownPath(path));
}

struct SFileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using CFile = std::unique_ptr<std::FILE, SFileCloser>;

void FreeOperations(COperationsMap* operations)
{
    if (operations == nullptr)
        return;
    for (const auto& operation : *operations)
        delete operation.second;
    delete operations;
}

struct SOperationsDeleter
{
    void operator()(COperationsMap* operations) const { FreeOperations(operations); }
};
using COwnedOperations = std::unique_ptr<COperationsMap, SOperationsDeleter>;

// Defines text, of defines.dat and const.dat:
//     text = { name " " value LF }
// for example "INITIAL 0\nCOMMENT 1\n". Only blanks and LFs stand between pairs: a CR begins a name.
// Calls `take` with each name and value. A name that no blank follows is no pair.
template <class F>
void ForEachDefine(const std::string& text, F take)
{
    std::size_t at = 0;
    while (true) {
        at = text.find_first_not_of(" \n", at);
        if (at == std::string::npos)
            return;
        const std::size_t nameEnd = text.find(' ', at);
        if (nameEnd == std::string::npos)
            return;
        const std::size_t valueAt = std::min(text.find_first_not_of(' ', nameEnd), text.size());
        const std::size_t valueEnd = std::min(text.find_first_of(" \n\r\t", valueAt), text.size());
        const std::string value = text.substr(valueAt, valueEnd - valueAt);
        take(text.substr(at, nameEnd - at), static_cast<int>(std::strtol(value.c_str(), nullptr, 10)));
        at = valueEnd;
    }
}

// Action text, of actions.dat:
//     text      = { record }
//     record    = number " " { operation " " } LF
//     operation = keyword { " " operand }        as many operands as the keyword has
// for example "8 STRING_ACTION 5 BEGIN HEREDOC \n" or "1 \n". Operands hold no blank and no LF; quotes and
// CRs are part of them. A number with an LF right after it takes the next word for its keyword.
class CActionsReader
{
public:
    explicit CActionsReader(const std::string& text) : m_Text(text) {}

    void Read(CActionsMap& actions)
    {
        while (true) {
            m_At = Find(m_Text.find_first_not_of(" \n\r\t", m_At));
            if (AtEnd())
                return;
            const std::size_t numberEnd = Find(m_Text.find_first_of(" \n\r\t", m_At));
            const std::string number = m_Text.substr(m_At, numberEnd - m_At);
            m_At = std::min(numberEnd + 1, m_Text.size());

            COwnedOperations operations(new COperationsMap);
            if (!AtEnd() && m_Text[m_At] == '\n')
                operations->emplace("NULL_ACTION", nullptr);
            else if (!ReadOperations(*operations))
                return;

            // records ascend as a rule, so the place is at the end
            COperationsMap*& record =
                actions
                    .try_emplace(actions.end(), static_cast<int>(std::strtol(number.c_str(), nullptr, 10)))
                    ->second;
            FreeOperations(record);
            record = operations.release();
        }
    }

private:
    bool AtEnd() const { return m_At == m_Text.size(); }
    std::size_t Find(std::size_t found) const { return std::min(found, m_Text.size()); }
    void SkipBlanks() { m_At = Find(m_Text.find_first_not_of(' ', m_At)); }

    // False at a word that isn't a keyword.
    bool ReadOperations(COperationsMap& operations)
    {
        std::array<unsigned, kGrammarKeywordCount> occurrences{};
        do {
            m_At = Find(m_Text.find_first_not_of(" \n", m_At));
            const std::size_t wordEnd = Find(m_Text.find_first_of(" \n\r\t", m_At));
            if (wordEnd == m_At || wordEnd == m_Text.size()) {
                m_At = wordEnd;
                return true;
            }
            const std::string word = m_Text.substr(m_At, wordEnd - m_At);
            const SGrammarKeyword* const keyword = FindGrammarKeyword(word);
            if (keyword == nullptr) {
                CLogWrapper::WriteTraceF("\nUnknown function: %s", word.c_str());
                return false;
            }
            m_At = wordEnd;

            auto operands = std::make_unique<std::vector<std::string>>();
            if (keyword->keyword == enGrammarKeyword::StrtmpFormat)
                ReadFormat(*operands);
            else
                ReadOperands(*operands, keyword->operands);

            // The occurrence is a number of 8 bits: a record has no room for a 257th of the same keyword.
            const unsigned occurrence = occurrences[static_cast<std::size_t>(keyword->keyword)]++;
            if (occurrence <= std::numeric_limits<unsigned char>::max()) {
                const auto added = operations.emplace(word + '#' + std::to_string(occurrence), nullptr);
                added.first->second = operands.release();
            }
            SkipBlanks();
        } while (!AtEnd() && m_Text[m_At] != '\n');
        return true;
    }

    void ReadOperands(std::vector<std::string>& operands, int count)
    {
        for (int i = 0; i < count; ++i) {
            SkipBlanks();
            const std::size_t end = Find(m_Text.find_first_of(" \n", m_At));
            operands.push_back(m_Text.substr(m_At, end - m_At));
            m_At = end;
        }
    }

    // strtmp.Format "text" - rest: the text keeps its opening quote and loses the closing one, the rest of
    // the line is the second operand.
    void ReadFormat(std::vector<std::string>& operands)
    {
        const std::size_t open = Find(m_Text.find('"', m_At));
        const std::size_t close = open == m_Text.size() ? open : Find(m_Text.find('"', open + 1));
        operands.push_back(m_Text.substr(open, close - open));
        const std::size_t minus = Find(m_Text.find('-', close));
        const std::size_t rest = Find(m_Text.find_first_not_of("- ", minus));
        m_At = Find(m_Text.find('\n', rest));
        operands.push_back(m_Text.substr(rest, m_At - rest));
    }

    const std::string& m_Text;
    std::size_t m_At = 0;
};

} // namespace

void FreeActionsMap(CActionsMap& actions)
{
    for (const auto& record : actions)
        FreeOperations(record.second);
    actions.clear();
}

std::string ComposeGrammarDirectory(const std::string& parserName, bool isCr, const char* part)
{
    std::string directory = Uve::GetPathOfExe().c_str();
    directory += "/Grammar";
    if (isCr)
        directory += ".CR";
    directory += '/' + parserName + '/' + part + '/';
    if (parserName.find('/') != std::string::npos || parserName.find("..") != std::string::npos)
        ThrowFileNotFound(directory);
    return directory;
}

std::string GetDatFile(const std::string& packedDirectory, const std::string& plainDirectory,
                       const std::string& name)
{
    std::string content;
    const std::string plain = plainDirectory + '/' + name;
    if (Uve::File::Exists(plain)) {
        if (UVDBGrammarKeeper::ReadFromFile(content, plain.c_str()) != 0)
            ThrowFileNotFound(plain, errno);
        return content;
    }
    const std::string packed = packedDirectory + '/' + name + '_';
    if (!Uve::File::Exists(packed))
        ThrowNeitherFound(plain);
    if (UVDBGrammarKeeper::ReadFromFile(content, packed.c_str()) != 0)
        ThrowFileNotFound(packed, errno);
    std::string unpacked;
    bool isDamaged = false;
    Compressor::ResourceUnarchive(content, unpacked, &isDamaged);
    if (isDamaged)
        ThrowBadTable(packed);
    return unpacked;
}

std::string GetDatFilePath(const std::string& packedDirectory, const std::string& plainDirectory,
                           const std::string& name)
{
    std::string plain = plainDirectory + '/' + name;
    if (Uve::File::Exists(plain))
        return plain;
    std::string packed = packedDirectory + '/' + name + '_';
    if (!Uve::File::Exists(packed))
        ThrowNeitherFound(plain);
    return packed;
}

int UVDBGrammarKeeper::ReadFromFile(std::string& content, const char* path)
{
    content.clear();
    const CFile file(std::fopen(path, "rb"));
    if (!file)
        return -1;
    char chunk[65536];
    std::size_t got = 0;
    while ((got = std::fread(chunk, 1, sizeof chunk, file.get())) > 0)
        content.append(chunk, got);
    if (std::ferror(file.get()) == 0)
        return 0;
    content.clear();
    return -1;
}

// Binary table, gzip or plain:
//     table = count { entry }      each 4 bytes, little-endian; `count` of them
// for example 02 00 00 00  01 00 00 00  ff ff ff ff for the entries 1 and -1.
template <class T>
T* UVDBGrammarKeeper::GetBinaryTableFromFile(const char* path, std::size_t& count, std::uint32_t* checksum)
{
    static_assert(sizeof(T) == 4 && std::endian::native == std::endian::little);
    count = 0;
    std::unique_ptr<T[]> packed;
    std::uint32_t packedChecksum = 0;
    if (ReadPackedTable(path, packed, count, packedChecksum)) {
        if (checksum)
            *checksum = packedChecksum;
        return packed.release();
    }
    ZFile file;
    if (!file.Open(path))
        return nullptr;
    std::uint32_t claimed = 0;
    if (file.Read(&claimed, sizeof claimed) != sizeof claimed)
        ThrowBadTable(path);
    // Nothing is unpacked for a count that the file can't hold.
    constexpr std::uintmax_t kLargestRatio = 1032;
    std::error_code failure;
    const std::uintmax_t fileSize = std::filesystem::file_size(path, failure);
    if (failure || claimed > fileSize * kLargestRatio / sizeof(T))
        ThrowBadTable(path);

    // The count is believed only as far as entries arrive. ZFile reads by int, so a chunk stays below that.
    constexpr std::size_t kFirstChunk = 65536;
    constexpr std::size_t kLargestChunk = std::size_t{1} << 28;
    std::size_t size = std::min<std::size_t>(claimed, kFirstChunk);
    std::unique_ptr<T[]> entries(new T[size]);
    std::size_t filled = 0;
    while (true) {
        const int wantedBytes = static_cast<int>((size - filled) * sizeof(T));
        if (file.Read(entries.get() + filled, static_cast<unsigned>(wantedBytes)) != wantedBytes)
            ThrowBadTable(path);
        filled = size;
        if (filled == claimed)
            break;
        size = std::min<std::size_t>(claimed, filled + std::min(filled, kLargestChunk));
        std::unique_ptr<T[]> larger(new T[size]);
        std::memcpy(larger.get(), entries.get(), filled * sizeof(T));
        entries = std::move(larger);
    }
    // The checksum stands after the last entry. What a file holds beyond its count is nobody's.
    char beyond[4096];
    while (file.Read(beyond, sizeof beyond) > 0) {
    }
    if (file.Failed())
        ThrowBadTable(path);
    count = claimed;
    if (checksum) {
        const auto ofCount = crc32_z(0, reinterpret_cast<const Bytef*>(&claimed), sizeof claimed);
        const auto* const bytes = reinterpret_cast<const Bytef*>(entries.get());
        *checksum =
            static_cast<std::uint32_t>(claimed == 0 ? ofCount : crc32_z(ofCount, bytes, claimed * sizeof(T)));
    }
    return entries.release();
}

template int* UVDBGrammarKeeper::GetBinaryTableFromFile<int>(const char* path, std::size_t& count,
                                                             std::uint32_t* checksum);
template unsigned int* UVDBGrammarKeeper::GetBinaryTableFromFile<unsigned int>(const char* path,
                                                                               std::size_t& count,
                                                                               std::uint32_t* checksum);

void UVDBGrammarKeeper::CreateActionsMap(const std::string& text, CActionsMap& actions)
{
    CActionsReader(text).Read(actions);
}

std::uint64_t UVDBGrammarKeeper::CreateDefinesMap(const std::string& text,
                                                  std::map<std::string, int>& defines)
{
    int largest = 0;
    bool hasZero = false;
    try {
        ForEachDefine(text, [&](std::string name, int value) {
            largest = std::max(largest, value);
            hasZero = hasZero || value == 0;
            defines[std::move(name)] = value;
        });
    } catch (...) {
        CLogWrapper::WriteTrace("\nUVGrammarKeeper: CreateDefinesMap(): Unknown error");
    }
    return static_cast<std::uint64_t>(largest) | (hasZero ? std::uint64_t{1} << 32 : 0);
}

int UVDBGrammarKeeper::GetFinalStateNum(const std::string& text)
{
    int final = 0;
    try {
        ForEachDefine(text, [&](const std::string& name, int value) {
            if (name == "YYFINAL")
                final = value;
        });
    } catch (...) {
        CLogWrapper::WriteTrace("\nUVGrammarKeeper: GetFinalStateNum(): Unknown error");
    }
    return final;
}

int UVDBGrammarKeeper::TableNinfRemap(const int* table, std::size_t size)
{
    int smallest = 0;
    for (std::size_t i = 0; i < size; ++i)
        smallest = std::min(smallest, table[i]);
    return smallest;
}
