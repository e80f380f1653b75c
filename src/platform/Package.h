// What a player gives to the game in one piece: a folder, or a .zip archive of one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quendrel {

/// A thing in a package.
struct Packed {
    enum class Kind : std::uint8_t { kFile, kFolder, kLinkOrDevice };

    /// With slashes. An archive may say anything here.
    std::string name;
    Kind kind = Kind::kFile;
    /// Of a file, in bytes.
    std::uint64_t length = 0;
};

/// The most that a package may have.
struct PackageLimits {
    /// Of the archive itself.
    std::uint64_t bytes;
    std::size_t things;
};

class Package {
public:
    Package() = default;
    virtual ~Package() = default;
    Package(const Package&) = delete;
    Package& operator=(const Package&) = delete;

    /// What is in the package, at any depth. Links are not followed, and what is in a hidden folder
    /// may be left out.
    virtual const std::vector<Packed>& Contents() const = 0;

    /// The bytes of a file, by its index in Contents: as many as stand there. Throws FileError.
    virtual std::string Read(std::size_t index) const = 0;
};

/// Opens the folder or the archive at a path of the machine. Throws FileError where it is neither,
/// cannot be read, or has more than the limits allow.
std::unique_ptr<Package> OpenPackage(const std::string& path, const PackageLimits& limits);

}  // namespace quendrel
