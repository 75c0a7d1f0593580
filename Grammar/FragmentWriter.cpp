#include "Grammar/FragmentPool.h"

#include <array>
#include <charconv>
#include <cstring>
#include <stdexcept>

namespace {

constexpr std::string_view kSpaceOpen = "<T__SPACE type=\"TOKEN\">";
constexpr std::string_view kSpaceClose = "</T__SPACE>";
constexpr std::string_view kPos = "\" pos=\"";
constexpr std::string_view kEndOfTag = "\">";
constexpr std::size_t kMostDigits = 11; // of a 32-bit number, sign included

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

    void Text(std::string_view text)
    {
        Need(text.size());
        if (text.size() > kBlock) {
            m_out.append(text);
            return;
        }
        std::memcpy(m_at, text.data(), text.size());
        m_at += text.size();
    }

    template <class T>
    void Number(T number)
    {
        Need(kMostDigits);
        m_at = std::to_chars(m_at, m_block.data() + m_block.size(), number).ptr;
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

    void Need(std::size_t bytes)
    {
        if (static_cast<std::size_t>(m_block.data() + kBlock - m_at) < bytes)
            Flush();
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

void WriteFragments(const CFragmentPool& pool, const CElementNames& names, FragmentRef first,
                    std::string_view query, std::string& out)
{
    CBlockWriter writer(out);
    const auto writeToken = [&](const STokenFragment& token, std::string_view text) {
        const SElementName& name = names[token.Element()];
        writer.Text(name.tokenOpen);
        writer.Number(token.line - 1);
        writer.Text(kPos);
        writer.Number(token.pos);
        writer.Text(kEndOfTag);
        writer.Escaped(text, kTokenEscapes, kTokenSpecial);
        writer.Text(name.close);
    };
    ForEachFragment(pool, first, [&](const SFragment& fragment) {
        switch (fragment.Kind()) {
        case enFragment::Open:
            writer.Text(names[fragment.Element()].open);
            break;
        case enFragment::Close:
            writer.Text(names[fragment.Element()].close);
            break;
        case enFragment::Empty:
            writer.Text(names[fragment.Element()].open);
            writer.Text(names[fragment.Element()].close);
            break;
        case enFragment::Space: {
            const auto& space = static_cast<const SSpaceFragment&>(fragment);
            writer.Text(kSpaceOpen);
            writer.Escaped(query.substr(space.start, space.length), kSpaceEscapes, kSpaceSpecial);
            writer.Text(kSpaceClose);
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

std::size_t MeasureFragments(const CFragmentPool& pool, const CElementNames& names, FragmentRef first,
                             std::string_view query)
{
    std::size_t bytes = query.size(); // every byte of it stands in one fragment at the most
    for (const char c : query)
        bytes += kSpaceEscapes.ExtraBytes(static_cast<unsigned char>(c));
    ForEachFragment(pool, first, [&](const SFragment& fragment) {
        const SElementName& name = names[fragment.Element()];
        switch (fragment.Kind()) {
        case enFragment::Open:
            bytes += name.open.size();
            break;
        case enFragment::Close:
            bytes += name.close.size();
            break;
        case enFragment::Empty:
            bytes += name.open.size() + name.close.size();
            break;
        case enFragment::Space:
            bytes += kSpaceOpen.size() + kSpaceClose.size();
            break;
        case enFragment::TokenText:
            for (const char c : pool.Text(static_cast<const STokenFragment&>(fragment).start))
                bytes += 1 + kTokenEscapes.ExtraBytes(static_cast<unsigned char>(c));
            [[fallthrough]];
        case enFragment::Token:
            bytes += name.tokenOpen.size() + kPos.size() + kEndOfTag.size() + name.close.size();
            bytes += static_cast<const STokenFragment&>(fragment).line < 100000 ? 8 : 2 * kMostDigits;
            break;
        }
    });
    return bytes;
}

void WriteSpaceElement(std::string_view text, std::string& out)
{
    CBlockWriter writer(out);
    writer.Text(kSpaceOpen);
    writer.Escaped(text, kSpaceEscapes, kSpaceSpecial);
    writer.Text(kSpaceClose);
    writer.Flush();
}
