#include "Stylesheets/Archive/Compressor.h"

#include "UVEnvironment/FileHelper.h"

#include <zlib.h>

#include <algorithm>
#include <climits>
#include <fstream>
#include <iostream>
#include <locale>
#include <sstream>
#include <string_view>

namespace {

constexpr std::string_view kUnusedMark = "THIS_XSLT_IS_UNUSED";
constexpr unsigned int kArchiveScrambleOffset = 5;

// No deflate stream unpacks to more than 1032 times its size; the header of the archive isn't believed beyond
// that.
constexpr std::size_t kMaxRatio = 1040;
constexpr std::size_t kMaxUnpackedSize = std::size_t{1} << 30;

bool ReadFile(const std::string& path, std::string& data)
{
    const long long size = Uve::File::GetFileSize(path);
    std::ifstream stream(path, std::ios::binary);
    if (size < 0 || !stream.is_open())
        return false;
    data.resize(static_cast<std::size_t>(size));
    stream.read(data.data(), static_cast<std::streamsize>(data.size()));
    data.resize(static_cast<std::size_t>(stream.gcount()));
    return !stream.bad();
}

bool WriteFile(const std::string& path, std::string_view data)
{
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(data.data(), static_cast<std::streamsize>(data.size()));
    stream.close();
    return !stream.fail();
}

// Numbers of the header look the same whatever the host's locale is.
template <class Number>
void ReadNumber(std::string_view text, Number& number)
{
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    stream >> number;
}

bool IsClaimCredible(std::size_t size, std::size_t payloadSize)
{
    return size <= kMaxUnpackedSize && size / kMaxRatio <= payloadSize && size <= payloadSize * kMaxRatio;
}

// Unpacks the payload after the header.
// Returns: the bytes unpacked; `out` has the size of the header, or is empty after a bad one.
std::size_t Unpack(const std::string& data, bool isScrambled, std::string& out, bool& damaged)
{
    unsigned int size = 0;
    bool unused = false;
    unsigned int headerLength = 0;
    out.clear();
    damaged = true;
    if (!Compressor::ParceHeader(data, size, unused, headerLength) || data.size() - headerLength > INT_MAX ||
        !IsClaimCredible(size, data.size() - headerLength))
        return 0;

    std::string payload = data.substr(headerLength);
    if (isScrambled)
        Compressor::DecryptBuffer(payload.data(), static_cast<int>(payload.size()));
    out.resize(size);
    uLongf length = size;
    damaged = uncompress(reinterpret_cast<Bytef*>(out.data()), &length,
                         reinterpret_cast<const Bytef*>(payload.data()), payload.size()) != Z_OK ||
              length != size;
    return length;
}

} // namespace

bool Compressor::Archive(const std::string& path)
{
    std::string data;
    if (path.empty() || !ReadFile(path, data) || data.empty() || data.size() > kMaxUnpackedSize)
        return false;

    uLongf length = compressBound(data.size());
    std::string payload(length, '\0');
    if (compress2(reinterpret_cast<Bytef*>(payload.data()), &length,
                  reinterpret_cast<const Bytef*>(data.data()), data.size(), Z_BEST_COMPRESSION) != Z_OK)
        return false;
    payload.resize(length);
    EncryptBuffer(payload.data(), static_cast<int>(payload.size()));

    const bool unused = IsXSLTUnused(data);
    std::ostringstream image;
    image.imbue(std::locale::classic());
    image << data.size() << '.' << unused << '.' << payload;
    std::cout << "\n" + path + " Unused XSLT = " + (unused ? "1" : "0") + "\n";
    return WriteFile(path, image.str());
}

void Compressor::Unarchive(const std::string& path)
{
    std::string data;
    std::string unpacked;
    bool damaged = false;
    if (ReadFile(path, data))
        Unpack(data, false, unpacked, damaged);
}

void Compressor::Decompress(const std::string& path)
{
    std::string data;
    std::string unpacked;
    bool damaged = false;
    if (!ReadFile(path, data))
        return;
    Unpack(data, false, unpacked, damaged);
    WriteFile(path, unpacked);
}

