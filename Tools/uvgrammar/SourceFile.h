// The files that a grammar is written in: a source, and the fragments that it includes.
#pragma once

#include "Tools/Support/ToolMessages.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// Lines and columns count from 1; offsets and columns are bytes.
class CSourceFile
{
public:
    // Throws: CToolFailure.
    explicit CSourceFile(const std::string& path);

    const std::string& Path() const { return m_Path; }
    const std::string& Text() const { return m_Text; }

    int LineCount() const { return static_cast<int>(m_LineStarts.size()); }
    // The line of an offset; the end of the text belongs to the last one.
    int LineAt(std::size_t offset) const;
    // For lines that the file has. The text of a line comes without its end.
    std::size_t LineStart(int line) const { return m_LineStarts[static_cast<std::size_t>(line) - 1]; }
    std::string_view Line(int line) const;

    // A line that the file doesn't have gives a place without a source line.
    SSourcePlace PlaceOfLine(int line, int column = 0) const;
    SSourcePlace PlaceAt(std::size_t offset) const;

private:
    std::string m_Path;
    std::string m_Text;
    std::vector<std::size_t> m_LineStarts;
};

class CSourceFiles
{
public:
    // Throws: CToolFailure.
    explicit CSourceFiles(const std::string& mainPath);

    const CSourceFile& Main() const { return *m_Files.front(); }

    // The fragment that `includer` names in what stands at `offset`; relative names start from the includer's folder.
    // Returns: null, with a message there, if it can't be read or was included before.
    const CSourceFile* Include(const CSourceFile& includer, std::size_t offset, const std::string& name,
                               CToolMessages& messages);

    // True for a file outside of the main one's folder: other languages use it too.
    bool IsShared(const CSourceFile& file) const { return m_Shared.count(&file) != 0; }

    // As they were named, in the order in which they were read.
    std::vector<std::string> Paths() const;

private:
    std::vector<std::unique_ptr<CSourceFile>> m_Files;
    std::string m_MainFolder;
    std::set<const CSourceFile*> m_Shared;
    std::map<std::string, SSourcePlace> m_Included; // by canonical path: where it was included
};
