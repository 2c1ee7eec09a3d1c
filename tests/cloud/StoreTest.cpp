#include "cloud/store/Store.h"

#include "cloud/RunningService.h"
#include "cloud/store/SqliteConnection.h"
#include "cloud/store/SqliteStore.h"
#include "cloud/store/StoreError.h"

#include <fstream>
#include <gmock/gmock.h>
#include <thread>

using namespace orvcloud;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{
const CommentQuota quota;
using OpenStore = std::unique_ptr<Store> (*)(const std::filesystem::path&);

/// What every kind of store must do; one more kind is one more value at the end.
class StoreTest : public ::testing::TestWithParam<OpenStore>
{
protected:
    StoreTest()
    {
        prepareSecrets();
        store = GetParam()(directory.path);
        ann = add("ann@example.org");
        bob = add("bob@example.org");
    }

    Account add(const std::string& email)
    {
        EXPECT_TRUE(store->addAccount(email, "Name of " + email, "public " + email, "hash", 100));
        return store->findAccount(email).value();
    }

    std::string addModel(const Account& owner, const std::string& file, std::vector<FeedEntry> first = {})
    {
        return store->addVersion(
            owner.id, file, {"prc", "00ff", 3}, randomUuid(), [&] { return first; }, 100);
    }

    std::vector<std::string> feedOf(std::int64_t model)
    {
        std::vector<std::string> contents;
        store->readFeed(model, [&](std::string_view content, std::int64_t) {
            contents.emplace_back(content);
            return true;
        });
        return contents;
    }

    orvcloud::testing::TemporaryDirectory directory;
    std::unique_ptr<Store> store;
    Account ann;
    Account bob;
};
} // namespace

TEST_P(StoreTest, KeepsAccounts)
{
    EXPECT_EQ(ann.email, "ann@example.org");
    EXPECT_EQ(ann.name, "Name of ann@example.org");
    EXPECT_EQ(ann.publicId, "public ann@example.org");
    EXPECT_EQ(ann.passwordHash, "hash");
    EXPECT_EQ(store->findAccount("ANN@Example.org").value().id, ann.id);
    EXPECT_FALSE(store->findAccount("ann@example.com"));
    EXPECT_FALSE(store->addAccount("Ann@example.org", "Another", "id", "hash", 100));
    ASSERT_EQ(store->accounts().size(), 2U);
    EXPECT_EQ(store->accounts()[1].email, "bob@example.org");
}

TEST_P(StoreTest, KeepsSessionsWhileTheyAreUsed)
{
    const auto token = hashOf("token");
    const auto cookie = hashOf("cookie");
    store->addSession(ann, token, cookie, 1000);
    EXPECT_EQ(store->accountOfToken(token, 1100, 900).value().id, ann.id);
    EXPECT_EQ(store->accountOfCookie(cookie, 1100, 900).value().id, ann.id);
    EXPECT_FALSE(store->accountOfToken(cookie, 1100, 900)) << "one secret doesn't stand for the other";
    EXPECT_FALSE(store->accountOfCookie(token, 1100, 900));
    EXPECT_FALSE(store->accountOfToken(hashOf("other"), 1100, 900));
    EXPECT_FALSE(store->accountOfToken(token, 2000, 1001)) << "unused for too long";
    EXPECT_TRUE(store->accountOfToken(token, 1300, 900)); // counts as use
    EXPECT_TRUE(store->accountOfToken(token, 1700, 1300));
    store->dropSessionsUnusedSince(1700);
    EXPECT_TRUE(store->accountOfToken(token, 1800, 0));
    store->dropSessionsUnusedSince(1701);
    EXPECT_FALSE(store->accountOfToken(token, 1800, 0));
}

TEST_P(StoreTest, EndsSessions)
{
    store->addSession(ann, hashOf("t1"), hashOf("c1"), 1000);
    store->addSession(ann, hashOf("t2"), hashOf("c2"), 1000);
    store->addSession(bob, hashOf("t3"), hashOf("c3"), 1000);
    store->endSessionOfCookie(hashOf("c1"));
    store->endSessionOfCookie(hashOf("unknown"));
    EXPECT_FALSE(store->accountOfToken(hashOf("t1"), 1000, 0));
    EXPECT_TRUE(store->accountOfToken(hashOf("t2"), 1000, 0));
    store->changePassword(ann.id, "new hash");
    EXPECT_EQ(store->findAccount("ann@example.org").value().passwordHash, "new hash");
    EXPECT_FALSE(store->accountOfToken(hashOf("t2"), 1000, 0));
    EXPECT_TRUE(store->accountOfToken(hashOf("t3"), 1000, 0));
}

