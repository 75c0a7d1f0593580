#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdint>
#include <vector>

// One of the values that an option can be chosen from. Only the text is read here.
struct UVOptionChoice
{
    std::uint64_t first = 0;
    const char* text = nullptr;
    std::uint64_t third = 0;
};

// One option of an INI file, with its value. The record travels through option sets as a whole.
struct UVOptionInfo
{
    int valueKind = 0; // 0: the value is plain text; otherwise it is the index of a choice, in decimal
    int iniKind = 0;   // 0: a text in the file; 2: an integer; others stand in no file
    Uve::U8CString title;
    Uve::U8CString name;    // key in the section
    Uve::U8CString altName; // a second key under which it can be found
    Uve::U8CString section;
    Uve::U8CString description;
    const UVOptionChoice* choices = nullptr; // borrowed
    int choiceCount = 0;
    Uve::U8CString value; // the default, then the current value
    bool flag1 = true;    // carried, never interpreted here
    bool flag2 = false;
};

// Default values of INI options. A vector, since the first matching record counts.
class UVDBOptionDefaultValues : public std::vector<UVOptionInfo>
{
public:
    // The first record of `section` whose name or second name is `name`, compared letter by letter. An empty
    // argument matches an empty field, so an empty name finds any record without a second name.
    // Returns: null if there is none. The pointer is good until a record is added.
    UVOptionInfo* GetOption(const Uve::U8CString& section, const Uve::U8CString& name);

    // Returns: the record's value, or an empty text.
    Uve::U8CString GetValue(const Uve::U8CString& section, const Uve::U8CString& name);

    // Changes the value of the record, and adds one if there is none.
    void SetValue(const Uve::U8CString& section, const Uve::U8CString& name, const Uve::U8CString& value);

    // The same by the number of a wizard option. A number without a row finds nothing and sets nothing.
    UVOptionInfo* GetOption(int number);
    Uve::U8CString GetValue(int number);
    void SetValue(int number, const Uve::U8CString& value);
};
