// Databases with the names that people read, and as the tables of facts know them. A program that uses this
// links the catalogue.
#pragma once

#include "Interfaces/DB_VERSION_INFO.h"

#include <string>
#include <string_view>

struct SToolDatabase
{
    DB_VERSION_INFO version;
    std::string name; // "Oracle 11.2"
};

// DB[:VERSION] or DB:SUBTYPE:VERSION. A database that is offered as a service, or that shares the facts of
// another one, stands for that one's kind and subtype, under its own name.
// Throws: CDatabaseError.
SToolDatabase ReadToolDatabase(std::string_view text);

// The name of kind and subtype, without a version.
std::string DatabaseKindName(DB_VERSION_INFO version);
