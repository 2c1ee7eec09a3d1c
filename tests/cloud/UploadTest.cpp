#include "cloud/RunningService.h"
#include "cloud/store/SqliteStore.h"

#include <fstream>
#include <gmock/gmock.h>

using namespace orvcloud;
using namespace orvcloud::testing;
namespace fs = std::filesystem;

namespace
{
class Upload : public RunningService
{
protected:
    std::vector<std::string> storedFiles() const
    {
        std::vector<std::string> contents;
        for (const auto& entry : fs::recursive_directory_iterator(config.dataDirectory / "files")) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream stream(entry.path(), std::ios::binary);
            contents.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
        }
        return contents;
    }

    bool nothingIsLeft() const { return fs::is_empty(config.dataDirectory / "incoming") && storedFiles().empty(); }

    Reply sendParts(const SignedIn& user, const Fields& fields, const std::string* file)
    {
        Fields headers = standardHeaders(user);
        headers.emplace_back("Content-Type", "multipart/form-data; boundary=b");
        return sendRequest(url, "POST", "/api/Upload/", headers, encodeMultipart(fields, file, "b"));
    }
};

const std::string content = "some content";
} // namespace

TEST_F(Upload, StoresTheFileAndGivesAJobId)
{
    const SignedIn ann = signIn("ann");
    std::string bytes(300'000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 2654435761U >> 13);
    bytes += "\r\n--the-boundar\r\n--the";
    const Reply reply = upload(ann, "bracket.step", bytes);
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.body.size(), 36U);
    EXPECT_THAT(storedFiles(), ::testing::ElementsAre(bytes));
    EXPECT_TRUE(fs::is_empty(config.dataDirectory / "incoming"));
}

TEST_F(Upload, TheSameNameKeepsItsJobIdAndItsFeed)
{
    const SignedIn ann = signIn("ann");
    const std::string job = push(ann, "a.step");
    ASSERT_EQ(comment(ann, job, "c1", "{}").body, "ok");
    EXPECT_EQ(upload(ann, "a.step", "new", "/api/Upload/", "orvanta").body, job);
    EXPECT_EQ(upload(ann, "a.step", "picture", "/api/Upload/", "png").body, job);
    const auto store = openSqliteStore(config.dataDirectory);
    const auto model = store->accessTo(store->findAccount(ann.email).value(), job)->modelId;
    std::string versions;
    for (const ModelVersion& version : store->versionsOf(model)) {
        versions += version.type + "/" + std::to_string(version.size) + " ";
        EXPECT_EQ(version.contentHash.size(), 64U);
    }
    EXPECT_EQ(versions, "prc/13 orvanta/3 png/7 ");
    EXPECT_EQ(store->versionsOf(model)[1].contentHash,
              "11507a0e2f5e69d5dfa40a62a1bd7b6ee57e6bcd85c67c9b8431b36fff21c437"); // SHA-256 of "new"
    EXPECT_EQ(feed(ann, job).size(), 7U) << "one comment and the six automatic entries of the first upload";
    EXPECT_EQ(storedFiles().size(), 3U);
    EXPECT_NE(push(ann, "b.step"), job);
    EXPECT_NE(push(signIn("bob"), "a.step"), job);
}

TEST_F(Upload, TheFirstOneMakesTheAutomaticEntries)
{
    const SignedIn ann = signIn("ann");
    const std::string job = push(ann, "a.step");
    ASSERT_EQ(comment(ann, job, "c1", "{}").body, "ok");
    const auto entries = feed(ann, job);
    ASSERT_EQ(entries.size(), 7U);
    const char* values[] = {"3ds", "obj", "stl", "pdf", "csv", "bompdf"};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_THAT(entries[i + 1], ::testing::HasSubstr(std::string("\"value\":\"") + values[i] + "\""));
}

TEST_F(Upload, AnEmptyFileIsAFile)
{
    EXPECT_EQ(upload(signIn("ann"), "a.step", "").body.size(), 36U);
}

TEST_F(Upload, RefusesNamesThatAreNone)
{
    const SignedIn ann = signIn("ann");
    for (const std::string name : {"", ".", "..", "../a.step", "a/b", "a\\b", "a\nb"})
        EXPECT_EQ(upload(ann, name, content).status, 400) << name;
    EXPECT_EQ(upload(ann, std::string(256, 'x'), content).status, 400);
    EXPECT_EQ(upload(ann, "a\xFF", content).status, 400);
    for (const std::string type : {"", "PRC", "../x", "averyverylongtype"})
        EXPECT_EQ(upload(ann, "a.step", content, "/api/Upload/", type).status, 400) << type;
    EXPECT_TRUE(nothingIsLeft());
}

