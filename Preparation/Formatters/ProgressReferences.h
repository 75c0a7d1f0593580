// The references to include files in Progress 4GL, their arguments, and the placeholders that these go into.
// Found by hand: a pattern over a whole source, once a round, would take most of the time.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

// "{file.i arguments}". The name goes up to the last ".i" of the first word, in either case.
struct SProgressReference
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string_view name;
    std::string_view arguments;
};

// The first reference at or after byte `from`. It borrows `text`.
std::optional<SProgressReference> FindProgressReference(std::string_view text, std::size_t from);

// True if `reference`, a whole one, begins with this name; case matters. It may go on: "a.i" is named by
// "{a.i.i}" too.
bool IsProgressReferenceTo(std::string_view reference, std::string_view name);

struct SProgressArgument
{
    std::string_view name; // with its "&"; empty if the argument counts by its place
    std::string_view value;
};

// Walks over the arguments of a reference, which it borrows.
class CProgressArguments
{
public:
    explicit CProgressArguments(std::string_view text) : m_Rest(text) {}

    // Returns: nothing after the last argument, and from a name without "=" or a quote without its partner
    //          on.
    std::optional<SProgressArgument> Next();

private:
    std::string_view m_Rest;
};

// Where "{name}" stands first, with blanks inside the braces or without; npos if nowhere.
std::size_t FindNamedPlaceholder(std::string_view text, std::string_view name);

// The same for "{&...}" with any name.
std::size_t FindAnyPlaceholder(std::string_view text);

// Where the first and the last brace of either kind stand; npos if there is none.
std::size_t FirstBrace(std::string_view text);
std::size_t LastBrace(std::string_view text);
