#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

// Result codes of GetOptValue and SetOptValue.
enum enUVDB_OPTION_RESULT : int
{
    UVDB_OPTION_FOUND = 0,
    UVDB_OPTION_ABSENT = 1,      // GetOptValue only
    UVDB_OPTION_OTHER_TYPE = -1, // there, with a type key other than the one given
    UVDB_OPTION_UNTYPED = -2,    // there, without a type key
    UVDB_OPTION_NULL_NAME = -3,
    UVDB_OPTION_EMPTY_NAME = -4,
    UVDB_OPTION_NULL_TYPE_NAME = -5,
    UVDB_OPTION_EMPTY_TYPE_NAME = -6
};

// Named, typed values that can be hung on any object. A set knows names and untyped pointers;
// CUVDBOptionWrapper is the typed way to it, and the only one that callers take.
//
// A type key is the run-time type name of the value's type (`typeid(T).name()`, without a leading "*"),
// compared as text, so that modules of the family understand each other's values. A value keeps the type that
// it was first set with. No locks: a set belongs to one thread at a time.
class IUVDBOptionSet
{
public:
    IUVDBOptionSet() = default;
    IUVDBOptionSet(const IUVDBOptionSet&) = delete;
    IUVDBOptionSet& operator=(const IUVDBOptionSet&) = delete;
    virtual ~IUVDBOptionSet() = default;

    // Gives the pointer that was stored under `name`, also when its type differs. The set lends it: what
    // CUVDBOptionWrapper has written lives as long as the set, and a new value is written in its place.
    // Returns: a code of enUVDB_OPTION_RESULT; `*value` is null when there is no such option, and untouched
    //          when an argument is refused.
    virtual int GetOptValue(const char* name, const char* typeName, void** value) = 0;

    // Stores the pointer, which must outlive the set. An earlier pointer is forgotten, not released.
    // Returns: UVDB_OPTION_FOUND, or a negative code of enUVDB_OPTION_RESULT with nothing changed.
    virtual int SetOptValue(const char* name, const char* typeName, const void* value) = 0;

    // Whether there is a value under `name`, of any type.
    virtual bool IsOptionValid(const char* name) = 0;

    // Copies the type key of an option.
    // Returns: false, with `typeName` empty, if there is none.
    virtual bool GetOptTypeName(const char* name, Uve::U8CString& typeName) = 0;

    // Whether the set holds no value at all.
    virtual bool IsEmpty() = 0;

    // Copies the option "BodyXML"; some objects compose it when it is missing.
    // Returns: 0; 1 if there is none; -1 if it isn't a text. `text` is empty then.
    virtual int get_BodyXML_Option(Uve::U8CString& text) = 0;
};
