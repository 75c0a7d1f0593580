// A second opinion on the language MySQL: a MariaDB server, which is asked to prepare statements. It reads them to their
// end then, bodies of routines too, and runs nothing. The few that it can't prepare it refuses after it has read them.
// What the client reads it can't be asked about.
#pragma once

#include <cstddef>
#include <map>
#include <string>

struct st_mysql;

enum class enMySqlVerdict
{
    Taken,
    TakenAsText, // its syntax is right; it is refused for something else, a missing table for instance
    Refused,     // for its syntax
    Stopped      // refused for something else before it was read to its end, so nothing is known of the rest
};

const char* NameOf(enMySqlVerdict verdict);

// What the judge says of a statement.
struct SMySqlVerdict
{
    enMySqlVerdict kind = enMySqlVerdict::Taken;
    unsigned code = 0;   // of the server's error; 0: there is none
    std::string message; // the server's, in short where it refuses the syntax
    // Bytes: what a syntax error is about, the text's size at its end; npos if that isn't known.
    std::size_t offset = std::string::npos;

    bool IsTaken() const { return kind == enMySqlVerdict::Taken || kind == enMySqlVerdict::TakenAsText; }
};

// Sessions of one process with the server.
class CMySqlJudge
{
public:
    // `socket`: of the server, kMariaDbDatabase is there.
    explicit CMySqlJudge(std::string socket) : m_Socket(std::move(socket)) {}
    CMySqlJudge(const CMySqlJudge&) = delete;
    CMySqlJudge& operator=(const CMySqlJudge&) = delete;
    ~CMySqlJudge();

    // `statement` is one, without a delimiter.
    // `mode`:  added to the server's own sql_mode, which has neither of ANSI_QUOTES, IGNORE_SPACE, NO_BACKSLASH_ESCAPES and
    //          PIPES_AS_CONCAT.
    // Throws: std::runtime_error if the server doesn't answer.
    SMySqlVerdict Judge(const std::string& statement, const std::string& mode = {});

private:
    struct SAnswer
    {
        unsigned code = 0;
        std::string message;
    };

    st_mysql* Session(const std::string& mode);
    SAnswer Prepare(const std::string& statement, const std::string& mode);

    std::string m_Socket;
    std::map<std::string, st_mysql*> m_Sessions; // by their modes
};
