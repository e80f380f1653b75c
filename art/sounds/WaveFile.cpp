// The RIFF form of a wave file: a header of 44 bytes, then the samples, all little-endian.
#include "WaveFile.h"

#include <cmath>
#include <fstream>
#include <stdexcept>
#include <string>

namespace quendrel::sounds {

namespace {

constexpr std::uint32_t kChannels = 2;
constexpr std::uint32_t kBytesPerSample = 2;
constexpr std::uint32_t kHeaderAfterSize = 36;

void AppendNumber(std::uint32_t value, int bytes, std::string& file) {
    for (int i = 0; i < bytes; ++i) file += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::string Header(std::uint32_t dataBytes) {
    std::string header = "RIFF";
    AppendNumber(kHeaderAfterSize + dataBytes, 4, header);
    header += "WAVEfmt ";
    AppendNumber(16, 4, header);  // what follows of the format
    AppendNumber(1, 2, header);   // plain samples
    AppendNumber(kChannels, 2, header);
    AppendNumber(kSampleRate, 4, header);
    AppendNumber(kSampleRate * kChannels * kBytesPerSample, 4, header);
    AppendNumber(kChannels * kBytesPerSample, 2, header);
    AppendNumber(8 * kBytesPerSample, 2, header);
    header += "data";
    AppendNumber(dataBytes, 4, header);
    return header;
}

void AppendSample(double sample, std::string& file) {
    const auto value = static_cast<std::int32_t>(std::floor(sample * 32767 + 0.5));
    AppendNumber(static_cast<std::uint32_t>(value), 2, file);
}

}  // namespace

void WriteWave(const Signal& signal, const std::filesystem::path& path) {
    const std::size_t bytes = signal.length() * kChannels * kBytesPerSample;
    std::string file = Header(static_cast<std::uint32_t>(bytes));
    for (std::size_t i = 0; i < signal.length(); ++i) {
        AppendSample(signal.left[i], file);
        AppendSample(signal.right[i], file);
    }
    std::ofstream stream(path, std::ios::binary);
    stream.write(file.data(), static_cast<std::streamsize>(file.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace quendrel::sounds