TEST_P(StoreTest, ALoginUnderWayDoesntOutliveAPasswordsChange)
{
    // ann's password was checked against what `ann` holds; then somebody gives the account a new one.
    store->changePassword(ann.id, "new hash");
    EXPECT_FALSE(store->addSession(ann, hashOf("t1"), hashOf("c1"), 1000));
    EXPECT_FALSE(store->accountOfToken(hashOf("t1"), 1000, 0));
    EXPECT_FALSE(store->renewPasswordHash(ann.id, "hash", "the old password's dearer hash"));
    EXPECT_EQ(store->findAccount("ann@example.org").value().passwordHash, "new hash");
    EXPECT_TRUE(store->renewPasswordHash(ann.id, "new hash", "dearer hash"));
    EXPECT_EQ(store->findAccount("ann@example.org").value().passwordHash, "dearer hash");
    EXPECT_TRUE(store->addSession(store->findAccount("ann@example.org").value(), hashOf("t1"), hashOf("c1"), 1000));
    EXPECT_TRUE(store->renewPasswordHash(ann.id, "dearer hash", "dearest hash"));
    EXPECT_TRUE(store->accountOfToken(hashOf("t1"), 1000, 0)) << "the same password hashed anew ends nothing";
}

TEST_P(StoreTest, TakesADeviceAgain)
{
    const auto rows = [&](const Account& account) {
        std::vector<std::string> texts;
        for (const Device& device : store->devicesOf(account.id))
            texts.push_back(device.name + "/" + device.type + "/" + std::to_string(device.recorded));
        return texts;
    };
    store->recordDevice(ann.id, "laptop", "pc", 1);
    store->recordDevice(ann.id, "desk", "pc", 1);
    store->recordDevice(ann.id, "desk", "mac", 2);
    store->recordDevice(bob.id, "desk", "pc", 3);
    EXPECT_THAT(rows(ann), ElementsAre("desk/mac/2", "laptop/pc/1"));
    EXPECT_THAT(rows(bob), ElementsAre("desk/pc/3"));
}

TEST_P(StoreTest, KeepsEveryVersion)
{
    const auto version = [&](const Account& owner, const ModelVersion& added) {
        return store->addVersion(
            owner.id, "a.step", added, randomUuid(), [] { return std::vector<FeedEntry>(); }, 100);
    };
    const std::string job = version(ann, {"prc", "aa", 3});
    version(ann, {"orvanta", "bb", std::uint64_t{5} << 32});
    version(bob, {"prc", "cc", 1});
    version(ann, {"prc", "aa", 3});
    std::vector<std::string> texts;
    for (const ModelVersion& kept : store->versionsOf(store->accessTo(ann, job)->modelId))
        texts.push_back(kept.type + "/" + kept.contentHash + "/" + std::to_string(kept.size));
    EXPECT_THAT(texts, ElementsAre("prc/aa/3", "orvanta/bb/21474836480", "prc/aa/3"));
}

TEST_P(StoreTest, AnAuthorsShareOfAFeedIsLimited)
{
    const auto one = store->accessTo(ann, addModel(ann, "a.step", {{"auto", std::string(500, 'x')}}))->modelId;
    const auto other = store->accessTo(ann, addModel(ann, "b.step"))->modelId;
    const CommentQuota few{2, 100};
    const auto put = [&](std::int64_t model, const Account& author, const char* id, std::size_t size) {
        return store->putComment(model, author.id, {id, std::string(size, 'y')}, few, 1);
    };
    EXPECT_EQ(put(one, ann, "c0", 101), CommentChange::overQuota);
    EXPECT_EQ(put(one, ann, "c1", 60), CommentChange::done) << "the service's own entries don't count";
    EXPECT_EQ(put(one, ann, "c2", 41), CommentChange::overQuota);
    EXPECT_EQ(put(one, ann, "c2", 40), CommentChange::done);
    EXPECT_EQ(put(one, ann, "c3", 0), CommentChange::overQuota) << "two are enough";
    EXPECT_EQ(put(one, ann, "c1", 61), CommentChange::overQuota);
    EXPECT_EQ(put(one, ann, "c1", 10), CommentChange::done) << "what is replaced makes room";
    EXPECT_EQ(put(one, ann, "c2", 90), CommentChange::done);
    EXPECT_EQ(put(one, bob, "c4", 100), CommentChange::done) << "another author";
    EXPECT_EQ(put(other, ann, "c1", 100), CommentChange::done) << "another model";
    EXPECT_EQ(feedOf(one).size(), 4U);
    EXPECT_EQ(store->deleteComment(one, "c2", ann.id), CommentChange::done);
    EXPECT_EQ(put(one, ann, "c5", 90), CommentChange::done);
}

