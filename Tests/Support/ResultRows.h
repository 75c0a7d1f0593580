// Results of the tools in their TSV form, as rows of cells.
#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

inline Texts Split(const std::string& text, char separator)
{
    Texts parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

// The rows after the head.
inline std::vector<Texts> Rows(const std::string& tsv)
{
    std::vector<Texts> rows;
    for (const std::string& line : Split(tsv, '\n'))
        rows.push_back(Split(line, '\t'));
    if (!rows.empty())
        rows.erase(rows.begin());
    return rows;
}

// What a cell holds of a value. The steps of an explanation are objects.
inline std::string CellText(const nlohmann::json& value)
{
    if (value.is_null())
        return {};
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_object())
        return value["about"].get<std::string>() + ": " + value["text"].get<std::string>();
    if (!value.is_array())
        return value.dump();
    std::string text;
    for (const nlohmann::json& part : value)
        text += (text.empty() ? "" : "; ") + CellText(part);
    return text;
}

// An object for each row, with a value for each column.
inline void ExpectSameInJson(const std::string& tsv, const std::string& json)
{
    const Texts head = Split(tsv.substr(0, tsv.find('\n')), '\t');
    const std::vector<Texts> rows = Rows(tsv);
    const nlohmann::json objects = nlohmann::json::parse(json);
    ASSERT_EQ(objects.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(objects[i].size(), head.size());
        for (std::size_t column = 0; column < head.size(); ++column)
            EXPECT_EQ(CellText(objects[i].value(head[column], nlohmann::json())),
                      column < rows[i].size() ? rows[i][column] : "")
                << head[column];
    }
}
