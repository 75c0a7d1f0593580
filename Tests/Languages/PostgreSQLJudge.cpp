#include "Tests/Languages/PostgreSQLJudge.h"

#include <pg_query.h>

#include <cstdint>
#include <stdexcept>
#include <string_view>

// The judge keeps a copy of its own messages for every body that it reads.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:pg_query_raw_parse\n";
}

namespace {

// A protobuf message: fields of a varint key (number * 8 + kind), then a varint (kind 0) or counted bytes
// (kind 2).
class CMessage
{
public:
    explicit CMessage(std::string_view bytes) : m_Rest(bytes) {}

    // The next field.
    // Returns: false at the end.
    bool Next()
    {
        if (m_Rest.empty())
            return false;
        const std::uint64_t key = Varint();
        m_nField = static_cast<int>(key >> 3);
        m_nValue = Varint();
        m_Bytes = {};
        if ((key & 7) == 2) {
            m_Bytes = m_Rest.substr(0, m_nValue);
            m_Rest.remove_prefix(m_Bytes.size());
        } else if ((key & 7) != 0) {
            throw std::runtime_error("a protobuf field of a kind that scan results don't have");
        }
        return true;
    }

    int m_nField = 0;
    std::uint64_t m_nValue = 0;
    std::string_view m_Bytes;

private:
    std::uint64_t Varint()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0; !m_Rest.empty(); shift += 7) {
            const auto byte = static_cast<unsigned char>(m_Rest.front());
            m_Rest.remove_prefix(1);
            value |= std::uint64_t{byte & 0x7Fu} << shift;
            if (byte < 0x80)
                break;
        }
        return value;
    }

    std::string_view m_Rest;
};

// Takes the places out of a tree: "location":12, "stmt_location" and "stmt_len" alike.
std::string WithoutPlaces(std::string_view json)
{
    std::string plain;
    while (!json.empty()) {
        constexpr std::string_view kKeys[] = {"\"location\":", "\"stmt_location\":", "\"stmt_len\":"};
        std::size_t skipped = 0;
        for (const std::string_view key : kKeys)
            if (json.starts_with(key))
                skipped = json.find_first_of(",}", key.size());
        if (skipped != 0) {
            json.remove_prefix(skipped);
            continue;
        }
        plain += json.front();
        json.remove_prefix(1);
    }
    return plain;
}

} // namespace

SVerdict Judge(const std::string& sql)
{
    const PgQueryParseResult result = pg_query_parse(sql.c_str());
    SVerdict verdict;
    if (result.error != nullptr) {
        verdict.error = result.error->message;
        // It counts characters, from 1.
        for (int left = result.error->cursorpos - 1; left > 0 && verdict.offset < sql.size(); --left)
            while (++verdict.offset < sql.size() && (sql[verdict.offset] & 0xC0) == 0x80) {
            }
    }
    pg_query_free_parse_result(result);
    return verdict;
}

bool JudgeAccepts(const std::string& sql)
{
    return Judge(sql).error.empty();
}

std::optional<std::string> JudgeTree(const std::string& sql)
{
    const PgQueryParseResult result = pg_query_parse(sql.c_str());
    std::optional<std::string> tree;
    if (result.error == nullptr)
        tree = WithoutPlaces(result.parse_tree);
    pg_query_free_parse_result(result);
    return tree;
}

SBlockVerdict JudgeBlock(const std::string& statement)
{
    const PgQueryPlpgsqlParseResult result = pg_query_parse_plpgsql(statement.c_str());
    SBlockVerdict verdict;
    if (result.error == nullptr) {
        verdict.isBlock =
            std::string_view(result.plpgsql_funcs).find("\"action\":") != std::string_view::npos;
    } else {
        verdict.error = result.error->message;
        verdict.isBlock = result.error->context != nullptr;
    }
    pg_query_free_plpgsql_parse_result(result);
    return verdict;
}

std::optional<std::vector<SByteRange>> JudgeScan(const std::string& sql)
{
    constexpr int kTokens = 2, kStart = 1, kEnd = 2, kKind = 4;
    constexpr std::uint64_t kLineComment = 275, kBlockComment = 276;
    const PgQueryScanResult result = pg_query_scan(sql.c_str());
    std::optional<std::vector<SByteRange>> tokens;
    if (result.error == nullptr) {
        tokens.emplace();
        for (CMessage scan({result.pbuf.data, result.pbuf.len}); scan.Next();) {
            if (scan.m_nField != kTokens)
                continue;
            SByteRange range;
            std::uint64_t kind = 0;
            for (CMessage token(scan.m_Bytes); token.Next();) {
                if (token.m_nField == kStart)
                    range.from = token.m_nValue;
                else if (token.m_nField == kEnd)
                    range.end = token.m_nValue;
                else if (token.m_nField == kKind)
                    kind = token.m_nValue;
            }
            if (kind != kLineComment && kind != kBlockComment)
                tokens->push_back(range);
        }
    }
    pg_query_free_scan_result(result);
    return tokens;
}
