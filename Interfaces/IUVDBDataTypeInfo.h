#pragma once

#include "Interfaces/IUVDBObjectInfo.h"

// A data type, with the sizes that it has in one place (a column, a parameter). Texts use the buffer form of
// IUVDBObjectInfo. Sizes and scales are counted in digits or characters, as the database counts them.
//
// The getters of a number return UVDB_OK; UVDB_NOT_AVAILABLE where the type has no such value, which is
// tested first; UVDB_INVALID_ARGUMENT for a null output argument.
class IUVDBDataTypeInfo : public IUVDBObjectInfo
{
public:
    // The internal type number, -1 as long as it isn't known.
    virtual int get_DataType(long* out) = 0;

    // The type's name as the database spelled it.
    virtual int get_OriginalTypeName(char* dst, unsigned long size, unsigned long* length) = 0;

    // Length and precision are the same number: a type with a scale has a precision, one without has the one
    // that its column size stands for.
    virtual int get_Length(long* out) = 0;
    virtual int set_Length(long length) = 0; // makes the column size available; UVDB_OK
    virtual int get_Precision(long* out) = 0;

    virtual int get_MinScale(long* out) = 0;
    virtual int get_MaxScale(long* out) = 0;
    virtual int set_MaxScale(long scale) = 0; // makes the scale available; UVDB_OK

    virtual int IsPrecScaleFixed(bool* out) = 0;

    // The names of the parameters that the type takes when it is written, separated by commas.
    virtual int get_CreateParams(char* dst, unsigned long size, unsigned long* length) = 0;

    virtual int IsUnsigned(bool* out) = 0;
    virtual int get_LeadingPrecision(long* out) = 0;

    // A number that the database plug-in gives to types which users defined.
    virtual int GetUserType() = 0;

    virtual int get_ArrayType(char* dst, unsigned long size, unsigned long* length) = 0;
};
