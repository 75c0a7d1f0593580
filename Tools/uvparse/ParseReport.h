// What there is to say of one text after it was prepared and parsed.
#pragma once

#include "Tools/uvparse/Findings.h"
#include "Tools/uvparse/Message.h"
#include "Tools/uvparse/ParserHost.h"
#include "Tools/uvparse/SourcePlaces.h"
#include "Tools/uvparse/TreeText.h"

#include <vector>

namespace uvparse {

// A message without text, of the source as a whole.
SMessage MessageAbout(const SSource& source, enMessageKind kind);

// The text of the tree, which `what` names, isn't that of the prepared text.
SMessage DifferenceOf(const SSource& source, const SPreparation& preparation,
                      const STreeDifference& difference, const char* what);

// In this order: what the preparation noted, what the parse found, why it failed, that nothing was left.
std::vector<SMessage> ReportOf(const SSource& source, const SPreparation& preparation,
                               const SParseResult& result);

// Whether any of it makes the text one that was not read as a whole.
bool HasFaults(const SParseResult& result);

} // namespace uvparse
