#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include <unistd.h>

namespace orvtest
{

/// While it lives, the rights of files hold for this program too: where it runs as the administrator, who may open
/// anything, it acts as a user without any privilege, who owns `folder` and all in it.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(std::filesystem::path const& folder) : isChanged(::geteuid() == 0)
    {
        if (!isChanged) {
            return;
        }
        EXPECT_EQ(::chown(folder.c_str(), nobody, nobody), 0);
        for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
            EXPECT_EQ(::lchown(entry.path().c_str(), nobody, nobody), 0);
        }
        EXPECT_EQ(::seteuid(nobody), 0);
    }
    ~OrdinaryUser()
    {
        if (isChanged) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    OrdinaryUser(OrdinaryUser const&) = delete;
    OrdinaryUser& operator=(OrdinaryUser const&) = delete;

private:
    static constexpr uid_t nobody = 65534;
    bool isChanged;
};

} // namespace orvtest
