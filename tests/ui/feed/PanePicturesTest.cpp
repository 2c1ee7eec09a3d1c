// Each state of the pane as it stands on the screen, compared with the pictures in pictures/. The display's resolution
// is the process's: ctest runs this program once for each, by QT_FONT_DPI, and with the fonts of pictures/fonts.conf
// alone.

#include "ui/feed/FeedPaneFixture.h"
#include "ui/feed/PictureComparison.h"

#include "platform/qt/Look.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QScrollBar>

#include <cstdlib>

using namespace orvtest;
using namespace orvplatform::testing;
namespace codes = orv::HintCode;

namespace
{

/// A part as the viewer shows it, of flat colours.
std::string partPicture(QColor const& colour)
{
    QImage image(240, 160, QImage::Format_RGB32);
    image.fill(QColor(0xE4, 0xE8, 0xEE));
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.fillRect(40, 60, 160, 60, colour);
    painter.fillRect(90, 30, 60, 30, colour.darker(130));
    painter.setBrush(QColor(0xF6, 0xF8, 0xFA));
    painter.drawEllipse(105, 75, 30, 30);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return buffer.data().toStdString();
}

std::vector<Feed> threeComments()
{
    Feed mine = comment(L"The carrier touches the housing here; move it by two millimetres.", L"Ann");
    mine.thumbnail = dataUri(partPicture(QColor(0x3F, 0x7D, 0xE8)));
    Feed others = comment(L"Agreed.", L"Bob", L"bob@example.com");
    others.thumbnail = dataUri(partPicture(QColor(0xC0, 0x5A, 0x3C)));
    Feed automatic = comment(L"STL of the model", L"Orvanta Cloud", L"cloud@example.com");
    automatic.comment.commentType = L"auto";
    automatic.action = FeedAction(L"download", L"stl");
    return {mine, others, automatic};
}

class PanePicturesTest : public FeedPaneTest
{
protected:
    void SetUp() override
    {
        if (std::getenv("FONTCONFIG_FILE") == nullptr) {
            GTEST_SKIP() << "skipped: the fonts are this machine's own; ctest sets the pictures'";
        }
        ASSERT_EQ(orvplatform::logicalDpi(), qEnvironmentVariableIntValue("QT_FONT_DPI"));
        QApplication::setCursorFlashTime(0); // a caret that stands still
        speak(L"en");
    }

    void speak(std::wstring const& language)
    {
        languageSuffix = language == L"en" ? "" : "-" + orvtext::toUtf8(language);
        configure(language, orvplatform::logicalDpi());
    }
    void openVisiblePane(int height = 760)
    {
        frame.MoveWindow(0, 0, orvplatform::sideBarWidth(), height);
        tab.MoveWindow(0, 0, orvplatform::sideBarWidth(), height);
        frame.ShowWindow(SW_SHOW);
        openPane();
        pane->MoveWindow(0, 0, orvplatform::sideBarWidth(), height);
        sendHint(*pane, codes::documentActivated, scene.document);
        sendHint(*pane, codes::documentOpened, scene.document);
    }
    static bool isAt96() { return orvplatform::logicalDpi() == 96.0; }
    /// High enough for all of three comments.
    void showThreeComments()
    {
        constexpr int height = 1120;
        openVisiblePane(height);
        loadRecords(threeComments());
        processEvents();
        CRect last;
        CRect all;
        childOf(4).GetWindowRect(&last);
        list().GetWindowRect(&all);
        EXPECT_LT(last.bottom, all.bottom) << "the last one is cut";
    }
    QImage picture() const { return orvplatform::widgetOf(*pane)->grab().toImage(); }
    void expectPicture(std::string const& state)
    {
        processEvents();
        std::string const dpi = isAt96() ? "" : "-" + std::to_string(static_cast<int>(orvplatform::logicalDpi()));
        expectLooksLike(picture(), state + languageSuffix + dpi);
    }

    std::string languageSuffix;
};

} // namespace

TEST_F(PanePicturesTest, SignedOut)
{
    openVisiblePane();
    expectPicture("signed-out");
}

TEST_F(PanePicturesTest, SignedInWithoutAModel)
{
    signIn();
    scene.info->setFile(L"");
    openVisiblePane();
    expectPicture("no-model");
}

TEST_F(PanePicturesTest, SignedInWithAModel)
{
    signIn();
    openVisiblePane();
    expectPicture("model");
}

