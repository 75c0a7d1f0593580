#include "Tools/uvrules/PackedFiles.h"

#include "Stylesheets/Archive/Compressor.h"
#include "Tools/Support/ToolExitCodes.h"
#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolMessages.h"
#include "Tools/uvrules/BadInput.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

namespace uvrules {

namespace {

namespace fs = std::filesystem;

struct SHeader
{
    unsigned int size = 0;
    bool isUnused = false;
    unsigned int length = 0;
};

// The library takes the first numbers and dots that it finds for a header, since it is asked about packed
// files alone. Here any file may come, so the header has to be written as packing writes it.
std::optional<SHeader> FindHeader(const std::string& content)
{
    SHeader header;
    if (!Compressor::ParceHeader(content, header.size, header.isUnused, header.length))
        return {};
    const std::string written = std::to_string(header.size) + '.' + (header.isUnused ? "1." : "0.");
    return content.compare(0, header.length, written) == 0 ? std::optional(header) : std::nullopt;
}

// Returns: false if the archive is damaged.
bool UnpackImage(const std::string& image, std::string& content)
{
    bool isDamaged = false;
    Compressor::ResourceUnarchive(image, content, &isDamaged);
    return !isDamaged;
}

std::string UnpackOrRefuse(const std::string& path, const std::string& image)
{
    std::string content;
    if (!UnpackImage(image, content))
        throw CBadInput(path + ": damaged: its header and its payload don't fit");
    return content;
}

SHeader HeaderOrRefuse(const std::string& path, const std::string& image)
{
    const std::optional<SHeader> header = FindHeader(image);
    if (!header)
        throw CBadInput(path + ": isn't packed");
    return *header;
}

// The library tells standard output what it packs, but there it would name the copy that it is given.
class CSilencedOutput
{
public:
    CSilencedOutput() : m_Earlier(std::cout.rdbuf(m_Ignored.rdbuf())) {}
    CSilencedOutput(const CSilencedOutput&) = delete;
    CSilencedOutput& operator=(const CSilencedOutput&) = delete;
    ~CSilencedOutput() { std::cout.rdbuf(m_Earlier); }

private:
    std::ostringstream m_Ignored;
    std::streambuf* m_Earlier;
};

// The packing is done on a copy: the file changes only once its packed form is known to give it back.
std::string PackedForm(const std::string& path, const std::string& content)
{
    const CTemporaryFolder folder((fs::temp_directory_path() / "uvrules-").string());
    const std::string copy = folder.Path() + "/copy";
    WriteWholeFile(copy, content);
    bool isPacked = false;
    {
        const CSilencedOutput silenced;
        isPacked = Compressor::Archive(copy);
    }
    if (!isPacked)
        throw CBadInput(path + ": can't be packed; it may be too large");
    std::string image = ReadWholeFile(copy);
    std::string unpacked;
    if (!UnpackImage(image, unpacked) || unpacked != content)
        throw CToolFailure(path + ": the packed form doesn't give the file back; it is left as it was");
    return image;
}

std::string PackFile(const std::string& path)
{
    if (fs::exists(path) && !fs::is_regular_file(path))
        throw CToolFailure(path + ": isn't a file");
    if (path == "-")
        throw CToolFailure("standard input can't be packed: files are packed in their place");
    const std::string content = ReadWholeFile(path);
    if (content.empty())
        throw CBadInput(path + ": is empty, there is nothing to pack");
    if (FindHeader(content))
        throw CBadInput(path + ": is packed already");

    const std::string image = PackedForm(path, content);
    WriteWholeFile(path, image);
    const bool isUnused = FindHeader(image).value_or(SHeader()).isUnused;
    return path + ": " + std::to_string(content.size()) + " bytes packed to " + std::to_string(image.size()) +
           (isUnused ? ", marked as unused\n" : "\n");
}

} // namespace

std::string PlainContent(const std::string& path, std::string content)
{
    return FindHeader(content) ? UnpackOrRefuse(path, content) : std::move(content);
}

int Pack(const SCommandLine& line, CToolMessages& messages)
{
    int exitCode = kToolClean;
    for (const std::string& path : line.operands) {
        try {
            WriteStandardOutput(PackFile(path));
        } catch (const CBadInput& e) {
            messages.Error(e.what());
            exitCode = std::max<int>(exitCode, kToolFindings);
        } catch (const std::exception& e) {
            messages.Error(e.what());
            exitCode = kToolCouldNotRun;
        }
    }
    return exitCode;
}

int Unpack(const SCommandLine& line, CToolMessages&)
{
    const std::string& path = line.operands.front();
    // What isn't a plain file, such as a terminal, can be written to without anything being lost.
    if (!line.output.empty() && !line.isForced && fs::is_regular_file(line.output))
        throw CToolFailure(line.output + ": is there already; --force replaces it");
    const std::string image = ReadWholeFile(path);
    HeaderOrRefuse(path, image);
    const std::string content = UnpackOrRefuse(path, image);
    if (line.output.empty())
        WriteStandardOutput(content);
    else
        WriteWholeFile(line.output, content);
    return kToolClean;
}

int Show(const SCommandLine& line, CToolMessages&)
{
    const std::string& path = line.operands.front();
    const std::string image = ReadWholeFile(path);
    const SHeader header = HeaderOrRefuse(path, image);
    std::string content;
    const bool isIntact = UnpackImage(image, content);
    WriteStandardOutput("unpacked size: " + std::to_string(header.size) + " bytes\nunused: " +
                        (header.isUnused ? "yes" : "no") + "\nheader: " + std::to_string(header.length) +
                        " bytes\npayload: " + std::to_string(image.size() - header.length) +
                        " bytes\nunpacks: " + (isIntact ? "yes" : "no, damaged") + '\n');
    return isIntact ? kToolClean : kToolFindings;
}

} // namespace uvrules
