#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace orvcloud
{

struct StoredFile {
    std::string contentHash; ///< SHA-256 in 64 hexadecimal digits
    std::uint64_t size = 0;
};

/// A file on its way in. It grows under a temporary name and is gone with this object unless it was kept.
/// Failures are StoreErrors; `diskFull()` tells a full disk.
class IncomingFile
{
public:
    virtual ~IncomingFile() = default;
    virtual void append(std::string_view bytes) = 0;
    /// Makes the file durable under its content's hash. Once only, and nothing may be appended afterwards.
    virtual StoredFile keep() = 0;
};

/// The models' files, each under the hash of its content. The same content is kept once.
class FileVault
{
public:
    /// Makes the vault's directories and clears what an interrupted upload left behind.
    explicit FileVault(const std::filesystem::path& dataDirectory);

    std::unique_ptr<IncomingFile> receive();
    std::filesystem::path pathOf(std::string_view contentHash) const;

private:
    std::filesystem::path incoming;
    std::filesystem::path files;
};

/// Makes a directory of mode 0700 if there is none. Throws StoreError.
void makePrivateDirectory(const std::filesystem::path& directory);

/// Writes a file of mode 0600 so that it is there whole or not at all: under a temporary name, made durable, renamed.
void writeDurably(const std::filesystem::path& file, std::string_view bytes);

} // namespace orvcloud
