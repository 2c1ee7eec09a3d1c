#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvcloud
{

/// What a password's hash costs, in argon2id's terms. Tests take less.
struct HashCost {
    unsigned long long passes = 2;
    std::size_t memoryBytes = 64U << 20;
};

/// Hashes passwords with argon2id (RFC 9106). Each operation takes the cost's time and memory, on the calling thread.
class Passwords
{
public:
    explicit Passwords(HashCost hashCost);

    /// The text form with salt and parameters. Throws std::runtime_error if the memory can't be had.
    std::string hash(std::string_view password) const;
    bool matches(std::string_view hash, std::string_view password) const;
    /// Takes as long as `matches` and is always false: for users that don't exist, so that time doesn't tell them.
    bool matchesNobody(std::string_view password) const;
    /// True if the hash was made at a lower cost than today's.
    bool isOutdated(std::string_view hash) const;

private:
    HashCost cost;
    std::string nobody;
};

} // namespace orvcloud
