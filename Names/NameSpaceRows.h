// Which types of objects stand below which, and which share a name space, by kind of database.
#pragma once

#include "Catalogue/Identifiers/UVDBObjectTypeSet.h"
#include "Catalogue/UVDBKindSet.h"

#include <cstdint>

struct SNameSpaceRow
{
    CKindSet kinds;
    CObjectTypeSet schemaChildren;
    CObjectTypeSet tableChildren;
    bool hasColumnsOfTypes;
    CObjectTypeSet groups[16]; // in the order in which they are searched; empty ones fill up
};

// The row of a kind; kinds that no row names share one.
const SNameSpaceRow& NameSpacesOfKind(std::uint64_t kind);
