#pragma once

#include "cloud/accounts/DailyCount.h"
#include "cloud/accounts/Passwords.h"
#include "cloud/accounts/Throttle.h"
#include "cloud/base/Text.h"
#include "cloud/mail/Mailer.h"
#include "cloud/store/FileVault.h"
#include "cloud/store/Store.h"

#include <cstdint>
#include <string>

namespace orvcloud
{

/// What the requests work with. All of it outlives them and may be used from any thread.
struct Parts {
    Store& store;
    FileVault& vault;
    Mailer& mailer;
    const Passwords& passwords;
    Throttle& throttle;
    DailyCount& invitations;
    Clock clock;
    std::string apiId; ///< the application that is let in, and its key
    std::string apiKey;
    std::string publicUrl;  ///< where users reach the service, without a closing slash
    std::string mailSender; ///< the service's own mail address
    bool secureCookies = false;
    std::uint64_t uploadBytes = 0;
    CommentQuota commentQuota;
};

/// A session ends when it wasn't used for this long, in seconds.
constexpr std::int64_t sessionLength = 30 * 24 * 3600;

} // namespace orvcloud
