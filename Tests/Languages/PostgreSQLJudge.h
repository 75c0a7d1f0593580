// A second opinion on PostgreSQL's language: libpg_query, which has the server's own scanner and grammar.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct SByteRange
{
    std::size_t from = 0;
    std::size_t end = 0; // after the last byte

    bool operator==(const SByteRange&) const = default;
};

// What the judge says of a text.
struct SVerdict
{
    std::string error;      // empty: the text is taken
    std::size_t offset = 0; // bytes: what the error is about, the text's size at its end
};

SVerdict Judge(const std::string& sql);
bool JudgeAccepts(const std::string& sql);
// The judge's own tree without the places of its parts; nothing for a text that it refuses.
std::optional<std::string> JudgeTree(const std::string& sql);
// What the judge says of the block of PL/pgSQL in a CREATE FUNCTION, CREATE PROCEDURE or DO.
struct SBlockVerdict
{
    bool isBlock = false; // the statement is one of these, in this language
    std::string error;    // empty: the block is taken
};

SBlockVerdict JudgeBlock(const std::string& statement);
// The tokens, comments left out; nothing for a text that it can't scan.
std::optional<std::vector<SByteRange>> JudgeScan(const std::string& sql);
