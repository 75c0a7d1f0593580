// Why a type was mapped as it was, in sentences.
#pragma once

#include "Tools/uvtypes/Databases.h"
#include "Tools/uvtypes/TypeMap.h"
#include "Tools/uvtypes/TypeResults.h"

namespace uvtypes {

Details Explain(const SDatabase& from, const SDatabase& to, const SMappedType& mapped,
                const STypeTrail& trail);

// "NUMBER (14)", for the internal type; "unknown" for one without a row.
std::string InternalTypeText(long uvdbType);

} // namespace uvtypes
