#include "Metadata/Options/UVDBOptionWrapper.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// A scalar type as those see it who know its key alone.
struct SScalarType
{
    std::string_view typeKey;
    bool (*read)(IUVDBOptionSet* set, const std::string& name, Uve::U8CString& text);
    int (*write)(IUVDBOptionSet* set, const std::string& name, const Uve::U8CString& text);
};

template <class T>
bool ReadScalar(IUVDBOptionSet* set, const std::string& name, Uve::U8CString& text)
{
    T value{};
    if (!CUVDBOptionWrapper::GetOptSetParam<T>(set, name, value))
        return false;
    text = UVDBOptionToText(value);
    return true;
}

template <class T>
int WriteScalar(IUVDBOptionSet* set, const std::string& name, const Uve::U8CString& text)
{
    T value{};
    UVDBOptionFromText(text, value);
    return CUVDBOptionWrapper::SetOptSetParam<T>(set, name, value);
}

template <class T>
SScalarType ScalarType()
{
    return {UVDBOptionTypeKey<T>(), ReadScalar<T>, WriteScalar<T>};
}

const SScalarType* FindScalarType(const Uve::U8CString& typeKey)
{
    static const std::array kTypes = {
        ScalarType<bool>(),   ScalarType<int>(),           ScalarType<unsigned int>(),
        ScalarType<long>(),   ScalarType<unsigned long>(), ScalarType<unsigned long long>(),
        ScalarType<double>(),
    };
    const auto found = std::ranges::find(kTypes, std::string_view(typeKey), &SScalarType::typeKey);
    return found == kTypes.end() ? nullptr : &*found;
}

} // namespace

bool CUVDBOptionWrapper::GetOptSetParam(IUVDBOptionSet* set, const std::string& name,
                                        const Uve::U8CString& typeKey, Uve::U8CString& text)
{
    if (const SScalarType* const type = FindScalarType(typeKey))
        return type->read(set, name, text);
    CLogWrapper::WriteTraceF("\nFAILED to get typed option. Unsupported option type (value type: %s)",
                             typeKey.c_str());
    return false;
}

int CUVDBOptionWrapper::SetOptSetParam(IUVDBOptionSet* set, const std::string& name,
                                       const Uve::U8CString& typeKey, const Uve::U8CString& text)
{
    if (const SScalarType* const type = FindScalarType(typeKey))
        return type->write(set, name, text);
    CLogWrapper::WriteTraceF("\nFAILED to set str option. Unsupported option type (type: %s)",
                             typeKey.c_str());
    return -1;
}

bool CUVDBOptionWrapper::GetOptSetStrParam(IUVDBOptionSet* set, const std::string& name, bool& value)
{
    Uve::U8CString text;
    if (!GetOptSetParam<Uve::U8CString>(set, name, text))
        return false;
    UVDBOptionFromText(text, value);
    return true;
}

int CUVDBOptionWrapper::SetOptSetStrParam(IUVDBOptionSet* set, const std::string& name, const bool& value)
{
    return SetOptSetParam<Uve::U8CString>(set, name, UVDBOptionToText(value));
}

Uve::U8CString CUVDBOptionWrapper::OtherTypeKey(IUVDBOptionSet* set, const std::string& name,
                                                const char* typeKey)
{
    // A set of another module could name the very type that it has just refused; asking it again would never
    // end.
    Uve::U8CString otherKey;
    if (!set->GetOptTypeName(name.c_str(), otherKey) || otherKey == typeKey)
        otherKey.clear();
    return otherKey;
}
