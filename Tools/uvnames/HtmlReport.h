// A page that shows what became of names, for reading in a browser.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/uvnames/NameMapping.h"

#include <map>
#include <string>
#include <vector>

namespace uvnames {

// One file without references to others: a table with a filter for each reason and one for text.
class CHtmlReport
{
public:
    // Throws: CToolFailure.
    CHtmlReport(const std::string& path, const std::string& from, const std::string& to);

    // Throws: CToolFailure.
    void Add(const SName& source, const SConvertedName& converted);
    // A line that is no name.
    // Throws: CToolFailure.
    void AddUnread(const std::string& line);

    // Writes the end; without it there is no file.
    // Throws: CToolFailure.
    void End();

private:
    void AddRow(const std::vector<std::string>& cells, const std::vector<std::string>& reasons);

    COutputFile m_Output;
    std::map<std::string, std::size_t> m_ReasonCounts;
    std::size_t m_NameCount = 0;
    std::size_t m_UnchangedCount = 0;
};

} // namespace uvnames
