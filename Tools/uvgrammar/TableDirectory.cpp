#include "Tools/uvgrammar/TableDirectory.h"

#include "Grammar/UVGrammarManifest.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <system_error>

namespace {

namespace fs = std::filesystem;

bool IsTableFile(const fs::directory_entry& entry)
{
    const std::string extension = entry.path().extension();
    return entry.is_regular_file() && (extension == ".dat" || extension == ".dat_");
}

// A directory that was made for something else is not to be replaced by a slip of the command line.
void RefuseForeignFiles(const fs::path& path)
{
    if (!fs::exists(path))
        return;
    if (!fs::is_directory(path))
        throw CToolFailure(path.string() + ": is not a folder");
    for (const fs::directory_entry& part : fs::directory_iterator(path)) {
        const std::string name = part.path().filename();
        if (part.is_regular_file() && name == kManifestName)
            continue;
        if (!part.is_directory() || (name != "Lexer" && name != "Parser"))
            throw CToolFailure(part.path().string() +
                               ": is not part of a table directory; choose another output");
        for (const fs::directory_entry& file : fs::directory_iterator(part.path())) {
            if (!IsTableFile(file))
                throw CToolFailure(file.path().string() + ": is not a table file; choose another output");
        }
    }
}

// Every file of a directory by its path from there, with its bytes.
std::map<std::string, std::string> ReadFiles(const fs::path& directory)
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory))
        if (entry.is_regular_file())
            files[fs::relative(entry.path(), directory)] = ReadWholeFile(entry.path());
    return files;
}

fs::path Resolved(const std::string& path)
{
    // A link to a directory stays, what it leads to is replaced.
    fs::path resolved = fs::weakly_canonical(fs::absolute(path)).lexically_normal();
    return resolved.has_filename() ? resolved : resolved.parent_path();
}

} // namespace

CTableDirectory::CTableDirectory(const std::string& path)
{
    try {
        const fs::path target = Resolved(path);
        if (!target.has_filename())
            throw CToolFailure(path + ": can't be replaced");
        RefuseForeignFiles(target);
        fs::create_directories(target.parent_path());
        m_Path = target.string();
        m_Sibling = std::make_unique<CTemporaryFolder>(m_Path + ".new.");
        m_New = m_Sibling->Path() + "/tables";
        fs::create_directories(m_New + "/Lexer");
        fs::create_directories(m_New + "/Parser");
    } catch (const fs::filesystem_error& error) {
        throw CToolFailure(path + ": " + error.code().message());
    }
}

void CTableDirectory::Commit()
{
    // Tables that say the same stay as they are, for whoever goes by their dates.
    if (fs::is_directory(m_Path) && ReadFiles(m_Path) == ReadFiles(m_New))
        return;
    // The old tables come to stand in the sibling and go with it.
    if (renameat2(AT_FDCWD, m_New.c_str(), AT_FDCWD, m_Path.c_str(), RENAME_EXCHANGE) == 0)
        return;
    // No old tables, or a file system that can't exchange.
    const std::string old = m_Sibling->Path() + "/old";
    const bool hasOld = std::rename(m_Path.c_str(), old.c_str()) == 0;
    if (std::rename(m_New.c_str(), m_Path.c_str()) == 0)
        return;
    const int error = errno;
    if (hasOld)
        std::rename(old.c_str(), m_Path.c_str());
    throw CToolFailure(m_Path + ": " + std::strerror(error));
}
