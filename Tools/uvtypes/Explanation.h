// Why a type was mapped as it was, in sentences.
#pragma once

#include "Tools/Support/ToolDatabaseNames.h"
#include "Tools/Support/ToolResults.h"
#include "Tools/uvtypes/TypeMap.h"

namespace uvtypes {

ToolDetails Explain(const SToolDatabase& from, const SToolDatabase& to, const SMappedType& mapped,
                    const STypeTrail& trail);

// "NUMBER (14)", for the internal type; "unknown" for one without a row.
std::string InternalTypeText(long uvdbType);

} // namespace uvtypes
