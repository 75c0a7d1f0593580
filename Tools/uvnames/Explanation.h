// Why a name became what it is, step by step.
#pragma once

#include "Tools/Support/ToolResults.h"
#include "Tools/uvnames/NameMapping.h"

namespace uvnames {

// The parts of a dotted name of the source, put where the type has them: the last one is the sub-object of a
// type that belongs to a table or a procedure, and the object of any other.
SName SplitName(const CNameMapping& mapping, long type, const std::string& text);

// `converted` is what CNameMapping::Convert gave for `name`.
ToolDetails Explain(CNameMapping& mapping, const SName& name, const SConvertedName& converted);

} // namespace uvnames
