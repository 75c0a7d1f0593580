// A parser over the fixture grammar Common, as a host has it, with a database info and a log.
//
// The grammar takes double-quoted text in `use` statements as an identifier and in `print` statements as a
// string, so the first is clean under one rule for quoted identifiers and the second under the other.
#pragma once

#include "Catalogue/UVDBDatabaseKinds.h"
#include "Catalogue/UVDBHelpers.h"
#include "Interfaces/IUVDBErrorInfo.h"
#include "Interfaces/IUVDBObjectInfo.h"
#include "Interfaces/UVDBResults.h"
#include "Metadata/Options/UVDBOptionWrapper.h"
#include "Metadata/UVDBDatabaseInfo.h"
#include "Parser/UVParser.h"
#include "Tests/Parser/ErrorRecord.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/TreeText.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

inline constexpr char kFixtureGrammar[] = "Common";

class ParserTest : public testing::Test
{
protected:
    template <class T>
    void SetOption(const char* name, const T& value)
    {
        CUVDBOptionWrapper::SetParam(m_Info, name, value);
    }
    void SetOption(const char* name, const char* value) { SetOption(name, Uve::U8CString(value)); }

    template <class T>
    T Option(const char* name)
    {
        T value{};
        CUVDBOptionWrapper::GetParam(m_Info, name, value);
        return value;
    }

    void SetDatabase(std::uint64_t kind, std::uint64_t subType = UVDB_NO_VERSION_WORD,
                     std::uint64_t major = UVDB_NO_VERSION_WORD, std::uint64_t minor = UVDB_NO_VERSION_WORD)
    {
        m_Info = UVDBMakeObject<CUVDBDatabaseInfo>(MakeDbVersionInfo(kind, subType, major, minor));
    }

    void SetFilePath(const char* path)
    {
        std::shared_ptr<IUVDBObjectInfo> object;
        m_Info->create_new_object(object, 0);
        CUVDBOptionWrapper::SetParam(object, "FilePath", Uve::U8CString(path));
        m_Parser.set_ConvertingObject(object);
    }

    void Load()
    {
        try {
            ASSERT_EQ(m_Parser.Load(kFixtureGrammar), UVDB_OK);
        } catch (const Uve::U8CString& message) {
            FAIL() << message;
        }
    }

    // The host's calling order.
    void Start(const char* mode = "")
    {
        ASSERT_NO_FATAL_FAILURE(Load());
        ASSERT_EQ(m_Parser.set_DatabaseInfo(m_Info), UVDB_OK);
        ASSERT_EQ(m_Parser.Init(mode), UVDB_OK);
    }

    int Parse(const char* text)
    {
        m_Parser.set_Query(text);
        return m_Parser.Parse(false);
    }

    std::string Tree()
    {
        Uve::U8CString tree;
        m_Parser.get_SQLTree(tree);
        return tree;
    }

    std::string LastDescription()
    {
        std::shared_ptr<IUVDBErrorInfo> error;
        m_Parser.get_LastError(error);
        return DescriptionOf(error.get());
    }

    std::map<std::string, int> LastErrorList()
    {
        std::shared_ptr<IUVDBErrorInfo> error;
        m_Parser.get_LastError(error);
        return ErrorListOf(error.get());
    }

    CLogCapture m_Log;
    std::shared_ptr<IUVDBDatabaseInfo2> m_Info = UVDBMakeObject<CUVDBDatabaseInfo>(
        MakeDbVersionInfo(UVDB_DB_COMMON, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD, UVDB_NO_VERSION_WORD));
    CUVDBSQLParser m_Parser;
};
