// The pushes and the invitation against the real service, over a database of its own, with the viewer's own exporters.

#include "cloud/RunningService.h"
#include "tests/service/PushFixture.h"

#include "service/Exporters.h"
#include "service/FeedRequests.h"
#include "service/JobId.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

using namespace orvtest;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

class PushToService : public orvcloud::testing::RunningService, protected PushScene
{
protected:
    PushToService()
    {
        environment.setService(orvtext::fromUtf8(url));
        environment.setLibraries(ORV_BINARY_DIR "/lib");
        user->username = L"ann@example.org";
        user->userid = orvtext::fromUtf8(signIn("ann").token);
        keepUser();
    }

    std::wstring knownJobId(std::wstring const& file) const
    {
        return isFilePresent(user->username, user->userid, file);
    }
    /// The beginnings of the files that the service keeps.
    std::vector<std::string> stored() const
    {
        std::vector<std::string> contents;
        for (auto const& entry : std::filesystem::recursive_directory_iterator(config.dataDirectory / "files")) {
            if (entry.is_regular_file()) {
                contents.push_back(contentOf(entry.path()).substr(0, 8));
            }
        }
        return contents;
    }

    /// What happens to the bar during a push: exporters report on a channel of their own, which the bar leaves out.
    std::vector<std::string> courseOfTheBar() const
    {
        std::vector<std::string> course;
        for (std::string const& event : application->events) {
            if (event.starts_with("progress ") && !event.ends_with(" (channel isn't 1)")) {
                course.push_back(event);
            }
        }
        return course;
    }

    /// The direct push with the viewer's own exporter.
    std::wstring pushConverted() const
    {
        return CloudHelper(makeDeferredExporter(nullptr)).pushDirect(scene->document, user);
    }
};

TEST_F(PushToService, DirectGivesTheJobIdByWhichTheModelIsKnown)
{
    EXPECT_EQ(knownJobId(L"gear.box.step"), L"");
    std::wstring const job = pushConverted();
    EXPECT_TRUE(isJobId(job)) << orvtext::toUtf8(job);
    EXPECT_EQ(knownJobId(L"gear.box.step"), job);
    EXPECT_EQ(application->statuses().back(), "gear.box.step" + uploadedText);
    ASSERT_THAT(stored(), SizeIs(1));
    EXPECT_EQ(stored()[0].substr(0, 3), "PRC");
    EXPECT_THAT(leftBehind(), IsEmpty());
    EXPECT_EQ(pushConverted(), job) << "a new version of the same model";
}

TEST_F(PushToService, TheViewersExportersStayOutOfTheBarsCourse)
{
    writeFile(environment.data / "Orvanta/RecentFile/asm_gear.box.bmp", "picture");
    auto const course = testing::ElementsAre("progress on", "progress 20", "progress 50", "progress 80", "progress 100",
                                             "progress off");
    EXPECT_TRUE(isJobId(pushConverted()));
    EXPECT_THAT(courseOfTheBar(), course);
    EXPECT_THAT(application->events, testing::Contains("progress 100 (channel isn't 1)")) << "the exporter reports";
    application->events.clear();
    EXPECT_TRUE(isJobId(pushWithPreview()));
    EXPECT_THAT(courseOfTheBar(), course);
    EXPECT_THAT(application->events, testing::Contains("progress 100 (channel isn't 1)"));
}

TEST_F(PushToService, ModelsWithHardNamesAreFoundAgain)
{
    for (std::wstring const& name :
         {std::wstring(L"gear  box.step"), std::wstring(L"gear.v2..final.step"), std::wstring(L"Zahnr\u00e4der.step"),
          std::wstring(L"\u6b6f\u8eca.step"), std::wstring(L"gear \U0001F600.step"), std::wstring(L"5\" gear.step"),
          std::wstring(L"a&b=c;d%20+e?#'<>.step"), std::wstring(250, L'n') + L".step"}) {
        openModel(L"/models/" + name);
        std::wstring const job = pushConverted();
        EXPECT_TRUE(isJobId(job)) << orvtext::toUtf8(name) << ": " << orvtext::toUtf8(job);
        EXPECT_EQ(knownJobId(name), job) << orvtext::toUtf8(name);
    }
}

