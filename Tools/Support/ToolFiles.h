// Files and streams of the tools. Every failure is reported: a tool never answers success after a lost write.
#pragma once

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

// The whole file, byte for byte; "-" reads the standard input.
// Throws: CToolFailure, also for a folder.
std::string ReadWholeFile(const std::string& path);

// Replaces the file. It is there whole or not at all: the bytes go to a sibling that is then renamed. What
// can't be renamed over, such as a device, is written directly. Throws: CToolFailure.
void WriteWholeFile(const std::string& path, std::string_view content);

// Writes to the standard output and flushes it.
// Throws: CToolFailure, for instance on a full disk behind a redirection.
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
