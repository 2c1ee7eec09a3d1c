// The two pushes through the web classes as they are, to a server that takes down every byte.

#include "tests/service/MultipartForm.h"
#include "tests/service/PushFixture.h"

#include "service/Exporters.h"

#include <gmock/gmock.h>

using namespace orvtest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::string const job = "7c9e6679-7425-40de-944b-e07fc1f90ae7";
std::string const& uploading = uploadingText;
std::string const uploaded = "gear.box.step" + uploadedText;
std::string const& failed = uploadFailedText;

class PushOverHttp : public testing::Test, protected PushScene
{
protected:
    PushOverHttp() { environment.setService(server.wideUrl()); }

    void expectInput(Answer answer) { server.expect("POST", "/api/UploadInput/", std::move(answer)); }
    void expectUploads(Answer native, Answer picture)
    {
        server.expect("POST", "/api/Upload/", std::move(native));
        server.expect("POST", "/api/Upload/", std::move(picture));
    }
    void installExporters() { environment.setLibraries(ORV_TEST_LIBRARIES "/good"); }
    std::filesystem::path preview(std::string const& name) const
    {
        return environment.data / "Orvanta/RecentFile" / name;
    }

    /// What the user saw of a direct push with that end.
    static std::vector<std::string> directEvents(std::string const& end)
    {
        return {"status " + uploading, "progress on",   "progress 20",  "progress 50", "status " + uploading,
                "progress 80",         "status " + end, "progress 100", "progress off"};
    }
    static std::vector<std::string> previewEvents(std::string const& end)
    {
        return {"status " + uploading, "progress on", "progress 20",
                "progress 42", // the exporter's own
                "progress 50",         "progress 80", "progress 100", "status " + end, "progress off"};
    }

    ScriptedHttpServer server;
};

TEST_F(PushOverHttp, DirectSendsTheseBytes)
{
    expectInput(Answer::ok(job));
    exporter->content = std::string("PRC\0\r\n--\xff", 9);
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    expectUpload(server.last(), {"prc", "gear.box.step", "gear.box.prc", exporter->content});
    EXPECT_EQ(server.requests().size(), 1U) << "whether the model is there already isn't asked";
}

TEST_F(PushOverHttp, DirectKeepsItsOrder)
{
    expectInput(Answer::ok(job));
    EXPECT_THAT(courseOf([this] { EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job)); }, {"gear.box.prc"}),
                ElementsAre("status " + uploading + " [cursor 0]", "progress on [cursor 1]", "progress 20 [cursor 1]",
                            "export [cursor 1]", "progress 50 [cursor 1, gear.box.prc]",
                            "status " + uploading + " [cursor 1, gear.box.prc]",
                            "/api/UploadInput/ prc [cursor 1, gear.box.prc]", "progress 80 [cursor 1]",
                            "status " + uploaded + " [cursor 1]", "progress 100 [cursor 1]",
                            "progress off [cursor 1]"));
}

