// The server below the application: what it answers when the application fails, how it counts its peers, what it
// concedes.

#include "cloud/RunningService.h"

#include "cloud/api/Parts.h"
#include "cloud/http/ServerState.h"
#include "cloud/store/StoreError.h"

#include <chrono>
#include <gmock/gmock.h>

using namespace orvcloud;
using namespace orvcloud::testing;

namespace
{
/// An application that fails wherever its address says.
class Failing final : public Application
{
public:
    Admission admit(const RequestHead& head) override
    {
        Admission admission;
        admission.bodyLimit = 100;
        admission.sink = std::make_unique<Sink>(head.path);
        failAt("/admit", head.path);
        return admission;
    }

private:
    static void failAt(const std::string& place, const std::string& path)
    {
        if (path == place)
            throw std::runtime_error("a detail of " + place);
        if (path == place + "/full")
            throw StoreError("a detail of a full disk", true);
        if (path == place + "/store")
            throw StoreError("a detail of the store", false);
    }

    struct Sink final : BodySink {
        explicit Sink(std::string asked) : path(std::move(asked)) {}
        std::optional<Answer> take(std::string_view) override
        {
            failAt("/take", path);
            return std::nullopt;
        }
        Answer finish() override
        {
            failAt("/finish", path);
            return {};
        }
        std::string path;
    };
};
} // namespace

TEST(Server, AnswersForAnApplicationThatFails)
{
    Failing application;
    std::mutex mutex;
    std::string logged;
    const auto log = [&](const std::string& line) {
        const std::lock_guard guard(mutex);
        logged += line + "\n";
    };
    Server server({"127.0.0.1:0", "", "", {}, false, log, [] { return std::int64_t{0}; }}, application);
    server.start();
    const std::string url = "http://" + server.address();
    for (const std::string place : {"/admit", "/take", "/finish"}) {
        for (const auto& [path, status] :
             {std::pair(place, 500), std::pair(place + "/store", 500), std::pair(place + "/full", 507)}) {
            const Reply reply = sendRequest(url, "POST", path, {}, "body");
            EXPECT_EQ(reply.status, status) << path;
            EXPECT_EQ(reply.body.find("detail"), std::string::npos) << reply.body;
        }
        EXPECT_THAT(logged, ::testing::HasSubstr("error: a detail of " + place + "\n"));
    }
    EXPECT_THAT(logged, ::testing::HasSubstr("error: a detail of a full disk\n"));
    EXPECT_EQ(sendRequest(url, "POST", "/fine", {}, "body").status, 200);
}

TEST(Server, CountsTheConnectionsOfEachPeer)
{
    ConnectionCount count(5, 2);
    EXPECT_TRUE(count.enter("a", false));
    EXPECT_TRUE(count.enter("a", false));
    EXPECT_FALSE(count.enter("a", false));
    EXPECT_TRUE(count.enter("b", false));
    count.leave("a");
    EXPECT_TRUE(count.enter("a", false));
    EXPECT_TRUE(count.enter("proxy", true));
    EXPECT_TRUE(count.enter("proxy", true));
    EXPECT_FALSE(count.enter("proxy", true)) << "five in all";
    {
        count.leave("b");
        const ConnectionCount::Entry entry(count, "c", false);
        EXPECT_TRUE(entry.isFree());
        EXPECT_FALSE(ConnectionCount::Entry(count, "c", false).isFree());
    }
    EXPECT_TRUE(ConnectionCount::Entry(count, "c", false).isFree()) << "left at the end, and only if entered";
    EXPECT_TRUE(count.enter("c", false));
    EXPECT_FALSE(count.enter("d", false));
}

TEST(Server, ConcedesByDefaultWhatItsPageSays)
{
    using std::chrono::seconds;
    const Limits limits;
    EXPECT_EQ(limits.idle, seconds(60));
    EXPECT_EQ(limits.header, seconds(15));
    EXPECT_EQ(limits.transfer, seconds(30));
    EXPECT_EQ(limits.slowestBytesPerSecond, 1024U);
    EXPECT_EQ(limits.headerBytes, 8192U);
    EXPECT_EQ(limits.uploadBytes, 4ULL << 30);
    const Config config;
    EXPECT_EQ(config.listen, "127.0.0.1:8640");
    EXPECT_EQ(config.hashCost.passes, 2U);
    EXPECT_EQ(config.hashCost.memoryBytes, 64U << 20);
    EXPECT_FALSE(config.behindProxy);
    EXPECT_EQ(sessionLength, 30 * 24 * 3600);
}
