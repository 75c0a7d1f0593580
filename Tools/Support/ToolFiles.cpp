#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace {

[[noreturn]] void Fail(const std::string& path, int error)
{
    throw CToolFailure(path + ": " + std::strerror(error));
}

class CDescriptor
{
public:
    explicit CDescriptor(int descriptor) : m_Descriptor(descriptor) {}
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;
    ~CDescriptor()
    {
        if (m_Descriptor >= 0)
            close(m_Descriptor);
    }
    int Get() const { return m_Descriptor; }
    // Some file systems report a failed write only here.
    bool Close() { return close(std::exchange(m_Descriptor, -1)) == 0; }

private:
    int m_Descriptor;
};

bool WriteAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

void WriteAndClose(CDescriptor& file, const std::string& path, std::string_view content)
{
    if (!WriteAll(file.Get(), content) || !file.Close())
        Fail(path, errno);
}

// The mode that a plain creation would have given; mkstemp and mkdtemp keep others out.
mode_t CreationMode(mode_t wanted)
{
    const mode_t mask = umask(0);
    umask(mask);
    return wanted & ~mask;
}

} // namespace

std::string ReadWholeFile(const std::string& path)
{
    const bool isStandardInput = path == "-";
    const CDescriptor opened(isStandardInput ? -1 : open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!isStandardInput && opened.Get() < 0)
        Fail(path, errno);
    const int descriptor = isStandardInput ? STDIN_FILENO : opened.Get();

    std::string content;
    std::size_t size = 0;
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        content.resize(static_cast<std::size_t>(status.st_size) + 1);
    while (true) {
        if (size == content.size())
            content.resize(size < 32768 ? 65536 : size * 2);
        const ssize_t got = read(descriptor, content.data() + size, content.size() - size);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            Fail(path, errno);
        if (got == 0)
            break;
        size += static_cast<std::size_t>(got);
    }
    content.resize(size);
    return content;
}

void WriteWholeFile(const std::string& path, std::string_view content)
{
    struct stat status = {};
    const bool exists = stat(path.c_str(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode)) {
        CDescriptor file(open(path.c_str(), O_WRONLY | O_CLOEXEC));
        if (file.Get() < 0)
            Fail(path, errno);
        WriteAndClose(file, path, content);
        return;
    }

    // A link stays a link: what it leads to is replaced.
    std::error_code unresolved;
    const std::filesystem::path resolved = std::filesystem::canonical(path, unresolved);
    const std::string target = unresolved ? path : resolved.string();
    std::string temporary = target + ".XXXXXX";
    CDescriptor file(mkostemp(temporary.data(), O_CLOEXEC));
    if (file.Get() < 0)
        Fail(path, errno);
    try {
        if (fchmod(file.Get(), exists ? status.st_mode & 07777 : CreationMode(0666)) != 0)
            Fail(path, errno);
        WriteAndClose(file, path, content);
        if (std::rename(temporary.c_str(), target.c_str()) != 0)
            Fail(path, errno);
    } catch (...) {
        unlink(temporary.c_str());
        throw;
    }
}

void WriteStandardOutput(std::string_view content)
{
    if (std::fwrite(content.data(), 1, content.size(), stdout) != content.size() || std::fflush(stdout) != 0)
        Fail("standard output", errno);
}

CTemporaryFolder::CTemporaryFolder(const std::string& pathPrefix) : m_Path(pathPrefix + "XXXXXX")
{
    if (mkdtemp(m_Path.data()) == nullptr)
        Fail(pathPrefix, errno);
}

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_Path, ignored);
}