TEST_F(Upload, RefusesFormsThatLackSomething)
{
    const SignedIn ann = signIn("ann");
    const Fields whole{{"name", ORVANTA_API_ID}, {"username", ann.email}, {"type", "prc"}, {"filename", "a.step"}};
    for (std::size_t i = 0; i < whole.size(); ++i) {
        Fields some = whole;
        some.erase(some.begin() + static_cast<std::ptrdiff_t>(i));
        EXPECT_EQ(sendParts(ann, some, &content).status, i == 0 ? 403 : 400) << whole[i].first;
    }
    EXPECT_EQ(sendParts(ann, whole, nullptr).status, 400) << "no file";
    Fields twice = whole;
    twice.emplace_back("type", "png");
    EXPECT_EQ(sendParts(ann, twice, &content).status, 400);
    Fields behind = whole;
    behind.insert(behind.begin(), {"file", "a parameter of the file's name"});
    EXPECT_EQ(sendParts(ann, behind, &content).status, 403) << "the file came before the parameters";
    EXPECT_TRUE(nothingIsLeft());
}

TEST_F(Upload, AnswersBeforeTheEndIfTheStartIsWrong)
{
    const SignedIn ann = signIn("ann");
    RawConnection connection(url);
    connection.send("POST /api/Upload/ HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY
                    "\r\nAuthorization: Bearer " +
                    ann.token + "\r\nContent-Type: multipart/form-data; boundary=b\r\nContent-Length: 1000000\r\n\r\n" +
                    std::string(70'000, 'x'));
    const Reply reply = connection.receive();
    EXPECT_EQ(reply.status, 400);
    EXPECT_EQ(reply.headers.at("connection"), "close");
}

TEST_F(Upload, ThatBreaksOffLeavesNothing)
{
    const SignedIn ann = signIn("ann");
    const std::string body = encodeMultipart(
        {{"name", ORVANTA_API_ID}, {"username", ann.email}, {"type", "prc"}, {"filename", "a.step"}}, &content, "b");
    {
        RawConnection connection(url);
        connection.send("POST /api/Upload/ HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY
                        "\r\nAuthorization: Bearer " +
                        ann.token + "\r\nContent-Type: multipart/form-data; boundary=b\r\nContent-Length: " +
                        std::to_string(body.size() + 100) + "\r\n\r\n" + body);
    }
    stop(); // waits for requests under way
    EXPECT_TRUE(nothingIsLeft());
    start();
    EXPECT_EQ(get(ann, "/api/isFilePresent/", {{"filename", "a.step"}}).body, "");
}

TEST_F(Upload, WithoutItsClosingBoundaryIsntStored)
{
    const SignedIn ann = signIn("ann");
    Fields headers = standardHeaders(ann);
    headers.emplace_back("Content-Type", "multipart/form-data; boundary=b");
    std::string body = encodeMultipart(
        {{"name", ORVANTA_API_ID}, {"username", ann.email}, {"type", "prc"}, {"filename", "a.step"}}, &content, "b");
    body.resize(body.size() - 4);
    EXPECT_EQ(sendRequest(url, "POST", "/api/Upload/", headers, body).status, 400);
    EXPECT_TRUE(nothingIsLeft());
}

TEST_F(Upload, HasALargestSize)
{
    stop();
    config.limits.uploadBytes = 100'000;
    start();
    const SignedIn ann = signIn("ann");
    EXPECT_EQ(upload(ann, "a.step", std::string(99'000, 'x')).status, 200);
    EXPECT_EQ(upload(ann, "b.step", std::string(100'000, 'x')).status, 413);
}

TEST_F(Upload, WaitsForPermissionToSend)
{
    const SignedIn ann = signIn("ann");
    const std::string head = "POST /api/Upload/ HTTP/1.1\r\nHost: x\r\nX-Api-Key: " ORVANTA_API_KEY
                             "\r\nContent-Type: multipart/form-data; boundary=b\r\nExpect: 100-continue\r\n";
    const std::string body = encodeMultipart(
        {{"name", ORVANTA_API_ID}, {"username", ann.email}, {"type", "prc"}, {"filename", "a.step"}}, &content, "b");
    const std::string length = "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n";
    RawConnection allowed(url);
    allowed.send(head + "Authorization: Bearer " + ann.token + "\r\n" + length);
    EXPECT_EQ(allowed.receive().status, 100);
    allowed.send(body);
    EXPECT_EQ(allowed.receive().status, 200);
    RawConnection refused(url);
    refused.send(head + "Authorization: Bearer nonsense\r\n" + length);
    EXPECT_EQ(refused.receive().status, 401) << "no \"100 Continue\" comes first";
}

TEST_F(Upload, IsFoundByItsName)
{
    const SignedIn ann = signIn("ann");
    const std::string job = push(ann, "br\xC3\xA4 cket+1.step");
    const Reply found = get(ann, "/api/isFilePresent/", {{"filename", "br\xC3\xA4 cket+1.step"}});
    EXPECT_EQ(found.status, 200);
    EXPECT_EQ(found.body, job);
    const Reply missing = get(ann, "/api/isFilePresent/", {{"filename", "other.step"}});
    EXPECT_EQ(missing.status, 200);
    EXPECT_EQ(missing.body, "");
    EXPECT_EQ(get(ann, "/api/isFilePresent/", {}).status, 400);
}
