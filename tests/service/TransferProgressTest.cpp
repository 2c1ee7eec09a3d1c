#include "service/StatusUpdator.h"

#include <gtest/gtest.h>

namespace
{

TEST(TransferProgress, StartsWithoutAResponse)
{
    StatusUpdator const updator;
    EXPECT_EQ(updator.getResponse(), L"");
    EXPECT_EQ(updator.getResponse(), L"");
}

TEST(TransferProgress, KeepsTheLastResponse)
{
    StatusUpdator updator;
    updator.updateResponse(1, L"first");
    updator.updateResponse(0, L"second");
    EXPECT_EQ(updator.getResponse(), L"second");
    EXPECT_EQ(updator.getResponse(), L"second") << "reading it doesn't take it";
}

TEST(TransferProgress, ReachesThroughTheInterface)
{
    StatusUpdator updator;
    orv::IStatusUpdator& channel = updator;
    channel.updateResponse(1, L"answer");
    EXPECT_EQ(updator.getResponse(), L"answer");
}

TEST(TransferProgress, TakesTheTextThatItHoldsAlready)
{
    StatusUpdator updator;
    updator.updateResponse(1, L"answer");
    updator.updateResponse(1, updator.getResponse());
    EXPECT_EQ(updator.getResponse(), L"answer");
}

TEST(TransferProgress, TakesItsOwnText)
{
    StatusUpdator updator;
    std::wstring const answer(1000, L'a'); // too long to lie in the object itself
    updator.updateResponse(1, answer);
    // The text is the one field, behind the table of operations.
    static_assert(sizeof updator == sizeof(void*) + sizeof(std::wstring));
    auto const* const place = reinterpret_cast<char const*>(&updator) + sizeof(void*);
    auto const& own = *reinterpret_cast<std::wstring const*>(place);
    ASSERT_EQ(own, answer);
    updator.updateResponse(1, own);
    EXPECT_EQ(updator.getResponse(), answer);
}

TEST(TransferProgress, ShowsNothingOfAPercentage)
{
    StatusUpdator updator;
    updator.updateResponse(1, L"answer");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (int const percent : {0, 50, 100, 250, -1}) {
        updator.updateProgress(0, percent);
        updator.updateProgress(1, percent);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(updator.getResponse(), L"answer");
}

} // namespace
