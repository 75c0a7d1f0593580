// Output that takes the place of the text it is made from, as far as that has been read.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// Collects in a block that stays in the cache; what finds no room before the text that is still needed waits.
class CTextOverwriter
{
public:
    explicit CTextOverwriter(std::string& text) : m_Text(text) {}

    std::size_t size() const { return m_Settled + m_Waiting.size() - m_Drained + m_Used; }

    // Returns: false if the block is full; nothing is taken then.
    bool Takes(std::string_view text)
    {
        if (text.size() > kBlock - m_Used)
            return false;
        text.copy(m_Block.data() + m_Used, text.size());
        m_Used += text.size();
        return true;
    }

    // Empties the block and takes `text`. `needed`: the first byte that is still going to be read; `text`
    // stands behind it, or elsewhere.
    void Settle(std::string_view text, std::size_t needed)
    {
        Put({m_Block.data(), m_Used}, needed);
        m_Used = 0;
        if (!Takes(text))
            Put(text, needed);
    }

    // Nothing is read any more: the text becomes what was written.
    void Finish()
    {
        Settle({}, m_Text.size());
        m_Text.resize(m_Settled);
        m_Text.append(m_Waiting, m_Drained);
    }

private:
    static constexpr std::size_t kBlock = 16384;

    void Put(std::string_view text, std::size_t needed)
    {
        if (!m_Waiting.empty()) {
            const std::string_view waiting = std::string_view(m_Waiting).substr(m_Drained);
            m_Drained += Place(waiting.substr(0, needed - m_Settled));
            if (m_Drained == m_Waiting.size() || m_Drained >= kMostDrained) {
                m_Waiting.erase(0, m_Drained);
                m_Drained = 0;
            }
        }
        if (m_Waiting.empty())
            text.remove_prefix(Place(text.substr(0, needed - m_Settled)));
        m_Waiting += text;
    }

    std::size_t Place(std::string_view text)
    {
        text.copy(m_Text.data() + m_Settled, text.size());
        m_Settled += text.size();
        return text.size();
    }

    static constexpr std::size_t kMostDrained = std::size_t{1} << 20;

    std::string& m_Text;
    std::size_t m_Settled = 0; // bytes of output in their place
    std::string m_Waiting;     // what comes behind them, from m_Drained on
    std::size_t m_Drained = 0;
    std::size_t m_Used = 0;
    std::array<char, kBlock> m_Block;
};
