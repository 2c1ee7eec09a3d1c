// Models whose files have names that a file system takes and a form or a path may stumble over. The copy is written by
// the viewer's own deferred exporter and the bytes are those on the wire.

#include "tests/service/MultipartForm.h"
#include "tests/service/PushFixture.h"

#include "exporters/prc/PrcReader.h"
#include "service/Exporters.h"
#include "service/ModelFiles.h"

#include <gmock/gmock.h>

#include <climits>

using namespace orvtest;
using testing::IsEmpty;

namespace
{

std::string const job = "7c9e6679-7425-40de-944b-e07fc1f90ae7";

struct Name {
    char const* title;
    std::string model; ///< name and extension, UTF-8
    std::string copy;  ///< the copy's name
    std::string sent;  ///< the copy's name as the form says it; quotes and line ends are escaped there
};

std::string repeated(std::string const& part, std::size_t times)
{
    std::string text;
    for (std::size_t i = 0; i < times; ++i) {
        text += part;
    }
    return text;
}

std::vector<Name> const names{
    {"Blanks", "gear box  2.step", "gear box  2.prc", "gear box  2.prc"},
    {"BlanksAtBothEnds", " gear .step", " gear .prc", " gear .prc"},
    {"Dots", "gear.v2..final.step", "gear.v2..final.prc", "gear.v2..final.prc"},
    {"DotInFront", ".step", ".prc", ".prc"},
    {"DotAtTheEnd", "gear.", "gear.prc", "gear.prc"},
    {"NoExtension", "gear", "gear.prc", "gear.prc"},
    {"Umlauts", "Zahnr\u00e4der \u00df.step", "Zahnr\u00e4der \u00df.prc", "Zahnr\u00e4der \u00df.prc"},
    {"Japanese", "\u6b6f\u8eca.step", "\u6b6f\u8eca.prc", "\u6b6f\u8eca.prc"},
    {"BeyondTheBasicPlane", "gear \U0001F600.step", "gear \U0001F600.prc", "gear \U0001F600.prc"},
    {"Quotes", "5\" gear.step", "5\" gear.prc", "5%22 gear.prc"},
    {"LineEnd", "two\nlines.step", "two\nlines.prc", "two%0Alines.prc"},
    {"Signs", "a&b=c;d%20+e?#'<>.step", "a&b=c;d%20+e?#'<>.prc", "a&b=c;d%20+e?#'<>.prc"},
    {"Backslash", "a\\b.step", "a\\b.prc", "a\\b.prc"},
    {"Of255Bytes", std::string(250, 'n') + ".step", std::string(250, 'n') + ".prc", std::string(250, 'n') + ".prc"},
    {"Of255BytesInTwoByteLetters", repeated("\u00e4", 125) + ".step", repeated("\u00e4", 125) + ".prc",
     repeated("\u00e4", 125) + ".prc"}};

class PushOfAModelNamed : public testing::TestWithParam<Name>, protected PushScene
{
protected:
    PushOfAModelNamed()
    {
        environment.setService(server.wideUrl());
        environment.setLibraries(ORV_BINARY_DIR "/lib");
        openModel(L"/models/" + orvtext::fromUtf8(GetParam().model));
    }