TEST_P(StoreTest, AFeedNamesItsAuthors)
{
    const auto model = store->accessTo(ann, addModel(ann, "a.step", {{"auto", "entry"}}))->modelId;
    store->putComment(model, bob.id, {"c1", "one"}, quota, 1);
    std::vector<std::int64_t> authors;
    store->readFeed(model, [&](std::string_view, std::int64_t author) {
        authors.push_back(author);
        return true;
    });
    EXPECT_THAT(authors, ElementsAre(bob.id, 0));
}

TEST_P(StoreTest, AModelKeepsItsJobId)
{
    const std::string first = addModel(ann, "a.step", {{"auto", "entry"}});
    EXPECT_EQ(addModel(ann, "a.step", {{"auto", "another"}}), first);
    EXPECT_NE(addModel(ann, "b.step"), first);
    EXPECT_NE(addModel(bob, "a.step"), first);
    EXPECT_EQ(store->findModel(ann, "a.step").value_or(""), first);
    EXPECT_FALSE(store->findModel(ann, "A.step"));
    EXPECT_THAT(feedOf(store->accessTo(ann, first)->modelId), ElementsAre("entry")) << "only a new model gets entries";
}

TEST_P(StoreTest, AFailedFirstEntryLeavesNoModel)
{
    const auto failing = []() -> std::vector<FeedEntry> { throw std::runtime_error("no entries"); };
    EXPECT_THROW(store->addVersion(ann.id, "a.step", {"prc", "00", 1}, "job", failing, 1), std::runtime_error);
    EXPECT_FALSE(store->findModel(ann, "a.step"));
    EXPECT_FALSE(addModel(ann, "a.step").empty()) << "the next transaction isn't hindered";
}

TEST_P(StoreTest, SharesGiveAccess)
{
    const std::string job = addModel(ann, "a.step");
    const auto own = store->accessTo(ann, job);
    ASSERT_TRUE(own);
    EXPECT_TRUE(own->owns);
    EXPECT_EQ(own->fileName, "a.step");
    EXPECT_FALSE(store->accessTo(bob, job));
    EXPECT_FALSE(store->accessTo(bob, "no such job"));
    EXPECT_FALSE(store->findModel(bob, "a.step"));

    const std::vector<std::string> addresses{"BOB@example.org", "later@example.org"};
    store->share(own->modelId, addresses, 200);
    store->share(own->modelId, addresses, 300);
    ASSERT_TRUE(store->accessTo(bob, job));
    EXPECT_FALSE(store->accessTo(bob, job)->owns);
    EXPECT_EQ(store->findModel(bob, "a.step").value_or(""), job);
    EXPECT_TRUE(store->accessTo(add("later@example.org"), job)) << "the invitation came before the account";
}

TEST_P(StoreTest, OnesOwnModelGoesBeforeSharedOnes)
{
    const Account eve = add("eve@example.org");
    const std::vector<std::string> toEve{"eve@example.org"};
    const std::string anns = addModel(ann, "a.step");
    const std::string bobs = addModel(bob, "a.step");
    store->share(store->accessTo(bob, bobs)->modelId, toEve, 200);
    store->share(store->accessTo(ann, anns)->modelId, toEve, 300);
    EXPECT_EQ(store->findModel(eve, "a.step").value_or(""), anns) << "the latest share";
    const std::string eves = addModel(eve, "a.step");
    EXPECT_EQ(store->findModel(eve, "a.step").value_or(""), eves);
}

