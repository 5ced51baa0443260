// WAVE images for the sound tests: the carried ones, and made-up ones to break.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace quillor::testing {

using Image = std::vector<std::byte>;

inline Image toImage(std::string_view bytes) {
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    return {first, first + bytes.size()};
}

inline std::string fileBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Sound 101..107 as it lies in the sources.
inline Image carriedSound(int id) {
    return toImage(fileBytes(std::filesystem::path(QUILLOR_SOURCE_DIR) / "resources/sounds" /
                             (std::to_string(id) + ".wav")));
}

/// Little-endian, as all numbers in a WAVE image.
inline std::string number(std::uint32_t value, int width) {
    std::string bytes;
    for (int i = 0; i < width; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 255);
    return bytes;
}

/// The fields of a made-up image; what is not set is right for its format.
struct WaveFields {
    std::uint32_t tag = 1;
    std::uint32_t channels = 2;
    std::uint32_t rate = 44100;
    std::uint32_t bits = 16;
    std::uint32_t blockAlign = 4;
    std::string data = std::string(400, '\1');
    std::uint32_t riffBytesTooMany = 0;
    std::uint32_t formatBytes = 16;
    std::uint32_t dataBytesTooMany = 0;
};

inline Image makeWave(const WaveFields& fields) {
    const auto size = static_cast<std::uint32_t>(fields.data.size());
    const std::string body = "WAVEfmt " + number(fields.formatBytes, 4) + number(fields.tag, 2) +
                             number(fields.channels, 2) + number(fields.rate, 4) +
                             number(fields.rate * fields.blockAlign, 4) +
                             number(fields.blockAlign, 2) + number(fields.bits, 2) + "data" +
                             number(size + fields.dataBytesTooMany, 4) + fields.data;
    const auto whole = static_cast<std::uint32_t>(body.size()) + fields.riffBytesTooMany;
    return toImage("RIFF" + number(whole, 4) + body);
}

}  // namespace quillor::testing
