// The options that say how names are made, as a user gives them.
#pragma once

#include "Interfaces/IUVDBDatabaseInfo.h"
#include "Names/NormalizeName.h"

#include <memory>
#include <string>
#include <vector>

namespace uvnames {

struct SNameOption
{
    const char* name;
    const char* defaultValue; // of this tool; null: none, the library's own counts
    const char* meaning;
};

// In the order in which help shows them.
const std::vector<SNameOption>& NameOptions();

// Sets the defaults and then each "NAME=VALUE" on both databases; "source:NAME=VALUE" and "target:NAME=VALUE"
// on one of them.
// Throws: CUsageError for what isn't of this form, and for names that mean nothing here.
void SetOptions(const std::vector<std::string>& options, const std::shared_ptr<IUVDBDatabaseInfo2>& source,
                const std::shared_ptr<IUVDBDatabaseInfo2>& target);

// Reads the rules from the options of the target and gives them to the normaliser, which has its databases.
void SetRules(const std::shared_ptr<IUVDBDatabaseInfo2>& target, const std::string& targetSchema,
              CNormalizeName& normaliser);

} // namespace uvnames
