#include "Metadata/Options/wzdoptions.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace {

using SectionAndKey = std::pair<const char*, const char*>;
using SectionOptions = std::array<SectionAndKey, WZDOPT_END>;

constexpr SectionOptions ByNumber()
{
    SectionOptions options{};
#define UVDB_WIZARD_OPTION(name, number, section, key) options[number] = SectionAndKey{section, key};
#include "Metadata/Options/UVWizardOptionRows.inc"
#undef UVDB_WIZARD_OPTION
    return options;
}

constexpr SectionOptions kByNumber = ByNumber();
static_assert(std::ranges::count_if(kByNumber,
                                    [](const SectionAndKey& row) { return row.second != nullptr; }) == 736);

// Values with a syntax of their own, which replacing would break.
constexpr std::array<std::string_view, 2> optionsWithRawValues{
    "IMPORT_CLIENT_OPTIONS",
    "BCP_COMMAND_LINE_CUSTOM_PARAMETERS",
};

SectionAndKey FindOption(int number)
{
    return number >= 0 && number < WZDOPT_END ? sectionOptions[static_cast<std::size_t>(number)]
                                              : SectionAndKey{};
}

} // namespace

constinit const SectionOptions sectionOptions = kByNumber;

const char* GetOptionName(int number)
{
    return FindOption(number).second;
}

const char* GetOptionSection(int number)
{
    return FindOption(number).first;
}

bool IsAllowedValuePreprocessing(const Uve::U8CString& key)
{
    return std::ranges::find(optionsWithRawValues, std::string_view{key}) == optionsWithRawValues.end();
}
