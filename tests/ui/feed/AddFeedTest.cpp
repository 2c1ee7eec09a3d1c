#include "ui/feed/AddFeed.h"
#include "feed/FeedReader.h"
#include "feed/SceneRecords.h"
#include "host/orv/FileUtils.h"
#include "support/ListeningDocument.h"
#include "ui/UiTest.h"

#include <json/json.h>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int box = 2005;
constexpr int submitButton = 2006;

class AddFeedTest : public UiTest
{
protected:
    AddFeedTest()
    {
        signIn();
        form = new AddFeed;
        EXPECT_TRUE(form->Create(AddFeed::templateId(), &frame));
        form->ShowWindow(SW_SHOW);
        frame.ShowWindow(SW_SHOW);
        form->setUser(user);
        sendHint(*form, codes::documentOpened, scene.document);
    }

    void submit(std::wstring const& text)
    {
        if (!text.empty()) {
            ASSERT_TRUE(typeText(*form, box, text));
        }
        ASSERT_TRUE(clickButton(*form, submitButton));
    }

    AddFeed* form = nullptr; // goes with its window
};

} // namespace

TEST_F(AddFeedTest, ACommentOnAModelThatTheServiceHasIsSent)
{
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"Check the clearance");
    ASSERT_EQ(network.sent().size(), 2U);
    EXPECT_EQ(network.sent()[0].field("filename"), "gearbox.step");
    auto const& sent = network.last();
    EXPECT_EQ(sent.field("jobid"), jobIdBytes);
    EXPECT_EQ(sent.field("filename"), "gearbox.step");
    EXPECT_EQ(sent.field("commentid").size(), 36U);
    Json::Value record;
    ASSERT_TRUE(Json::Reader().parse(sent.field("comment"), record));
    EXPECT_EQ(record["commentcontent"]["content"].asString(), "Check the clearance");
    EXPECT_EQ(record["commentcontent"]["id"].asString(), sent.field("commentid"));
    EXPECT_EQ(record["file"]["id"].asString(), jobIdBytes);
    EXPECT_EQ(record["author"]["email"].asString(), "ann@example.com");
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::commentAdded});
    EXPECT_EQ(application->notifier->documents.at(0), scene.document.get());
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"");
    EXPECT_EQ(application->texts, std::vector<std::wstring>{L"Comment added successfully."});
}

TEST_F(AddFeedTest, TheFeedHasReloadedBeforeTheUserReadsOfSuccess)
{
    std::vector<std::wstring> textsAtTheHint{L"none"};
    std::wstring boxAtTheHint;
    std::wstring boxAtTheText = L"never shown";
    application->notifier->deliver = [&](orv::IHint*) {
        textsAtTheHint = application->texts;
        boxAtTheHint = orvplatform::testing::textOf(*form, box);
    };
    application->onStatus = [&] { boxAtTheText = orvplatform::testing::textOf(*form, box); };
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_TRUE(textsAtTheHint.empty());
    EXPECT_EQ(boxAtTheHint, L"hello") << "emptied behind the hint";
    EXPECT_EQ(boxAtTheText, L"") << "and before the text shows";
}

TEST_F(AddFeedTest, TheModelsRecordsAreAskedForBeforeTheConnection)
{
    std::vector<short> const atFirst{orvgl::SCRenderer::key,  orvsg::SCSceneRes::key, orvsg::SCSceneTopo::key,
                                     orv::SCApplication::key, orvsg::SCInfo::key,     orvsg::SCSceneRT::key};
    auto const document = std::make_shared<ListeningDocument>(scene.document);
    sendHint(*form, codes::documentOpened, document);
    document->keys.clear();
    orvplatform::setConnectedForTest(false);
    submit(L"hello");
    EXPECT_EQ(document->keys, atFirst);

    document->keys.clear();
    orvplatform::setConnectedForTest(true);
    std::vector<short> keysAtTheFirstRequest;
    network.expectHandled("/api/isFilePresent/", [&](SentRequest const&) {
        keysAtTheFirstRequest = document->keys;
        orvweb::HttpResponse response;
        response.status = 200;
        response.body = jobIdBytes;
        return response;
    });
    network.expect("/api/CommentSync/", "ok");
    EXPECT_TRUE(clickButton(*form, submitButton));
    EXPECT_EQ(keysAtTheFirstRequest, atFirst);
}

