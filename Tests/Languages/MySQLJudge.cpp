#include "Tests/Languages/MySQLJudge.h"

#include "Tests/Languages/MariaDbServer.h"

#include <algorithm>
#include <cctype>
#include <errmsg.h>
#include <iterator>
#include <memory>
#include <mysql.h>
#include <mysqld_error.h>
#include <stdexcept>
#include <string_view>

namespace {

constexpr unsigned kSecondsToAnswer = 120;

// Names that the server knows none by while it reads: another one tells whether the rest is right.
struct SUnknownName
{
    unsigned code;
    std::string_view known;
};
constexpr SUnknownName kUnknownNames[] = {
    {ER_UNKNOWN_CHARACTER_SET, "utf8mb4"},
    {ER_UNKNOWN_COLLATION, "utf8mb4_bin"},
    {ER_UNKNOWN_SYSTEM_VARIABLE, "autocommit"},
    {ER_UNKNOWN_EXPLAIN_FORMAT, "json"},
};
constexpr int kMostReplaced = 20;

bool IsSyntaxError(unsigned code)
{
    return code == ER_PARSE_ERROR || code == ER_SYNTAX_ERROR || code == ER_UNKNOWN_DATA_TYPE;
}

bool IsNameByte(char byte)
{
    return std::isalnum(static_cast<unsigned char>(byte)) != 0 || byte == '_' || byte == '$' ||
           (byte & 0x80) != 0;
}

char Lower(char byte)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
}

// Returns: false if it isn't there.
bool ReplaceWord(std::string& text, std::string_view word, std::string_view by)
{
    std::string replaced;
    std::size_t done = 0;
    for (std::size_t at = 0; !word.empty() && at + word.size() <= text.size();) {
        const std::size_t end = at + word.size();
        const bool isIt = std::equal(word.begin(), word.end(), text.begin() + static_cast<std::ptrdiff_t>(at),
                                     [](char a, char b) { return Lower(a) == Lower(b); }) &&
                          (at == 0 || !IsNameByte(text[at - 1])) &&
                          (end == text.size() || !IsNameByte(text[end]));
        if (isIt) {
            replaced.append(text, done, at - done).append(by);
            done = end;
        }
        at = isIt ? end : at + 1;
    }
    if (done == 0)
        return false;
    text = replaced.append(text, done);
    return true;
}

// Of a name in quotes, "Unknown collation: 'name'".
std::string QuotedName(const std::string& message)
{
    const std::size_t begin = message.find('\'');
    const std::size_t end = message.rfind('\'');
    return begin < end ? message.substr(begin + 1, end - begin - 1) : "";
}

// "... to use near 'TEXT' at line N", where TEXT goes on to the statement's end, or is cut and ends in dots.
// Returns: what the message is about; npos if it doesn't tell.
std::size_t PlaceOf(const std::string& message, std::string_view statement)
{
    constexpr std::string_view kNear = " near '";
    constexpr std::string_view kLine = "' at line ";
    const std::size_t begin = message.find(kNear);
    const std::size_t end = message.rfind(kLine);
    if (begin == std::string::npos || end == std::string::npos || begin + kNear.size() > end)
        return std::string::npos;
    std::string_view text =
        std::string_view(message).substr(begin + kNear.size(), end - begin - kNear.size());
    if (statement.ends_with(text))
        return statement.size() - text.size();
    constexpr std::string_view kCut = "...";
    if (text.ends_with(kCut))
        text.remove_suffix(kCut.size());
    // The line is that of the word's end: the place nearest to it.
    std::size_t line = 0;
    for (std::size_t left = std::stoul(message.substr(end + kLine.size())); left > 1; --left)
        line = std::min(statement.find('\n', line), statement.size() - 1) + 1;
    const std::size_t after = statement.find(text, line);
    return after != std::string::npos ? after : statement.rfind(text, line);
}

// Without what is the same in all of them.
std::string ShortMessage(const std::string& message)
{
    const std::size_t near = message.find("near '");
    return near == std::string::npos ? message : "syntax error " + message.substr(near);
}

} // namespace

const char* NameOf(enMySqlVerdict verdict)
{
    constexpr const char* kNames[] = {"taken", "taken as text", "refused", "stopped"};
    return kNames[static_cast<std::size_t>(verdict)];
}

CMySqlJudge::~CMySqlJudge()
{
    for (const auto& [mode, session] : m_Sessions)
        mysql_close(session);
}

SMySqlVerdict CMySqlJudge::Judge(const std::string& statement, const std::string& mode)
{
    std::string asked = statement;
    SAnswer answer = Prepare(asked, mode);
    for (int replaced = 0; replaced < kMostReplaced; ++replaced) {
        const auto* const unknown = std::ranges::find(kUnknownNames, answer.code, &SUnknownName::code);
        if (unknown == std::end(kUnknownNames) ||
            !ReplaceWord(asked, QuotedName(answer.message), unknown->known))
            break;
        answer = Prepare(asked, mode);
    }

    SMySqlVerdict verdict{enMySqlVerdict::Taken, answer.code, answer.message};
    if (IsSyntaxError(answer.code)) {
        verdict.kind = enMySqlVerdict::Refused;
        verdict.offset = PlaceOf(answer.message, statement);
        verdict.message = ShortMessage(answer.message);
    } else if (answer.code != 0) {
        // What is read to its end is refused at the bracket after that; what isn't, as before.
        const SAnswer beyond = Prepare(asked + "\n)", mode);
        verdict.kind = IsSyntaxError(beyond.code) ? enMySqlVerdict::TakenAsText : enMySqlVerdict::Stopped;
    }
    return verdict;
}

st_mysql* CMySqlJudge::Session(const std::string& mode)
{
    st_mysql*& session = m_Sessions[mode];
    if (session != nullptr)
        return session;
    session = mysql_init(nullptr);
    mysql_options(session, MYSQL_OPT_READ_TIMEOUT, &kSecondsToAnswer);
    mysql_options(session, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    const std::string setting = "SET sql_mode = CONCAT(@@sql_mode, '," + mode + "')";
    if (mysql_real_connect(session, nullptr, "root", "", kMariaDbDatabase, 0, m_Socket.c_str(), 0) ==
            nullptr ||
        (!mode.empty() && mysql_query(session, setting.c_str()) != 0))
        throw std::runtime_error(std::string("MariaDB: ") + mysql_error(session));
    return session;
}

CMySqlJudge::SAnswer CMySqlJudge::Prepare(const std::string& statement, const std::string& mode)
{
    const std::unique_ptr<MYSQL_STMT, decltype(&mysql_stmt_close)> prepared(mysql_stmt_init(Session(mode)),
                                                                            mysql_stmt_close);
    if (mysql_stmt_prepare(prepared.get(), statement.data(), statement.size()) == 0)
        return {};
    SAnswer answer{mysql_stmt_errno(prepared.get()), mysql_stmt_error(prepared.get())};
    if (answer.code >= CR_MIN_ERROR && answer.code <= CR_MAX_ERROR)
        throw std::runtime_error("MariaDB: " + answer.message + ", asked to prepare: " + statement);
    return answer;
}
