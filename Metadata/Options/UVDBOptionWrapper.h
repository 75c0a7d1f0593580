#pragma once

#include "Interfaces/IUVDBOptionSet.h"
#include "Metadata/Options/UVDBOptionSets.h"
#include "Metadata/Options/UVDBOptionTypes.h"
#include "UVEnvironment/LogSystem.h"
#include "UVEnvironment/UVEUnicodeString.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>

// The typed way to the options of any object; the one that all callers take. A call site reads with its own
// default: what it passes in stays as it was when the read gives false.
//
//     Uve::U8CString directory = ".";
//     CUVDBOptionWrapper::GetParam(databaseInfo, "DIR", directory);
//
// An option keeps the type that it was first set with. Reading or writing it as another type goes through
// text, where both types have a text form. Nothing throws for a bad option; failures are trace lines.
class CUVDBOptionWrapper
{
public:
    // Copies the option into `value`, or the process-wide default (GetDefaultsValues) if the set has no such
    // option.
    // Returns: false, with `value` untouched, if neither is there or it can't be had as a `T`.
    template <class T>
    static bool GetOptSetParam(IUVDBOptionSet* set, const std::string& name, T& value);

    // Copies `value` into the option.
    // Returns: 0; -1 if the option has a type that the value can't become.
    template <class T>
    static int SetOptSetParam(IUVDBOptionSet* set, const std::string& name, const T& value);

    // The same for a scalar type that is known by its key alone, with the value as text.
    static bool GetOptSetParam(IUVDBOptionSet* set, const std::string& name, const Uve::U8CString& typeKey,
                               Uve::U8CString& text);
    static int SetOptSetParam(IUVDBOptionSet* set, const std::string& name, const Uve::U8CString& typeKey,
                              const Uve::U8CString& text);

    // A text option as truth value: "1" or, in any case, "Yes". Written as "1" or "0".
    static bool GetOptSetStrParam(IUVDBOptionSet* set, const std::string& name, bool& value);
    static int SetOptSetStrParam(IUVDBOptionSet* set, const std::string& name, const bool& value);

    // A text option as a number, in decimal. `readText(set, name, text)` gives the text, or false.
    template <class T, class CGetOptSetStrParam>
    static bool GetOptSetStrParamT(IUVDBOptionSet* set, const std::string& name, T& value,
                                   CGetOptSetStrParam readText);

    // The same on a shared pointer (or a pointer) to any object that is an option set.
    template <class T, class Holder>
    static bool GetParam(Holder holder, const std::string& name, T& value);
    template <class T, class Holder>
    static int SetParam(Holder holder, const std::string& name, const T& value);

    // Reads the option as text and converts it.
    template <class T, class Holder>
    static bool GetStrParam(Holder holder, const std::string& name, T& value);

private:
    template <class T>
    static bool GetOtherTypeParam(IUVDBOptionSet* set, const std::string& name, T& value);
    template <class T>
    static int SetOtherTypeParam(IUVDBOptionSet* set, const std::string& name, const T& value);

    // The key of the type that an option has, if that is another one than `typeKey`; empty otherwise.
    static Uve::U8CString OtherTypeKey(IUVDBOptionSet* set, const std::string& name, const char* typeKey);
};

template <class T>
bool CUVDBOptionWrapper::GetOptSetParam(IUVDBOptionSet* set, const std::string& name, T& value)
{
    if (!set) {
        CLogWrapper::WriteTraceF("\nFAILED to get option %s (pObject is NULL)", name.c_str());
        return false;
    }
    if constexpr (std::is_pointer_v<T>)
        CLogWrapper::WriteTraceF("\nWARNING get option %s (type is a pointer)", name.c_str());

    void* stored = nullptr;
    int result = set->GetOptValue(name.c_str(), UVDBOptionTypeKey<T>(), &stored);
    if (result == UVDB_OPTION_ABSENT) {
        set = &GetDefaultsValues();
        result = set->GetOptValue(name.c_str(), UVDBOptionTypeKey<T>(), &stored);
        if (result == UVDB_OPTION_ABSENT)
            return false;
        if (result != UVDB_OPTION_FOUND)
            CLogWrapper::WriteTraceF("\nFAILED to get default value for option %s (result: %d)", name.c_str(),
                                     result);
    }
    if (result == UVDB_OPTION_FOUND && stored) {
        value = *static_cast<const T*>(stored);
        return true;
    }
    if (result == UVDB_OPTION_OTHER_TYPE)
        return GetOtherTypeParam(set, name, value);
    CLogWrapper::WriteTraceF("\nFAILED to get option %s (result: %d)", name.c_str(), result);
    return false;
}

