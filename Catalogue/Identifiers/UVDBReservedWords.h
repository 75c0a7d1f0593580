// Which words a database or language doesn't take as plain names.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"

#include <span>
#include <string_view>

// The words of the database, by kind and subtype: upper case, ascending bytewise, without repeats.
// Returns: a list that lives as long as the process; an empty one for kinds without a list.
std::span<const std::string_view> GetReservedWords(DB_VERSION_INFO version);

// Whether `word` is one of them, without regard to the case of ASCII letters. Enclosing marks are characters
// like any other: a quoted word isn't reserved.
bool UVDBIsReservedWord(std::string_view word, DB_VERSION_INFO version);