TEST_F(PushToService, NamesThatTheServiceCannotKeepAreAFailedUpload)
{
    for (std::wstring const name : {L"a\\b.step", L"two\nlines.step"}) {
        openModel(L"/models/" + name);
        EXPECT_EQ(pushConverted(), L"failed");
        EXPECT_EQ(application->statuses().back(), uploadFailedText);
        EXPECT_THAT(leftBehind(), IsEmpty());
    }
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(PushToService, DirectWithoutARightToItFails)
{
    user->userid = L"0f8fad5b-d9cb-469f-a165-70867728950e";
    EXPECT_EQ(pushConverted(), L"failed");
    EXPECT_EQ(application->statuses().back(), uploadFailedText);
    user->userid.clear();
    keepUser();
    EXPECT_EQ(pushConverted(), L"failed") << "nobody is signed in";
    EXPECT_THAT(stored(), IsEmpty());
}

TEST_F(PushToService, WithPreviewSendsTheViewersOwnFormat)
{
    writeFile(environment.data / "Orvanta/RecentFile/asm_gear.box.bmp", "picture");
    EXPECT_TRUE(isJobId(pushWithPreview()));
    ASSERT_THAT(stored(), SizeIs(2));
    EXPECT_THAT(stored(), testing::Contains("picture"));
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushToService, WithPreviewSendsNativeFileAndPictureOfOneModel)
{
    environment.setLibraries(ORV_TEST_LIBRARIES "/good");
    std::string const picture = "\x89PNG\r\n\x1a\n and so on";
    writeFile(environment.data / "Orvanta/RecentFile/asm_gear.box.bmp", picture);
    std::wstring const job = pushWithPreview();
    EXPECT_TRUE(isJobId(job)) << orvtext::toUtf8(job);
    EXPECT_EQ(knownJobId(L"gear.box.step"), job);
    EXPECT_THAT(stored(), testing::UnorderedElementsAre("native w", picture.substr(0, 8)));
    EXPECT_THAT(leftBehind(), IsEmpty());
    environment.setLibraries(ORV_BINARY_DIR "/lib");
    EXPECT_EQ(pushConverted(), job) << "the same model by the other route";
}

TEST_F(PushToService, WithPreviewWithoutAPictureFailsThoughTheModelIsThere)
{
    environment.setLibraries(ORV_TEST_LIBRARIES "/good");
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_EQ(application->statuses().back(), uploadFailedText);
    EXPECT_TRUE(isJobId(knownJobId(L"gear.box.step")));
}

TEST_F(PushToService, AStoppedServiceIsAFailedUpload)
{
    stop();
    EXPECT_EQ(pushConverted(), L"failed");
    EXPECT_EQ(application->statuses().back(), uploadFailedText);
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_F(PushToService, InvitesTheAddressesAsTheyWereTyped)
{
    std::wstring const job = pushConverted();
    EXPECT_EQ(CloudHelper::share(user->username, user->userid, job, L",bob@example.org,,eve@example.org,", L""), L"2");
    auto const mails = outbox();
    ASSERT_THAT(mails, SizeIs(2));
    EXPECT_THAT(mails[0] + mails[1], HasSubstr("bob@example.org"));
    EXPECT_THAT(mails[0] + mails[1], HasSubstr("eve@example.org"));
    user->userid = orvtext::fromUtf8(signIn("bob").token);
    user->username = L"bob@example.org";
    keepUser();
    EXPECT_EQ(knownJobId(L"gear.box.step"), job) << "the invited see the model";
}

} // namespace
