#include "Metadata/Options/UVOptionInfo.h"

#include "Metadata/Options/wzdoptions.h"

#include <algorithm>

UVOptionInfo* UVDBOptionDefaultValues::GetOption(const Uve::U8CString& section, const Uve::U8CString& name)
{
    const auto found = std::find_if(begin(), end(), [&](const UVOptionInfo& option) {
        return (name == option.name || name == option.altName) && section == option.section;
    });
    return found == end() ? nullptr : &*found;
}

Uve::U8CString UVDBOptionDefaultValues::GetValue(const Uve::U8CString& section, const Uve::U8CString& name)
{
    const UVOptionInfo* const option = GetOption(section, name);
    return option ? option->value : Uve::U8CString();
}

void UVDBOptionDefaultValues::SetValue(const Uve::U8CString& section, const Uve::U8CString& name,
                                       const Uve::U8CString& value)
{
    if (UVOptionInfo* const option = GetOption(section, name)) {
        option->value = value;
        return;
    }
    UVOptionInfo& option = emplace_back();
    option.section = section;
    option.name = name;
    option.value = value;
}

UVOptionInfo* UVDBOptionDefaultValues::GetOption(int number)
{
    const char* const name = GetOptionName(number);
    return name ? GetOption(GetOptionSection(number), name) : nullptr;
}

Uve::U8CString UVDBOptionDefaultValues::GetValue(int number)
{
    const char* const name = GetOptionName(number);
    return name ? GetValue(GetOptionSection(number), name) : Uve::U8CString();
}

void UVDBOptionDefaultValues::SetValue(int number, const Uve::U8CString& value)
{
    if (const char* const name = GetOptionName(number))
        SetValue(GetOptionSection(number), name, value);
}
