#pragma once

#include "Grammar/Runtime/TableImage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The tables of one scanner. Once loaded and compiled they never change, so several scanners may share them.
//
// Note: compiled transitions
// The tables come compressed: a state's row lies somewhere in chk and nxt, mixed with others, and what isn't
// there is looked up in the row of its default state, and so on. Compile follows these chains once for every
// state, which at the same time proves that the walk never leaves the tables. What it found is kept as a
// plain matrix of states and byte classes (bytes that no state tells apart share a class), so that a step of
// the scanner is one load.
class CScannerTables
{
public:
    STable<int> accept, base, chk, def, NUL_trans, nxt, rule_can_match_eol, acclist;

    // Proves the tables and fills the compiled form. `startConditions` is how many the grammar defines.
    // Throws: Uve::U8CString with the line for the log, which names the file in `directory` and what is
    //         wrong.
    void Compile(const std::string& directory, int startConditions);

    // The compiled form and what goes with it. The tables that it was made of stay behind: what is read has no
    // compressed form to go back to.
    void WriteTo(CTableImageWriter& image) const;
    // Returns: false if the image holds something else; the tables are of no use then.
    [[nodiscard]] bool ReadFrom(CTableImageReader& image);

    // Number of the last state; the jam state is the one after it.
    int LastState() const { return static_cast<int>(accept.count) - 3; }
    int StartConditions() const { return m_nStartConditions; }

    bool IsCompiled() const { return m_next.count != 0; }
    // Goes back to the compressed walk, which gives the same result more slowly.
    void DropCompiled();

    // The compiled form for a loop that walks over it. Good as long as the tables.
    struct SWalk
    {
        const std::uint16_t* next;
        const std::uint8_t* isJam;
        const std::uint8_t* classOf;
        unsigned classBits;

        int Next(int state, unsigned char byte) const
        {
            return next[(static_cast<std::size_t>(state) << classBits) + classOf[byte]];
        }
        // True if nothing leads on from `state`: the walk ends there.
        bool IsJam(int state) const { return isJam[static_cast<std::size_t>(state)] != 0; }
    };
    SWalk Walk() const { return {m_next.values.get(), m_isJam.values.get(), m_classOf.data(), m_classBits}; }
    int Next(int state, unsigned char byte) const { return Walk().Next(state, byte); }

private:
    void CheckSizes(const std::string& directory) const;
    void CheckAcceptList(const std::string& directory) const;
    void CheckFirstStep(const std::string& directory) const;
    void CheckEndOfBuffer(const std::string& directory) const;
    void FoldClasses();
    void ResolveRows(const std::string& directory);
    bool IsWithinBounds() const;

    STable<std::uint16_t> m_next;
    STable<std::uint8_t> m_isJam;
    std::array<std::uint8_t, 256> m_classOf{};
    std::vector<std::uint8_t> m_leaders; // the first byte of each class
    unsigned m_classBits = 8;
    int m_nStartConditions = 0;
};

// The exception for a table file that can't be used: a Uve::U8CString.
[[noreturn]] void RefuseTable(const std::string& directory, const char* file, const std::string& what);
