#pragma once

#include "host/runtime/Files.h"

#include <string>

#include <curl/curl.h>

namespace orvweb
{

/// Keeps a handle's cookies in the file "session-cookie" of the user's data directory (mode 0600), across runs. The
/// cookie opens the device registration and the sign-out; it is a secret like the session token. Cookies know no ports,
/// so the jar keeps those of each service apart: none ever goes to another one on the same machine.
class CookieJar
{
public:
    /// Gives the handle the cookies that the file has of `service` ("https://cloud.example:443"), and no others, as
    /// soon as the service or the data directory is another one, or the file has been written by another process. A
    /// missing or broken file has none. Cookies that couldn't be saved yet stay.
    void load(CURL* handle, std::string const& service);
    /// Writes the handle's cookies, if they have changed since load or save. Without any of any service the file goes.
    void save(CURL* handle);

private:
    std::wstring path;   ///< of the file that was loaded; empty before the first load
    std::string owner;   ///< the service whose cookies the handle has
    std::string content; ///< what the file holds of that service, as far as we know
    orvhost::FileStamp stamp{};
    bool isSaved = true; ///< false where the handle's cookies could not be written
};

} // namespace orvweb
