#include "UVEnvironment/PluginHelpers.h"

#include "Tests/Foundation/PluginFixture.h"
#include "UVEnvironment/FileHelper.h"

#include <gmock/gmock.h>

#include <dlfcn.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kLibrary = "libuv_plugin_fixture.so";

std::string FixturePath()
{
    return std::string(Uve::GetPathOfExe().c_str()) + "/" + kLibrary;
}

bool IsLoaded()
{
    void* const library = dlopen(FixturePath().c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (library != nullptr)
        dlclose(library);
    return library != nullptr;
}

template <class Call>
std::string FailureOf(Call call)
{
    try {
        call();
        return "none";
    } catch (const std::exception& e) {
        return e.what();
    }
}

TEST(PluginLoading, LibraryStaysAsLongAsItsObjects)
{
    for (const std::string& name : {std::string(kLibrary), FixturePath()}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(IsLoaded());
        bool firstAlive = false;
        bool secondAlive = false;
        auto first = PluginHelpers::CreateParser<IPluginFixture>(name);
        auto second = PluginHelpers::CreateParser<IPluginFixture>(name);
        first->Watch(&firstAlive);
        second->Watch(&secondAlive);
        first.reset();
        EXPECT_FALSE(firstAlive);
        EXPECT_TRUE(secondAlive);
        EXPECT_TRUE(IsLoaded());
        second.reset();
        EXPECT_FALSE(secondAlive);
        EXPECT_FALSE(IsLoaded());
    }
}

TEST(PluginLoading, FailuresNameWhatWasMissing)
{
    using Uve::DLL::createInstance;
    EXPECT_THAT(FailureOf([] { createInstance<IPluginFixture>("libnosuch.so", "X"); }),
                HasSubstr("boost::dll::shared_library::load() failed"));
    EXPECT_THAT(FailureOf([] { createInstance<IPluginFixture>("", "X"); }),
                HasSubstr("boost::dll::shared_library::load() failed"));
    EXPECT_THAT(FailureOf([] { createInstance<IPluginFixture>(kLibrary, "NoSuchEntry"); }),
                HasSubstr("boost::dll::shared_library::get() failed"));
    EXPECT_THAT(FailureOf([] { createInstance<IPluginFixture>(kLibrary, "EmptyEntry"); }),
                HasSubstr("EmptyEntry"));
    EXPECT_THAT(FailureOf([] { createInstance<IPluginFixture>(kLibrary, "BarrenEntry"); }),
                HasSubstr("BarrenEntry"));
    EXPECT_FALSE(IsLoaded());
}

TEST(PluginLoading, HelpersSayWhichLibraryIsMissing)
{
    EXPECT_THAT(FailureOf([] { PluginHelpers::CreateTranslator<IPluginFixture>(); }),
                AllOf(StartsWith("Unable to load 'libUVDBSQLTranslator.so': "), HasSubstr("load() failed"),
                      testing::EndsWith(".")));
    EXPECT_THAT(FailureOf([] { PluginHelpers::CreateParser<IPluginFixture>("libNone.so"); }),
                StartsWith("Unable to load 'libNone.so': "));
    EXPECT_THAT(FailureOf([] { PluginHelpers::CreateDatabaseManager<IPluginFixture>(1); }), HasSubstr("1"));
}

} // namespace
