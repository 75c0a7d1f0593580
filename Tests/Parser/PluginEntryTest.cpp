// The built library as a host sees it: nothing but the entry symbol and the interface.
#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/IUVDBSQLParser.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Tests/Parser/ParserFixture.h"
#include "Tests/Support/Repeated.h"
#include "UVEnvironment/PluginHelpers.h"

#include <boost/dll/library_info.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <malloc.h>

namespace {

TEST(PluginEntry, SymbolStandsInASectionOfItsOwn)
{
    boost::dll::library_info library(UV_BIN_DIR "/libUVParser.so");
    const std::vector<std::string> symbols = library.symbols("boostdll");
    EXPECT_NE(std::ranges::find(symbols, "CreateInstanceIUVDBSQLParser"), symbols.end());
}

TEST(PluginEntry, HostWalksTheCallingOrder)
{
    const auto log = std::make_shared<CMemoryLog>();
    const auto parser = PluginHelpers::CreateParser(UV_BIN_DIR "/libUVParser.so");
    const auto info = UVDBMakeObject<CUVDBDatabaseInfo>(
        MakeDbVersionInfo(UVDB_DB_COMMON, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD));
    CUVDBOptionWrapper::SetParam(info, "REPORT_UNEXPECTED_TOKENS", Uve::U8CString("1"));

    ASSERT_EQ(parser->set_Log(log), UVDB_OK);
    ASSERT_EQ(parser->Load(GetParserModuleName(info->get_DbmsVersion())), UVDB_OK);
    ASSERT_EQ(parser->set_DatabaseInfo(info), UVDB_OK);
    ASSERT_EQ(parser->Init(""), UVDB_OK);
    EXPECT_TRUE(log->Text().starts_with("\nUVParserCommon : Creation...OK")) << log->Text();

    Uve::U8CString tree;
    parser->set_Query("print 'a<b';");
    ASSERT_EQ(parser->Parse(false), UVDB_OK);
    ASSERT_EQ(parser->get_SQLTree(tree), UVDB_OK);
    EXPECT_EQ(TextOfTree(tree), "print 'a<b';");

    // The texts and records below are made by the library and read here.
    parser->set_Query("print 1 1");
    ASSERT_EQ(parser->Parse(false), UVDB_ERROR);
    std::shared_ptr<IUVDBErrorInfo> error;
    ASSERT_EQ(parser->get_LastError(error), UVDB_OK);
    char description[256];
    std::size_t length = 0;
    ASSERT_EQ(error->get_Description(description, sizeof description, &length), UVDB_OK);
    EXPECT_STREQ(description, "1 '1' Code lines:\n<<<<\nprint 1 1\n>>>>\n");
    Uve::U8CString tokens;
    EXPECT_TRUE(CUVDBOptionWrapper::GetParam(info, "UNEXPECTED_TOKENS", tokens));
    EXPECT_EQ(tokens, "1\t9\t8\t1\t1\n");

    Uve::U8CString text = "<a><b><b><c>1</c></b></b></a>";
    EXPECT_EQ(parser->Tree2Serial(info, text), UVDB_OK);
    EXPECT_STREQ(text.c_str(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a><b><c>1</c></b></a>\n");
    EXPECT_THROW(parser->Load("NoSuchGrammar"), Uve::U8CString);
}

#ifndef UV_SANITIZED // a sanitizer's allocator counts by itself
// What a parse leaves with a host: the tree, the error, the list of tokens on the info.
void ParseOnce(const std::shared_ptr<IUVDBSQLParser>& parser, const std::string& text, bool isNew)
{
    const auto info = UVDBMakeObject<CUVDBDatabaseInfo>(
        MakeDbVersionInfo(UVDB_DB_COMMON, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD));
    CUVDBOptionWrapper::SetParam(info, "REPORT_UNEXPECTED_TOKENS", Uve::U8CString("1"));
    std::shared_ptr<IUVDBObjectInfo> object;
    info->create_new_object(object, 0);
    if (isNew) {
        ASSERT_EQ(parser->Load("Common"), UVDB_OK);
    }
    ASSERT_EQ(parser->set_DatabaseInfo(info), UVDB_OK);
    parser->set_ConvertingObject(object);
    ASSERT_EQ(parser->Init(""), UVDB_OK);
    parser->set_Query(text.c_str());
    parser->Parse(false);
    Uve::U8CString tokens;
    ASSERT_TRUE(CUVDBOptionWrapper::GetParam(info, "UNEXPECTED_TOKENS", tokens));
    ASSERT_GT(tokens.size(), text.size());
}

TEST(PluginEntry, ParsesOfManyInfosLeaveNoMemoryBehind)
{
    const std::string text = Repeated("print 1 1;\n", 1000);
    const auto log = std::make_shared<CMemoryLog>();
    for (const bool isNew : {true, false}) {
        SCOPED_TRACE(isNew ? "a parser for each text" : "one parser");
        auto parser = PluginHelpers::CreateParser(UV_BIN_DIR "/libUVParser.so");
        parser->set_Log(log);
        ASSERT_EQ(parser->Load("Common"), UVDB_OK);
        std::size_t before = 0;
        for (int round = 0; round < 12; ++round) {
            if (round == 2) // what is made once for the process is there
                before = mallinfo2().uordblks;
            if (isNew)
                parser = PluginHelpers::CreateParser(UV_BIN_DIR "/libUVParser.so");
            ASSERT_NO_FATAL_FAILURE(ParseOnce(parser, text, isNew));
            log->Clear();
        }
        ASSERT_NE(before, 0u);
        EXPECT_LT(mallinfo2().uordblks, before + 4096);
    }
}
#endif

} // namespace
