#pragma once

#include "Interfaces/IUVDBOptionSet.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <concepts>
#include <memory>
#include <typeinfo>

// What option sets need to know of the types of their values: the key that is stored beside a value, the text
// form of those types that have one, and who owns values.

// Returns: the type key of `T`, which lives as long as the process.
template <class T>
const char* UVDBOptionTypeKey()
{
    const char* const name = typeid(T).name();
    return *name == '*' ? name + 1 : name;
}

// The text forms. Integers are read in decimal, up to the first character that doesn't belong to one; a truth
// value is true for "1" and, in any case, "Yes".
void UVDBOptionFromText(const Uve::U8CString& text, bool& value);
void UVDBOptionFromText(const Uve::U8CString& text, int& value);
void UVDBOptionFromText(const Uve::U8CString& text, unsigned int& value);
void UVDBOptionFromText(const Uve::U8CString& text, long& value);
void UVDBOptionFromText(const Uve::U8CString& text, unsigned long& value);
void UVDBOptionFromText(const Uve::U8CString& text, unsigned long long& value);
void UVDBOptionFromText(const Uve::U8CString& text, double& value);
void UVDBOptionFromText(const Uve::U8CString& text, Uve::U8CString& value);

// Truth values are "1" and "0". A double is rounded to a whole number, and an unsigned int above the range of
// int comes out negative: readers of the texts count on it.
Uve::U8CString UVDBOptionToText(const bool& value);
Uve::U8CString UVDBOptionToText(const int& value);
Uve::U8CString UVDBOptionToText(const unsigned int& value);
Uve::U8CString UVDBOptionToText(const long& value);
Uve::U8CString UVDBOptionToText(const unsigned long& value);
Uve::U8CString UVDBOptionToText(const unsigned long long& value);
Uve::U8CString UVDBOptionToText(const double& value);
Uve::U8CString UVDBOptionToText(const Uve::U8CString& value);

// Types with a text form. The test is made on the reading side, whose reference takes no conversions.
template <class T>
concept UVDBTextOption = requires(const Uve::U8CString& text, T& value)
{
    UVDBOptionFromText(text, value);
};

// Gives a value to the set, or to the process if it is a set that owns nothing: such a set may lend the
// pointer as long as it likes.
// Throws: std::bad_alloc; the value is the caller's then.
void UVDBHandOverOptionValue(IUVDBOptionSet& set, void* value, void (*release)(void*));

// Returns: a new value, zero or empty, which isn't under a name yet.
// Owner:   the set, see above.
template <class T>
T* UVDBNewOptionValue(IUVDBOptionSet& set)
{
    auto value = std::make_unique<T>();
    UVDBHandOverOptionValue(set, value.get(), [](void* made) { delete static_cast<T*>(made); });
    return value.release();
}
