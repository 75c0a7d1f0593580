// A text put together from parts of files. Each of its lines knows the file and line that it comes from.
#pragma once

#include "Tools/uvgrammar/SourceFile.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class CAssembledText
{
public:
    struct SOrigin
    {
        const CSourceFile* file = nullptr; // borrowed from the source's files
        int line = 0;
        int list = 0;              // the number of the written-out list, from 1 on
        int words = 0;             // the number of the %words that the line is an alternative of, likewise
        bool isWrittenOut = false; // columns of such a line are nobody's
    };

    const std::string& Text() const { return m_Text; }
    // Lines count from 1.
    // Returns: null for a line that the text doesn't have.
    const SOrigin* OriginOf(int line) const;

    // A part of a file as it stands. What begins within a line keeps its column.
    void Copy(const CSourceFile& file, std::size_t begin, std::size_t end);
    // Lines that stand for what is at `offset` of the file; `list` and `words` number the forms that were written out.
    void Write(const CSourceFile& file, std::size_t offset, std::string_view lines, int list = 0,
               int words = 0);
    void Append(const CAssembledText& other);

private:
    void BeginLine(const SOrigin& origin);

    std::string m_Text;
    std::vector<SOrigin> m_Origins;
};
