// Files and streams of the tools. Every failure is reported: a tool never answers success after a lost write.
// A limit on the size of files makes a write fail; its signal, SIGXFSZ, is ignored once anything here has
// written.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

// What ends the work on one input or output: "path: reason". main turns it into a message and
// kToolCouldNotRun.
class CToolFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The whole file, byte for byte; "-" reads the standard input. `isEnough`, if given, is asked after each
// piece with all that was read; once it says yes, the rest of a file that may have no end is left alone.
// Throws: CToolFailure, also for a folder.
std::string ReadWholeFile(const std::string& path,
                          const std::function<bool(std::string_view)>& isEnough = nullptr);

// Where the pieces of a text go, one after the other.
using TTextSink = std::function<void(std::string_view)>;

// A file that is written piece by piece, small ones being gathered. It is there whole or not at all: the
// bytes go to a sibling that is renamed in the end. What can't be renamed over, such as a device, is written
// directly.
class COutputFile
{
public:
    // "-" is the standard output.
    // Throws: CToolFailure.
    explicit COutputFile(const std::string& path);
    COutputFile(const COutputFile&) = delete;
    COutputFile& operator=(const COutputFile&) = delete;
    // Without Close an earlier file stays as it was.
    ~COutputFile();

    // Throws: CToolFailure.
    void Write(std::string_view piece);
    // Throws: CToolFailure.
    void Close();

private:
    std::string m_Path;
    std::string m_Target;
    std::string m_Temporary; // empty: the file itself is written
    int m_Descriptor = -1;
    bool m_IsStandardOutput = false;
    std::string m_Gathered;
};

// Replaces the file, as COutputFile does.
// Throws: CToolFailure.
void WriteWholeFile(const std::string& path, std::string_view content);

// Writes to the standard output and flushes it.
// Throws: CToolFailure, for instance where a redirection leads to a full disk.
void WriteStandardOutput(std::string_view content);

// A folder of this process alone, removed with all that is in it when the object goes.
class CTemporaryFolder
{
public:
    // The folder's name begins with `pathPrefix`, six characters are added.
    // Throws: CToolFailure.
    explicit CTemporaryFolder(const std::string& pathPrefix);
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;
    ~CTemporaryFolder();

    const std::string& Path() const { return m_Path; }

private:
    std::string m_Path;
};
