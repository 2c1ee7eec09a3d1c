// The viewer's own window in each language, with the plug-in: all texts are seen whole, nothing lies on anything else.
// Runs once for each step of the display's scaling, which is that of QT_FONT_DPI.

#include "resources/WidgetFit.h"
#include "tests/viewer/SessionFixture.h"

#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/OutlookWidget.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/MovePanel.h"
#include "viewer/app/StartPage.h"
#include "viewer/commands/CommandId.h"
#include "viewer/plugins/SideBar.h"

#include <QDir>
#include <QListWidget>
#include <QScreen>
#include <QToolButton>

#include <afxcontrolbars.h>

using namespace orvtest;
using orvplatform::testing::processEvents;

namespace
{

class ViewerLayout : public SessionFixture, public testing::WithParamInterface<wchar_t const*>
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        installCloudPlugin();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = GetParam();
        settings.dpi = orvplatform::logicalDpi();
        session = std::make_unique<orvviewer::ViewerSession>(settings);
        ASSERT_EQ(session->sideBar().paneCount(), 1) << status();
    }
    void TearDown() override
    {
        SessionFixture::TearDown();
        orvviewer::useViewerLanguage(L"en");
        orvhost::configure({});
    }
    void showWindow(int width, int height)
    {
        session->window().resize(width, height);
        session->window().show();
        processEvents();
    }
    static void expectFits(QWidget const& widget, int texts)
    {
        std::string all;
        for (auto const& sentence : restest::misfits(widget)) {
            all += sentence + "\n";
        }
        EXPECT_EQ(all, "");
        EXPECT_GE(restest::textCount(widget), texts);
    }
    /// A measure of the plain resolution at the step that this run is of.
    static int atStep(int pixels) { return pixels * qEnvironmentVariableIntValue("QT_FONT_DPI") / 96; }
    QWidget& ribbon() { return *orvplatform::widgetOf(session->ribbonBar().GetSafeHwnd()); }
};

/// What a ribbon button draws of its caption, as it is shown now: under its picture on two lines, or beside it.
QSize roomForCaption(QToolButton const& button)
{
    return button.toolButtonStyle() == Qt::ToolButtonTextUnderIcon
               ? QSize(button.width(), button.height() - button.iconSize().height())
               : QSize(button.width() - button.iconSize().width(), button.height());
}

} // namespace

TEST_P(ViewerLayout, TheWindowGrowsWithTheDisplay)
{
    auto& window = session->window();
    EXPECT_EQ(window.size(), QSize(atStep(1440), atStep(900)));
    window.show(); // without a change of its size
    processEvents();
    EXPECT_EQ(window.tree().width(), atStep(272));
    auto const& bar = *orvplatform::widgetOf(session->sideBar().GetSafeHwnd());
    EXPECT_EQ(bar.width(), atStep(320));
    orvplatform::foldPanes(session->sideBar().getTabCtrl()->GetSafeHwnd(), true);
    processEvents();
    EXPECT_EQ(bar.width(), atStep(36));
    EXPECT_EQ(window.tree().width(), atStep(272)) << "the view in the middle takes the room";
}

TEST_P(ViewerLayout, TheWindowIsMaximisedWhereTheScreenIsTooSmall)
{
    auto& window = session->window();
    ASSERT_LT(window.screen()->availableSize().width(), window.width());
    window.showOnScreen();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isMaximized());
}

TEST_P(ViewerLayout, TheStartPageFits)
{
    int const scale = orvplatform::scaled(100);
    for (auto const& [width, height] : {std::pair(1440, 900), std::pair(1440 * scale / 100, 900 * scale / 100)}) {
        SCOPED_TRACE(width);
        showWindow(width, height);
        expectFits(session->window().startPage(), 3); // heading, invitation, button
    }
}

