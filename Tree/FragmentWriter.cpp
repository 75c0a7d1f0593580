#include "Tree/FragmentPool.h"

#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>

namespace {

// What a byte of source becomes; length 1 stands for itself.
struct SEscape
{
    std::array<std::string_view, 256> text{};

    constexpr std::size_t ExtraBytes(unsigned char byte) const
    {
        return text[byte].data() == nullptr || text[byte].empty() ? 0 : text[byte].size() - 1;
    }
};

constexpr SEscape TokenEscapes()
{
    SEscape escapes;
    escapes.text['&'] = "&amp;";
    escapes.text['<'] = "&lt;";
    escapes.text['>'] = "&gt;";
    escapes.text['\''] = "&apos;";
    escapes.text['"'] = "&quot;";
    return escapes;
}

constexpr SEscape SpaceEscapes()
{
    SEscape escapes = TokenEscapes();
    escapes.text['\x0c'] = "";
    escapes.text['\x10'] = "ORVANTA_DATA_LINK_ESCAPE_REPLACER";
    return escapes;
}

constexpr SEscape kTokenEscapes = TokenEscapes();
constexpr SEscape kSpaceEscapes = SpaceEscapes();

// One flag a byte: the plain bytes are copied without a look at the texts above.
constexpr std::array<bool, 256> SpecialBytes(const SEscape& escapes)
{
    std::array<bool, 256> special{};
    for (std::size_t byte = 0; byte < special.size(); ++byte)
        special[byte] = escapes.text[byte].data() != nullptr;
    return special;
}

constexpr std::array<bool, 256> kTokenSpecial = SpecialBytes(kTokenEscapes);
constexpr std::array<bool, 256> kSpaceSpecial = SpecialBytes(kSpaceEscapes);

// Collects in a block that stays in the cache and hands full blocks to the string: appending the many small
// pieces of a tree to the string one by one costs more than the pieces themselves.
class CBlockWriter
{
public:
    explicit CBlockWriter(std::string& out) : m_out(out) {}

    void Markup(const CMarkup& markup)
    {
        if (markup.PaddedSize() > kReserve) {
            Flush();
            m_out.append(markup.Padded(), markup.size());
            return;
        }
        Need(kReserve);
        for (std::size_t at = 0; at < markup.PaddedSize(); at += CMarkup::kBlock)
            std::memcpy(m_at + at, markup.Padded() + at, CMarkup::kBlock);
        m_at += markup.size();
    }

    // The tag of a token up to its text.
    void TokenTag(const CMarkup& open, std::uint32_t line, std::int32_t pos)
    {
        Markup(open);
        Need(kReserve);
        Number(line);
        Constant(kTokenPos);
        Number(pos);
        Constant(kTokenTextBegin);
    }

    void SpaceTag()
    {
        Need(kReserve);
        Constant(kSpaceOpen);
    }

    void SpaceEnd()
    {
        Need(kReserve);
        Constant(kSpaceClose);
    }

    void Escaped(std::string_view text, const SEscape& escapes, const std::array<bool, 256>& special)
    {
        while (!text.empty()) {
            const std::string_view piece = text.substr(0, kPiece);
            text.remove_prefix(piece.size());
            Need(piece.size());
            for (const char c : piece) {
                if (!special[static_cast<unsigned char>(c)]) [[likely]] {
                    *m_at++ = c;
                    continue;
                }
                const std::string_view entity = escapes.text[static_cast<unsigned char>(c)];
                std::memcpy(m_at, entity.data(), entity.size());
                m_at += entity.size();
                // an entity takes more room than its byte was counted for
                Need(kPiece);
            }
        }
    }

    void Flush()
    {
        m_out.append(m_block.data(), static_cast<std::size_t>(m_at - m_block.data()));
        m_at = m_block.data();
    }

private:
    static constexpr std::size_t kBlock = 16384;
    static constexpr std::size_t kPiece = 4096;
    static constexpr std::size_t kReserve = 256; // room for one tag, padding included

    void Need(std::size_t bytes)
    {
        if (static_cast<std::size_t>(m_block.data() + kBlock - m_at) < bytes)
            Flush();
    }

    void Constant(std::string_view text)
    {
        std::memcpy(m_at, text.data(), text.size());
        m_at += text.size();
    }

    template <class T>
    void Number(T number)
    {
        m_at = std::to_chars(m_at, m_at + kMostDigits, number).ptr;
    }

    std::string& m_out;
    std::array<char, kBlock + 64> m_block; // room for one entity behind the last piece
    char* m_at = m_block.data();
};

// Walks a list, and doesn't walk for ever.
template <class Visit>
void ForEachFragment(const CFragmentPool& pool, FragmentRef first, const Visit& visit)
{
    std::size_t left = pool.Count();
    for (FragmentRef at = first; at != kNoFragment; at = pool[at].next) {
        if (left-- == 0)
            throw std::runtime_error("the tree's fragments run in a circle");
        visit(pool[at]);
    }
}

} // namespace

void WriteFragments(const CFragmentPool& pool, FragmentRef first, std::string_view query, std::string& out)
{
    const CElementNames& names = pool.Names();
    CBlockWriter writer(out);
    const auto writeToken = [&](const STokenFragment& token, std::string_view text) {
        const SElementName& name = names[token.Element()];
        writer.TokenTag(name.tokenOpen, token.line - 1, token.pos);
        writer.Escaped(text, kTokenEscapes, kTokenSpecial);
        writer.Markup(name.close);
    };
    ForEachFragment(pool, first, [&](const SFragment& fragment) {
        switch (fragment.Kind()) {
        case enFragment::Open:
            writer.Markup(names[fragment.Element()].open);
            break;
        case enFragment::Close:
            writer.Markup(names[fragment.Element()].close);
            break;
        case enFragment::Empty:
            writer.Markup(names[fragment.Element()].open);
            writer.Markup(names[fragment.Element()].close);
            break;
        case enFragment::Space: {
            const auto& space = static_cast<const SSpaceFragment&>(fragment);
            writer.SpaceTag();
            writer.Escaped(query.substr(space.start, space.length), kSpaceEscapes, kSpaceSpecial);
            writer.SpaceEnd();
            break;
        }
        case enFragment::Token: {
            const auto& token = static_cast<const STokenFragment&>(fragment);
            writeToken(token, query.substr(token.start, token.length));
            break;
        }
        case enFragment::TokenText: {
            const auto& token = static_cast<const STokenFragment&>(fragment);
            writeToken(token, pool.Text(token.start));
            break;
        }
        }
    });
    writer.Flush();
}

std::size_t MeasureFragments(const CFragmentPool& pool, std::string_view query)
{
    std::size_t bytes =
        pool.MarkupBytes() + query.size(); // every byte of it stands in one fragment at the most
    for (const char c : query)
        bytes += kSpaceEscapes.ExtraBytes(static_cast<unsigned char>(c));
    return bytes;
}

void WriteSpaceElement(std::string_view text, std::string& out)
{
    CBlockWriter writer(out);
    writer.SpaceTag();
    writer.Escaped(text, kSpaceEscapes, kSpaceSpecial);
    writer.SpaceEnd();
    writer.Flush();
}
