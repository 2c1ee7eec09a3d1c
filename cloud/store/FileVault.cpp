#include "cloud/store/FileVault.h"

#include "cloud/base/Secret.h"
#include "cloud/store/StoreError.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orvcloud
{
namespace
{
[[noreturn]] void fail(const std::filesystem::path& file, const char* what)
{
    const int code = errno;
    throw StoreError(file.string() + " can't be " + what + ": " + std::generic_category().message(code) + ".",
                     code == ENOSPC || code == EDQUOT);
}

class Descriptor
{
public:
    Descriptor(std::filesystem::path path, int flags) : file(std::move(path)), number(::open(file.c_str(), flags, 0600))
    {
        if (number < 0)
            fail(file, "opened");
    }
    ~Descriptor() { ::close(number); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    void write(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const auto written = ::write(number, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                fail(file, "written");
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void sync()
    {
        if (::fsync(number) != 0)
            fail(file, "made durable");
    }

private:
    std::filesystem::path file;
    int number;
};

void syncDirectory(const std::filesystem::path& directory)
{
    Descriptor(directory, O_RDONLY | O_DIRECTORY | O_CLOEXEC).sync();
}

constexpr int createFlags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;

class VaultFile final : public IncomingFile
{
public:
    VaultFile(std::filesystem::path temporaryFile, const FileVault& owner)
        : vault(owner), temporary(std::move(temporaryFile)), descriptor(temporary, createFlags)
    {
        crypto_hash_sha256_init(&hashing);
    }

    ~VaultFile() override
    {
        if (!kept)
            ::unlink(temporary.c_str());
    }

    void append(std::string_view bytes) override
    {
        descriptor.write(bytes);
        crypto_hash_sha256_update(&hashing, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        size += bytes.size();
    }

    StoredFile keep() override
    {
        std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
        crypto_hash_sha256_final(&hashing, hash.data());
        std::array<char, 2 * crypto_hash_sha256_BYTES + 1> hex{};
        sodium_bin2hex(hex.data(), hex.size(), hash.data(), hash.size());
        StoredFile stored{hex.data(), size};

        descriptor.sync();
        const auto target = vault.pathOf(stored.contentHash);
        makePrivateDirectory(target.parent_path());
        // Renaming over a file of the same content changes nothing for those who refer to it.
        if (::rename(temporary.c_str(), target.c_str()) != 0)
            fail(target, "put in place");
        kept = true;
        syncDirectory(target.parent_path());
        return stored;
    }

private:
    const FileVault& vault;
    std::filesystem::path temporary;
    Descriptor descriptor;
    crypto_hash_sha256_state hashing{};
    std::uint64_t size = 0;
    bool kept = false;
};
} // namespace

void makePrivateDirectory(const std::filesystem::path& directory)
{
    if (::mkdir(directory.c_str(), 0700) == 0) {
        const auto parent = std::filesystem::absolute(directory).parent_path();
        syncDirectory(parent);
        return;
    }
    if (errno != EEXIST || !std::filesystem::is_directory(directory))
        fail(directory, "created");
}

void writeDurably(const std::filesystem::path& file, std::string_view bytes)
{
    const auto temporary = file.parent_path() / ("." + randomUuid() + ".tmp");
    try {
        Descriptor descriptor(temporary, createFlags);
        descriptor.write(bytes);
        descriptor.sync();
        if (::rename(temporary.c_str(), file.c_str()) != 0)
            fail(file, "put in place");
    } catch (const StoreError&) {
        ::unlink(temporary.c_str());
        throw;
    }
    syncDirectory(file.parent_path());
}

FileVault::FileVault(const std::filesystem::path& dataDirectory)
    : incoming(dataDirectory / "incoming"), files(dataDirectory / "files")
{
    makePrivateDirectory(incoming);
    makePrivateDirectory(files);
    std::error_code ignored; // what can't be cleared only takes up room
    for (const auto& entry : std::filesystem::directory_iterator(incoming, ignored))
        std::filesystem::remove(entry.path(), ignored);
}

std::unique_ptr<IncomingFile> FileVault::receive()
{
    return std::make_unique<VaultFile>(incoming / randomUuid(), *this);
}

std::filesystem::path FileVault::pathOf(std::string_view contentHash) const
{
    return files / contentHash.substr(0, 2) / contentHash.substr(2);
}

} // namespace orvcloud
