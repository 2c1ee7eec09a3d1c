#pragma once

#include "ui/account/AccountTest.h"

#include <string>

namespace orvtest
{

/// The login dialog over loopback, and what a login leaves in the user's record.
class LoginOverHttp : public AccountTest
{
protected:
    /// Of one form field after the other, as they stand in a body or a query.
    static std::string form(std::string const& rest)
    {
        return "name=" + apiId() + "&username=ann%40example.com&" + rest;
    }
    std::string body(std::size_t request) const { return server.requests().at(request).body; }
    void expectSignedIn() const
    {
        EXPECT_EQ(user->username, L"ann@example.com");
        EXPECT_EQ(user->userid, token);
    }
    void expectNobody() const
    {
        EXPECT_EQ(user->username, L"");
        EXPECT_EQ(user->userid, L"");
        EXPECT_TRUE(hints().empty());
    }
};

} // namespace orvtest
