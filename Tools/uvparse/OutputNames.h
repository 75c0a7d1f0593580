// What the results of files are called.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace uvparse {

// The name of each file, with its folder before it where several files have the same name. What all folders
// of these have in common is left out.
class COutputNames
{
public:
    explicit COutputNames(const std::vector<std::string>& files);

    // `file` is one of the files. A relative path without "..".
    const std::string& NameOf(const std::string& file) const { return m_Names.at(file); }

private:
    std::map<std::string, std::string> m_Names;
};

} // namespace uvparse
