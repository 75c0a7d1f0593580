// A data type with all that is known of it, as an XML element or as a string with markers for the
// stylesheets.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <memory>
#include <optional>

class IUVDBObjectInfo;
struct SUVDBToDBMSDataType;

// The facts of an element. What isn't there is left out.
struct SDataTypeElement
{
    const char* name = ""; // borrowed
    long uvdbType = -1;
    std::optional<long> length{};
    std::optional<long> precision{}; // goes before a length
    std::optional<long> leadingPrecision{};
    std::optional<long> minScale{};
    std::optional<long> maxScale{};
    bool isFixed = false; // the name implies precision and scale
    std::optional<bool> isUnsigned{};
    const char* createParams = "";
    std::optional<long> userType{};
};

// `objectInfo` may be empty; a column, or a parameter by its data type, adds the array type that its option
// "ARRAY_TYPE" or its data type tells. `mode` 3 leaves the name's case alone.
// Returns: a <DataType .../> element.
Uve::U8CString FormatDataTypeInfo(const std::shared_ptr<IUVDBObjectInfo>& objectInfo, DB_VERSION_INFO version,
                                  const SDataTypeElement& type, long mode);

// (hasScale, scale) is the smallest scale, (hasFixed, fixed) the largest. A `userType` of 0 isn't written.
Uve::U8CString FormatDataTypeInfo(const std::shared_ptr<IUVDBObjectInfo>& objectInfo, DB_VERSION_INFO version,
                                  const char* name, long uvdbType, long length, bool hasPrecision,
                                  long precision, bool hasLeadingPrecision, long leadingPrecision,
                                  bool hasScale, long scale, bool hasFixed, long fixed, bool isFixed,
                                  bool hasLength, bool isUnsignedValid, bool isUnsigned, long mode,
                                  const char* createParams, long userType);

// The same facts as one string. The misspelt markers are those that the stylesheets look for.
Uve::U8CString FormatDataTypeInfoStr(const std::shared_ptr<IUVDBObjectInfo>& objectInfo,
                                     DB_VERSION_INFO version, const char* name, long uvdbType, long length,
                                     bool hasPrecision, long precision, bool hasLeadingPrecision,
                                     long leadingPrecision, bool hasScale, long scale, bool hasFixed,
                                     long fixed, bool isFixed, bool hasLength, bool isUnsignedValid,
                                     bool isUnsigned, const char* createParams);

// Appends to `out` the element of a row of the mapping, with what the type tables of `version` know of its
// name.
void AddDataTypeInfo(DB_VERSION_INFO version, const SUVDBToDBMSDataType& row, Uve::U8CString& out);
