#include "Tools/uvgrammar/SourceFile.h"

#include "Tools/Support/ToolFiles.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// Two names of one file are equal; a file that isn't there keeps its name.
std::string CanonicalPath(const std::string& path)
{
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(path, error);
    return error ? path : canonical.string();
}

} // namespace

CSourceFile::CSourceFile(const std::string& path) : m_Path(path), m_Text(ReadWholeFile(path))
{
    for (std::size_t at = 0; at < m_Text.size();) {
        m_LineStarts.push_back(at);
        at = std::min(m_Text.find('\n', at), m_Text.size() - 1) + 1;
    }
}

int CSourceFile::LineAt(std::size_t offset) const
{
    const auto next = std::upper_bound(m_LineStarts.begin(), m_LineStarts.end(), offset);
    return static_cast<int>(next - m_LineStarts.begin());
}

std::string_view CSourceFile::Line(int line) const
{
    const std::size_t start = LineStart(line);
    return std::string_view(m_Text).substr(start, std::min(m_Text.find('\n', start), m_Text.size()) - start);
}

SSourcePlace CSourceFile::PlaceOfLine(int line, int column) const
{
    SSourcePlace place{m_Path, std::max(line, 0), column, {}};
    if (line > 0 && line <= LineCount())
        place.sourceLine = Line(line);
    return place;
}

SSourcePlace CSourceFile::PlaceAt(std::size_t offset) const
{
    const int line = LineAt(offset);
    return PlaceOfLine(line, line > 0 ? static_cast<int>(offset - LineStart(line)) + 1 : 0);
}

CSourceFiles::CSourceFiles(const std::string& mainPath)
{
    m_Files.push_back(std::make_unique<CSourceFile>(mainPath));
    m_MainFolder = fs::path(CanonicalPath(mainPath)).parent_path().string();
    m_Included.emplace(CanonicalPath(mainPath), SSourcePlace{});
}

const CSourceFile* CSourceFiles::Include(const CSourceFile& includer, std::size_t offset,
                                         const std::string& name, CToolMessages& messages)
{
    const SSourcePlace place = includer.PlaceAt(offset);
    const std::string path = (fs::path(includer.Path()).parent_path() / name).lexically_normal().string();
    const auto [earlier, isNew] = m_Included.emplace(CanonicalPath(path), place);
    if (!isNew) {
        const SSourcePlace& first = earlier->second;
        messages.Write(enSeverity::Error, place,
                       first.file.empty() ? path + " includes itself"
                                          : path + " is included a second time; the first is at " +
                                                first.file + ':' + std::to_string(first.line));
        return nullptr;
    }
    try {
        m_Files.push_back(std::make_unique<CSourceFile>(path));
    } catch (const CToolFailure& failure) {
        messages.Write(enSeverity::Error, place, failure.what());
        return nullptr;
    }
    const fs::path folder = m_MainFolder;
    const fs::path canonical = CanonicalPath(path);
    if (std::mismatch(folder.begin(), folder.end(), canonical.begin(), canonical.end()).first != folder.end())
        m_Shared.insert(m_Files.back().get());
    return m_Files.back().get();
}

std::vector<std::string> CSourceFiles::Paths() const
{
    std::vector<std::string> paths;
    for (const auto& file : m_Files)
        paths.push_back(file->Path());
    return paths;
}
