#include "Tree/FragmentTree.h"
#include "Tree/LargeMemory.h"
#include "Tree/TextBlock.h"
#include "Tree/TreeCharacters.h"

#include <array>
#include <cstdint>

namespace {

constexpr SEscapes TokenEscapes()
{
    SEscapes escapes;
    escapes.Replace('&', "&amp;");
    escapes.Replace('<', "&lt;");
    escapes.Replace('>', "&gt;");
    escapes.Replace('\'', "&apos;");
    escapes.Replace('"', "&quot;");
    return escapes;
}

constexpr SEscapes SpaceEscapes()
{
    SEscapes escapes = TokenEscapes();
    escapes.Replace('\x0c', "");
    escapes.Replace('\x10', "ORVANTA_DATA_LINK_ESCAPE_REPLACER");
    return escapes;
}

constexpr SEscapes kTokenEscapes = TokenEscapes();
constexpr SEscapes kSpaceEscapes = SpaceEscapes();

// By how much a byte's replacement is longer.
constexpr std::array<std::uint8_t, 256> kGrowths = [] {
    std::array<std::uint8_t, 256> growths{};
    for (std::size_t byte = 0; byte < growths.size(); ++byte)
        if (const std::size_t bytes = kSpaceEscapes.text[byte].size(); bytes > 1)
            growths[byte] = static_cast<std::uint8_t>(bytes - 1);
    return growths;
}();

} // namespace

bool IsPlainTree(const SFragmentTree& tree)
{
    return tree.pool->IsPlain() && tree.pool->Names().AreTreeNames() && IsTreeText(tree.query);
}

void WriteTree(const SFragmentTree& tree, std::string& out)
{
    const CElementNames& names = tree.pool->Names();
    out.clear();
    ReserveLarge(out, MeasureTree(tree));
    CTextBlock block(out);
    ForEachFragment(tree, [&](FragmentRef ref) {
        const SFragment& fragment = (*tree.pool)[ref];
        const SElementName& name = names[fragment.Element()];
        switch (fragment.Kind()) {
        case enFragment::Open:
            block.Markup(name.open);
            break;
        case enFragment::Close:
            block.Markup(name.close);
            break;
        case enFragment::Empty:
            block.Markup(name.open);
            block.Markup(name.close);
            break;
        case enFragment::Space:
            block.Write(kSpaceOpen);
            block.Escaped(tree.TextOf(static_cast<const SSpaceFragment&>(fragment)), kSpaceEscapes);
            block.Write(kSpaceClose);
            break;
        case enFragment::Token:
        case enFragment::TokenText: {
            const auto& token = static_cast<const STokenFragment&>(fragment);
            block.TokenTag(name, token.line - 1, token.pos);
            block.Write('>');
            block.Escaped(tree.TextOf(token), kTokenEscapes);
            block.Markup(name.close);
            break;
        }
        }
    });
    block.Flush();
}

std::size_t MeasureTree(const SFragmentTree& tree)
{
    // every byte of the query stands in one fragment at the most
    std::size_t bytes = tree.pool->MarkupBytes() + tree.query.size();
    for (const char c : tree.query)
        bytes += kGrowths[static_cast<unsigned char>(c)];
    return bytes;
}

void AppendRawText(std::string_view text, bool isSpace, std::string& out)
{
    CTextBlock block(out);
    block.Escaped(text, isSpace ? kSpaceEscapes : kTokenEscapes);
    block.Flush();
}
