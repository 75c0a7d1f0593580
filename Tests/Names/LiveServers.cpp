#include "Tests/Names/LiveServers.h"

#include "Tests/Support/ServerSetup.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <regex>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr auto kPatience = std::chrono::seconds(60);
constexpr auto kPause = std::chrono::milliseconds(50);
// Any user but root will do, as long as the system knows its name.
constexpr const char* kServerUser = "nobody";

// PostgreSQL's programs stand in a folder for each version: the newest one.
std::string PostgreSqlFolder()
{
    std::string newest;
    int newestVersion = 0;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator("/usr/lib/postgresql", error)) {
        const int version = std::atoi(entry.path().filename().c_str());
        if (version > newestVersion) {
            newestVersion = version;
            newest = entry.path() / "bin";
        }
    }
    return newest;
}

std::vector<std::string> CleanCommand(const std::vector<std::string>& words)
{
    std::vector<std::string> command{"-i", "PATH=" + std::string(kServerFolders), "LC_ALL=C",
                                     "PGCLIENTENCODING=UTF8"};
    command.insert(command.end(), words.begin(), words.end());
    return command;
}

std::vector<std::string> Joined(std::string first, const std::vector<std::string>& others)
{
    std::vector<std::string> words{std::move(first)};
    words.insert(words.end(), others.begin(), others.end());
    return words;
}

std::size_t ReadMessageBy(const std::regex& pattern, std::string& text)
{
    std::smatch found;
    if (!std::regex_match(text, found, pattern))
        return 0;
    const std::size_t line = std::stoul(found[1]);
    text = found[2];
    return line;
}

} // namespace

// ---- All of them ----

CLiveDatabase::CLiveDatabase(std::initializer_list<std::string_view> programs)
    : m_Folder(ServerFolderPrefix())
{
    for (const std::string_view program : programs)
        m_Programs.emplace(program, FindServerProgram(program, PostgreSqlFolder()));
    fs::create_directory(GetPath("data"));
    if (const passwd* const user = geteuid() == 0 ? getpwnam(kServerUser) : nullptr) {
        for (const std::string& folder : {GetFolder(), GetPath("data")}) {
            if (chown(folder.c_str(), user->pw_uid, user->pw_gid) != 0)
                ADD_FAILURE() << folder << ": " << std::strerror(errno);
        }
    }
}

CLiveDatabase::~CLiveDatabase()
{
    StopServer();
}

std::string CLiveDatabase::GetMissing() const
{
    std::string missing;
    for (const auto& [name, path] : m_Programs) {
        if (path.empty())
            missing += (missing.empty() ? "" : ", ") + name;
    }
    return missing;
}

SProgramResult CLiveDatabase::RunTool(std::string_view program,
                                      const std::vector<std::string>& arguments) const
{
    return RunProgram("env", CleanCommand(Joined(GetProgram(program), arguments)), GetFolder(),
                      GetPath("tool.log"));
}

std::vector<std::string> CLiveDatabase::ServerCommand(std::string_view program,
                                                      const std::vector<std::string>& arguments,
                                                      int endSignal) const
{
    std::vector<std::string> words{"setpriv", "--pdeathsig", sigabbrev_np(endSignal)};
    if (geteuid() == 0)
        words.insert(words.end(), {"--reuid", kServerUser, "--regid",
                                   std::to_string(getpwnam(kServerUser)->pw_gid), "--clear-groups"});
    words.push_back(GetProgram(program));
    words.insert(words.end(), arguments.begin(), arguments.end());
    return CleanCommand(words);
}

SProgramResult CLiveDatabase::RunAsServer(std::string_view program,
                                          const std::vector<std::string>& arguments) const
{
    return RunProgram("env", ServerCommand(program, arguments, SIGKILL), GetFolder(), GetPath("tool.log"));
}

bool CLiveDatabase::StartServer(std::string_view program, const std::vector<std::string>& arguments,
                                int stopSignal)
{
    std::vector<std::string> words = Joined("env", ServerCommand(program, arguments, stopSignal));
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const std::string log = GetPath("server.log");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    const int error = posix_spawnp(&m_Server, "env", &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        m_Server = -1;
        ADD_FAILURE() << program << ": " << std::strerror(error);
        return false;
    }
    m_StopSignal = stopSignal;

    const std::string script = GetPath("ready.sql");
    WriteWholeFile(script, "SELECT 1;\n");
    for (const auto begin = std::chrono::steady_clock::now();;) {
        const SProgramResult ready = RunClient(script);
        if (ready.exitCode == 0 && ready.output == "1\n")
            return true;
        const bool hasEnded = waitpid(m_Server, nullptr, WNOHANG) != 0;
        if (hasEnded)
            m_Server = -1;
        if (hasEnded || std::chrono::steady_clock::now() - begin > kPatience) {
            ADD_FAILURE() << program << " doesn't come up: " << ready.output << ReadWholeFile(log);
            return false;
        }
        std::this_thread::sleep_for(kPause);
    }
}

void CLiveDatabase::StopServer()
{
    if (m_Server < 0)
        return;
    kill(m_Server, m_StopSignal);
    const auto begin = std::chrono::steady_clock::now();
    while (waitpid(m_Server, nullptr, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() - begin > kPatience) {
            ADD_FAILURE() << "the server doesn't stop";
            kill(m_Server, SIGKILL);
            waitpid(m_Server, nullptr, 0);
            break;
        }
        std::this_thread::sleep_for(kPause);
    }
    m_Server = -1;
}

