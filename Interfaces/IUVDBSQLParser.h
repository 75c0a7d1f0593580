#pragma once

#include "UVEnvironment/UVEUnicodeString.h"

#include <map>
#include <memory>
#include <string>

class ILog;
class IUVDBDatabaseInfo2;
class IUVDBErrorInfo;
class IUVDBObjectInfo;

// The parser that the plug-in entry `CreateInstanceIUVDBSQLParser` creates. Whoever gets it owns it.
//
// Calling order: Load, set_DatabaseInfo, Init, then for each text set_Query, Parse, and get_SQLTree on
// success or get_LastError on failure. One object serves one thread at a time, with the database info and the
// objects that it is given; objects of several threads work side by side.
//
// Operations return UVDB_OK unless they say otherwise.
class IUVDBSQLParser
{
public:
    IUVDBSQLParser() = default;
    IUVDBSQLParser(const IUVDBSQLParser&) = delete;
    IUVDBSQLParser& operator=(const IUVDBSQLParser&) = delete;
    virtual ~IUVDBSQLParser() = default;

    // Reads the tables of one grammar, by the name of its folder. A second call replaces the first one's.
    // Throws: Uve::U8CString with the message, if a table file is missing or bad.
    virtual int Load(const char* parserName) = 0;

    // Connects what Load made and selects the mode, without regard to case:
    //     "-cl"          a coloring map
    //     "-cb"          comments
    //     anything else  a tree
    // Comes after set_DatabaseInfo, whose options it reads.
    // Returns: UVDB_ERROR if connecting failed.
    virtual int Init(const char* mode) = 0;

    // Shares the database info and reads its options. May be called again; the options are read anew.
    // Returns: 1 for an empty pointer; UVDB_INVALID_ARGUMENT if the grammar knows no such kind of database,
    //          and the options that follow it stay unread.
    virtual int set_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2> info) = 0;
    virtual int get_DatabaseInfo(std::shared_ptr<IUVDBDatabaseInfo2>& out) = 0;

    // Shares the log of the whole process. An empty pointer leaves the earlier one in its place.
    virtual int set_Log(std::shared_ptr<ILog> log) = 0;

    // Copies the source text, UTF-8, and empties the result. A null text keeps the earlier one.
    virtual int set_Query(const char* text) = 0;

    // Parses the text and makes the result.
    // Returns: UVDB_NO_DATA if nothing is left of the text to be parsed; other codes if it failed, and
    //          get_LastError then has the message: "out of memory" where that is what was short, which is no
    //          fault of the text.
    virtual int Parse(bool showErrors) = 0;

    // Parses the text without preparing it and gives the tree before it is flattened.
    virtual std::string FastParse() = 0;

    // Copies the result: the tree, or the coloring map wrapped in an element "Coloring".
    virtual int get_SQLTree(Uve::U8CString& out) = 0;

    // Copies the result as it stands.
    virtual int get_ColoringMap(Uve::U8CString& out) = 0;

    // Shares the object whose source is being parsed; its options tell where the source came from.
    virtual int set_ConvertingObject(std::shared_ptr<IUVDBObjectInfo> object) = 0;
    virtual int get_ConvertingObject(std::shared_ptr<IUVDBObjectInfo>& out) = 0;

    // Shares the macro names that the preprocessor refused to define, with their texts. The map grows from
    // parse to parse. Empty before Load.
    virtual std::shared_ptr<std::map<std::string, std::string>> GetUndefinesTokens() = 0;

    // Shares the error of the last parse, empty before the first.
    virtual int get_LastError(std::shared_ptr<IUVDBErrorInfo>& out) = 0;

    virtual int set_ParserDevelopmentMode(bool isOn) = 0;

    // A copy of the result.
    virtual std::string GetParsedXml() = 0;

    // Flattens the result in place.
    // Returns: a negative code if the result is no document.
    virtual int ExecuteTree2Serial() = 0;

    // Flattens `text` in place, with the options of `info`.
    virtual int Tree2Serial(std::shared_ptr<IUVDBDatabaseInfo2> info, Uve::U8CString& text) = 0;

    // Parses once more with the other rule for quoted identifiers, if the options allow it.
    virtual void TryParseWithOtherOpts(bool showErrors) = 0;

    // Whether the last parse met an unexpected token.
    virtual bool IsParseHasErrors() = 0;

    // Makes the state of the parser the last error.
    virtual void SetLastError() = 0;

    // Append the command line of the out-of-process tools, each option with a blank before it. `querySize` is
    // in bytes.
    virtual void CreateUVParserCmdParameterList(std::string& commandLine, bool showErrors,
                                                unsigned long querySize) = 0;
    virtual void CreateUVTranslatorCmdParameterList(std::string& commandLine, int querySize) = 0;
};