TEST_F(PanePicturesTest, TheFormsHaveTheirGivenHeightsAndWholeButtons)
{
    struct {
        double dpi;
        int tools;
        int comment;
    } const given[] = {{96, 100, 120}, {120, 125, 150}, {144, 150, 180}, {192, 175, 210}};
    for (wchar_t const* const language : {L"en", L"de", L"ja"}) {
        speak(language);
        signIn();
        openVisiblePane();
        processEvents();
        for (auto const& [dpi, tools, commentBox] : given) {
            if (dpi != orvplatform::logicalDpi()) {
                continue;
            }
            for (auto const& [group, height] : {std::pair(0U, tools), std::pair(1U, commentBox)}) {
                CRect client;
                childOf(group).GetClientRect(&client);
                EXPECT_EQ(client.Height(), height);
                for (CWnd* const each : windowsBelow<CButton>(childOf(group))) {
                    CRect place;
                    each->GetWindowRect(&place);
                    childOf(group).ScreenToClient(&place);
                    EXPECT_LE(place.bottom, height);
                    EXPECT_GE(place.Height(), orvplatform::widgetOf(*each)->fontMetrics().height() + 4);
                }
            }
        }
        pane->DestroyWindow();
    }
}

TEST_F(PanePicturesTest, AnEmptyFeed)
{
    signIn();
    openVisiblePane();
    loadRecords({});
    expectPicture("model"); // looks like a feed that hasn't been loaded
}

TEST_F(PanePicturesTest, ThreeComments)
{
    signIn();
    showThreeComments();
    expectPicture("three-comments");
}

TEST_F(PanePicturesTest, TwoThousandCommentsAtTheirEnd)
{
    signIn();
    openVisiblePane();
    std::vector<Feed> feeds(1997, comment(L"Agreed.", L"Bob", L"bob@example.com"));
    std::vector<Feed> const last = threeComments();
    feeds.insert(feeds.end(), last.begin(), last.end());
    loadRecords(feeds);
    processEvents();
    QScrollBar& bar = *orvplatform::widgetOf(list())->findChild<QAbstractScrollArea*>()->verticalScrollBar();
    bar.setValue(bar.maximum());
    expectPicture("two-thousand");
}

TEST_F(PanePicturesTest, InJapaneseAndGerman)
{
    for (wchar_t const* const language : {L"ja", L"de"}) {
        speak(language);
        user->username.clear();
        user->userid.clear();
        openVisiblePane();
        expectPicture("signed-out");
        pane->DestroyWindow();
        signIn();
        std::wstring const model = scene.info->file();
        scene.info->setFile(L"");
        openVisiblePane();
        expectPicture("no-model");
        pane->DestroyWindow();
        scene.info->setFile(model);
        openVisiblePane();
        expectPicture("model");
        pane->DestroyWindow();
        showThreeComments();
        expectPicture("three-comments");
        pane->DestroyWindow();
    }
}

TEST_F(PanePicturesTest, SeeWhatHasMoved)
{
    signIn();
    showThreeComments();
    QImage const before = picture();
    EXPECT_TRUE(differenceOf(before, picture()).isNone());
    CWnd& text = *childOf(2).GetDlgItem(2002);
    CRect const place = placeOf(childOf(2), 2002);
    text.MoveWindow(place.left, place.top + 4, place.Width(), place.Height());
    EXPECT_FALSE(differenceOf(before, picture()).isTolerable()) << "a text four pixels lower";
    text.MoveWindow(place.left, place.top, place.Width(), place.Height());
    EXPECT_TRUE(differenceOf(before, picture()).isNone());
}

TEST_F(PanePicturesTest, SeeEachControlThatIsMissing)
{
    signIn();
    showThreeComments();
    QImage const before = picture();
    struct {
        std::size_t group;
        std::vector<int> controls;
    } const shown[] = {{0, {271, 272}},               // tools
                       {1, {2005, 2006}},             // the comment box
                       {2, {2001, 2002, 2004, 1037}}, // mine
                       {3, {2001, 2002, 2004}},       // another's
                       {4, {2002}}};                  // the automatic entry
    for (auto const& [group, controls] : shown) {
        for (int const id : controls) {
            ASSERT_TRUE(isVisible(childOf(group), id)) << id;
            childOf(group).GetDlgItem(id)->ShowWindow(SW_HIDE);
            PictureDifference const difference = differenceOf(before, picture());
            EXPECT_FALSE(difference.isTolerable()) << "control " << id << " of group " << group << ": "
                                                   << difference.share << ", " << difference.worstPlace;
            childOf(group).GetDlgItem(id)->ShowWindow(SW_SHOW);
            childOf(1).GetDlgItem(2005)->SetFocus(); // it goes on from a control that is hidden
            EXPECT_TRUE(differenceOf(before, picture()).isNone()) << id;
        }
    }
}
