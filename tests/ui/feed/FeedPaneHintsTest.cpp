// Which hints reach whom, whose document is kept, and what is drawn anew.

#include "ui/account/CloudLoginDlg.h"
#include "ui/account/FeedLoginDlg.h"
#include "ui/feed/AddFeed.h"
#include "ui/feed/FeedPaneFixture.h"

#include <set>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

constexpr int push = 271;
constexpr int share = 272;

/// A pane with a model, and another document whose model has another name. Hints that the pane raises go nowhere.
class FeedPaneHintTest : public FeedPaneTest
{
protected:
    FeedPaneHintTest()
    {
        other.application->application = application;
        signIn();
        openPaneWithModel();
        application->notifier->deliver = nullptr;
    }

    /// Sends a hint with the other document, after one that opened the first.
    void sendOther(short code)
    {
        sendHint(*pane, codes::documentOpened, scene.document);
        if (code == codes::commentAdded || code == codes::commentDeleted || code == codes::signedIn) {
            expectFeed({"Ann"}); // the codes that load the feed
        }
        sendHint(*pane, code, other.document);
    }
    std::string pushedModel()
    {
        childOf(0).GetDlgItem(push)->EnableWindow(TRUE);
        network.expect("/api/UploadInput/", jobIdBytes);
        EXPECT_TRUE(clickButton(childOf(0), push));
        return network.last().field("filename");
    }
    std::string loadedModel()
    {
        expectFeed({"Ann"});
        pane->OnActivateChange(true);
        return network.sent().at(network.sent().size() - 2).field("filename");
    }

    TestScene other{L"/models/other.stp"};
};

/// Hint 3 with another document for each who asks; the first is that of a model "1.step".
class NumberedHint final : public orv::IHint
{
public:
    explicit NumberedHint(TestScene& model) : scene(model) {}
    short getCode() override { return codes::documentOpened; }
    std::shared_ptr<orv::IDocument> getDocument() override
    {
        auto const document = std::make_shared<orv::Document>();
        document->setSchema(orvsg::SCSceneRT::key, scene.runtime);
        document->setSchema(orvgl::SCRenderer::key, scene.renderer);
        document->setSchema(orvsg::SCSceneTopo::key, scene.topology);
        document->setSchema(orvsg::SCSceneRes::key, scene.resources);
        document->setSchema(orv::SCApplication::key, scene.application);
        auto const info = std::make_shared<orvsg::SCInfo>();
        info->setFile(L"/models/" + std::to_wstring(documents.size() + 1) + L".step");
        document->setSchema(orvsg::SCInfo::key, info);
        documents.push_back(document);
        return document;
    }
    /// 0 for another's.
    std::size_t numberOf(orv::IDocument const* document) const
    {
        for (std::size_t i = 0; i < documents.size(); ++i) {
            if (documents[i].get() == document) {
                return i + 1;
            }
        }
        return 0;
    }

private:
    TestScene& scene;
    std::vector<std::shared_ptr<orv::IDocument>> documents;
};

} // namespace

TEST_F(FeedPaneHintTest, ThePaneKeepsTheDocumentOfTenHints)
{
    std::set<short> const kept = {1, 3, 5, 7, 37, 38, 39, 40, 41, 42};
    for (short code = -1; code <= 50; ++code) {
        sendOther(code);
        EXPECT_EQ(loadedModel(), kept.contains(code) ? "other.stp" : "gearbox.step") << "code " << code;
    }
}

TEST_F(FeedPaneHintTest, FiveHintsReachTheChildren)
{
    std::set<short> const forwarded = {1, 3, 40, 41, 42};
    for (short code = -1; code <= 50; ++code) {
        sendOther(code);
        EXPECT_EQ(pushedModel(), forwarded.contains(code) ? "other.stp" : "gearbox.step") << "code " << code;
    }
}

