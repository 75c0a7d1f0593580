// Any text, or any tree of the generator's, through all ways of flattening: what the native flattener takes,
// the stylesheet makes the same bytes of, and so it is in a second run. Plain trees must be taken. Fragments
// in the shape of the tree are flattened into the same as their text.
//
// An input that begins with a NUL is a row of choices for the generator, any other is the text itself.
#include "Tests/Support/FragmentsOfText.h"
#include "Tests/Support/TreeGenerator.h"
#include "Tests/Tree/FlattenRoads.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr std::size_t kMostBytes = 1 << 14;

[[noreturn]] void Fail(const char* what, const std::string& tree,
                       const std::optional<std::string>& byStylesheet,
                       const std::optional<std::string>& natively)
{
    std::fprintf(stderr, "%s\ntree: %s\nstylesheet: %s\nnatively: %s\n", what, tree.c_str(),
                 byStylesheet.value_or("nothing").c_str(), natively.value_or("nothing").c_str());
    std::abort();
}

// Returns: the flattened tree, if the native flattener took it.
std::optional<std::string> Check(const std::string& tree, bool isPlain)
{
    std::optional<std::string> natively;
    try {
        natively = FlattenNatively(tree);
    } catch (const std::length_error&) {
        return std::nullopt; // the rules multiply the tree, and nothing would stop the stylesheet
    }
    if (!natively && !isPlain)
        return std::nullopt;
    const std::optional<std::string> byStylesheet = FlattenByStylesheet(tree);
    if (byStylesheet != natively)
        Fail("the ways differ", tree, byStylesheet, natively);
    return natively;
}

void CheckFragments(const std::string& tree)
{
    const CFragmentsOfText fragments(tree);
    if (!fragments.Tree())
        return;
    std::string raw;
    WriteTree(fragments.Tree(), raw);
    std::optional<std::string> natively, byFragments;
    try {
        natively = FlattenNatively(raw);
        byFragments = FlattenFragments(fragments.Tree());
    } catch (const std::length_error&) {
        return;
    }
    if (byFragments != natively)
        Fail("fragments and their text differ", raw, natively, byFragments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0 || size > kMostBytes)
        return 0;
    SGeneratedTree tree{std::string(reinterpret_cast<const char*>(data), size), false};
    if (data[0] == 0)
        tree = CTreeGenerator(CChoices(std::span(data, size).subspan(1))).Tree();
    const std::optional<std::string> flat = Check(tree.text, tree.isPlain);
    CheckFragments(tree.text);
    // an empty space as the root leaves nothing for a second run
    if (flat && *flat != kFlatHeader)
        Check(*flat, true);
    return 0;
}
