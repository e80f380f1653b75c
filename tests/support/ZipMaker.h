// Archives of a test's own, as good or as bad as the test wants them.
#pragma once

#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

#include <sys/stat.h>
#include <zip.h>

namespace quendrel::test {

/// Writes the archive when it goes.
class ZipMaker {
public:
    explicit ZipMaker(const std::string& path)
        : archive_(zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr)) {
        if (archive_ == nullptr) throw std::runtime_error("no archive " + path);
    }
    ~ZipMaker() { zip_close(archive_); }
    ZipMaker(const ZipMaker&) = delete;
    ZipMaker& operator=(const ZipMaker&) = delete;

    /// Not compressed, so that a test can find the bytes. Returns the index.
    zip_uint64_t Add(const std::string& name, const std::string& bytes) {
        const std::string& kept = bytes_[name] = bytes;
        zip_source_t* const source = zip_source_buffer(archive_, kept.data(), kept.size(), 0);
        const zip_int64_t index = zip_file_add(archive_, name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) throw std::runtime_error("cannot add " + name);
        zip_set_file_compression(archive_, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
        return static_cast<zip_uint64_t>(index);
    }

    void AddCompressed(const std::string& name, const std::string& bytes) {
        zip_set_file_compression(archive_, Add(name, bytes), ZIP_CM_DEFLATE, 0);
    }

    void AddEncrypted(const std::string& name, const std::string& bytes) {
        zip_file_set_encryption(archive_, Add(name, bytes), ZIP_EM_AES_256, "secret");
    }

    /// A link, a pipe or the like; the bytes of a link are where it leads.
    void AddOfType(const std::string& name, mode_t type, const std::string& bytes) {
        zip_file_set_external_attributes(archive_, Add(name, bytes), 0, ZIP_OPSYS_UNIX,
                                         (type | 0644) << 16);
    }

private:
    zip_t* archive_;
    std::map<std::string, std::string> bytes_;
};

/// Has the directory of an archive state another length of its first file.
inline void StateLength(const std::string& path, std::uint32_t length) {
    constexpr std::size_t lengthAt = 24;
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    const std::size_t entry = bytes.str().find("PK\x01\x02");
    file.seekp(static_cast<std::streamoff>(entry + lengthAt));
    for (int i = 0; i < 4; ++i) file.put(static_cast<char>(length >> 8 * i & 0xFF));
}

}  // namespace quendrel::test