TEST_P(StoreTest, AFeedIsNewestFirst)
{
    const auto model = store->accessTo(ann, addModel(ann, "a.step", {{"auto1", "low"}, {"auto2", "high"}}))->modelId;
    EXPECT_EQ(store->putComment(model, ann.id, {"c1", "one"}, quota, 200), CommentChange::done);
    EXPECT_EQ(store->putComment(model, bob.id, {"c2", "two"}, quota, 200), CommentChange::done);
    EXPECT_THAT(feedOf(model), ElementsAre("two", "one", "high", "low"));
    EXPECT_EQ(store->putComment(model, ann.id, {"c1", "one more"}, quota, 300), CommentChange::done);
    EXPECT_THAT(feedOf(model), ElementsAre("two", "one more", "high", "low")) << "a replaced entry keeps its place";
    EXPECT_EQ(store->putComment(model, bob.id, {"c1", "taken over"}, quota, 300), CommentChange::refused);
    EXPECT_EQ(store->putComment(model, ann.id, {"auto1", "taken over"}, quota, 300), CommentChange::refused);
    EXPECT_THAT(feedOf(model), ElementsAre("two", "one more", "high", "low"));

    int visits = 0;
    store->readFeed(model, [&](std::string_view, std::int64_t) { return ++visits < 2; });
    EXPECT_EQ(visits, 2);
}

TEST_P(StoreTest, CommentsBelongToTheirModel)
{
    const auto one = store->accessTo(ann, addModel(ann, "a.step"))->modelId;
    const auto other = store->accessTo(ann, addModel(ann, "b.step"))->modelId;
    EXPECT_EQ(store->putComment(one, ann.id, {"c1", "one"}, quota, 200), CommentChange::done);
    EXPECT_EQ(store->putComment(other, bob.id, {"c1", "other"}, quota, 200), CommentChange::done);
    EXPECT_THAT(feedOf(one), ElementsAre("one"));
    EXPECT_THAT(feedOf(other), ElementsAre("other"));
}

TEST_P(StoreTest, AuthorAndOwnerDelete)
{
    const auto model = store->accessTo(ann, addModel(ann, "a.step", {{"auto", "entry"}}))->modelId;
    store->putComment(model, bob.id, {"c1", "one"}, quota, 200);
    store->putComment(model, bob.id, {"c2", "two"}, quota, 200);
    EXPECT_EQ(store->deleteComment(model, "c1", add("eve@example.org").id), CommentChange::refused);
    EXPECT_EQ(store->deleteComment(model, "auto", bob.id), CommentChange::refused);
    EXPECT_EQ(feedOf(model).size(), 3U);
    EXPECT_EQ(store->deleteComment(model, "c1", bob.id), CommentChange::done);
    EXPECT_EQ(store->deleteComment(model, "c2", ann.id), CommentChange::done);
    EXPECT_EQ(store->deleteComment(model, "auto", ann.id), CommentChange::done);
    EXPECT_EQ(store->deleteComment(model, "auto", ann.id), CommentChange::absent);
    EXPECT_THAT(feedOf(model), IsEmpty());
}

