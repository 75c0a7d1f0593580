#pragma once

#include "Interfaces/IUVDBDataTypeInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"

#include <memory>

// A column of a table or a view, as a database tells of it. Texts use the buffer form of IUVDBObjectInfo and
// are in the database's own words: each has its own for what a default, an identity or a computed column is.
// A text that it didn't tell is empty, a number 0. The name and the text of the data type can be set here;
// the rest is filled by whoever made the column.
class IUVDBColumnInfo : public IUVDBObjectInfo
{
public:
    // The stored name, or the option "ColumnName" when that is empty.
    virtual int get_ColumnName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int set_ColumnName(const char* name) = 0; // a null text changes nothing; UVDB_OK

    // Shares the column's data type, empty if it has none.
    // Returns: UVDB_OK.
    virtual int get_DataType(std::shared_ptr<IUVDBDataTypeInfo>& out) = 0;

    virtual int get_DefaultValue(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DefaultValueType(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DefaultColumnType(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_IdentityGenerated(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_IdentityCycl(char* dst, unsigned long size, unsigned long* length) = 0;

    // The data type as one text.
    virtual int get_DataTypeInfo(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int set_DataTypeInfo(const char* text) = 0; // a null text is the empty text; UVDB_OK

    virtual int get_NestedName(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_TimeDimension(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_Virtual(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_Collation(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_GenType(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_GenExpression(char* dst, unsigned long size, unsigned long* length) = 0;

    // Return UVDB_OK; UVDB_INVALID_ARGUMENT for a null output argument.
    virtual int get_ArrayExtent(long* out) = 0;
    virtual int get_Computed(long* out) = 0;

    virtual int get_ComputedColumn(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_CharacterSet(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_GeneratedAlways(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_IdentityGeneration(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_Description(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_Format(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_DisplayOrder(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_Decimals(char* dst, unsigned long size, unsigned long* length) = 0;
    virtual int get_MaxWidth(char* dst, unsigned long size, unsigned long* length) = 0;
};
