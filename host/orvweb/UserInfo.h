#pragma once

#include <string>

namespace orvweb
{

/// The signed-in user. An empty userid means that nobody is signed in.
class UserInfo
{
public:
    virtual ~UserInfo() = default;

    std::wstring userid;   ///< the 36-character token that the service gave at login
    std::wstring username; ///< the e-mail address
    std::wstring name;     ///< the display name
};

} // namespace orvweb