TEST_F(FeedPaneHintTest, ABlockHasItsDocumentFromTheHintThatOpenedIt)
{
    application->notifier->deliver = [this](orv::IHint* hint) { pane->OnUpdate(hint); };
    loadFeed({"Ann"});
    // A block would take the document of these; none of them is handed on.
    for (short const code : {codes::documentClosed, codes::visibilityChanged, codes::appearanceChanged,
                             codes::sceneChanged, codes::viewRestored}) {
        sendHint(*pane, code, other.document);
    }
    EXPECT_TRUE(clickAt(childOf(2), 5, 5));
    EXPECT_EQ(application->notifier->codes.back(), codes::viewRestored);
    EXPECT_EQ(application->notifier->documents.back(), scene.document.get());
}

TEST_F(FeedPaneHintTest, ABlockThatIsAddedHasItsDocumentFromTheSameHint)
{
    application->notifier->deliver = [this](orv::IHint* hint) { pane->OnUpdate(hint); };
    sendHint(*pane, codes::documentChanged, other.document); // the pane's own from now on
    loadFeed(std::vector<std::string>(101, "Ann"));
    ASSERT_EQ(network.sent().front().field("filename"), "other.stp");
    for (std::size_t const group : {2U, 102U}) {
        application->notifier->documents.clear();
        EXPECT_TRUE(clickAt(childOf(group), 5, 5));
        EXPECT_EQ(application->notifier->documents, std::vector<orv::IDocument*>{scene.document.get()}) << group;
    }
}

TEST_F(FeedPaneHintTest, AHintWithoutADocumentLeavesTheListsModel)
{
    for (short const code : {codes::documentOpened, codes::feedReloaded}) {
        sendHint(*pane, code, nullptr);
        ASSERT_EQ(groups().size(), 2U) << code;
        EXPECT_EQ(titles().back(), L"Add Comment") << code;
    }
    expectFeed({"Ann"});
    sendHint(*pane, codes::commentAdded, nullptr); // the pane's is still there as well
    EXPECT_EQ(network.sent().front().field("filename"), "gearbox.step");
}

TEST_F(FeedPaneHintTest, TheChildrenAreMadeInTheirOrder)
{
    pane->DestroyWindow();
    openPane(); // no group holds a child yet
    std::vector<CDialog*> const made = windowsBelow<CDialog>(list());
    ASSERT_EQ(made.size(), 103U);
    EXPECT_NE(dynamic_cast<FeedLoginDlg*>(made[0]), nullptr);
    EXPECT_NE(dynamic_cast<AddFeed*>(made[1]), nullptr);
    EXPECT_NE(dynamic_cast<FeedToolbarDialog*>(made[2]), nullptr);
    for (std::size_t i = 3; i < made.size(); ++i) {
        EXPECT_NE(dynamic_cast<FeedBlock*>(made[i]), nullptr) << i;
    }
}

TEST_F(FeedPaneHintTest, AHintReachesTheChildrenInTheirOrder)
{
    user->username.clear();
    user->userid.clear();
    NumberedHint hint(scene);
    pane->OnUpdate(&hint);

    modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
        typeText(dialog, 1017, L"bob@example.com");
        EXPECT_TRUE(clickButton(dialog, 1001));
        return IDCANCEL;
    });
    network.expect("/api/Login/", tokenBytes);
    network.expect("/api/InstalledDevice/", "ok");
    network.expect("/api/AccountInfo/", R"({"name":"Bob"})");
    network.expect("/api/isFilePresent/", jobIdBytes);
    EXPECT_TRUE(clickButton(childOf(1), 270));
    std::size_t const loginsDocument = hint.numberOf(application->notifier->documents.back());

    AddFeed& form = *windowsBelow<AddFeed>(list()).at(0);
    form.ShowWindow(SW_SHOW);
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    EXPECT_TRUE(typeText(form, 2005, L"hello"));
    EXPECT_TRUE(clickButton(form, 2006));
    std::size_t const formsDocument = hint.numberOf(application->notifier->documents.back());

    childOf(0).GetDlgItem(push)->EnableWindow(TRUE);
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(childOf(0), push));
    std::size_t const toolbarsDocument = std::stoul(network.last().field("filename"));

    EXPECT_LT(formsDocument, toolbarsDocument);
    EXPECT_LT(toolbarsDocument, loginsDocument);
    std::size_t before = loginsDocument;
    for (FeedBlock* const block : windowsBelow<FeedBlock>(list())) {
        block->SendMessage(WM_LBUTTONDOWN, 0, 0);
        std::size_t const own = hint.numberOf(application->notifier->documents.back());
        EXPECT_LT(before, own);
        before = own;
    }
}

