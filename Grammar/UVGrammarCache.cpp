#include "Grammar/UVGrammarCache.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A kept file:
//     kept = head stamps image
// The stamps are filled up to a multiple of 8 bytes, and the checksum is of all that follows it.
struct SHead
{
    char mark[8] = {'U', 'V', 't', 'a', 'b', 'l', 'e', '1'};
    std::uint64_t checksum = 0;
    std::uint64_t fileSize = 0;
    std::uint64_t stampsSize = 0;
};
constexpr std::size_t kChecked = 16; // the first byte that the checksum covers

constexpr std::size_t kLargestFile = std::size_t{256} << 20;
constexpr std::time_t kSettledAfter = 1; // seconds
constexpr mode_t kOthersWrite = S_IWGRP | S_IWOTH;

// Each step can be undone, so that no changed word goes unnoticed. Four of them at a time, since one waits for
// the one before.
std::uint64_t Checksum(const char* bytes, std::size_t size)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
    std::array<std::uint64_t, 4> lanes{size, 1, 2, 3};
    constexpr std::size_t kBlock = sizeof lanes;
    const auto take = [&](const char* from) {
        for (std::size_t lane = 0; lane < lanes.size(); ++lane) {
            std::uint64_t word = 0;
            std::memcpy(&word, from + lane * sizeof word, sizeof word);
            lanes[lane] = std::rotl(lanes[lane] ^ word, 29) * kFactor;
        }
    };
    std::size_t at = 0;
    for (; size - at >= kBlock; at += kBlock)
        take(bytes + at);
    std::array<char, kBlock> rest{};
    std::memcpy(rest.data(), bytes + at, size - at);
    take(rest.data());
    std::uint64_t sum = 0;
    for (const std::uint64_t lane : lanes)
        sum = std::rotl(sum ^ lane, 31) * kFactor;
    return sum;
}

class CFileHandle
{
public:
    explicit CFileHandle(int handle) : m_nHandle(handle) {}
    CFileHandle(const CFileHandle&) = delete;
    CFileHandle& operator=(const CFileHandle&) = delete;
    ~CFileHandle()
    {
        if (m_nHandle >= 0)
            close(m_nHandle);
    }
    explicit operator bool() const { return m_nHandle >= 0; }
    int Get() const { return m_nHandle; }

private:
    int m_nHandle;
};

// What tells a file from any other, and from itself after a change.
// Returns: false if there is no such file.
bool AddStamp(const std::string& path, char form, std::string& stamps, bool& isSettled)
{
    struct stat file
    {};
    if (stat(path.c_str(), &file) != 0)
        return false;
    const std::int64_t facts[] = {
        form,
        static_cast<std::int64_t>(file.st_dev),
        static_cast<std::int64_t>(file.st_ino),
        file.st_size,
        file.st_mtim.tv_sec,
        file.st_mtim.tv_nsec,
        file.st_ctim.tv_sec,
        file.st_ctim.tv_nsec,
    };
    stamps.append(reinterpret_cast<const char*>(facts), sizeof facts);
    isSettled = isSettled && file.st_ctim.tv_sec < std::time(nullptr) - kSettledAfter;
    return true;
}

// The file that this code was loaded from.
std::string LibraryPath()
{
    Dl_info library{};
    if (dladdr(&kLargestFile, &library) == 0 || library.dli_fname == nullptr)
        return {};
    return library.dli_fname;
}

bool WriteAll(int handle, const void* bytes, std::size_t size)
{
    const auto* from = static_cast<const char*>(bytes);
    while (size > 0) {
        const ssize_t written = write(handle, from, size);
        if (written <= 0)
            return false;
        from += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.find_last_of('/'));
}

