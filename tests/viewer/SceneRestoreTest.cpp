// The drawing follows a restored view in one frame, however many parts there are.

#include "tests/viewer/ModelFixture.h"

#include "feed/ViewCapture.h"
#include "feed/ViewReplay.h"
#include "platform/Process.h"
#include "platform/testing/Input.h"
#include "tests/support/RandomView.h"
#include "tests/support/RepeatedStep.h"
#include "tests/viewer/SessionFixture.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelView.h"
#include "viewer/commands/ViewCommands.h"

#include <QApplication>
#include <QWindow>

namespace input = orvplatform::testing;

namespace
{

constexpr int patience = 60000; // milliseconds; only a failure waits this long

class SceneRestore : public orvtest::SessionFixture
{
protected:
    /// A big assembly on the screen: the classic one 600 times, which has 10,800 parts, or the sample so many times.
    void openMany()
    {
        auto const classic = orvtest::sharedModel("as1-oc-214.stp");
        auto const many = folder.path / "many.step";
        ASSERT_TRUE(std::filesystem::exists(classic)
                        ? orvtest::writeRepeatedStep(classic, 600, 220.0, many)
                        : orvtest::writeRepeatedStep(orvtest::sampleModel(), 200, 400.0, many));
        start();
        auto& window = session->window();
        window.resize(1200, 800);
        window.show();
        ASSERT_TRUE(input::waitFor(
            [&window] { return window.windowHandle() != nullptr && window.windowHandle()->isExposed(); }, patience));
        ASSERT_TRUE(session->openModel(many.wstring())) << status();
        settle();
        ASSERT_GT(view().frames(), 0);
    }

    orvviewer::ModelView& view() { return session->window().view(); }

    /// Lets everything happen that is under way.
    static void settle() { input::processEvents(); }

    Feed capture() { return captureView(session->document(), {}, L"", L"", (folder.path / "image.jpeg").wstring()); }
};

TEST_F(SceneRestore, DrawsOneFrameForTenThousandParts)
{
    openMany();
    ASSERT_FALSE(HasFatalFailure());
    ASSERT_GT(orv::recordOf<orvsg::SCSceneTopo>(session->document())->nodes.size(), 5000U);
    orvtest::arrangeRandomView(session->context(), 5);
    Feed const one = capture();
    orvtest::arrangeRandomView(session->context(), 6);
    Feed const other = capture();
    settle();
    for (Feed const* feed : {&one, &other, &one, &one}) {
        int const before = view().frames();
        restoreView(session->document(), *feed);
        EXPECT_EQ(view().frames(), before + 1) << "when the click is done";
        settle();
        EXPECT_EQ(view().frames(), before + 1) << "and nothing more when the program has come to rest";
    }
    EXPECT_EQ(capture().comment.objects, one.comment.objects);
}

} // namespace
