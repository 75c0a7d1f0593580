#include "Stylesheets/XsltLoad.h"

#include "Interfaces/UVDBResults.h"
#include "Stylesheets/Archive/Compressor.h"
#include "UVEnvironment/FileHelper.h"
#include "UVEnvironment/LogSystem.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

using Uve::U8CString;

namespace {

constexpr std::size_t kMaxFileSize = std::size_t{1} << 30;

void TraceFailure(const std::string& name, const char* reason)
{
    CLogWrapper::WriteTraceF("\nRule file \"%s\"... FAILED: %s\n", name.c_str(), reason);
}

// Reads a file below `folder`. One that leads out of it, by its name or by a link, is none.
bool ReadRuleFile(std::string& out, const std::string& folder, const std::string& path)
{
    out.clear();
    std::error_code missing;
    if (!std::filesystem::is_regular_file(path, missing))
        return false;
    const auto file = FindFileBelow(folder, path);
    if (!file)
        TraceFailure(path, "it leads out of the folder");
    return file && ReadFromFile(out, *file) == UVDB_OK;
}

// Tries the path as it stands and with "_" after it.
bool ReadEither(std::string& out, const std::string& folder, const std::string& path)
{
    return ReadRuleFile(out, folder, path) || ReadRuleFile(out, folder, path + "_");
}

bool ReadStylesheet(std::string& out, const std::string& folder, const std::string& name)
{
    const std::string path = folder + name;
    const std::string stem = path.substr(0, path.rfind('.'));
    return ReadEither(out, folder, path) || ReadEither(out, folder, stem + ".crs") ||
           ReadEither(out, folder, stem + ".cr");
}

bool IsPacked(const std::string& text)
{
    return !text.starts_with('<');
}

// Replaces an archive by what it holds. Its path is for the trace alone.
int Unpack(std::string& text, const std::string& path)
{
    if (!IsPacked(text) || text.empty())
        return UVDB_OK;
    std::string unpacked;
    bool damaged = false;
    const std::size_t length = Compressor::ResourceUnarchive(text, unpacked, &damaged);
    const bool isHeaderBad = damaged && unpacked.empty();
    if (damaged)
        TraceFailure(path,
                     isHeaderBad ? "neither XML nor an archive, taken as empty" : "the archive is damaged");
    text.clear();
    if (damaged && !isHeaderBad)
        return UVDB_ERROR;
    unpacked.resize(length);
    text = std::move(unpacked);
    return UVDB_OK;
}

} // namespace

bool isCRSmode()
{
    return CRuleFiles().IsCrsMode();
}

int ReadFromFile(std::string& out, const std::string& path)
{
    out.clear();
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return UVDB_ERROR;
    const auto size = std::filesystem::file_size(path, error);
    std::ifstream stream(path, std::ios::binary);
    if (error || !stream.is_open())
        return UVDB_ERROR;
    if (size > kMaxFileSize) {
        TraceFailure(path, "more than 1 GiB");
        return UVDB_ERROR;
    }
    out.resize(static_cast<std::size_t>(size));
    stream.read(out.data(), static_cast<std::streamsize>(out.size()));
    out.resize(static_cast<std::size_t>(stream.gcount()));
    return UVDB_OK;
}

int LoadXMLFromFile(U8CString& out, const U8CString& name)
{
    return CRuleFiles().LoadXml(out, name);
}

int LoadXSLTFromFile(std::string& out, const std::string& name)
{
    return CRuleFiles().LoadStylesheet(out, name);
}

int LoadXSLTFromFileEx(bool& unused, const std::string& name)
{
    return CRuleFiles().ReadUnusedFlag(unused, name);
}

int LoadSubXSLT(std::string& main, const std::string& name)
{
    return CRuleFiles().AddTemplates(main, name);
}

int ImportResolveFile(U8CString& text, const U8CString& first, const U8CString& second,
                      const U8CString& third)
{
    return CRuleFiles().ResolveImports(text, first, second, third);
}

int ImportResolveFile(U8CString& text, const U8CString& tag, const U8CString& first, const U8CString& second,
                      const U8CString& third)
{
    return CRuleFiles().ResolveImports(text, tag, first, second, third);
}

CRuleFiles::CRuleFiles() : CRuleFiles(Uve::GetPathOfExe()) {}

CRuleFiles::CRuleFiles(const U8CString& hostDirectory)
    : m_IsCrsMode(!Uve::Directory::Exists(Uve::Path::Combine(hostDirectory, GetRulesFolder())))
{
    const U8CString folder = m_IsCrsMode ? U8CString("crs") : GetRulesFolder();
    m_BaseFolder.append(hostDirectory).append("/").append(folder).append("/");
}

int CRuleFiles::LoadXml(U8CString& out, const U8CString& name) const
{
    std::string text;
    std::string path = m_BaseFolder;
    path.append(name);
    const int result = ReadEither(text, m_BaseFolder, path) ? Unpack(text, path) : UVDB_ERROR;
    out = std::move(text);
    return result;
}

int CRuleFiles::LoadStylesheet(std::string& out, const std::string& name) const
{
    return ReadStylesheet(out, m_BaseFolder, name) ? Unpack(out, m_BaseFolder + name) : UVDB_ERROR;
}

int CRuleFiles::ReadUnusedFlag(bool& unused, const std::string& name) const
{
    unused = false;
    std::string text;
    if (!ReadStylesheet(text, m_BaseFolder, name))
        return UVDB_ERROR;
    if (IsPacked(text)) {
        unsigned int size = 0;
        unsigned int headerLength = 0;
        Compressor::ParceHeader(text, size, unused, headerLength);
    }
    return UVDB_OK;
}

int CRuleFiles::AddTemplates(std::string& main, const std::string& name) const
{
    constexpr std::string_view kTemplateEnd = "</xslt:template>";
    std::string sub;
    const int result = LoadStylesheet(sub, name);
    if (result != UVDB_OK)
        return result;
    const std::size_t mainEnd = main.rfind(kTemplateEnd);
    const std::size_t subBegin = sub.find("<!-- From:");
    const std::size_t subEnd = sub.rfind(kTemplateEnd);
    if (mainEnd == std::string::npos || subBegin == std::string::npos || subEnd == std::string::npos ||
        subEnd < subBegin)
        return UVDB_OK;
    main.insert(mainEnd + kTemplateEnd.size(),
                std::string("\n").append(sub, subBegin, subEnd + kTemplateEnd.size() - subBegin));
    return UVDB_OK;
}