// Makes the folder, and those above it up to `levels` in all, for their owner alone. In a folder of somebody
// else, as another user's home may be, nothing is made: its owner could not use it.
// Returns: true if there is the folder and the user owns it.
bool HasOwnFolder(const std::string& path, int levels)
{
    struct stat folder
    {};
    if (stat(path.c_str(), &folder) == 0)
        return S_ISDIR(folder.st_mode) && folder.st_uid == geteuid();
    return levels > 0 && HasOwnFolder(FolderOf(path), levels - 1) && mkdir(path.c_str(), S_IRWXU) == 0;
}

} // namespace

CTableCache::CTableCache(const std::string& directory, std::span<const char* const> files)
{
    const char* const folder = secure_getenv("UVPARSER_CACHE");
    if (folder == nullptr || *folder != '/')
        return;
    if (!AddStamp(LibraryPath(), 'l', m_Stamps, m_bIsSettled))
        return;
    for (const char* const name : files) {
        const std::string path = directory + name;
        if (!AddStamp(path, 'p', m_Stamps, m_bIsSettled) &&
            !AddStamp(path + '_', 'a', m_Stamps, m_bIsSettled))
            m_Stamps += "        "; // it needn't be there
    }
    constexpr char kDigits[] = "0123456789abcdef";
    const std::uint64_t key = Checksum(directory.data(), directory.size());
    m_Path = folder;
    m_Path += '/';
    for (int shift = 60; shift >= 0; shift -= 4)
        m_Path += kDigits[(key >> shift) & 15];
    m_Path += ".tables";
}

std::optional<CTableImageReader> CTableCache::Find() const
{
    if (IsOff())
        return {};
    // what isn't a plain file mustn't keep anybody waiting
    const CFileHandle file(open(m_Path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat found
    {};
    if (!file || fstat(file.Get(), &found) != 0 || !S_ISREG(found.st_mode) || found.st_uid != geteuid() ||
        (found.st_mode & kOthersWrite) != 0)
        return {};
    const auto size = static_cast<std::size_t>(found.st_size);
    SHead head;
    if (size < sizeof head + m_Stamps.size() || size > kLargestFile)
        return {};
    void* const mapped = mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file.Get(), 0);
    if (mapped == MAP_FAILED)
        return {};
    const std::shared_ptr<const char[]> bytes(
        static_cast<const char*>(mapped), [size](const char* at) { munmap(const_cast<char*>(at), size); });
    const SHead expected;
    std::memcpy(&head, bytes.get(), sizeof head);
    if (std::memcmp(head.mark, expected.mark, sizeof head.mark) != 0 || head.fileSize != size ||
        head.stampsSize != m_Stamps.size() ||
        std::memcmp(bytes.get() + sizeof head, m_Stamps.data(), m_Stamps.size()) != 0 ||
        head.checksum != Checksum(bytes.get() + kChecked, size - kChecked))
        return {};
    const std::size_t begin = sizeof head + m_Stamps.size();
    return CTableImageReader(std::shared_ptr<const char[]>(bytes, bytes.get() + begin), size - begin);
}

void CTableCache::Keep(const CTableImageWriter& image) const noexcept
try {
    if (IsOff() || !m_bIsSettled)
        return;
    SHead head;
    head.stampsSize = m_Stamps.size();
    head.fileSize = sizeof head + m_Stamps.size() + image.Bytes().size();
    std::string content(reinterpret_cast<const char*>(&head), sizeof head);
    content += m_Stamps;
    content += image.Bytes();
    head.checksum = Checksum(content.data() + kChecked, content.size() - kChecked);
    std::memcpy(content.data(), &head, sizeof head);

    // Nobody sees it before it is whole: another run may do the same at this moment, or read what was there.
    if (!HasOwnFolder(FolderOf(m_Path), 2))
        return;
    std::string temporary = m_Path + ".XXXXXX";
    const CFileHandle file(mkostemp(temporary.data(), O_CLOEXEC));
    if (!file)
        return;
    if (!WriteAll(file.Get(), content.data(), content.size()) ||
        std::rename(temporary.c_str(), m_Path.c_str()) != 0)
        unlink(temporary.c_str());
} catch (...) { // NOLINT(bugprone-empty-catch): the tables are there without it
}
