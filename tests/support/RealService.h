#pragma once

#include "cloud/RunningService.h"

#include <string>

namespace orvtest
{

/// The real service on a loopback port, as a part of a test of the viewer's side: ann, bob and eve have accounts.
class RealService final : public orvcloud::testing::RunningService
{
public:
    using RunningService::config;
    using RunningService::feed;
    using RunningService::get;
    using RunningService::login;
    using RunningService::logText;
    using RunningService::outbox;
    using RunningService::push;
    using RunningService::signIn;
    using RunningService::start;
    using RunningService::stop;

    std::wstring wideUrl() const { return {url.begin(), url.end()}; }

private:
    void TestBody() override {}
};

} // namespace orvtest
