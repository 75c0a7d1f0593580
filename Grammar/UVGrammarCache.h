// A folder that keeps proved tables from one run to the next, so that they need neither unpacking nor proof.
// It is the folder that the environment variable UVPARSER_CACHE names, by an absolute path; without one
// nothing is kept. What goes wrong with the folder or with what it holds goes unsaid: the tables are then read
// from their own files. Files in it may be deleted at any time.
#pragma once

#include "Grammar/Runtime/TableImage.h"

#include <optional>
#include <span>
#include <string>

// What is kept of one part of one language.
//
// Note: which kept tables count
// A kept file counts for the library and the table files that it was made by: by their device, number, size
// and times. One that was made of files changed a moment before isn't kept, since they could change again
// within the same tick of the clock. A file of another owner, or one that others may write to, isn't looked
// at; a checksum finds damage. A kept file is replaced as a whole, never written to, so it may be used where
// the system maps it.
class CTableCache
{
public:
    // `directory` is the part's folder, which ends in a slash; `files` are those that its tables are made of,
    // seen from there. Notes how they are now: they are read afterwards.
    CTableCache(const std::string& directory, std::span<const char* const> files);

    // Nothing is kept, by the host's wish or because it can't be told what of.
    bool IsOff() const { return m_Path.empty(); }

    // What was kept of these very files; nothing if there is none.
    std::optional<CTableImageReader> Find() const;
    // Keeps what the files came to.
    void Keep(const CTableImageWriter& image) const noexcept;

private:
    std::string m_Path; // of the kept file; empty: off
    std::string m_Stamps;
    bool m_bIsSettled = true; // no file has changed just now
};
