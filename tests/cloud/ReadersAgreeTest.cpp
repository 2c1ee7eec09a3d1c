#include "cloud/feed/Feed.h"
#include "cloud/feed/Record.h"
#include "feed/FeedReader.h"

#include <exception>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace orvcloud;

// The service refuses what a client's reader would stumble over. It has its own idea of that reader, since the two
// share no code; here both meet the same records.

namespace
{
const Account account{7, "public-id", "ann@example.org", "Ann", "hash"};

bool isTaken(const std::string& record)
{
    return std::holds_alternative<std::string>(prepareRecord(record, {account, "", "17", "17"}));
}

bool canBeRead(const std::string& record)
{
    FeedText answer;
    answer.add(record);
    const std::string text = answer.finish();
    try {
        return FeedReader().read(std::wstring(text.begin(), text.end())).size() == 1;
    } catch (const std::exception&) {
        return false;
    }
}

std::string recordWith(const std::string& path, const std::string& value)
{
    const auto dot = path.rfind('.');
    const std::string member = "{\"" + path.substr(dot == std::string::npos ? 0 : dot + 1) + "\":" + value + "}";
    return dot == std::string::npos ? member : recordWith(path.substr(0, dot), member);
}

const std::vector<const char*> members{"author.canEdit",
                                       "author.canDelete",
                                       "file",
                                       "file.id",
                                       "file.name",
                                       "action",
                                       "action.type",
                                       "action.value",
                                       "source",
                                       "thumbnail",
                                       "commentcontent",
                                       "commentcontent.id",
                                       "commentcontent.commentType",
                                       "commentcontent.content",
                                       "commentcontent.publishedTime",
                                       "commentcontent.updatedTime",
                                       "commentcontent.viewport",
                                       "commentcontent.viewport.eye",
                                       "commentcontent.viewport.target",
                                       "commentcontent.viewport.up",
                                       "commentcontent.viewport.zoom",
                                       "commentcontent.objects",
                                       "commentcontent.objects.colored",
                                       "commentcontent.objects.transparent",
                                       "commentcontent.objects.hidden",
                                       "commentcontent.objects.nodecolor",
                                       "commentcontent.objects.nodetransform",
                                       "unknown"};

const std::vector<const char*> values{"null",
                                      "true",
                                      "17",
                                      "-1",
                                      "2.5",
                                      "1e30",
                                      "2147483647",
                                      "2147483648",
                                      "-2147483649",
                                      "18446744073709551615",
                                      "\"17\"",
                                      "\"\"",
                                      "\"a\\u0000b\"",
                                      "[]",
                                      "{}",
                                      "[1]",
                                      "[1,2,3]",
                                      "[1,2,3,4]",
                                      "[2147483648]",
                                      "[3e9]",
                                      "[\"1\"]",
                                      "[null]",
                                      "[[]]",
                                      "[[1,2,3]]",
                                      "[[\"r\"]]",
                                      "[{}]",
                                      "[5]",
                                      "{\"1\":5}",
                                      "{\"1\":2147483648}",
                                      "{\"1\":\"red\"}",
                                      "{\"1\":null}",
                                      "{\"1\":[]}",
                                      "{\"1\":[1,2]}",
                                      "{\"1\":[\"x\"]}",
                                      "{\"1\":{}}",
                                      "{\"x\":[1]}",
                                      "{\"99999999999999999999\":[1]}"};
} // namespace

TEST(ReadersAgree, OnEveryKindOfValueInEveryMember)
{
    int taken = 0;
    int refused = 0;
    for (const char* member : members) {
        for (const char* value : values) {
            const std::string record = recordWith(member, value);
            const bool contradictsItsRequest =
                canBeRead(record) && (std::string(member) == "file.id" || std::string(member) == "commentcontent.id");
            if (contradictsItsRequest)
                continue;
            EXPECT_EQ(isTaken(record), canBeRead(record)) << record;
            ++(isTaken(record) ? taken : refused);
        }
    }
    EXPECT_GT(taken, 200);
    EXPECT_GT(refused, 200);
}

TEST(ReadersAgree, OnTheAuthorsName)
{
    Account person = account;
    person.name = "\xC3\x84nn \"\xF0\x9F\x98\x80\"";
    const auto record = std::get<std::string>(prepareRecord("{}", {person, "", "", ""}));
    FeedText answer;
    answer.add(withAuthorsAddress(record, "ANN@example.org"));
    const std::string text = answer.finish();
    const auto entries = FeedReader().read(std::wstring(text.begin(), text.end()));
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].author.email, L"ANN@example.org");
    EXPECT_EQ(entries[0].author.id, L"public-id");
    EXPECT_EQ(entries[0].author.name, L"\u00C4nn \"\U0001F600\"");
}

TEST(ReadersAgree, OnTheAutomaticEntries)
{
    FeedText answer;
    for (const FeedEntry& entry : automaticEntries("job", "a.step", 0))
        answer.add(entry.content);
    const std::string text = answer.finish();
    const auto entries = FeedReader().read(std::wstring(text.begin(), text.end()));
    ASSERT_EQ(entries.size(), 6U);
    for (const Feed& entry : entries) {
        EXPECT_EQ(entry.comment.commentType, L"auto");
        EXPECT_EQ(entry.action.type, L"download");
        EXPECT_EQ(entry.file.id, L"job");
    }
    EXPECT_EQ(entries[5].action.value, L"3ds");
}
