#include "cloud/base/Secret.h"

#include <sodium.h>
#include <stdexcept>

namespace orvcloud
{
namespace
{
std::string encode(const unsigned char* bytes, std::size_t count, int variant)
{
    std::string text(sodium_base64_encoded_len(count, variant), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes, count, variant);
    text.resize(text.size() - 1); // the closing NUL is counted
    return text;
}

const unsigned char* bytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}
} // namespace

void prepareSecrets()
{
    if (sodium_init() < 0)
        throw std::runtime_error("The system's random source can't be used.");
}

std::string randomUuid()
{
    std::array<unsigned char, 16> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
    std::array<char, 33> hex{};
    sodium_bin2hex(hex.data(), hex.size(), bytes.data(), bytes.size());
    std::string uuid(hex.data(), 32);
    for (const std::size_t dash : {8U, 13U, 18U, 23U})
        uuid.insert(dash, 1, '-');
    return uuid;
}

std::string randomSecret()
{
    std::array<unsigned char, 32> bytes{};
    randombytes_buf(bytes.data(), bytes.size());
    return encode(bytes.data(), bytes.size(), sodium_base64_VARIANT_URLSAFE_NO_PADDING);
}

SecretHash hashOf(std::string_view secret)
{
    SecretHash hash{};
    crypto_generichash(hash.data(), hash.size(), bytesOf(secret), secret.size(), nullptr, 0);
    return hash;
}

bool equalInConstantTime(std::string_view left, std::string_view right)
{
    const SecretHash a = hashOf(left);
    const SecretHash b = hashOf(right);
    return sodium_memcmp(a.data(), b.data(), a.size()) == 0;
}

std::string base64(std::string_view bytes)
{
    return encode(bytesOf(bytes), bytes.size(), sodium_base64_VARIANT_ORIGINAL);
}

} // namespace orvcloud