SScriptResult CLiveDatabase::Run(const std::vector<std::string>& lines)
{
    std::string script;
    for (const std::string& line : lines)
        script += line + '\n';
    const std::string scriptPath = GetPath("script.sql");
    WriteWholeFile(scriptPath, script);

    SScriptResult result;
    std::istringstream output(RunClient(scriptPath).output);
    for (std::string text; std::getline(output, text);) {
        const std::size_t line = ReadMessage(text);
        if (line != 0 && line <= lines.size())
            result.messages[line - 1] += text;
        else
            result.rows.push_back(text);
    }
    return result;
}

// ---- PostgreSQL ----

CLivePostgreSql::CLivePostgreSql() : CLiveDatabase{"initdb", "postgres", "psql", "setpriv"} {}

bool CLivePostgreSql::Start()
{
    const SProgramResult made =
        RunAsServer("initdb", {"-D", GetPath("data"), "-U", "tester", "-A", "trust", "-E", "UTF8",
                               "--locale=C", "--no-sync", "--no-instructions"});
    if (made.exitCode != 0) {
        ADD_FAILURE() << "initdb: " << made.output;
        return false;
    }
    // The immediate way to stop: nobody needs the data again.
    return StartServer("postgres",
                       {"-D", GetPath("data"), "-k", GetFolder(), "-c", "listen_addresses=", "-c",
                        "fsync=off", "-c", "synchronous_commit=off", "-c", "full_page_writes=off", "-c",
                        "autovacuum=off"},
                       SIGQUIT);
}

SProgramResult CLivePostgreSql::RunClient(const std::string& scriptPath) const
{
    return RunTool("psql", {"-X", "-q", "-A", "-t", "-F", "\t", "-v", "VERBOSITY=terse", "-h", GetFolder(),
                            "-U", "tester", "-d", "postgres", "-f", scriptPath});
}

std::size_t CLivePostgreSql::ReadMessage(std::string& text) const
{
    static const std::regex pattern("psql:[^:]*:([0-9]+): ((?:ERROR|WARNING|NOTICE): .*)");
    return ReadMessageBy(pattern, text);
}

std::vector<std::string> CLivePostgreSql::MakePlace(const std::string& place) const
{
    return {"CREATE SCHEMA " + place + ';', "SET search_path TO " + place + ';'};
}

std::vector<std::string> CLivePostgreSql::ListColumns(const std::string& place) const
{
    return {"SELECT encode(convert_to(table_name, 'UTF8'), 'hex'), encode(convert_to(column_name, 'UTF8'), "
            "'hex') FROM information_schema.columns WHERE table_schema = '" +
            place + "' ORDER BY table_name, ordinal_position;"};
}

// ---- MariaDB ----

CLiveMariaDb::CLiveMariaDb() : CLiveDatabase{"mariadbd", "mariadb", "setpriv"} {}

bool CLiveMariaDb::Start()
{
    return StartServer("mariadbd", MariaDbArguments(GetFolder()), SIGTERM);
}

SProgramResult CLiveMariaDb::RunClient(const std::string& scriptPath) const
{
    return RunTool("mariadb", {"--no-defaults", "--socket=" + GetPath("socket"), "--user=root", "--batch",
                               "--raw", "--skip-column-names", "--force", "--default-character-set=utf8mb4",
                               "--execute=source " + scriptPath});
}

std::size_t CLiveMariaDb::ReadMessage(std::string& text) const
{
    static const std::regex pattern("ERROR [0-9]+ \\([^)]*\\) at line ([0-9]+) in file: '[^']*': (.*)");
    return ReadMessageBy(pattern, text);
}

std::vector<std::string> CLiveMariaDb::MakePlace(const std::string& place) const
{
    return {"CREATE DATABASE " + place + ';', "USE " + place + ';'};
}

std::vector<std::string> CLiveMariaDb::ListColumns(const std::string& place) const
{
    return {
        "SELECT HEX(TABLE_NAME), HEX(COLUMN_NAME) FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = '" +
        place + "' ORDER BY TABLE_NAME, ORDINAL_POSITION;"};
}

// ---- SQLite ----

CLiveSqlite::CLiveSqlite() : CLiveDatabase{"sqlite3"} {}

SProgramResult CLiveSqlite::RunClient(const std::string& scriptPath) const
{
    return RunTool("sqlite3", {"-batch", "-init", "/dev/null", "-list", "-separator", "\t",
                               ":memory:", ".read " + scriptPath});
}

std::size_t CLiveSqlite::ReadMessage(std::string& text) const
{
    static const std::regex pattern("(?:Parse |Runtime )?[Ee]rror:? near line ([0-9]+): (.*)");
    return ReadMessageBy(pattern, text);
}

std::vector<std::string> CLiveSqlite::MakePlace(const std::string& place) const
{
    return {".open " + place + ".db", "PRAGMA synchronous = OFF;"};
}

std::vector<std::string> CLiveSqlite::ListColumns(const std::string& place) const
{
    return {".open " + place + ".db",
            "SELECT hex(t.name), hex(c.name) FROM sqlite_master t JOIN pragma_table_info(t.name) c WHERE "
            "t.type = 'table' ORDER BY t.name, c.cid;"};
}
