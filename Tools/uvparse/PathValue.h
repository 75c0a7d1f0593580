// What is known of a part of a predicate: a value, or the predicate as a whole.
#pragma once

#include "Tools/uvparse/PathScope.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace uvparse {

// What of an element a part of a predicate looks at.
enum class enLook
{
    Tag,  // its name and attributes, or nothing at all
    Text, // also all of the text in it
    More
};

struct SPathValue
{
    bool isNumber = false; // as a predicate: a position
    bool asksPosition = false;
    enLook look = enLook::Tag;
    bool isSelf = false; // the node that is asked; taken as a string, its text
    // True in the whole if it is true in a part, and true in one of the parts if it is true in the whole.
    bool isWitnessed = false;
    bool isLeaves = false; // a path down to texts or attributes
    bool isConstant = false;
    std::optional<std::string_view> literal; // that it is
    std::optional<SPathTarget> target;       // what there has to be for it to be true

    bool IsPositional() const { return isNumber || asksPosition; }

    static SPathValue Beyond()
    {
        SPathValue value;
        value.look = enLook::More;
        return value;
    }
    enLook LookAsString() const { return isSelf ? std::max(look, enLook::Text) : look; }
    // Of what it is taken as, there is nothing to be said but where it comes from.
    void TakeAsString()
    {
        look = LookAsString();
        isSelf = false;
        isWitnessed = false;
        isLeaves = false;
        literal.reset();
        target.reset();
    }
};

// What comes out of two of them. `sign` is the operator between.
SPathValue Both(const SPathValue& left, std::string_view sign, const SPathValue& right);
SPathValue Either(const SPathValue& left, std::string_view sign, const SPathValue& right);
SPathValue Calculated(const SPathValue& left, std::string_view sign, const SPathValue& right);
SPathValue Compared(const SPathValue& left, std::string_view sign, const SPathValue& right);
SPathValue United(const SPathValue& left, const SPathValue& right);

} // namespace uvparse
