// Output of a tree: collects in a block that stays in the cache and hands full blocks to a string. Appending
// the many small pieces of a tree to the string one by one costs more than the pieces themselves.
#pragma once

#include "Tree/ElementNames.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// What the bytes of a text become where they don't stand for themselves.
struct SEscapes
{
    enum enByte : unsigned char
    {
        Plain,
        Replaced,
        Left // to somebody who looks at more than one byte
    };

    std::array<enByte, 256> kind{};
    std::array<std::string_view, 256> text{};

    constexpr void Replace(char byte, std::string_view by)
    {
        kind[static_cast<unsigned char>(byte)] = Replaced;
        text[static_cast<unsigned char>(byte)] = by;
    }
};

class CTextBlock
{
public:
    // Appends to `out`, which it borrows; Flush is the last call.
    explicit CTextBlock(std::string& out) : m_out(out) {}
    CTextBlock(const CTextBlock&) = delete;
    CTextBlock& operator=(const CTextBlock&) = delete;

    // Of all text so far, what `out` held before included.
    std::size_t size() const { return m_out.size() + Used(); }

    void Write(std::string_view text)
    {
        if (Used() + text.size() > kBlock) {
            Flush();
            if (text.size() > kBlock) {
                m_out.append(text);
                return;
            }
        }
        Constant(text);
    }

    void Write(char c)
    {
        Need(1);
        *m_at++ = c;
    }

    // Without its last `left` bytes.
    void Markup(const CMarkup& markup, std::size_t left = 0)
    {
        if (markup.PaddedSize() > kReserve) {
            Flush();
            m_out.append(markup.Padded(), markup.size() - left);
            return;
        }
        Need(kReserve);
        for (std::size_t at = 0; at < markup.PaddedSize(); at += CMarkup::kBlock)
            std::memcpy(m_at + at, markup.Padded() + at, CMarkup::kBlock);
        m_at += markup.size() - left;
    }

    // The start tag of a token, without its closing bracket.
    void TokenTag(const SElementName& name, std::uint32_t line, std::int32_t pos)
    {
        Markup(name.tokenOpen);
        Need(kReserve);
        if (line != m_line)
            NoteLine(line);
        // neighbours stand in one line, mostly
        std::memcpy(m_at, m_lineEnd.data(), m_lineEnd.size());
        m_at += m_lineSize;
        if (pos >= 0 && pos < 10)
            *m_at++ = static_cast<char>('0' + pos);
        else
            m_at = std::to_chars(m_at, m_at + kMostDigits, pos).ptr;
        *m_at++ = '"';
    }

    // Returns: how many bytes of `text` come before the first that `escapes` leaves; those are written.
    std::size_t Escaped(std::string_view text, const SEscapes& escapes)
    {
        for (std::size_t from = 0; from < text.size(); from += kPiece) {
            const std::string_view piece = text.substr(from, kPiece);
            Need(piece.size());
            char* to = m_at; // a char may be a part of anything, so m_at would be stored for each
            for (std::size_t at = 0; at < piece.size(); ++at) {
                const auto byte = static_cast<unsigned char>(piece[at]);
                if (escapes.kind[byte] == SEscapes::Plain) [[likely]] {
                    *to++ = piece[at];
                    continue;
                }
                m_at = to;
                if (escapes.kind[byte] == SEscapes::Left)
                    return from + at;
                Constant(escapes.text[byte]);
                // a replacement takes more room than its byte was counted for
                Need(kPiece);
                to = m_at;
            }
            m_at = to;
        }
        return text.size();
    }

    void Flush()
    {
        m_out.append(m_block.data(), Used());
        m_at = m_block.data();
    }

private:
    static constexpr std::size_t kBlock = 16384;
    static constexpr std::size_t kPiece = 4096;
    static constexpr std::size_t kReserve = 256; // room for one tag, padding included

    std::size_t Used() const { return static_cast<std::size_t>(m_at - m_block.data()); }
    void Need(std::size_t bytes)
    {
        if (Used() + bytes > kBlock) // the block may be more than full: see m_block
            Flush();
    }
    void NoteLine(std::uint32_t line)
    {
        char* const end = std::to_chars(m_lineEnd.data(), m_lineEnd.data() + kMostDigits, line).ptr;
        m_lineSize = static_cast<std::size_t>(end - m_lineEnd.data()) + kTokenPos.size();
        std::memcpy(end, kTokenPos.data(), kTokenPos.size());
        m_line = line;
    }
    void Constant(std::string_view text)
    {
        std::memcpy(m_at, text.data(), text.size());
        m_at += text.size();
    }

    std::string& m_out;
    std::array<char, kBlock + 64> m_block; // room for one replacement after a piece that fills it
    char* m_at = m_block.data();
    // The line of the token before, and how its tag goes on from there.
    std::uint32_t m_line = 0;
    std::array<char, 32> m_lineEnd{"0\" pos=\""};
    std::size_t m_lineSize = 1 + kTokenPos.size();
};
