#include "cloud/RunningService.h"

#include <gmock/gmock.h>

using namespace orvcloud;
using namespace orvcloud::testing;

namespace
{
/// One row of the protocol, with parameters that would succeed for ann.
struct Row {
    const char* method;
    const char* path;
    Fields fields;
    bool asksForToken;
};

class Authorization : public RunningService
{
protected:
    std::vector<Row> rows() const
    {
        return {
            {"POST", "/api/Login/", {{"password", "ann's password"}}, false},
            {"POST", "/api/InstalledDevice/", {{"devicename", "d"}, {"devicetype", "pc"}}, false},
            {"POST", "/api/Logout/", {{"tokenID", "default"}}, false},
            {"GET", "/api/AccountInfo/", {}, true},
            {"GET", "/api/isFilePresent/", {{"filename", "a.step"}}, true},
            {"POST", "/api/UploadInput/", {{"type", "prc"}, {"filename", "a.step"}}, true},
            {"POST", "/api/Upload/", {{"type", "png"}, {"filename", "a.step"}}, true},
            {"GET", "/api/CommentSync/", {{"jobid", job}}, true},
            {"POST", "/api/CommentSync/", {{"jobid", job}, {"commentid", "c"}, {"comment", "{}"}}, true},
            {"POST", "/api/DeleteComment/", {{"jobid", job}, {"commentid", "c"}}, true},
            {"POST", "/api/Share/", {{"fileid", job}, {"shareto", "x@y.org"}, {"comment", ""}}, true},
        };
    }

    /// Sends a row with just these headers; the parameters "name" and "username" as given.
    Reply send(const Row& row, Fields headers, const std::string& apiId, const std::string& email)
    {
        Fields fields{{"name", apiId}, {"username", email}};
        fields.insert(fields.end(), row.fields.begin(), row.fields.end());
        const std::string path = row.path;
        if (std::string(row.method) == "GET")
            return sendRequest(url, "GET", path + "?" + encodeForm(fields), headers);
        if (path.starts_with("/api/Upload")) {
            const std::string file = "content";
            headers.emplace_back("Content-Type", "multipart/form-data; boundary=b");
            return sendRequest(url, "POST", path, headers, encodeMultipart(fields, &file, "b"));
        }
        headers.emplace_back("Content-Type", formType);
        return sendRequest(url, "POST", path, headers, encodeForm(fields));
    }

    static Fields headersOf(const SignedIn& user)
    {
        Fields headers = standardHeaders(user);
        headers.emplace_back("Cookie", "theme=dark; " + user.cookie + "; lang=de");
        return headers;
    }

    SignedIn ann = signIn("ann");
    SignedIn bob = signIn("bob");
    std::string job = push(ann, "a.step");
};
} // namespace

TEST_F(Authorization, EveryRowAnswersItsUser)
{
    for (const Row& row : rows()) {
        const SignedIn user = signIn("ann");
        EXPECT_EQ(send(row, headersOf(user), ORVANTA_API_ID, user.email).status, 200) << row.method << row.path;
    }
}

TEST_F(Authorization, OnlyTheKnownApplicationIsLetIn)
{
    for (const Row& row : rows()) {
        Fields wrongKey = headersOf(ann);
        wrongKey[0].second = "another key";
        Fields noKey = headersOf(ann);
        noKey.erase(noKey.begin());
        EXPECT_EQ(send(row, wrongKey, ORVANTA_API_ID, ann.email).status, 403) << row.method << row.path;
        EXPECT_EQ(send(row, noKey, ORVANTA_API_ID, ann.email).status, 403) << row.method << row.path;
        EXPECT_EQ(send(row, headersOf(ann), "another id", ann.email).status, 403) << row.method << row.path;
    }
}

