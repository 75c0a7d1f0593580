// Foreign bytes as archives. An even first byte takes the rest as a whole archive; an odd one takes it as the
// zlib stream of an archive whose header is sound, so that the fuzzer gets past header and scrambling.
#include "Stylesheets/Archive/Compressor.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    std::string image(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] % 2 != 0) {
        // The claim runs from far too small to the most that is believed.
        const std::size_t claim = image.size() * 1040 / 128 * (data[0] / 2 + 1);
        Compressor::EncryptBuffer(image.data(), static_cast<int>(image.size()));
        image.insert(0, std::to_string(claim) + ".0.");
    }

    std::string unpacked;
    bool damaged = false;
    const std::size_t length = Compressor::ResourceUnarchive(image, unpacked, &damaged);
    if (length > unpacked.size() || (!damaged && length != unpacked.size()) ||
        unpacked.size() > image.size() * 1040)
        std::abort();
    return 0;
}