TEST_F(PushOverHttp, DirectOfAModelWithoutAFileIsFailedWithoutAWord)
{
    openModel(L"");
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_THAT(application->events, IsEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(PushOverHttp, DirectTakesTheAnswerFailedForAFailure)
{
    expectInput(Answer::ok("failed"));
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_EQ(application->events, directEvents(failed));
}

TEST_F(PushOverHttp, DirectComparesWithFailedExactly)
{
    for (std::string const answer : {"Failed", "failed ", " failed", "FAILED", "faile", "failed\n"}) {
        application->events.clear();
        expectInput(Answer::ok(answer));
        EXPECT_EQ(pushDirect(), orvtext::fromUtf8(answer));
        EXPECT_EQ(application->events, directEvents(uploaded)) << answer;
    }
}

TEST_F(PushOverHttp, DirectTakesAnyTextForAJobId)
{
    for (std::string const answer : {"", "<html>It works!</html>", "x"}) {
        application->events.clear();
        expectInput(Answer::ok(answer));
        EXPECT_EQ(pushDirect(), orvtext::fromUtf8(answer));
        EXPECT_EQ(application->events, directEvents(uploaded)) << answer;
    }
}

TEST_F(PushOverHttp, DirectNamesTheCopyWithoutTheLastExtensionAlone)
{
    openModel(L"/models/gear.v2.final.step");
    expectInput(Answer::ok(job));
    pushDirect();
    expectUpload(server.last(), {"prc", "gear.v2.final.step", "gear.v2.final.prc", "PRC"});
}

TEST_F(PushOverHttp, DirectSharesOnePathBetweenModelsOfOneName)
{
    expectInput(Answer::ok(job));
    pushDirect();
    openModel(L"/elsewhere/gear.box.iges");
    exporter->content = "the other's";
    expectInput(Answer::ok(job));
    pushDirect();
    EXPECT_THAT(exporter->paths, ElementsAre(temporary("gear.box.prc"), temporary("gear.box.prc")));
    expectUpload(server.last(), {"prc", "gear.box.iges", "gear.box.prc", "the other's"});
}

TEST_F(PushOverHttp, DirectWhoseExportFailsSendsNothing)
{
    exporter->outcome = orvexp::Status::cannotWrite;
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_EQ(application->events, directEvents(failed));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(PushOverHttp, DirectWithoutTheExportersLibrarySendsNothing)
{
    CloudHelper withoutLibrary(makeDeferredExporter(nullptr));
    EXPECT_EQ(withoutLibrary.pushDirect(scene->document, user), L"failed");
    EXPECT_EQ(application->events, directEvents(failed));
    EXPECT_EQ(server.connections(), 0);
}

// A comment's upload leaves its copy there; a failed export isn't noticed, so it goes out once more.
TEST_F(PushOverHttp, DirectWhoseExportFailsSendsWhateverFileThereIs)
{
    writeFile(temporary("gear.box.prc"), "an earlier copy");
    exporter->outcome = orvexp::Status::cannotWrite;
    expectInput(Answer::ok(job));
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    expectUpload(server.last(), {"prc", "gear.box.step", "gear.box.prc", "an earlier copy"});
    EXPECT_EQ(application->events, directEvents(uploaded));
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushOverHttp, DirectThatTheServiceRefusesFailsOnceAndCleansUp)
{
    for (int const status : {301, 401, 403, 404, 413, 429, 500, 503}) {
        application->events.clear();
        expectInput(Answer::status(status, job));
        EXPECT_EQ(pushDirect(), L"failed") << status;
        EXPECT_EQ(application->events, directEvents(failed)) << status;
        EXPECT_THAT(leftBehind(), IsEmpty()) << status;
    }
    EXPECT_EQ(server.requests().size(), 8U) << "nothing is tried again";
    EXPECT_EQ(user->userid, L"0f8fad5b-d9cb-469f-a165-70867728950e");
}

TEST_F(PushOverHttp, DirectWhoseTransferBreaksFailsAndCleansUp)
{
    expectInput(Answer::hangUp());
    EXPECT_EQ(pushDirect(), L"failed");
    expectInput(Answer::cut(job, 100));
    EXPECT_EQ(pushDirect(), L"failed");
    server.stop();
    application->events.clear();
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_EQ(application->events, directEvents(failed));
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushOverHttp, DirectIsNotSentTwiceWhereAKeptConnectionEnds)
{
    expectInput(Answer::ok(job));
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    expectInput(Answer::hangUp());
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_EQ(server.requests().size(), 2U);
}

TEST_F(PushOverHttp, DirectSurvivesAnExceptionBeforeItsUpload)
{
    int shown = 0;
    application->afterEvent = [&] {
        if (application->events.back() == "status " + uploading && ++shown == 2) {
            throw std::runtime_error("the status line broke");
        }
    };
    testing::internal::CaptureStdout();
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "the status line broke\n");
    EXPECT_THAT(application->events,
                ElementsAre("status " + uploading, "progress on", "progress 20", "progress 50", "status " + uploading,
                            "status " + failed, "status " + failed, "progress 100", "progress off"));
    EXPECT_THAT(leftBehind(), ElementsAre(temporary("gear.box.prc"))) << "the copy stays";
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(PushOverHttp, DirectKeepsTheAnswerWhereAnExceptionCameBehindIt)
{
    application->onProgress = [](int percent) {
        if (percent == 80) {
            throw std::runtime_error("the bar broke");
        }
    };
    expectInput(Answer::ok(job));
    testing::internal::CaptureStdout();
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "the bar broke\n");
    EXPECT_THAT(application->events,
                ElementsAre("status " + uploading, "progress on", "progress 20", "progress 50", "status " + uploading,
                            "progress 80", "status " + failed, "status " + uploaded, "progress 100", "progress off"));
}

TEST_F(PushOverHttp, DirectLeavesExceptionsOfItsFirstStepsToItsCaller)
{
    for (std::string const& event :
         {"status " + uploading, std::string("progress on"), std::string("progress 20"), std::string("progress 50")}) {
        application->afterEvent = [&] {
            if (application->events.back() == event) {
                throw std::runtime_error("broken");
            }
        };
        EXPECT_THROW(pushDirect(), std::runtime_error) << event;
        EXPECT_EQ(orvplatform::waitCursorDepth(), 0) << event;
    }
    application->afterEvent = {};
    exporter->throws = true;
    EXPECT_THROW(pushDirect(), std::runtime_error);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(PushOverHttp, WithPreviewSendsTheseBytes)
{
    installExporters();
    writeFile(preview("asm_gear.box.bmp"), std::string("\x89PNG\r\n\x1a\n\0", 9));
    expectUploads(Answer::ok("of the native file"), Answer::ok(job));
    EXPECT_EQ(pushWithPreview(), orvtext::fromUtf8(job));
    ASSERT_EQ(server.requests().size(), 2U);
    expectUpload(server.requests()[0],
                 {"orvanta", "gear.box.step", "gear.box.orvanta", "native with 7 settings of /models/gear.box.step"});
    expectUpload(server.requests()[1],
                 {"png", "gear.box.step", "asm_gear.box.bmp", std::string("\x89PNG\r\n\x1a\n\0", 9)});
}

TEST_F(PushOverHttp, WithPreviewNamesThePartsPictureByItsKind)
{
    installExporters();
    for (int const kind : {0, 2, -1}) {
        scene->info->documentKind = kind; // everything but an assembly
        writeFile(preview("part_gear.box.bmp"), "part");
        expectUploads(Answer::ok(job), Answer::ok(job));
        pushWithPreview();
        expectUpload(server.last(), {"png", "gear.box.step", "part_gear.box.bmp", "part"});
    }
}

TEST_F(PushOverHttp, WithPreviewKeepsItsOrder)
{
    installExporters();
    writeFile(preview("asm_gear.box.bmp"), "picture");
    expectUploads(Answer::ok("of the native file"), Answer::ok(job));
    std::filesystem::remove(temporary("orvanta"));
    EXPECT_THAT(courseOf([this] { pushWithPreview(); }, {"orvanta/gear.box.orvanta"}),
                ElementsAre("status " + uploading + " [cursor 0]", "progress on [cursor 1]", "progress 20 [cursor 1]",
                            "progress 42 [cursor 1, orvanta/gear.box.orvanta]",
                            "progress 50 [cursor 1, orvanta/gear.box.orvanta]",
                            "/api/Upload/ orvanta [cursor 1, orvanta/gear.box.orvanta]", "progress 80 [cursor 1]",
                            "/api/Upload/ png [cursor 1]", "progress 100 [cursor 1]",
                            "status " + uploaded + " [cursor 1]", "progress off [cursor 1]"));
    EXPECT_TRUE(std::filesystem::is_directory(temporary("orvanta"))) << "the directory stays";
    EXPECT_EQ(contentOf(preview("asm_gear.box.bmp")), "picture") << "the picture stays";
    std::filesystem::remove(temporary("orvanta"));
}

TEST_F(PushOverHttp, WithPreviewWhoseNativeFileFailsIsAsGoodAsItsPicture)
{
    installExporters();
    writeFile(preview("asm_gear.box.bmp"), "picture");
    expectUploads(Answer::status(500, "broken"), Answer::ok(job));
    EXPECT_EQ(pushWithPreview(), orvtext::fromUtf8(job));
    EXPECT_EQ(application->events, previewEvents(uploaded));
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushOverHttp, WithPreviewWhosePictureFailsHasFailed)
{
    installExporters();
    writeFile(preview("asm_gear.box.bmp"), "picture");
    expectUploads(Answer::ok(job), Answer::status(413, "too large"));
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_EQ(application->events, previewEvents(failed));
}

TEST_F(PushOverHttp, WithPreviewWithoutAPictureHasFailed)
{
    installExporters();
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_EQ(application->events, previewEvents(failed));
    EXPECT_EQ(server.requests().size(), 1U) << "there was nothing to send";
}

TEST_F(PushOverHttp, WithPreviewWithoutAnExporterSendsThePictureAlone)
{
    writeFile(preview("asm_gear.box.bmp"), "picture");
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(pushWithPreview(), orvtext::fromUtf8(job));
    expectUpload(server.last(), {"png", "gear.box.step", "asm_gear.box.bmp", "picture"});
    auto course = previewEvents(uploaded);
    std::erase(course, "progress 42");
    EXPECT_EQ(application->events, course);
}

TEST_F(PushOverHttp, WithPreviewTakesTheAnswersExactly)
{
    installExporters();
    writeFile(preview("asm_gear.box.bmp"), "picture");
    expectUploads(Answer::ok(job), Answer::ok("failed"));
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_EQ(application->statuses().back(), failed);
    for (std::string const answer : {"Failed", "failed ", ""}) {
        expectUploads(Answer::ok("failed"), Answer::ok(answer));
        EXPECT_EQ(pushWithPreview(), orvtext::fromUtf8(answer));
        EXPECT_EQ(application->statuses().back(), uploaded) << answer;
    }
}

TEST_F(PushOverHttp, WithPreviewOfAModelWithoutAFileIsTriedAllTheSame)
{
    installExporters();
    openModel(L"");
    writeFile(preview("asm_.bmp"), "picture of nothing");
    expectUploads(Answer::status(400, "no name"), Answer::status(400, "no name"));
    EXPECT_EQ(pushWithPreview(), L"failed");
    ASSERT_EQ(server.requests().size(), 2U);
    expectUpload(server.requests()[0], {"orvanta", "", ".orvanta", "native with 7 settings of "});
    expectUpload(server.requests()[1], {"png", "", "asm_.bmp", "picture of nothing"});
    EXPECT_EQ(application->events, previewEvents(failed));
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushOverHttp, WithPreviewCatchesNothing)
{
    application->onProgress = [](int percent) {
        if (percent == 50) {
            throw std::runtime_error("the bar broke");
        }
    };
    EXPECT_THROW(pushWithPreview(), std::runtime_error);
    EXPECT_EQ(server.connections(), 0);
}

} // namespace