    ScriptedHttpServer server;
};

TEST_P(PushOfAModelNamed, SendsTheWholeModelUnderItsName)
{
    server.expect("POST", "/api/UploadInput/", Answer::ok(job));
    CloudHelper real(makeDeferredExporter(nullptr));
    EXPECT_EQ(real.pushDirect(scene->document, user), orvtext::fromUtf8(job));
    auto const request = server.last();
    auto const start = request.body.find("\r\n\r\nPRC");
    ASSERT_NE(start, std::string::npos) << "no PRC file in the form";
    auto const end = request.body.rfind("\r\n--" + boundaryOf(request) + "--");
    std::string const content = request.body.substr(start + 4, end - start - 4);
    expectUpload(request, {"prc", GetParam().model, GetParam().sent, content});
    auto const* const bytes = reinterpret_cast<unsigned char const*>(content.data());
    auto const copy = prc::read({bytes, content.size()});
    ASSERT_TRUE(copy.scene) << copy.problem;
    EXPECT_EQ(copy.scene->meshes.size(), 3U) << "the file is whole";
    EXPECT_EQ(application->statuses().back(), GetParam().model + uploadedText);
    EXPECT_THAT(leftBehind(), IsEmpty());
}

TEST_P(PushOfAModelNamed, WritesTheCopyWhereTheUploadLooksForIt)
{
    server.expect("POST", "/api/UploadInput/", Answer::status(500));
    exporter->onSave = [this] { EXPECT_EQ(exporter->paths.back(), temporary(GetParam().copy)); };
    EXPECT_EQ(pushDirect(), L"failed");
    EXPECT_THAT(leftBehind(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Names, PushOfAModelNamed, testing::ValuesIn(names),
                         [](auto const& each) { return std::string(each.param.title); });

class HardNames : public testing::Test, protected PushScene
{
protected:
    HardNames()
    {
        environment.setService(server.wideUrl());
        environment.setLibraries(ORV_BINARY_DIR "/lib");
    }

    ScriptedHttpServer server;
};

// An extension of less than three letters leaves no room for that of the copy.
TEST_F(HardNames, ALongOneThatLeavesNoRoomForTheCopyIsAFailedUpload)
{
    for (std::string const& model : {std::string(NAME_MAX, 'n'), std::string(NAME_MAX - 2, 'n') + ".p"}) {
        application->events.clear();
        openModel(L"/models/" + orvtext::fromUtf8(model));
        CloudHelper real(makeDeferredExporter(nullptr));
        EXPECT_EQ(real.pushDirect(scene->document, user), L"failed");
        EXPECT_EQ(application->statuses().back(), uploadFailedText);
        EXPECT_EQ(application->events.back(), "progress off");
        EXPECT_THAT(leftBehind(), IsEmpty());
    }
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(HardNames, ALongOneThatLeavesNoRoomForThePictureFailsThePushWithPreview)
{
    openModel(L"/models/" + std::wstring(251, L'n') + L".stp");
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_EQ(application->statuses().back(), uploadFailedText);
    EXPECT_THAT(leftBehind(), IsEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(HardNames, OneBeyondWhatAnySystemTakesIsAFailedUpload)
{
    openModel(L"/models/" + std::wstring(100000, L'\u00e4') + L".step");
    EXPECT_EQ(CloudHelper(makeDeferredExporter(nullptr)).pushDirect(scene->document, user), L"failed");
    EXPECT_EQ(pushWithPreview(), L"failed");
    EXPECT_THAT(leftBehind(), IsEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(HardNames, AUsersFolderNeedNotBeNamedInAscii)
{
    orvhost::Settings settings = orvhost::settings();
    settings.dataDirectory = orvtext::fromUtf8((environment.data / "Zo\u00eb \u6b6f\u8eca").string());
    settings.libraryDirectory = settings.dataDirectory; // no exporters
    orvhost::configure(settings);
    SessionFile().write(user->username, user->userid, user->name);
    orvweb::UserInfo read;
    EXPECT_TRUE(SessionFile().canOpen());
    EXPECT_TRUE(SessionFile().read(read));
    EXPECT_EQ(read.userid, user->userid);
    writeFile(orvhost::nativePath(previewFilePath(*scene->info)), "picture");
    server.expect("POST", "/api/UploadInput/", Answer::ok(job));
    EXPECT_EQ(pushDirect(), orvtext::fromUtf8(job));
    server.expect("POST", "/api/Share/", Answer::ok("1"));
    EXPECT_EQ(CloudHelper::share(user->username, user->userid, L"id", L"bob@example.com", L""), L"1");
    server.expect("POST", "/api/Upload/", Answer::ok(job));
    EXPECT_EQ(pushWithPreview(), orvtext::fromUtf8(job));
    expectUpload(server.last(), {"png", "gear.box.step", "asm_gear.box.bmp", "picture"});
}

} // namespace
