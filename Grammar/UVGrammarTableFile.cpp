#include "Grammar/UVGrammarTableFile.h"

#include "Grammar/UVGrammarKeeper.h"

#include <zlib.h>

#include <cstring>
#include <string>
#include <string_view>

namespace {

// A member without a name, as gzopen writes it:
//     member  = header deflated crc size      the last two are 4 bytes each, little-endian
//     header  = 1f 8b 08 00, then 6 bytes that say nothing of the content
constexpr std::string_view kMemberStart("\x1f\x8b\x08\x00", 4);
constexpr std::size_t kHeaderSize = 10;
constexpr std::size_t kTrailerSize = 8;

// The size that a file claims is allocated before it is proved, so it is bounded.
constexpr std::size_t kLargestTable = std::size_t{16} << 20;

std::uint32_t Word(std::string_view bytes, std::size_t at)
{
    std::uint32_t word = 0;
    std::memcpy(&word, bytes.data() + at, sizeof word);
    return word;
}

// Unpacks a stream whose length is known.
class CDeflated
{
public:
    explicit CDeflated(std::string_view bytes)
    {
        m_Stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
        m_Stream.avail_in = static_cast<uInt>(bytes.size());
        m_IsOpen = inflateInit2(&m_Stream, -MAX_WBITS) == Z_OK;
    }
    CDeflated(const CDeflated&) = delete;
    CDeflated& operator=(const CDeflated&) = delete;
    ~CDeflated()
    {
        if (m_IsOpen)
            inflateEnd(&m_Stream);
    }

    // `isLast`: the stream ends with these bytes.
    bool Take(void* into, std::size_t bytes, bool isLast)
    {
        m_Stream.next_out = static_cast<Bytef*>(into);
        m_Stream.avail_out = static_cast<uInt>(bytes);
        if (!m_IsOpen)
            return false;
        const int result = inflate(&m_Stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
        return m_Stream.avail_out == 0 &&
               (isLast ? result == Z_STREAM_END && m_Stream.avail_in == 0 : result == Z_OK);
    }

private:
    z_stream m_Stream{};
    bool m_IsOpen = false;
};

} // namespace

template <class T>
bool ReadPackedTable(const char* path, std::unique_ptr<T[]>& entries, std::size_t& count,
                     std::uint32_t& checksum)
{
    static_assert(sizeof(T) == sizeof(std::uint32_t));
    std::string file;
    if (UVDBGrammarKeeper::ReadFromFile(file, path) != 0 || !file.starts_with(kMemberStart) ||
        file.size() < kHeaderSize + kTrailerSize)
        return false;
    const std::size_t trailer = file.size() - kTrailerSize;
    const std::size_t unpackedSize = Word(file, trailer + 4);
    if (unpackedSize < 2 * sizeof(T) || unpackedSize > kLargestTable || unpackedSize % sizeof(T) != 0)
        return false;

    CDeflated content(std::string_view(file).substr(kHeaderSize, trailer - kHeaderSize));
    std::uint32_t claimed = 0;
    if (!content.Take(&claimed, sizeof claimed, false) ||
        (std::size_t{claimed} + 1) * sizeof(T) != unpackedSize)
        return false;
    std::unique_ptr<T[]> unpacked(new T[claimed]);
    const std::size_t bytes = claimed * sizeof(T);
    if (!content.Take(unpacked.get(), bytes, true))
        return false;
    const auto* const head = reinterpret_cast<const Bytef*>(&claimed);
    const auto found = static_cast<std::uint32_t>(
        crc32_z(crc32_z(0, head, sizeof claimed), reinterpret_cast<const Bytef*>(unpacked.get()), bytes));
    if (found != Word(file, trailer))
        return false;
    entries = std::move(unpacked);
    count = claimed;
    checksum = found;
    return true;
}

template bool ReadPackedTable<int>(const char* path, std::unique_ptr<int[]>& entries, std::size_t& count,
                                   std::uint32_t& checksum);
template bool ReadPackedTable<unsigned>(const char* path, std::unique_ptr<unsigned[]>& entries,
                                        std::size_t& count, std::uint32_t& checksum);