template <class T>
bool CUVDBOptionWrapper::GetOtherTypeParam(IUVDBOptionSet* set, const std::string& name, T& value)
{
    Uve::U8CString text;
    bool hasText = false;
    if (const Uve::U8CString typeKey = OtherTypeKey(set, name, UVDBOptionTypeKey<T>()); typeKey.empty())
        CLogWrapper::WriteTraceF("\nFAILED to get option %s (result: %d)", name.c_str(),
                                 UVDB_OPTION_OTHER_TYPE);
    else if (typeKey == UVDBOptionTypeKey<Uve::U8CString>())
        hasText = GetOptSetParam<Uve::U8CString>(set, name, text);
    else
        hasText = GetOptSetParam(set, name, typeKey, text);
    if (!hasText)
        return false;
    if constexpr (UVDBTextOption<T>) {
        UVDBOptionFromText(text, value);
        return true;
    } else {
        CLogWrapper::WriteTraceF("\nFAILED to get str option. Unsupported option type (type: %s)",
                                 UVDBOptionTypeKey<T>());
        return false;
    }
}

template <class T>
int CUVDBOptionWrapper::SetOptSetParam(IUVDBOptionSet* set, const std::string& name, const T& value)
{
    if (!set) {
        CLogWrapper::WriteTraceF("\nFAILED to set option %s (pObject is NULL)", name.c_str());
        return -1;
    }
    if constexpr (std::is_pointer_v<T>)
        CLogWrapper::WriteTraceF("\nWARNING set option %s (type is a pointer)", name.c_str());

    void* stored = nullptr;
    int result = set->GetOptValue(name.c_str(), UVDBOptionTypeKey<T>(), &stored);
    if (result == UVDB_OPTION_OTHER_TYPE)
        return SetOtherTypeParam(set, name, value);
    if (result >= 0) {
        // Readers may hold on to the pointer, so a new value goes into the old place.
        T* const place =
            result == UVDB_OPTION_FOUND && stored ? static_cast<T*>(stored) : UVDBNewOptionValue<T>(*set);
        *place = value;
        result = set->SetOptValue(name.c_str(), UVDBOptionTypeKey<T>(), place);
        if (result == UVDB_OPTION_FOUND)
            return 0;
    }
    CLogWrapper::WriteTraceF("\nFAILED to set option %s (type: %s, result: %d)", name.c_str(),
                             UVDBOptionTypeKey<T>(), result);
    return -1;
}

template <class T>
int CUVDBOptionWrapper::SetOtherTypeParam(IUVDBOptionSet* set, const std::string& name, const T& value)
{
    if constexpr (UVDBTextOption<T>) {
        const Uve::U8CString typeKey = OtherTypeKey(set, name, UVDBOptionTypeKey<T>());
        if (typeKey.empty()) {
            CLogWrapper::WriteTraceF("\nFAILED to set option %s (type: %s, result: %d)", name.c_str(),
                                     UVDBOptionTypeKey<T>(), UVDB_OPTION_OTHER_TYPE);
            return -1;
        }
        const Uve::U8CString text = UVDBOptionToText(value);
        if (typeKey == UVDBOptionTypeKey<Uve::U8CString>())
            return SetOptSetParam<Uve::U8CString>(set, name, text);
        return SetOptSetParam(set, name, typeKey, text);
    } else {
        CLogWrapper::WriteTraceF("\nFAILED to set typed option. Unsupported option type (value type: %s)",
                                 UVDBOptionTypeKey<T>());
        return -1;
    }
}

template <class T, class CGetOptSetStrParam>
bool CUVDBOptionWrapper::GetOptSetStrParamT(IUVDBOptionSet* set, const std::string& name, T& value,
                                            CGetOptSetStrParam readText)
{
    Uve::U8CString text;
    if (!readText(set, name, text))
        return false;
    value = static_cast<T>(std::strtol(text.c_str(), nullptr, 10));
    return true;
}

template <class T, class Holder>
bool CUVDBOptionWrapper::GetParam(Holder holder, const std::string& name, T& value)
{
    if (!holder) {
        CLogWrapper::WriteTraceF("\nFAILED to get param. Unsupported object type (type: %s)",
                                 UVDBOptionTypeKey<Holder>());
        return false;
    }
    return GetOptSetParam<T>(std::to_address(holder), name, value);
}

template <class T, class Holder>
int CUVDBOptionWrapper::SetParam(Holder holder, const std::string& name, const T& value)
{
    if (!holder) {
        CLogWrapper::WriteTraceF("\nFAILED to set param. Unsupported object type (type: %s)",
                                 UVDBOptionTypeKey<Holder>());
        return -1;
    }
    return SetOptSetParam<T>(std::to_address(holder), name, value);
}

template <class T, class Holder>
bool CUVDBOptionWrapper::GetStrParam(Holder holder, const std::string& name, T& value)
{
    if (!holder) {
        CLogWrapper::WriteTraceF("\nFAILED to get str param. Unsupported object type (type: %s)",
                                 UVDBOptionTypeKey<Holder>());
        return false;
    }
    Uve::U8CString text;
    if (!GetOptSetParam<Uve::U8CString>(std::to_address(holder), name, text))
        return false;
    UVDBOptionFromText(text, value);
    return true;
}