TEST_F(AddFeedTest, EveryRequestCarriesTheUser)
{
    network.expect("/api/isFilePresent/", "");
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    ASSERT_EQ(network.sent().size(), 3U);
    for (auto const& request : network.sent()) {
        EXPECT_EQ(request.field("username"), "ann@example.com") << request.path;
        EXPECT_EQ(request.header("Authorization"), std::string("Bearer ") + tokenBytes) << request.path;
    }
}

TEST_F(AddFeedTest, AJobIdOf35CharactersLeadsToTheUpload)
{
    network.expect("/api/isFilePresent/", shortIdBytes);
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"first");
    ASSERT_EQ(network.sent().size(), 3U);
    auto const& upload = network.sent()[1];
    EXPECT_EQ(upload.field("filename"), "gearbox.step");
    EXPECT_EQ(upload.field("type"), "prc");
    EXPECT_EQ(upload.request.file, orv::FileUtils::getTempPath() + L"gearbox.prc");
    EXPECT_EQ(upload.fileContent, "copy 1 without preferences");
    EXPECT_EQ(network.last().field("jobid"), jobIdBytes);
    EXPECT_TRUE(std::filesystem::exists(upload.request.file)); // stays behind
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(109)});

    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"second"); // the service has the model now
    EXPECT_EQ(network.sent().size(), 5U);
}

TEST_F(AddFeedTest, WithoutAnExporterTheCommentIsSentAllTheSame)
{
    orvhost::Settings settings;
    settings.dataDirectory = dataDirectory.wstring();
    settings.libraryDirectory = (dataDirectory / "no libraries here").wstring();
    settings.serviceUrl = L"http://127.0.0.1:9";
    settings.language = L"en";
    settings.dpi = 96.0;
    orvhost::configure(settings);
    std::filesystem::remove(orv::FileUtils::getTempPath() + L"gearbox.prc");
    network.expect("/api/isFilePresent/", "");
    network.expectFailure("/api/UploadInput/");
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(network.last().field("jobid"), "failed");
    EXPECT_EQ(application->lastText(), text(109));
}

TEST_F(AddFeedTest, TheExporterIsMadeOnceAndReportsToTheStatusLine)
{
    for (char const* const copy : {"copy 1 without preferences", "copy 2 without preferences"}) {
        network.expect("/api/isFilePresent/", "");
        network.expect("/api/UploadInput/", jobIdBytes);
        network.expect("/api/CommentSync/", "ok");
        submit(L"hello");
        EXPECT_EQ(network.sent().at(network.sent().size() - 2).fileContent, copy);
    }
    EXPECT_EQ(application->status.percentages, (std::vector<int>{42, 42})); // the exporter's own, no other
    EXPECT_TRUE(application->status.shown.empty());
}

TEST_F(AddFeedTest, WithoutAnApplicationTheCommentIsSentWithoutAWord)
{
    scene.document->setSchema(orv::SCApplication::key, nullptr);
    network.expect("/api/isFilePresent/", "");
    network.expect("/api/UploadInput/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(network.last().field("jobid"), jobIdBytes);
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"");
    submit(L""); // nothing to say it with
    orvplatform::setConnectedForTest(false);
    submit(L"hello");
    EXPECT_EQ(network.sent().size(), 3U);
    EXPECT_TRUE(application->texts.empty());
    EXPECT_TRUE(application->notifier->codes.empty());
}

TEST_F(AddFeedTest, TheCommentGoesOutWhateverTheUploadGave)
{
    network.expect("/api/isFilePresent/", "");
    network.expectFailure("/api/UploadInput/");
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(network.last().field("jobid"), "failed");
    network.expectFailure("/api/isFilePresent/");
    network.expect("/api/UploadInput/", "");
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(network.last().field("jobid"), "");
    EXPECT_EQ(application->lastText(), text(109));
}

