#include "Metadata/Options/UVDBOptionCopy.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/Options/UVProcessName.h"
#include "Metadata/Options/wzdoptions.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <unistd.h>

namespace {

using Uve::U8CString;

// The wizard option that gets a default here. Defaults belong to the process, and stay.
constexpr const char* kDefaultedKey = "TRACE";

std::shared_ptr<CUVDBDatabaseInfo> MakeInfo()
{
    return UVDBMakeObject<CUVDBDatabaseInfo>(DB_VERSION_INFO{});
}

TEST(IniFile, OptionsAreReadByTheirKind)
{
    const CScratchFolder folder;
    U8CString path = folder.Write("options.ini", "[DDL]\nTEXT=from file\nCHOICE=SECOND\nODD=none of them\n"
                                                 "NUMBER=12\nEMPTY=\n[NULL]\nHIDDEN=in null\n");
    static constexpr UVOptionChoice kChoices[] = {{0, "first", 0}, {0, "Second", 0}, {0, "second", 0}};
    struct SCase
    {
        const char *section, *name;
        int valueKind, iniKind;
        const char *byDefault, *value;
    };
    constexpr SCase kCases[] = {
        // section   name      value ini default value
        {"DDL", "TEXT", 0, 0, "d", "from file"},
        {"DDL", "ABSENT", 0, 0, "d", "d"},
        {"DDL", "EMPTY", 0, 0, "d", ""},
        {"(null)", "HIDDEN", 0, 0, "d", "in null"},
        {"", "TEXT", 0, 0, "d", "d"},      // stands in no file
        {"DDL", "CHOICE", 1, 0, "0", "1"}, // the first that matches in any case
        {"DDL", "ODD", 1, 0, "2", "2"},
        {"DDL", "ABSENT", 1, 0, "2x", "2"},
        {"DDL", "NUMBER", 0, 2, "3", "12"},
        {"DDL", "ABSENT", 1, 2, "3", "3"},
        {"", "NUMBER", 0, 2, "3", "kept"},
        {"DDL", "TEXT", 0, 1, "d", "kept"},
    };
    for (const SCase& c : kCases) {
        SCOPED_TRACE(testing::Message()
                     << c.section << ' ' << c.name << ' ' << c.valueKind << ' ' << c.iniKind);
        UVOptionInfo info;
        info.section = c.section;
        info.name = c.name;
        info.valueKind = c.valueKind;
        info.iniKind = c.iniKind;
        info.value = c.byDefault;
        info.choices = kChoices;
        info.choiceCount = 3;
        U8CString value = "kept";
        ReadOption(&info, value, path);
        EXPECT_EQ(value, c.value);
    }
}

TEST(OptionCopy, RecordsReachTheTargetForEveryKey)
{
    const auto source = MakeInfo();
    const auto target = MakeInfo();
    UVOptionInfo host;
    host.name = "HOST";
    host.value = "db.example.org";
    host.flag2 = true;
    CUVDBOptionWrapper::SetParam(source, "HOST", host);
    CUVDBOptionWrapper::SetParam(target, "PORT", U8CString("5432")); // not a record: stays

    const CLogCapture log;
    UVDBCopyINIOptions(source.get(), target.get());
    std::set<std::string> keys;
    for (int number = 0; number < WZDOPT_END; ++number)
        if (const char* const key = GetOptionName(number))
            keys.insert(key);
    UVOptionInfo option;
    for (const std::string& key : keys) {
        option.value = "not read";
        if (key == "PORT" || key == kDefaultedKey)
            continue;
        ASSERT_TRUE(CUVDBOptionWrapper::GetParam(target, key, option)) << key;
        EXPECT_EQ(option.value, key == "HOST" ? "db.example.org" : "") << key;
        EXPECT_EQ(option.flag2, key == "HOST") << key;
    }
    U8CString port;
    CUVDBOptionWrapper::GetParam(target, "PORT", port);
    EXPECT_EQ(port, "5432");
    EXPECT_THAT(log.Lines(),
                testing::Contains("\nFAILED to set typed option. Unsupported option type (value type: "
                                  "12UVOptionInfo)"));
}

TEST(OptionCopy, PresentTextsBecomeTheTargetsType)
{
    const auto source = MakeInfo();
    const auto target = MakeInfo();
    CUVDBOptionWrapper::SetParam(&GetDefaultsValues(), kDefaultedKey, U8CString("default"));
    UVDBCopyOptions(source.get(), target.get());
    EXPECT_TRUE(target->IsEmpty()) << "defaults don't travel";

    CUVDBOptionWrapper::SetParam(source, "PORT", 5432l);
    CUVDBOptionWrapper::SetParam(source, "HOST", U8CString("h"));
    CUVDBOptionWrapper::SetParam(source, "NO_WIZARD_OPTION", U8CString("x"));
    CUVDBOptionWrapper::SetParam(target, "HOST", 7);
    UVDBCopyOptions(source.get(), target.get());
    U8CString typeName;
    target->GetOptTypeName("PORT", typeName);
    EXPECT_EQ(typeName, UVDBOptionTypeKey<U8CString>());
    U8CString port;
    CUVDBOptionWrapper::GetParam(target, "PORT", port);
    EXPECT_EQ(port, "5432");
    int host = 1;
    CUVDBOptionWrapper::GetParam(target, "HOST", host);
    EXPECT_EQ(host, 0);
    EXPECT_FALSE(target->IsOptionValid("NO_WIZARD_OPTION"));
}

TEST(OptionDefaults, FirstMatchCountsAndSecondNamesDoToo)
{
    UVDBOptionDefaultValues defaults;
    defaults.SetValue("DDL", "A", "1");
    defaults.back().altName = "B";
    defaults.SetValue("DATA", "B", "2");
    EXPECT_EQ(defaults.GetValue("DDL", "B"), "1");
    EXPECT_EQ(defaults.GetValue("DATA", "B"), "2");
    EXPECT_EQ(defaults.GetValue("ddl", "A"), "");
    EXPECT_EQ(defaults.GetOption("DATA", ""), &defaults[1]) << "an empty name matches an empty second name";
    defaults.SetValue("DDL", "B", "3");
    EXPECT_EQ(defaults.size(), 2u);
    EXPECT_EQ(defaults.GetValue("DDL", "A"), "3");
}

TEST(OptionDefaults, NumbersStandForSectionAndKey)
{
    UVDBOptionDefaultValues defaults;
    defaults.SetValue(486, "h"); // HOST of MYSQL
    EXPECT_EQ(defaults.GetValue("MYSQL", "HOST"), "h");
    EXPECT_EQ(defaults.GetValue(520), "") << "HOST of another section";
    defaults.SetValue(207, "nothing stands there");
    EXPECT_EQ(defaults.size(), 1u);
    EXPECT_EQ(defaults.GetOption(-1), nullptr);
}

TEST(ProcessName, IsTheFirstWordOfTheCommandLine)
{
    const U8CString own = GetProcessName(getpid());
    EXPECT_TRUE(own.ends_with("MetadataTests")) << own;
    EXPECT_EQ(GetParentProcessName(), GetProcessName(getppid()));
    EXPECT_EQ(GetProcessName(-1), "");
}

} // namespace
