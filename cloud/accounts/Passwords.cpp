#include "cloud/accounts/Passwords.h"

#include "cloud/base/Secret.h"

#include <array>
#include <cstdio>
#include <sodium.h>
#include <stdexcept>

namespace orvcloud
{

Passwords::Passwords(HashCost hashCost) : cost(hashCost), nobody(hash(randomSecret())) {}

std::string Passwords::hash(std::string_view password) const
{
    std::array<char, crypto_pwhash_STRBYTES> text{};
    if (crypto_pwhash_str(text.data(), password.data(), password.size(), cost.passes, cost.memoryBytes) != 0)
        throw std::runtime_error("There isn't enough memory to hash a password.");
    return text.data();
}

bool Passwords::matches(std::string_view hash, std::string_view password) const
{
    return crypto_pwhash_str_verify(std::string(hash).c_str(), password.data(), password.size()) == 0;
}

bool Passwords::matchesNobody(std::string_view password) const
{
    // The random password behind this hash is known to nobody, and the answer is fixed all the same.
    (void)matches(nobody, password);
    return false;
}

bool Passwords::isOutdated(std::string_view hash) const
{
    unsigned long kibibytes = 0;
    unsigned long long passes = 0;
    if (std::sscanf(std::string(hash).c_str(), "$argon2id$v=19$m=%lu,t=%llu,", &kibibytes, &passes) != 2)
        return true;
    return kibibytes < cost.memoryBytes / 1024 || passes < cost.passes;
}

} // namespace orvcloud
