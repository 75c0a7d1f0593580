// Replacing the table directory of a language as a whole: a reader finds the old tables or the new ones, and
// a run that fails leaves the old ones.
#pragma once

#include "Tools/Support/ToolFiles.h"

#include <memory>
#include <string>

class CTableDirectory
{
public:
    // Makes an empty sibling of `path` with the folders Lexer and Parser in it. Missing parents of `path` are
    // made.
    // Throws: CToolFailure, also if `path` holds anything but tables: it is going to be replaced.
    explicit CTableDirectory(const std::string& path);

    // Where to write, with a slash at its end.
    std::string NewPath() const { return m_New + '/'; }

    // Puts the new directory in the place of the old one, unless both hold the same files.
    // Throws: CToolFailure; the old one stands then.
    void Commit();

private:
    std::string m_Path;
    std::unique_ptr<CTemporaryFolder> m_Sibling;
    std::string m_New;
};
