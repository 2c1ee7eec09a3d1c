#pragma once

#include "cloud/app/Service.h"
#include "cloud/store/Store.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace orvcloud
{

// What the command line does with accounts. It works beside a running service. Failures are std::runtime_errors with a
// sentence for the user.

/// The first line, without its end.
std::string readPassword(std::istream& in);

/// The password has at least 8 and at most 1024 bytes, the name 1 to 200 without control characters.
void addUser(const Config& config, const std::string& email, const std::string& name, const std::string& password);

/// Ends all sessions of the account as well.
void setPassword(const Config& config, const std::string& email, const std::string& password);

std::vector<Account> listUsers(const Config& config);

} // namespace orvcloud
