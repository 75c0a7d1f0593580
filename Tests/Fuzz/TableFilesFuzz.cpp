// Binary tables, manifests, and the generated texts that tables come from: any bytes are read or refused. The
// first byte chooses the reader, the rest is the file.
#include "Grammar/UVGrammarKeeper.h"
#include "Grammar/UVGrammarManifest.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// A file that is nowhere but in memory; its path is good as long as it is open.
class CMemoryFile
{
public:
    explicit CMemoryFile(std::string_view content) : m_Descriptor(memfd_create("table", MFD_CLOEXEC))
    {
        if (m_Descriptor < 0 || write(m_Descriptor, content.data(), content.size()) < 0)
            throw std::runtime_error("no memory file");
    }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;
    ~CMemoryFile()
    {
        if (m_Descriptor >= 0)
            close(m_Descriptor);
    }
    std::string Path() const { return "/proc/self/fd/" + std::to_string(m_Descriptor); }

private:
    int m_Descriptor;
};

template <class T>
void ReadTable(std::string_view content)
{
    const CMemoryFile file(content);
    std::size_t count = 0;
    try {
        const std::unique_ptr<T[]> entries(
            UVDBGrammarKeeper::GetBinaryTableFromFile<T>(file.Path().c_str(), count));
        // Touches every entry that the reader promises.
        std::uint64_t sum = 0;
        for (std::size_t i = 0; entries && i < count; ++i)
            sum += static_cast<std::uint64_t>(entries[i]);
        volatile std::uint64_t sink = sum;
        static_cast<void>(sink);
    } catch (const Uve::U8CString&) {
    }
}

void ReadInitialiser(std::string_view content)
{
    try {
        UVDBGrammarKeeper::GetFileTable<int>(content);
    } catch (const std::runtime_error&) {
    }
}

// A manifest is looked for by its name, in the folder above the tables.
void ReadManifest(std::string_view content)
{
    static const std::string folder = [] {
        std::string pattern = (std::filesystem::temp_directory_path() / "uvfuzz-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no folder");
        static const std::string made = pattern;
        std::atexit([] { std::filesystem::remove_all(made); });
        return pattern + '/';
    }();
    UVDBGrammarKeeper::WriteToFile(std::string(content), (folder + kManifestName).c_str());
    for (const char* const part : {"Lexer/", "Parser/"}) {
        try {
            const CTableFolder tables(folder + part);
        } catch (const Uve::U8CString&) {
        }
    }
}

// The texts are extracted into a folder that doesn't exist: reading them is what counts.
void ExtractFrom(std::string_view content)
{
    const CMemoryFile file(content);
    const std::string nowhere = "/proc/self/fd/none/";
    std::string out;
    UVDBGrammarKeeper::SaveActionsToFile(file.Path(), nowhere);
    UVDBGrammarKeeper::SaveConstantsToFile(file.Path(), nowhere);
    UVDBGrammarKeeper::SaveDefinesToFile(file.Path(), nowhere, out);
    try {
        UVDBGrammarKeeper::SaveTablesToFile(file.Path(), nowhere);
    } catch (const Uve::U8CString&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view content(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0] % 5) {
    case 0:
        ReadTable<int>(content);
        break;
    case 1:
        ReadTable<unsigned int>(content);
        break;
    case 2:
        ReadInitialiser(content);
        break;
    case 3:
        ReadManifest(content);
        break;
    default:
        ExtractFrom(content);
        break;
    }
    return 0;
}
