#include "Tools/Support/ToolFiles.h"

#include <cerrno>
#include <csignal>
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

// Where the size of files is limited, the write that goes beyond fails like any other, once the signal that
// comes with it doesn't end the process. What was begun is taken away then.
void TakeSizeLimitAsFailedWrite()
{
    std::signal(SIGXFSZ, SIG_IGN);
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
    int Release() { return std::exchange(m_Descriptor, -1); }

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

// The mode that a plain creation would have given; mkstemp and mkdtemp keep others out.
mode_t CreationMode(mode_t wanted)
{
    const mode_t mask = umask(0);
    umask(mask);
    return wanted & ~mask;
}

} // namespace

std::string ReadWholeFile(const std::string& path, const std::function<bool(std::string_view)>& isEnough)
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
        if (isEnough && isEnough(std::string_view(content).substr(0, size)))
            break;
    }
    content.resize(size);
    return content;
}

COutputFile::COutputFile(const std::string& path) : m_Path(path)
{
    TakeSizeLimitAsFailedWrite();
    if (path == "-") {
        m_Path = "standard output";
        m_Descriptor = STDOUT_FILENO;
        m_IsStandardOutput = true;
        return;
    }
    struct stat status = {};
    const bool exists = stat(path.c_str(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode)) {
        m_Descriptor = open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (m_Descriptor < 0)
            Fail(path, errno);
        return;
    }

    // A link stays a link: what it leads to is replaced.
    std::error_code unresolved;
    const std::filesystem::path resolved = std::filesystem::canonical(path, unresolved);
    m_Target = unresolved ? path : resolved.string();
    std::string temporary = m_Target + ".XXXXXX";
    CDescriptor file(mkostemp(temporary.data(), O_CLOEXEC));
    if (file.Get() < 0)
        Fail(path, errno);
    if (fchmod(file.Get(), exists ? status.st_mode & 07777 : CreationMode(0666)) != 0) {
        const int error = errno;
        unlink(temporary.c_str());
        Fail(path, error);
    }
    m_Temporary = temporary;
    m_Descriptor = file.Release();
}

COutputFile::~COutputFile()
{
    if (m_Descriptor >= 0 && !m_IsStandardOutput)
        close(m_Descriptor);
    if (!m_Temporary.empty())
        unlink(m_Temporary.c_str());
}

void COutputFile::Write(std::string_view piece)
{
    constexpr std::size_t kGathered = std::size_t{1} << 16;
    if (m_Gathered.size() + piece.size() <= kGathered) {
        m_Gathered += piece;
        return;
    }
    if (!WriteAll(m_Descriptor, m_Gathered) || !WriteAll(m_Descriptor, piece))
        Fail(m_Path, errno);
    m_Gathered.clear();
}

void COutputFile::Close()
{
    if (!WriteAll(m_Descriptor, m_Gathered))
        Fail(m_Path, errno);
    m_Gathered.clear();
    if (m_IsStandardOutput)
        return;
    // Some file systems report a failed write only here.
    if (close(std::exchange(m_Descriptor, -1)) != 0)
        Fail(m_Path, errno);
    if (m_Temporary.empty())
        return;
    if (std::rename(m_Temporary.c_str(), m_Target.c_str()) != 0)
        Fail(m_Path, errno);
    m_Temporary.clear();
}

void WriteWholeFile(const std::string& path, std::string_view content)
{
    COutputFile file(path);
    file.Write(content);
    file.Close();
}

void WriteStandardOutput(std::string_view content)
{
    TakeSizeLimitAsFailedWrite();
    if (std::fwrite(content.data(), 1, content.size(), stdout) != content.size() || std::fflush(stdout) != 0)
        Fail("standard output", errno);
}

CTemporaryFolder::CTemporaryFolder(const std::string& pathPrefix) : m_Path(pathPrefix + "XXXXXX")
{
    TakeSizeLimitAsFailedWrite();
    if (mkdtemp(m_Path.data()) == nullptr)
        Fail(pathPrefix, errno);
}

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_Path, ignored);
}
