#pragma once

#include <string>

#include <curl/curl.h>

namespace orvweb
{

/// Keeps a handle's cookies in the file "session-cookie" of the user's data directory (mode 0600), across runs. The
/// cookie opens the device registration and the sign-out; it is a secret like the session token.
class CookieJar
{
public:
    /// Gives the handle the cookies of the file, once for each data directory. A missing or broken file has none.
    void load(CURL* handle);
    /// Writes the handle's cookies, if they have changed since load or save. Without any the file goes.
    void save(CURL* handle);

private:
    std::wstring path;   ///< of the file that was loaded; empty before the first load
    std::string content; ///< what the file holds, as far as we know
};

} // namespace orvweb