std::size_t Compressor::ResourceUnarchive(const std::string& data, std::string& out, bool* damaged)
{
    bool isDamaged = false;
    const std::size_t length = Unpack(data, true, out, isDamaged);
    if (damaged != nullptr)
        *damaged = isDamaged;
    return length;
}

bool Compressor::ParceHeader(const std::string& data, unsigned int& size, bool& unused,
                             unsigned int& headerLength)
{
    const std::string_view image = data;
    const std::size_t first = image.find('.');
    if (first == std::string_view::npos)
        return false;
    ReadNumber(image.substr(0, first), size);

    const std::size_t second = image.find('.', first + 1);
    const std::string_view flag = image.substr(first + 1, std::min(second, image.size()) - first - 1);
    ReadNumber(flag.substr(0, flag.find('\0')), unused);
    if (second == std::string_view::npos || second >= UINT_MAX)
        return false;
    headerLength = static_cast<unsigned int>(second + 1);
    return true;
}

bool Compressor::IsCompressed(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream.is_open())
        return false;
    char head[100];
    stream.read(head, sizeof head);
    return std::string_view(head, static_cast<std::size_t>(stream.gcount())).find("<?xml") ==
           std::string_view::npos;
}

bool Compressor::IsXSLTUnused(const std::string& text)
{
    return text.find(kUnusedMark) != std::string::npos;
}

void Compressor::EncryptBuffer(void* buffer, int length)
{
    auto* const bytes = static_cast<unsigned char*>(buffer);
    for (int i = 0; i < length; ++i) {
        const unsigned int position = static_cast<unsigned int>(i);
        bytes[i] = static_cast<unsigned char>((bytes[i] + position) ^ (position + kArchiveScrambleOffset));
    }
}

void Compressor::DecryptBuffer(void* buffer, int length)
{
    auto* const bytes = static_cast<unsigned char*>(buffer);
    for (int i = 0; i < length; ++i) {
        const unsigned int position = static_cast<unsigned int>(i);
        bytes[i] = static_cast<unsigned char>((bytes[i] ^ (position + kArchiveScrambleOffset)) - position);
    }
}

bool ZFile::Open(const char* path)
{
    Close();
    m_File = gzopen(path, "rb");
    return m_File != nullptr;
}

int ZFile::Read(void* buffer, unsigned int size)
{
    return m_File == nullptr ? 0 : gzread(m_File, buffer, size);
}

bool ZFile::Failed() const
{
    if (m_File == nullptr)
        return false;
    int error = Z_OK;
    gzerror(m_File, &error);
    return error != Z_OK && error != Z_STREAM_END;
}

bool ZFile::AtEnd()
{
    unsigned char next;
    return Read(&next, 1) <= 0;
}

void ZFile::Close()
{
    if (m_File != nullptr)
        gzclose(m_File);
    m_File = nullptr;
}

ZFile::enResult ZFile::ReadWhole(const std::string& path, std::vector<unsigned char>& out,
                                 std::size_t maxSize)
{
    constexpr unsigned int kChunkSize = 1u << 16;
    out.clear();
    ZFile file;
    if (!file.Open(path))
        return enResult::NotOpened;
    std::vector<unsigned char> chunk(kChunkSize);
    int length = 0;
    while ((length = file.Read(chunk.data(), kChunkSize)) > 0) {
        if (static_cast<std::size_t>(length) > maxSize - out.size()) {
            out.clear();
            return enResult::TooLarge;
        }
        out.insert(out.end(), chunk.data(), chunk.data() + length);
    }
    if (length < 0 || file.Failed()) {
        out.clear();
        return enResult::Damaged;
    }
    return enResult::Done;
}

int CompressBinary(const char* path, const void* data, unsigned int size)
{
    const gzFile file = gzopen(path, "wb");
    if (file == nullptr)
        return 0;
    const int written = gzwrite(file, data, size);
    // Most of the bytes reach the disk only here.
    return gzclose(file) == Z_OK ? written : 0;
}