TEST_F(Authorization, TokensOpenWhatAsksForThem)
{
    for (const Row& row : rows()) {
        if (!row.asksForToken)
            continue;
        const Fields cookieAlone{{"X-Api-Key", ORVANTA_API_KEY}, {"Cookie", ann.cookie}};
        EXPECT_EQ(send(row, cookieAlone, ORVANTA_API_ID, ann.email).status, 401) << row.method << row.path;
        for (const std::string& value :
             {std::string(), std::string("Bearer"), std::string("Bearer "), "Basic " + ann.token, ann.token,
              "Bearer " + ann.token + "x", "Bearer " + ann.cookie.substr(16)}) {
            const Fields headers{{"X-Api-Key", ORVANTA_API_KEY}, {"Authorization", value}, {"Cookie", ann.cookie}};
            const Reply reply = send(row, headers, ORVANTA_API_ID, ann.email);
            EXPECT_EQ(reply.status, 401) << row.method << row.path << " with " << value;
            EXPECT_EQ(reply.headers.count("www-authenticate"), 1U);
        }
        EXPECT_EQ(send(row, standardHeaders(ann), ORVANTA_API_ID, bob.email).status, 401)
            << row.method << row.path << " with another's address";
    }
}

TEST_F(Authorization, WhatOneMayNotSeeIsntThere)
{
    for (const Row& row : rows()) {
        Row elsewhere = row;
        bool namesModel = false;
        for (auto& [name, value] : elsewhere.fields) {
            if (name == "jobid" || name == "fileid") {
                value = "0f8fad5b-d9cb-469f-a165-70867728950e";
                namesModel = true;
            }
        }
        if (!namesModel)
            continue;
        const Reply hidden = send(row, standardHeaders(bob), ORVANTA_API_ID, bob.email);
        const Reply missing = send(elsewhere, standardHeaders(bob), ORVANTA_API_ID, bob.email);
        EXPECT_EQ(hidden.status, 404) << row.method << row.path;
        EXPECT_EQ(missing.status, 404);
        EXPECT_EQ(hidden.body, missing.body);
    }
    EXPECT_EQ(get(bob, "/api/isFilePresent/", {{"filename", "a.step"}}).body, "");
}

TEST_F(Authorization, TheTokenStandsInNoParameter)
{
    for (const Row& row : rows()) {
        if (!row.asksForToken)
            continue;
        Row more = row;
        more.fields.emplace_back("userid", ann.token);
        EXPECT_EQ(send(more, standardHeaders(ann), ORVANTA_API_ID, ann.email).status, 400) << row.method << row.path;
    }
}

TEST_F(Authorization, EveryParameterOfARowIsNeeded)
{
    for (const Row& row : rows()) {
        if (std::string(row.path) == "/api/Logout/")
            continue;
        for (std::size_t i = 0; i < row.fields.size(); ++i) {
            Row less = row;
            less.fields.erase(less.fields.begin() + static_cast<std::ptrdiff_t>(i));
            EXPECT_EQ(send(less, headersOf(ann), ORVANTA_API_ID, ann.email).status, 400)
                << row.method << row.path << " without " << row.fields[i].first;
        }
        Row twice = row;
        twice.fields.emplace_back("username", bob.email);
        EXPECT_EQ(send(twice, headersOf(ann), ORVANTA_API_ID, ann.email).status, 400) << row.method << row.path;
    }
}

TEST_F(Authorization, OtherMethodsAndAddressesAreRefused)
{
    for (const Row& row : rows()) {
        const Reply reply = sendRequest(url, "DELETE", row.path, headersOf(ann));
        EXPECT_EQ(reply.status, 405) << row.path;
        EXPECT_THAT(reply.headers.at("allow"), ::testing::HasSubstr(row.method));
    }
    for (const char* path :
         {"/", "/api/", "/api/Login", "/api/login/", "/api/Login/x", "/api/Files/", "/api/../api/Login/"})
        EXPECT_EQ(sendRequest(url, "GET", path, headersOf(ann)).status, 404) << path;
}

TEST_F(Authorization, OtherBodiesAreRefused)
{
    for (const Row& row : rows()) {
        if (std::string(row.method) != "POST")
            continue;
        Fields headers = headersOf(ann);
        headers.emplace_back("Content-Type", "application/json");
        EXPECT_EQ(sendRequest(url, "POST", row.path, headers, "{}").status, 415) << row.path;
    }
}

TEST_F(Authorization, AnAnswerNeverHoldsTheToken)
{
    for (const Row& row : rows()) {
        if (!row.asksForToken)
            continue;
        const Reply reply = send(row, standardHeaders(ann), ORVANTA_API_ID, ann.email);
        EXPECT_EQ(reply.body.find(ann.token), std::string::npos) << row.path;
        EXPECT_EQ(reply.headers.at("cache-control"), "no-store");
    }
}