TEST_F(FeedPaneHintTest, TheToolbarKnowsWhoIsSignedIn)
{
    EXPECT_TRUE(isEnabled(childOf(0), push));
    EXPECT_TRUE(isEnabled(childOf(0), share));
    network.expect("/api/UploadInput/", jobIdBytes);
    EXPECT_TRUE(clickButton(childOf(0), push));
    EXPECT_EQ(network.last().field("username"), "ann@example.com");
    EXPECT_EQ(exporter->paths.size(), 1U); // through the pane's own helper
    user->username.clear();
    user->userid.clear();
    sendHint(*pane, codes::signedOut, scene.document);
    EXPECT_FALSE(isEnabled(childOf(0), push));
    EXPECT_FALSE(isEnabled(childOf(0), share));
}

TEST_F(FeedPaneHintTest, TheCommentBoxAndThePromptKnowWhoIsSignedIn)
{
    network.expect("/api/isFilePresent/", jobIdBytes);
    network.expect("/api/CommentSync/", "ok");
    EXPECT_TRUE(typeText(childOf(1), 2005, L"hello"));
    EXPECT_TRUE(clickButton(childOf(1), 2006));
    EXPECT_EQ(network.last().field("username"), "ann@example.com");

    user->username.clear();
    user->userid.clear();
    sendHint(*pane, codes::signedOut, scene.document);
    modals.expectModal<CloudLoginDlg>([](CloudLoginDlg& dialog) -> INT_PTR {
        typeText(dialog, 1017, L"bob@example.com");
        EXPECT_TRUE(clickButton(dialog, 1001));
        return IDCANCEL;
    });
    network.expect("/api/Login/", tokenBytes);
    network.expect("/api/InstalledDevice/", "ok");
    network.expect("/api/AccountInfo/", R"({"name":"Bob"})");
    network.expect("/api/isFilePresent/", jobIdBytes);
    EXPECT_TRUE(clickButton(childOf(1), 270));
    EXPECT_EQ(user->username, L"bob@example.com");
}

TEST_F(FeedPaneHintTest, HintsThatChangeTheViewDrawThePaneAnew)
{
    frame.ShowWindow(SW_SHOW);
    processEvents();
    PaintCount paints(*pane);
    struct {
        short code;
        bool drawn;
        bool drawnWithoutScene;
    } const cases[] = {{codes::documentActivated, true, true}, // rebuilt, and so drawn in any case
                       {codes::documentOpened, true, true},     {codes::feedReloaded, true, true},
                       {codes::signedIn, true, true},           {codes::signedOut, true, true},
                       {codes::commentAdded, true, true}, // loaded, whatever the document holds
                       {codes::commentDeleted, true, true},     {codes::documentClosed, true, false},
                       {codes::documentChanged, true, false},   {codes::unitsChanged, true, false},
                       {codes::viewChanged, true, true},        {codes::selectionChanged, true, true},
                       {codes::sceneChanged, true, true},       {codes::viewRestored, false, false},
                       {codes::visibilityChanged, false, false}};
    auto const isDrawnAfter = [&](short code) {
        processEvents();
        paints.take();
        if (code == codes::commentAdded || code == codes::commentDeleted || code == codes::signedIn) {
            expectFeed({"Ann"});
        }
        sendHint(*pane, code, scene.document);
        processEvents();
        return paints.take() > 0;
    };
    for (auto const& [code, drawn, drawnWithoutScene] : cases) {
        scene.document->setSchema(orvsg::SCSceneTopo::key, scene.topology);
        EXPECT_EQ(isDrawnAfter(code), drawn) << code;
        scene.document->setSchema(orvsg::SCSceneTopo::key, nullptr);
        EXPECT_EQ(isDrawnAfter(code), drawnWithoutScene) << code << " without a scene";
    }
}
