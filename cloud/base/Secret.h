#pragma once

#include <array>
#include <string>
#include <string_view>

namespace orvcloud
{

/// What the service keeps of a secret that it gave out: a hash of 32 bytes, from which the secret can't be had back.
using SecretHash = std::array<unsigned char, 32>;

/// Makes libsodium ready. To be called once before anything else of this header; throws std::runtime_error.
void prepareSecrets();

/// A random UUID (version 4, RFC 9562) of 36 characters in lower case, from the system's random source.
std::string randomUuid();

/// 256 random bits in URL-safe base64 without padding: 43 characters.
std::string randomSecret();

/// BLAKE2b of the secret. Secrets given out are random, so no salt and no slow hash is needed.
SecretHash hashOf(std::string_view secret);

/// Compares in a time that doesn't depend on where the texts differ.
bool equalInConstantTime(std::string_view left, std::string_view right);

std::string base64(std::string_view bytes);

} // namespace orvcloud
