// Comparing one text with many names by collation. Collation normalises both sides and asks the C library for
// each pair; the matcher spares that wherever plain comparison must give the same answer.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <string>
#include <string_view>

namespace UVDB {

class CNameMatcher
{
public:
    enum enCase
    {
        exactCase,  // equal by Collate
        ignoreCase, // equal by CollateNoCase
    };

    // Copies `text` (UTF-8). A null `text` is an empty one and matches empty names alone.
    CNameMatcher(const char* text, enCase letterCase);

    bool Matches(const char* name) const;
    bool Matches(const Uve::U8CString& name) const { return Matches(name.c_str()); }

private:
    Uve::U8CString m_Text;
    std::string m_PlainKey; // the text in the case that is compared, if m_IsPlain
    enCase m_Case;
    bool m_IsPlain; // printable ASCII throughout
};

} // namespace UVDB