TEST_F(AddFeedTest, ACommentThatTheServiceRefusesLooksAdded)
{
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expectFailure("/api/CommentSync/", orv::ErrorCode::refused, 400);
    submit(L"hello");
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"");
    EXPECT_EQ(application->lastText(), text(109));
    EXPECT_EQ(application->notifier->codes, std::vector<short>{codes::commentAdded});
}

TEST_F(AddFeedTest, AnEmptyTextIsRefusedWithAWord)
{
    submit(L"");
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(110)});
    EXPECT_TRUE(network.sent().empty());
    EXPECT_FALSE(std::filesystem::exists(dataDirectory / "Cloud" / "image.jpeg"));
}

TEST_F(AddFeedTest, ATextOfBlanksIsSent)
{
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"   ");
    Json::Value record;
    ASSERT_TRUE(Json::Reader().parse(network.last().field("comment"), record));
    EXPECT_EQ(record["commentcontent"]["content"].asString(), "   ");
}

TEST_F(AddFeedTest, WithoutAConnectionTheTextStays)
{
    orvplatform::setConnectedForTest(false);
    submit(L"hello");
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"hello");
    EXPECT_TRUE(network.sent().empty());
    EXPECT_FALSE(std::filesystem::exists(dataDirectory / "Cloud" / "image.jpeg"));
}

TEST_F(AddFeedTest, TheConnectionIsAskedBeforeTheText)
{
    orvplatform::setConnectedForTest(false);
    submit(L"");
    EXPECT_EQ(application->texts, std::vector<std::wstring>{text(111)});
}

TEST_F(AddFeedTest, WithoutANotifierTheCommentIsSentAndTheBoxEmptied)
{
    application->notifier.reset();
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"");
    EXPECT_EQ(application->lastText(), text(109));
}

TEST_F(AddFeedTest, OnlyTheHintOfAnOpenedDocumentChangesTheModel)
{
    TestScene other(L"/models/other.stp");
    other.application->application = application;
    for (short const code : {codes::documentActivated, codes::feedReloaded, codes::signedIn, codes::signedOut}) {
        sendHint(*form, code, other.document);
    }
    sendHint(*form, codes::documentOpened, nullptr);
    form->OnUpdate(nullptr);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_EQ(network.last().field("filename"), "gearbox.step");
}

TEST_F(AddFeedTest, EscapeLeavesTheFormOnShow)
{
    typeText(*form, box, L"half a sentence");
    pressKey(*form, VK_ESCAPE);
    EXPECT_TRUE(form->IsWindowVisible());
    EXPECT_EQ(orvplatform::testing::textOf(*form, box), L"half a sentence");
}

TEST_F(AddFeedTest, TheButtonSpeaksTheUsersLanguage)
{
    struct {
        wchar_t const* language;
        wchar_t const* label;
    } const cases[] = {{L"fr", L"Soumettre"}, {L"de", L"einreichen"}, {L"ja", L"提出する"}, {L"ko", L"제출"},
                       {L"zh", L"提交"},      {L"es", L"Enviar"},     {L"pt", L"Enviar"},   {L"it", L"Submit"}};
    for (auto const& [language, label] : cases) {
        configure(language);
        auto* const other = new AddFeed;
        ASSERT_TRUE(other->Create(AddFeed::templateId(), &frame));
        EXPECT_EQ(orvplatform::testing::textOf(*other, submitButton), label);
        other->DestroyWindow();
    }
}

TEST_F(AddFeedTest, ThePictureStaysWhereItWasWhenTheFormWasMade)
{
    auto const atFirst = dataDirectory;
    dataDirectory += "-elsewhere";
    configure(L"en");
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    submit(L"hello");
    EXPECT_TRUE(std::filesystem::exists(atFirst / "Cloud/image.jpeg"));
    EXPECT_FALSE(std::filesystem::exists(dataDirectory / "Cloud/image.jpeg"));
    std::filesystem::remove_all(atFirst);
}
