#include "cloud/app/Users.h"

#include "cloud/app/DataDirectory.h"
#include "cloud/store/SqliteStore.h"

#include <istream>
#include <stdexcept>

namespace orvcloud
{
namespace
{
void checkPassword(const std::string& password)
{
    if (password.size() < 8)
        throw std::runtime_error("The password is too short; take at least 8 characters.");
    if (password.size() > 1024 || !isUtf8(password))
        throw std::runtime_error("The password can't be used; take at most 1024 bytes of UTF-8 text.");
}

std::unique_ptr<Store> open(const Config& config)
{
    prepareSecrets();
    const DataDirectory directory(config.dataDirectory, DataDirectory::Use::shared);
    return openSqliteStore(config.dataDirectory);
}
} // namespace

std::string readPassword(std::istream& in)
{
    std::string password;
    std::getline(in, password);
    if (password.ends_with('\r'))
        password.pop_back();
    return password;
}

void addUser(const Config& config, const std::string& email, const std::string& name, const std::string& password)
{
    if (!isMailAddress(email))
        throw std::runtime_error("\"" + email + "\" isn't an e-mail address.");
    if (trimmed(name).empty() || name.size() > 200 || !isUtf8(name) || hasControlCharacter(name))
        throw std::runtime_error("The name can't be used; give the user's full name in one line.");
    checkPassword(password);
    const auto store = open(config);
    if (!store->addAccount(email, name, randomUuid(), Passwords(config.hashCost).hash(password), config.clock()))
        throw std::runtime_error("There is an account for " + email +
                                 " already; \"orvanta-cloud user password\" gives it a new password.");
}

void setPassword(const Config& config, const std::string& email, const std::string& password)
{
    checkPassword(password);
    const auto store = open(config);
    const auto account = store->findAccount(email);
    if (!account)
        throw std::runtime_error("There is no account for " + email + "; \"orvanta-cloud user add\" makes one.");
    store->changePassword(account->id, Passwords(config.hashCost).hash(password));
}

std::vector<Account> listUsers(const Config& config)
{
    return open(config)->accounts();
}

} // namespace orvcloud
