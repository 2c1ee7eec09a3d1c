// The window without a mouse: the keyboard goes round its parts, and every part and dialog is worked from there.

#include "tests/viewer/SessionFixture.h"

#include "platform/qt/Native.h"
#include "platform/qt/OutlookWidget.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/StartPage.h"
#include "viewer/app/StatusLine.h"
#include "viewer/commands/CommandId.h"
#include "viewer/plugins/SideBar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QTest>

#include <afxcontrolbars.h>

#include <set>

using namespace orvtest;
using orvplatform::testing::processEvents;
using orvplatform::testing::waitFor;

namespace
{

using Places = std::vector<std::string>;

class KeyboardTest : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        installCloudPlugin();
        start();
        ASSERT_EQ(session->sideBar().paneCount(), 1) << status();
        showWindow();
    }
    void showWindow()
    {
        auto& window = session->window();
        window.resize(1440, 800);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(waitFor([&] { return window.isActiveWindow(); }));
    }
    void openCubes()
    {
        ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring())) << status();
        processEvents();
        session->window().view().setFocus();
        ASSERT_EQ(place(), "view");
    }

    HWND tabs() { return session->sideBar().getTabCtrl()->GetSafeHwnd(); }
    QWidget& ribbon() { return *orvplatform::widgetOf(session->ribbonBar().GetSafeHwnd()); }
    void TearDown() override
    {
        SessionFixture::TearDown();
        orvviewer::useViewerLanguage(L"en");
        orvhost::configure({});
    }
    /// The part of the window that has the keyboard.
    std::string place()
    {
        auto const* focus = QApplication::focusWidget();
        auto const holds = [focus](QWidget const& part) { return &part == focus || part.isAncestorOf(focus); };
        auto& window = session->window();
        return focus == nullptr                    ? "nothing"
               : holds(window.tree())              ? "tree"
               : holds(window.view())              ? "view"
               : holds(window.startPage())         ? "start page"
               : holds(ribbon())                   ? "ribbon"
               : orvplatform::hasPaneFocus(tabs()) ? "side bar"
                                                   : "something else";
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        processEvents();
    }
    /// Where each of so many presses of F6 leads.
    Places goRound(int times, Qt::KeyboardModifiers modifiers = {})
    {
        Places places;
        for (int i = 0; i < times; ++i) {
            press(Qt::Key_F6, modifiers);
            places.push_back(place());
        }
        return places;
    }
};

} // namespace

TEST_F(KeyboardTest, F6GoesRoundTheParts)
{
    openCubes();
    EXPECT_EQ(goRound(5), (Places{"side bar", "ribbon", "tree", "view", "side bar"}));
}

TEST_F(KeyboardTest, ShiftF6GoesTheOtherWay)
{
    openCubes();
    EXPECT_EQ(goRound(5, Qt::ShiftModifier), (Places{"tree", "ribbon", "side bar", "view", "tree"}));
}

TEST_F(KeyboardTest, WithoutAModelTheStartPageStandsInForTheView)
{
    session->window().startPage().setFocus();
    auto const* open = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->text(), "&Open...");
    EXPECT_EQ(goRound(4), (Places{"side bar", "ribbon", "tree", "start page"}));
}

TEST_F(KeyboardTest, PartsThatAreHiddenAreLeftOut)
{
    openCubes();
    session->window().showTree(false);
    EXPECT_EQ(goRound(3), (Places{"side bar", "ribbon", "view"}));
    session->window().showSideBar(false);
    EXPECT_EQ(goRound(2), (Places{"ribbon", "view"}));
    EXPECT_EQ(goRound(2, Qt::ShiftModifier), (Places{"ribbon", "view"}));
}

TEST_F(KeyboardTest, AFoldedSideBarSlidesOutForItsTurn)
{
    openCubes();
    orvplatform::foldPanes(tabs(), true);
    processEvents();
    EXPECT_EQ(goRound(1), Places{"side bar"});
    EXPECT_TRUE(orvplatform::arePanesSlidOut(tabs()));
    EXPECT_EQ(goRound(1), Places{"ribbon"});
    EXPECT_FALSE(orvplatform::arePanesSlidOut(tabs()));
}

TEST_F(KeyboardTest, APaneInAWindowOfItsOwnHasItsTurn)
{
    openCubes();
    orvplatform::floatPane(tabs(), 0, true);
    processEvents();
    session->window().activateWindow();
    ASSERT_TRUE(waitFor([this] { return session->window().isActiveWindow(); }));
    session->window().view().setFocus();
    press(Qt::Key_F6);
    EXPECT_TRUE(waitFor([this] { return place() == "side bar"; })) << place();
    EXPECT_NE(QApplication::activeWindow(), &session->window());
    press(Qt::Key_F6);
    EXPECT_TRUE(waitFor([this] { return place() == "ribbon"; })) << place();
}

TEST_F(KeyboardTest, TheViewerEndsWithAPaneFloatingOrSlidOut)
{
    for (bool const isFloating : {true, false}) {
        start();
        showWindow();
        isFloating ? orvplatform::floatPane(tabs(), 0, true) : orvplatform::foldPanes(tabs(), true);
        session->window().startPage().setFocus();
        press(Qt::Key_F6);
        EXPECT_TRUE(waitFor([this] { return place() == "side bar"; })) << place();
        HWND const pane = session->sideBar().getTabCtrl()->GetTabWnd(0)->GetSafeHwnd();
        session.reset(); // the pane's code goes with the plug-in
        EXPECT_FALSE(IsWindow(pane));
    }
}

