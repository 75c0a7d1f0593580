#include "Metadata/Options/UVDBOptionCopy.h"

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/Options/wzdoptions.h"
#include "UVEnvironment/UVECompat.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace {

int DecimalInt(const Uve::U8CString& text)
{
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

int IndexOfChoice(const UVOptionInfo& info, const Uve::U8CString& text)
{
    for (int index = 0; info.choices && index < info.choiceCount; ++index)
        if (text.CollateNoCase(info.choices[index].text) == 0)
            return index;
    return DecimalInt(info.value);
}

} // namespace

void ReadOption(UVOptionInfo* info, Uve::U8CString& value, Uve::U8CString& iniFile)
{
    enum : int
    {
        kText = 0,
        kInteger = 2
    };
    const Uve::U8CString section = info->section == "(null)" ? Uve::U8CString("NULL") : info->section;
    if (info->iniKind == kText) {
        const bool isChoice = info->valueKind != 0;
        Uve::U8CString result = isChoice ? Uve::U8CString() : info->value;
        if (!section.empty())
            Uve::Compat::GetPrivateProfileString(section, info->name, Uve::U8CString(result), result,
                                                 iniFile);
        value = isChoice ? UVDBOptionToText(IndexOfChoice(*info, result)) : result;
    } else if (info->iniKind == kInteger && !section.empty()) {
        value = UVDBOptionToText(
            Uve::Compat::GetPrivateProfileInt(section, info->name, DecimalInt(info->value), iniFile));
    }
}

void UVDBCopyINIOptions(IUVDBDatabaseInfo2* source, IUVDBDatabaseInfo2* target)
{
    for (int number = 0; number < WZDOPT_END; ++number) {
        const char* const key = GetOptionName(number);
        if (!key)
            continue;
        UVOptionInfo option;
        CUVDBOptionWrapper::GetParam(source, key, option);
        CUVDBOptionWrapper::SetParam(target, key, option);
    }
}

void UVDBCopyOptions(IUVDBDatabaseInfo2* source, IUVDBDatabaseInfo2* target)
{
    for (int number = 0; number < WZDOPT_END; ++number) {
        const char* const key = GetOptionName(number);
        if (!key || (source && !source->IsOptionValid(key)))
            continue;
        Uve::U8CString text;
        const bool isBody = source && std::string_view(key) == "BodyXML";
        if (isBody ? source->get_BodyXML_Option(text) == 0 : CUVDBOptionWrapper::GetParam(source, key, text))
            CUVDBOptionWrapper::SetParam(target, key, text);
    }
}
