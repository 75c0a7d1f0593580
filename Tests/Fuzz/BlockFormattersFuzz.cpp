#include "Preparation/Formatters/Asp.h"
#include "Preparation/Formatters/Directives.h"
#include "Preparation/Formatters/IbmRpg.h"
#include "Preparation/Formatters/Pascal.h"
#include "Preparation/Formatters/Progress.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

// Any bytes through the passes that work on blocks of lines. Besides reading inside its memory and coming to
// an end, a pass keeps what it doesn't own, and says for each line of its result where that comes from.

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void RequireLines(std::string_view source, const SPreparedText& prepared)
{
    const bool isOpen = !prepared.text.empty() && prepared.text.back() != '\n';
    const auto count = static_cast<std::size_t>(std::ranges::count(prepared.text, '\n')) + (isOpen ? 1 : 0);
    Require(prepared.sourceLines.size() == count);
    const auto last = static_cast<std::uint32_t>(std::ranges::count(source, '\n')) + 1;
    for (const std::uint32_t line : prepared.sourceLines)
        Require(line >= 1 && line <= last);
}

// The folder with the include files, which the fuzzer writes.
class CFolder
{
public:
    CFolder()
        : m_Path(std::filesystem::temp_directory_path() / ("block-formatters-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(m_Path);
    }
    ~CFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_Path, error);
    }
    std::string Path(const char* name) const { return m_Path / name; }

private:
    std::filesystem::path m_Path;
};

const CFolder& Folder()
{
    static const CFolder folder;
    return folder;
}

void DriveRpg(std::string_view source, int layout)
{
    const SPreparedText prepared = FormatIbmRpg(source, {layout});
    RequireLines(source, prepared);
    Require(layout == 0 || layout == 1 || prepared.text.empty());
    const SPreparedText faithful = FormatIbmRpg(source, {layout, true});
    RequireLines(source, faithful);
    Require(std::ranges::is_sorted(faithful.sourceLines));
}

void DrivePascal(std::string_view source)
{
    const SPreparedText prepared = FormatPascal(source);
    RequireLines(source, prepared);
    Require(std::ranges::is_sorted(prepared.sourceLines) || prepared.text.find('{') != prepared.text.npos);
    const SPreparedText faithful = FormatPascal(source, {.isFaithful = true});
    RequireLines(source, faithful);
    Require(std::ranges::is_sorted(faithful.sourceLines));
    // nothing is left to decide
    Require(FormatPascal(faithful.text, {.isFaithful = true}).text == faithful.text);
    for (const bool singleLine : {false, true}) {
        Uve::U8CString text(source);
        ProcessMultiLineDirective(text, singleLine);
        Require(!singleLine || text.find('\n') == text.npos);
        Require(text.size() <= source.size() * 2 + 1);
    }
}

void DriveProgress(std::string_view source, std::string_view file)
{
    std::ofstream(Folder().Path("a.i"), std::ios::binary) << file;
    constexpr std::size_t kLimit = 4000; // a file that another one takes in often gets there
    const SPreparedText prepared = FormatProgress(source, {Folder().Path("main.p"), kLimit});
    RequireLines(source, prepared);
    Require(prepared.text.size() <= source.size() + kLimit);
    if (source.find(".i") == source.npos && source.find(".I") == source.npos)
        Require(prepared.text == source);

    SProgressOptions options{Folder().Path("main.p"), kLimit};
    options.includeRoot = Folder().Path("");
    const SPreparedText faithful = FormatProgressFaithfully(source, options);
    RequireLines(source, faithful);
    Require(faithful.text.size() <= 2 * source.size() + kLimit);
}

void DriveAsp(std::string_view source, std::string_view file)
{
    std::ofstream(Folder().Path("a.inc"), std::ios::binary) << file;
    constexpr std::size_t kLimit = 100000;
    const SAspPage page = FormatAsp(source, {Folder().Path("page.asp"), kLimit});
    RequireLines(source, page.prepared);
    std::size_t added = 0;
    std::size_t blocks = 0;
    for (const SAspBlock& block : page.blocks) {
        added += 2 * block.marker.size() + 3;
        blocks += block.text.size() + 2 * block.marker.size() + 2;
    }
    Require(page.prepared.text.size() <= source.size() + kLimit + added);
    Require(page.script.size() == blocks);
    if (source.find("#include") == source.npos)
        Require(page.prepared.text.size() == source.size() + added);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    // memory of exactly the text's size, so that a byte read too far is seen
    const std::vector<char> bytes(data + 1, data + size);
    const std::string_view text(bytes.data(), bytes.size());
    const std::size_t cut = std::min<std::size_t>(text.find('\0'), text.size());
    const std::string_view source = text.substr(0, cut);
    const std::string_view file = text.substr(std::min(cut + 1, text.size()));
    switch (data[0] % 6) {
    case 0:
    case 1:
    case 2:
        DriveRpg(text, data[0] % 6);
        break;
    case 3:
        DrivePascal(text);
        break;
    case 4:
        DriveProgress(source, file);
        break;
    default:
        DriveAsp(source, file);
    }
    return 0;
}