TEST_P(ViewerLayout, TheFrameFits)
{
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    showWindow(1440, 900);
    session->closeModel(); // the start page shows it as a recent one
    EXPECT_FALSE(session->window().startPage().findChild<QListWidget*>()->isHidden());
    EXPECT_LE(session->window().minimumSizeHint().height(), orvplatform::scaled(540));
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
    processEvents();
    EXPECT_LE(session->window().minimumSizeHint().height(), orvplatform::scaled(540))
        << "fits on a display of 1080 lines";
    EXPECT_LE(session->window().minimumSizeHint().width(), orvplatform::scaled(800));
    expectFits(session->window(), 4); // search field, message, facts, the side bar's texts
    auto const shown = session->window().grab().toImage();
    // To be looked at, in pictures/ of the build.
    ASSERT_TRUE(QDir().mkpath(QStringLiteral(ORV_BINARY_DIR "/pictures")));
    EXPECT_TRUE(shown.save(QStringLiteral(ORV_BINARY_DIR "/pictures/window-%1-%2.png")
                               .arg(QString::fromWCharArray(GetParam()))
                               .arg(qRound(orvplatform::logicalDpi() / 0.96))));
}

TEST_P(ViewerLayout, TheRibbonFitsAtEachWidth)
{
    int const scale = orvplatform::scaled(100);
    for (int const width : {3600, 1920, 1440, 1024, 640}) {
        SCOPED_TRACE(width);
        showWindow(width * scale / 100, 900);
        int captions = 0;
        for (auto const* button : ribbon().findChildren<QToolButton*>()) {
            if (!button->isVisible() || button->text().isEmpty()) {
                continue;
            }
            EXPECT_TRUE(button->parentWidget()->rect().contains(button->geometry())) << button->text().toStdString();
            if (button->toolButtonStyle() == Qt::ToolButtonIconOnly) {
                EXPECT_FALSE(button->toolTip().isEmpty());
                continue;
            }
            ++captions;
            auto const metrics = button->fontMetrics();
            auto const room = roomForCaption(*button);
            int const lines = button->toolButtonStyle() == Qt::ToolButtonTextUnderIcon ? 2 : 1;
            EXPECT_GE(lines * room.width(), metrics.horizontalAdvance(button->text())) << button->text().toStdString();
            EXPECT_GE(room.height(), lines * metrics.height()) << button->text().toStdString();
            for (auto const& word : button->text().split(u' ')) {
                EXPECT_GE(room.width(), metrics.horizontalAdvance(word)) << button->text().toStdString();
            }
        }
        for (auto const& sentence : restest::misfits(ribbon())) {
            ADD_FAILURE() << sentence; // lies on another
        }
        EXPECT_GE(captions, width >= 1440 ? 20 : 0);
    }
}

TEST_P(ViewerLayout, TheOptionsFit)
{
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    showWindow(1440, 900);
    orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
    script.expectModal<CMFCPropertySheet>([](CMFCPropertySheet& sheet) {
        for (int page = 0; page < 2; ++page) {
            EXPECT_TRUE(sheet.SetActivePage(page));
            processEvents();
            expectFits(*orvplatform::widgetOf(sheet.GetSafeHwnd()), page == 0 ? 8 : 5);
        }
        auto const* const pages = orvplatform::widgetOf(sheet.GetSafeHwnd())->findChild<QListWidget*>();
        EXPECT_EQ(pages->count(), 2);
        EXPECT_GE(pages->viewport()->width(), pages->sizeHintForColumn(0)) << "the pages' titles are seen whole";
        return IDCANCEL;
    });
    session->runCommand(orvviewer::showOptions);
}

TEST_P(ViewerLayout, TheMovePanelFits)
{
    ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
    showWindow(1440, 900);
    session->context().select({0});
    ASSERT_TRUE(session->runCommand(orvviewer::moveParts));
    processEvents();
    auto const* panel = session->window().findChild<orvviewer::MovePanel*>();
    ASSERT_NE(panel, nullptr);
    ASSERT_TRUE(panel->isVisible());
    expectFits(*panel, 6); // what moves, three letters, two buttons
}

INSTANTIATE_TEST_SUITE_P(Languages, ViewerLayout,
                         testing::Values(L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"), [](auto const& test) {
                             std::wstring const code = test.param;
                             return std::string(code.begin(), code.end());
                         });