TEST_F(KeyboardTest, ThePaneIsEnteredWhereItWasLeft)
{
    std::filesystem::create_directories(folder.path / "data" / "Cloud");
    writeFile(folder.path / "data" / "Cloud" / "temp", "ann@example.com\n7c9e6679-7425-40de-944b-e07fc1f90ae7\nAnn\n");
    start();
    showWindow();
    openCubes();
    press(Qt::Key_F6);
    auto const* const first = QApplication::focusWidget();
    press(Qt::Key_Tab);
    auto const* const second = QApplication::focusWidget();
    ASSERT_NE(first, second);
    ASSERT_EQ(place(), "side bar");
    EXPECT_EQ(goRound(4).back(), "side bar");
    EXPECT_EQ(QApplication::focusWidget(), second);
}

TEST_F(KeyboardTest, TheWayStartsAtTheFirstPartOrTheLast)
{
    openCubes();
    session->window().status().setFocusPolicy(Qt::StrongFocus);
    for (auto const& [modifiers, first] :
         {std::pair(Qt::KeyboardModifiers(), "tree"), std::pair(Qt::KeyboardModifiers(Qt::ShiftModifier), "ribbon")}) {
        session->window().status().setFocus();
        ASSERT_EQ(place(), "something else");
        EXPECT_EQ(goRound(1, modifiers), Places{first});
    }
}

TEST_F(KeyboardTest, EscapeLeadsFromTheRibbonBack)
{
    openCubes();
    press(Qt::Key_F6);
    ASSERT_EQ(place(), "side bar");
    press(Qt::Key_F6);
    ASSERT_EQ(place(), "ribbon");
    press(Qt::Key_Escape);
    EXPECT_EQ(place(), "side bar");
}

TEST_F(KeyboardTest, EscapeLeadsFromTheRibbonBackToAPaneInAWindowOfItsOwn)
{
    openCubes();
    orvplatform::floatPane(tabs(), 0, true);
    auto& pane = *orvplatform::widgetOf(session->sideBar().getTabCtrl()->GetTabWnd(0)->GetSafeHwnd())->window();
    ASSERT_NE(&pane, &session->window());
    for (auto const key : {Qt::Key_F6, Qt::Key_F10}) {
        pane.activateWindow();
        ASSERT_TRUE(waitFor([&] { return pane.isActiveWindow(); }));
        auto const* const before = QApplication::focusWidget();
        ASSERT_EQ(place(), "side bar");
        press(key);
        ASSERT_TRUE(waitFor([this] { return place() == "ribbon" && session->window().isActiveWindow(); })) << place();
        press(Qt::Key_Escape);
        EXPECT_TRUE(waitFor([&] { return pane.isActiveWindow(); }));
        EXPECT_EQ(QApplication::focusWidget(), before);
    }
}

TEST_F(KeyboardTest, TheTabKeyReachesEveryEnabledButtonOfTheRibbon)
{
    openCubes();
    press(Qt::Key_F10);
    std::set<QWidget const*> reached;
    while (place() == "ribbon" && reached.insert(QApplication::focusWidget()).second) {
        press(Qt::Key_Tab);
    }
    for (auto const* button : ribbon().findChildren<QAbstractButton*>()) {
        if (button->isEnabled() && button->isVisible() && !button->text().isEmpty()) {
            EXPECT_TRUE(reached.contains(button)) << button->text().toStdString();
        }
    }
    EXPECT_GE(reached.size(), 14U);
}

TEST_F(KeyboardTest, TheOptionsAreSetFromTheKeyboard)
{
    openCubes();
    ASSERT_TRUE(session->window().isTreeShown());
    orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
    auto const runOptions = [&](Qt::Key last) {
        script.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet& sheet) {
            QWidget& window = *orvplatform::widgetOf(sheet.GetSafeHwnd());
            window.activateWindow();
            EXPECT_TRUE(waitFor([&] { return window.isActiveWindow(); }));
            std::set<QWidget const*> reached;
            window.findChild<QListWidget*>()->setFocus();
            while (reached.insert(QApplication::focusWidget()).second) {
                if (auto* box = qobject_cast<QCheckBox*>(QApplication::focusWidget());
                    box != nullptr && box->text() == "Show the model tree") {
                    press(Qt::Key_Space);
                }
                press(Qt::Key_Tab);
            }
            for (auto const* box : window.findChildren<QCheckBox*>()) {
                EXPECT_TRUE(reached.contains(box)) << box->text().toStdString();
            }
            EXPECT_TRUE(reached.contains(window.findChild<QComboBox*>()));
            EXPECT_GE(reached.size(), 8U) << "pages, four switches, languages, two buttons";
            window.findChild<QListWidget*>()->setFocus();
            press(last);
            return IDCANCEL;
        });
        session->runCommand(orvviewer::showOptions);
    };
    runOptions(Qt::Key_Escape);
    EXPECT_TRUE(session->window().isTreeShown()) << "Escape leaves everything as it was";
    runOptions(Qt::Key_Return);
    EXPECT_FALSE(session->window().isTreeShown());
}

TEST_F(KeyboardTest, NoTwoEntriesOfAMenuHaveTheSameLetter)
{
    for (auto const& code : {L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"}) {
        session.reset();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = code;
        session = std::make_unique<orvviewer::ViewerSession>(settings);
        int letters = 0;
        for (auto const* menu : session->window().findChildren<QMenu*>()) {
            std::set<QChar> used;
            for (auto const* action : menu->actions()) {
                auto const at = action->text().indexOf('&');
                if (at >= 0) {
                    ++letters;
                    EXPECT_TRUE(used.insert(action->text().at(at + 1).toLower()).second)
                        << action->text().toStdString();
                }
            }
        }
        EXPECT_EQ(letters, 3) << "another colour, the file's, opaque";
    }
}
