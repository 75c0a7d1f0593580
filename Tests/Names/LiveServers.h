// Database servers of this machine's packages, each started for one test, in a folder of its own and on a
// socket there; it ends with the test, whichever way that ends. SQLite is a program without a server.
#pragma once

#include "Tools/Support/ToolFiles.h"
#include "Tools/Support/ToolProcess.h"

#include <cstddef>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

struct SScriptResult
{
    std::vector<std::string> rows;               // as the client printed them, columns between tabs
    std::map<std::size_t, std::string> messages; // what the database said about a line, counted from 0
};

class CLiveDatabase
{
public:
    CLiveDatabase(const CLiveDatabase&) = delete;
    CLiveDatabase& operator=(const CLiveDatabase&) = delete;
    virtual ~CLiveDatabase();

    // Returns: the missing programs; empty if there are none.
    std::string GetMissing() const;
    // Returns: false, with a failure of the test that holds the server's log, if it doesn't come up.
    virtual bool Start() = 0;

    // Runs one script through the database's own client: a statement a line, and a refused line doesn't keep
    // the next ones from running. What isn't said about a line is a failure of the test.
    SScriptResult Run(const std::vector<std::string>& lines);

    // The lines of a script that make a place for tables, and go there.
    virtual std::vector<std::string> MakePlace(const std::string& place) const = 0;
    // Those that print the columns of a place: table and column in hexadecimal digits, in the table's order.
    virtual std::vector<std::string> ListColumns(const std::string& place) const = 0;

protected:
    // `programs` are looked up along PATH, where packages put servers, and in the newest of PostgreSQL's
    // folders.
    explicit CLiveDatabase(std::initializer_list<std::string_view> programs);

    const std::string& GetFolder() const { return m_Folder.Path(); }
    std::string GetPath(const std::string& name) const { return GetFolder() + '/' + name; }
    const std::string& GetProgram(std::string_view name) const { return m_Programs.find(name)->second; }

    // Runs a program in the folder, with nothing of this process's environment: neither sanitizers nor the
    // settings of the user's own databases reach it.
    SProgramResult RunTool(std::string_view program, const std::vector<std::string>& arguments) const;
    // The same under a user that servers accept, which root isn't.
    SProgramResult RunAsServer(std::string_view program, const std::vector<std::string>& arguments) const;

    // Leaves the server running, until `stopSignal` ends it with this object or with this process.
    bool StartServer(std::string_view program, const std::vector<std::string>& arguments, int stopSignal);
    void StopServer();

    virtual SProgramResult RunClient(const std::string& scriptPath) const = 0;
    // If `text` is a message of the client: cuts it down to the database's words.
    // Returns: the number of the line, counted from 1; 0 for other texts.
    virtual std::size_t ReadMessage(std::string& text) const = 0;

private:
    std::vector<std::string> ServerCommand(std::string_view program,
                                           const std::vector<std::string>& arguments, int endSignal) const;

    CTemporaryFolder m_Folder;
    std::map<std::string, std::string, std::less<>> m_Programs; // name and path; empty if it isn't there
    pid_t m_Server = -1;
    int m_StopSignal = 0;
};

class CLivePostgreSql : public CLiveDatabase
{
public:
    CLivePostgreSql();
    bool Start() override;
    std::vector<std::string> MakePlace(const std::string& place) const override;
    std::vector<std::string> ListColumns(const std::string& place) const override;

protected:
    SProgramResult RunClient(const std::string& scriptPath) const override;
    std::size_t ReadMessage(std::string& text) const override;
};

class CLiveMariaDb : public CLiveDatabase
{
public:
    CLiveMariaDb();
    bool Start() override;
    std::vector<std::string> MakePlace(const std::string& place) const override;
    std::vector<std::string> ListColumns(const std::string& place) const override;

protected:
    SProgramResult RunClient(const std::string& scriptPath) const override;
    std::size_t ReadMessage(std::string& text) const override;
};

// A place is a file.
class CLiveSqlite : public CLiveDatabase
{
public:
    CLiveSqlite();
    bool Start() override { return true; }
    std::vector<std::string> MakePlace(const std::string& place) const override;
    std::vector<std::string> ListColumns(const std::string& place) const override;

protected:
    SProgramResult RunClient(const std::string& scriptPath) const override;
    std::size_t ReadMessage(std::string& text) const override;
};
