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

bool JudgeAccepts(const std::string& sql);
// The judge's own tree without the places of its parts; nothing for a text that it refuses.
std::optional<std::string> JudgeTree(const std::string& sql);
// The tokens, comments left out; nothing for a text that it can't scan.
std::optional<std::vector<SByteRange>> JudgeScan(const std::string& sql);