TEST_P(StoreTest, TextsComeBackAsTheyWere)
{
    const std::string name = "\xE6\xA8\xA1 '; DROP TABLE model; -- \".step";
    const std::string content(300'000, 'x');
    const auto job = addModel(ann, name);
    const auto model = store->accessTo(ann, job);
    EXPECT_EQ(model->fileName, name);
    store->putComment(model->modelId, ann.id, {name, content}, quota, 1);
    EXPECT_THAT(feedOf(model->modelId), ElementsAre(content));
}

TEST_P(StoreTest, OutlivesAnotherProcessesUse)
{
    const auto second = GetParam()(directory.path); // as the command line opens it beside the service
    EXPECT_TRUE(second->addAccount("eve@example.org", "Eve", "public", "hash", 100));
    EXPECT_TRUE(store->findAccount("eve@example.org"));
    const std::string job = addModel(ann, "a.step");
    store.reset();
    store = GetParam()(directory.path);
    EXPECT_EQ(store->findModel(ann, "a.step").value_or(""), job);
}

TEST_P(StoreTest, TakesManyThreads)
{
    const auto second = GetParam()(directory.path);
    const auto model = store->accessTo(ann, addModel(ann, "a.step"))->modelId;
    std::vector<std::thread> threads;
    for (int t = 0; t < 6; ++t)
        threads.emplace_back([&, t] {
            Store& used = t % 2 == 0 ? *store : *second;
            for (int i = 0; i < 20; ++i) {
                used.putComment(model, ann.id, {std::to_string(t) + "/" + std::to_string(i), "x"}, quota, 1);
                used.readFeed(model, [](std::string_view, std::int64_t) { return true; });
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(feedOf(model).size(), 120U);
}

INSTANTIATE_TEST_SUITE_P(Sqlite, StoreTest, ::testing::Values(&openSqliteStore));

TEST(SqliteStore, SaysWhatIsWrongWithItsFile)
{
    const orvcloud::testing::TemporaryDirectory directory;
    std::ofstream(directory.path / "cloud.db") << "this is no database, although it is long enough to look like one";
    EXPECT_THROW(openSqliteStore(directory.path), StoreError);
    EXPECT_THROW(openSqliteStore(directory.path / "missing"), StoreError);
}

TEST(SqliteStore, KeepsEachConnectionSafe)
{
    const orvcloud::testing::TemporaryDirectory directory;
    const auto valueOf = [](SqliteConnection& connection, const char* pragma) {
        SqliteStatement row(connection, pragma);
        row.step();
        return std::string(row.text(0));
    };
    SqliteConnection writer(directory.path / "cloud.db", SqliteConnection::Role::writer);
    SqliteConnection reader(directory.path / "cloud.db", SqliteConnection::Role::reader);
    for (SqliteConnection* connection : {&writer, &reader}) {
        EXPECT_EQ(valueOf(*connection, "PRAGMA journal_mode"), "wal");
        EXPECT_EQ(valueOf(*connection, "PRAGMA synchronous"), "2");
        EXPECT_EQ(valueOf(*connection, "PRAGMA foreign_keys"), "1");
        EXPECT_EQ(valueOf(*connection, "PRAGMA busy_timeout"), "10000");
    }
    EXPECT_EQ(valueOf(reader, "PRAGMA wal_autocheckpoint"), "0");
    EXPECT_NE(valueOf(writer, "PRAGMA wal_autocheckpoint"), "0");
    EXPECT_THROW(reader.run("CREATE TABLE t(x)"), StoreError);
}

TEST(SqliteStore, RefusesADatabaseWithoutAWriteAheadLog)
{
    EXPECT_THROW(SqliteConnection(":memory:", SqliteConnection::Role::writer), StoreError);
}

TEST(SqliteStore, BringsAnOlderDatabaseUpToDate)
{
    prepareSecrets();
    const orvcloud::testing::TemporaryDirectory directory;
    const CommentQuota small{10, 100};
    {
        const auto store = openSqliteStore(directory.path);
        store->addAccount("ann@example.org", "Ann", "public", "hash", 1);
        const Account ann = store->findAccount("ann@example.org").value();
        const auto none = [] { return std::vector<FeedEntry>(); };
        const auto job = store->addVersion(ann.id, "a.step", {"prc", "00", 1}, "job", none, 1);
        store->putComment(store->accessTo(ann, job)->modelId, ann.id, {"c1", "\xC3\xA9" + std::string(58, 'x')}, quota,
                          1);
    }
    {
        SqliteConnection old(directory.path / "cloud.db", SqliteConnection::Role::writer);
        old.run("DROP INDEX comment_by_author; ALTER TABLE comment DROP COLUMN size; PRAGMA user_version = 1");
    }
    const auto store = openSqliteStore(directory.path);
    const Account ann = store->findAccount("ann@example.org").value();
    const auto model = store->accessTo(ann, "job")->modelId;
    EXPECT_EQ(store->putComment(model, ann.id, {"c2", std::string(41, 'x')}, small, 1), CommentChange::overQuota);
    EXPECT_EQ(store->putComment(model, ann.id, {"c2", std::string(40, 'x')}, small, 1), CommentChange::done);
}

TEST(SqliteStore, LeavesANewerDatabaseAlone)
{
    const orvcloud::testing::TemporaryDirectory directory;
    SqliteConnection(directory.path / "cloud.db", SqliteConnection::Role::writer).run("PRAGMA user_version = 1000");
    EXPECT_THROW(openSqliteStore(directory.path), StoreError);
}
