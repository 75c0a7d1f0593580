// The two source files of a grammar, and messages that point into them.
#pragma once

#include "Tools/Support/ToolMessages.h"

#include <string>
#include <string_view>
#include <vector>

class CGrammarSource
{
public:
    // Reads the file.
    // Throws: CToolFailure.
    explicit CGrammarSource(const std::string& path);

    const std::string& Path() const { return m_Path; }
    const std::string& Text() const { return m_Text; }

    // `line` counts from 1; one that the file doesn't have gives a place without a source line.
    SSourcePlace Place(int line, int column = 0) const;

private:
    std::string m_Path;
    std::string m_Text;
    std::vector<std::string> m_Lines;
};
