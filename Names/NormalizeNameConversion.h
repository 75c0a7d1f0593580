// What the conversion of one part and the search for a free name share.
#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstddef>
#include <string_view>

// Stands before a temporary table's name on its way through a path, so that it doesn't meet a permanent
// one. The conversion takes it off again.
inline constexpr const char* kTemporaryTableMark = "tmptbl";
inline constexpr int kTemporaryTableMarkLength =
    static_cast<int>(std::string_view(kTemporaryTableMark).size());

// Whether a name of SQL Server holds generated expressions, which may be neither changed nor cut.
bool HasDynamicMarkers(const Uve::U8CString& name);

// The first `limit` characters of the name, or, with `isLeftTrim`, its first `keptBytes` bytes and as many of
// its last characters as fit. With `countsBytes` the limit is bytes, and no character is split.
Uve::U8CString CutName(const Uve::U8CString& name, std::size_t keptBytes, long limit, bool isLeftTrim,
                       bool countsBytes);
