#include "platform/Records.h"

#include <limits>

namespace quendrel {

std::optional<std::int16_t> RecordReader::Number() {
    if (rest_.size() < sizeof(std::uint16_t)) return End();
    const auto low = static_cast<unsigned char>(rest_[0]);
    const auto high = static_cast<unsigned char>(rest_[1]);
    rest_.remove_prefix(sizeof(std::uint16_t));
    return static_cast<std::int16_t>(low | high << 8);
}

std::optional<std::string> RecordReader::Name() {
    const auto number = Number();
    if (!number) return std::nullopt;
    const auto length = static_cast<std::uint16_t>(*number);
    if (rest_.size() < length) return End();
    const std::string name(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return name;
}

std::nullopt_t RecordReader::End() {
    rest_ = {};
    return std::nullopt;
}

void AppendNumber(std::string& bytes, std::int16_t number) {
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
}

void AppendName(std::string& bytes, std::string_view name) {
    name = name.substr(0, std::numeric_limits<std::uint16_t>::max());
    AppendNumber(bytes, static_cast<std::int16_t>(name.size()));
    bytes += name;
}

}  // namespace quendrel
