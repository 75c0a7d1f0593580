// Packed files. Two forms that have nothing in common but this header: the archive (".crs", one scrambled
// zlib stream after a readable header), in which rule files and text files of grammars may be stored, and
// plain gzip, in which the binary tables of grammars are. Sizes are bytes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct gzFile_s;

// The archive:
//     archive = size "." unused "." payload
//     size    = length of the unpacked file, unsigned decimal
//     unused  = "1" if the unpacked file says THIS_XSLT_IS_UNUSED, else "0"
//     payload = a zlib stream up to the end of the file, scrambled byte by byte
// for example "5.0." and the 13 scrambled bytes of a packed "hello".
class Compressor
{
public:
    // Replaces the file by its archive, and tells standard output of it. Empty files stay, as do those that
    // couldn't be unpacked again because of their size (more than 1 GiB).
    // Returns: true if the file is an archive now.
    static bool Archive(const std::string& path);

    // Both take the payload as it stands, without unscrambling: what Archive wrote isn't for them. Unarchive
    // throws its result away, Decompress writes it over the file.
    static void Unarchive(const std::string& path);
    static void Decompress(const std::string& path);

    // `data` is a whole archive; `out` takes the unpacked file. This is the call for loaders.
    // The size in the header is believed only up to 1040 times the payload and up to 1 GiB; anything else is
    // a bad header, which gives an empty `out` and 0.
    // Returns: the length unpacked. A damaged payload unpacks up to the damage, while `out` has the size that
    //          the header says. `damaged`, if not null, tells whether the header or the payload was bad.
    static std::size_t ResourceUnarchive(const std::string& data, std::string& out, bool* damaged = nullptr);

    // Returns: true if both separators were found. `size` and `unused` are set as far as the header goes,
    //          `headerLength` only with true.
    static bool ParceHeader(const std::string& data, unsigned int& size, bool& unused,
                            unsigned int& headerLength);

    // True if the first 100 bytes of the file don't hold "<?xml"; false if it can't be read.
    static bool IsCompressed(const std::string& path);

    static bool IsXSLTUnused(const std::string& text);

    // In place. A length of 0 or less does nothing.
    static void EncryptBuffer(void* buffer, int length);
    static void DecryptBuffer(void* buffer, int length);
};

// Reads a gzip file, for whoever reads the tables of grammars: it takes every sound file, of several members
// too, and tells what is wrong with another. A file that isn't gzip is read as it stands. Rule files are
// never gzip.
class ZFile
{
public:
    ZFile() = default;
    ~ZFile() { Close(); }
    ZFile(const ZFile&) = delete;
    ZFile& operator=(const ZFile&) = delete;

    bool Open(const char* path);
    bool Open(const std::string& path) { return Open(path.c_str()); }

    // Returns: the bytes read, fewer than `size` only at the end of the file or of its sound part; 0 if not
    //          open; negative for a damaged file.
    int Read(void* buffer, unsigned int size);

    // True if what was read so far came from a damaged or truncated stream. The checksum stands at the end:
    // the answer holds for the whole file only once AtEnd was asked.
    bool Failed() const;

    // True if nothing is left, tried by reading on; what is read so is lost.
    bool AtEnd();

    void Close();

    enum class enResult
    {
        Done,
        NotOpened,
        Damaged,
        TooLarge
    };

    // The whole unpacked file, checksum tested. Memory grows with what really unpacks; after `maxSize` bytes
    // the reading ends. `out` is empty unless Done.
    [[nodiscard]] static enResult ReadWhole(const std::string& path, std::vector<unsigned char>& out,
                                            std::size_t maxSize);

private:
    gzFile_s* m_File = nullptr;
};

// Writes a gzip file.
// Returns: the bytes of `data` that were written, 0 if the file couldn't be opened or completed.
int CompressBinary(const char* path, const void* data, unsigned int size);
inline int CompressBinary(const std::string& path, const void* data, unsigned int size)
{
    return CompressBinary(path.c_str(), data, size);
}
