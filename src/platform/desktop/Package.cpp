// Folders, and zip archives as libzip reads them.
#include "platform/Package.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include <sys/stat.h>
#include <zip.h>

#include "platform/Errors.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace quendrel {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void ThrowTooMany(const std::string& path, std::size_t most) {
    throw FileError(path, "holds more than " + std::to_string(most) + " files and folders");
}

class FolderPackage : public Package {
public:
    FolderPackage(std::string path, std::size_t most) : path_(std::move(path)) {
        std::error_code error;
        for (fs::recursive_directory_iterator entry(path_, error), end; !error && entry != end;
             entry.increment(error)) {
            if (contents_.size() == most) ThrowTooMany(path_, most);
            const std::string name = entry->path().filename().string();
            if (name.starts_with('.')) entry.disable_recursion_pending();
            contents_.push_back(Look(*entry));
        }
        if (error) throw FileError(path_, "cannot be listed: " + error.message());
    }

    const std::vector<Packed>& Contents() const override { return contents_; }

    std::string Read(std::size_t index) const override {
        const Packed& file = contents_.at(index);
        const std::string path = (fs::path(path_) / file.name).string();
        FileStart read = ReadFileStart(path, file.length);
        if (read.length != file.length) throw FileError(path, "has just been changed");
        return std::move(read.bytes);
    }

private:
    Packed Look(const fs::directory_entry& entry) const {
        Packed packed{entry.path().lexically_relative(path_).generic_string()};
        std::error_code ignored;
        const fs::file_type type = entry.symlink_status(ignored).type();
        if (type == fs::file_type::directory) {
            packed.kind = Packed::Kind::kFolder;
        } else if (type == fs::file_type::regular) {
            packed.length = fs::file_size(entry.path(), ignored);
        } else {
            packed.kind = Packed::Kind::kLinkOrDevice;
        }
        return packed;
    }

    std::string path_;
    std::vector<Packed> contents_;
};

class Archive {
public:
    explicit Archive(const std::string& bytes) {
        zip_error_init(&error_);
        zip_source_t* const source =
            zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error_);
        if (source == nullptr) return;
        archive_ = zip_open_from_source(source, ZIP_RDONLY, &error_);
        if (archive_ == nullptr) zip_source_free(source);
    }
    ~Archive() {
        if (archive_ != nullptr) zip_discard(archive_);
        zip_error_fini(&error_);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    zip_t* get() const { return archive_; }
    std::string Reason() { return zip_error_strerror(&error_); }

private:
    zip_error_t error_{};
    zip_t* archive_ = nullptr;
};

using ZippedFile = std::unique_ptr<zip_file_t, int (*)(zip_file_t*)>;

class ZipPackage : public Package {
public:
    ZipPackage(std::string path, std::string bytes, std::size_t most)
        : path_(std::move(path)), bytes_(std::move(bytes)), archive_(bytes_) {
        if (archive_.get() == nullptr) {
            throw FileError(path_, "cannot be unpacked: " + archive_.Reason());
        }
        const auto count = static_cast<std::size_t>(zip_get_num_entries(archive_.get(), 0));
        if (count > most) ThrowTooMany(path_, most);
        for (std::size_t index = 0; index < count; ++index) contents_.push_back(Look(index));
    }

    const std::vector<Packed>& Contents() const override { return contents_; }

    /// Nothing is read beyond the length that the archive states, whatever is packed there.
    std::string Read(std::size_t index) const override {
        const ZippedFile file(zip_fopen_index(archive_.get(), index, 0), zip_fclose);
        if (!file) Throw(index, WhyNotOpened());
        std::string bytes(contents_.at(index).length, '\0');
        std::size_t got = 0;
        while (got < bytes.size()) {
            const std::size_t more = ReadSome(index, file.get(), &bytes[got], bytes.size() - got);
            if (more == 0) Throw(index, "is shorter than the archive says");
            got += more;
        }
        // At the end the sum of the bytes is checked.
        char beyond = 0;
        if (ReadSome(index, file.get(), &beyond, 1) > 0) {
            Throw(index, "is longer than the archive says");
        }
        return bytes;
    }

private:
    [[noreturn]] void Throw(std::size_t index, const std::string& reason) const {
        throw FileError(path_, OneLine(contents_.at(index).name) + ": " + reason);
    }

    std::string WhyNotOpened() const {
        const zip_error_t* const error = zip_get_error(archive_.get());
        return zip_error_code_zip(error) == ZIP_ER_NOPASSWD ? "is encrypted"
                                                            : zip_strerror(archive_.get());
    }

    std::size_t ReadSome(std::size_t index, zip_file_t* file, char* to, std::size_t count) const {
        const zip_int64_t got = zip_fread(file, to, count);
        if (got < 0) Throw(index, zip_file_strerror(file));
        return static_cast<std::size_t>(got);
    }

    Packed Look(zip_uint64_t index) const {
        zip_stat_t about{};
        if (zip_stat_index(archive_.get(), index, ZIP_FL_ENC_GUESS, &about) != 0 ||
            (about.valid & ZIP_STAT_NAME) == 0 || (about.valid & ZIP_STAT_SIZE) == 0) {
            throw FileError(path_,
                            "cannot be unpacked: " + std::string(zip_strerror(archive_.get())));
        }
        return {about.name, KindOf(index, about.name), about.size};
    }

    /// Archives of a POSIX system say in the upper half of the attributes what a thing is.
    Packed::Kind KindOf(zip_uint64_t index, std::string_view name) const {
        zip_uint8_t system = 0;
        zip_uint32_t attributes = 0;
        zip_file_get_external_attributes(archive_.get(), index, 0, &system, &attributes);
        const mode_t type = attributes >> 16 & S_IFMT;
        if (type != 0 && type != S_IFREG && type != S_IFDIR) return Packed::Kind::kLinkOrDevice;
        return name.ends_with('/') ? Packed::Kind::kFolder : Packed::Kind::kFile;
    }

    std::string path_;
    std::string bytes_;
    Archive archive_;
    std::vector<Packed> contents_;
};

}  // namespace

std::unique_ptr<Package> OpenPackage(const std::string& path, const PackageLimits& limits) {
    if (FolderExists(path)) return std::make_unique<FolderPackage>(path, limits.things);
    if (ReadFileStart(path, 0).length > limits.bytes) {
        throw FileError(path, "is larger than " + std::to_string(limits.bytes >> 20) + " MiB");
    }
    return std::make_unique<ZipPackage>(path, ReadFile(path), limits.things);
}

}  // namespace quendrel
