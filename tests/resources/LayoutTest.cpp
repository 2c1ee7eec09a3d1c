// Every window of the plug-in, made by its own class from the template of each language and filled as in use: all texts
// are seen whole, nothing lies on anything else. Runs once for each step of the display's scaling, which is that of
// QT_FONT_DPI. Leaves a contact sheet of each language in pictures/ of the build.

#include "resources/ContactSheet.h"
#include "resources/WidgetFit.h"
#include "ui/ResourceIds.h"
#include "ui/account/CloudLoginDlg.h"
#include "ui/account/SettingsDlg.h"
#include "ui/feed/FeedPaneFixture.h"
#include "ui/feed/ShareDialog.h"

#include "platform/qt/Look.h"

#include <afxcontrolbars.h>

#include <QDir>
#include <QPainter>

using namespace orvtest;
using orvplatform::testing::clickButton;
namespace codes = orv::HintCode;

namespace
{

using Look = std::function<void(CWnd& window)>;

std::string sentencesOf(std::vector<std::string> const& misfits)
{
    std::string all;
    for (auto const& sentence : misfits) {
        all += sentence + "\n";
    }
    return all;
}

class LayoutTest : public FeedPaneTest, public testing::WithParamInterface<wchar_t const*>
{
protected:
    LayoutTest()
    {
        configure(GetParam(), orvplatform::logicalDpi());
        orvplatform::widgetOf(tab)->setFixedSize(orvplatform::sideBarWidth(), 1400);
        orvplatform::widgetOf(frame)->resize(orvplatform::sideBarWidth(), 1400);
        frame.ShowWindow(SW_SHOW);
    }

    void showSignIn(Look const& look)
    {
        modals.expectModal<CloudLoginDlg>([&](CloudLoginDlg& dialog) {
            look(dialog);
            return IDCANCEL;
        });
        CloudLoginDlg(scene.document, user, helper).DoModal();
    }
    /// The options page in its sheet, with the sheet's own words in English: they are the viewer's.
    void showOptions(Look const& look)
    {
        SettingsDlg page(scene.document, nullptr, user, std::make_shared<CloudSettings>(), helper);
        CMFCPropertySheet sheet(L"Options");
        sheet.AddPage(&page);
        modals.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet&) -> INT_PTR {
            look(page);
            return IDCANCEL;
        });
        sheet.DoModal();
    }
    /// With the sentence about bad addresses on show.
    void showShare(Look const& look)
    {
        modals.expectModal<sharedlg>([&](sharedlg& dialog) {
            EXPECT_TRUE(clickButton(dialog, IDOK));
            EXPECT_TRUE(orvplatform::testing::isVisible(dialog, 1036));
            look(dialog);
            return IDCANCEL;
        });
        sharedlg(scene.document, user, helper).DoModal();
    }
    void showPane(Look const& look, std::vector<Feed> const& feeds)
    {
        openPane();
        orvplatform::widgetOf(*pane)->resize(orvplatform::sideBarWidth(), 1400);
        sendHint(*pane, codes::documentActivated, scene.document);
        sendHint(*pane, codes::documentOpened, scene.document);
        if (!feeds.empty()) {
            loadRecords(feeds);
        }
        orvplatform::testing::processEvents();
        look(*pane);
        pane->DestroyWindow();
        pane = nullptr;
    }
    static std::vector<Feed> oneComment()
    {
        constexpr int side = 180;
        std::string picture = pictureBytes(side, side);
        std::size_t const pixels = picture.size() - static_cast<std::size_t>(side) * side * 3;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                auto const at = pixels + static_cast<std::size_t>(y * side + x) * 3;
                bool const isPart = std::abs(x - side / 2) + std::abs(y - side / 2) < 50;
                picture[at] = static_cast<char>(isPart ? 232 : 197 + y / 4);
                picture[at + 1] = static_cast<char>(isPart ? 125 : 191 + y / 4);
                picture[at + 2] = static_cast<char>(isPart ? 63 : 187 + y / 4);
            }
        }
        Feed withPicture = comment(L"OK");
        withPicture.thumbnail = dataUri(picture);
        return {withPicture};
    }

    /// The pixels that a control draws, in its window.
    static QImage inkOf(QWidget const& window, int id)
    {
        QWidget& control = *orvplatform::widgetOf(GetDlgItem(orvplatform::handleOf(const_cast<QWidget*>(&window)), id));
        QImage ink(window.size() + QSize(0, 100), QImage::Format_ARGB32_Premultiplied); // what stands lower, too
        ink.fill(Qt::transparent);
        if (control.isVisibleTo(&window)) {
            QPainter painter(&ink);
            control.render(&painter, control.pos(), QRegion(), QWidget::DrawChildren);
        }
        return ink;
    }
    static int pixelsOf(QImage const& ink, QImage const& other)
    {
        int count = 0;
        for (int y = 0; y < ink.height(); ++y) {
            for (int x = 0; x < ink.width(); ++x) {
                count += qAlpha(ink.pixel(x, y)) > 48 && qAlpha(other.pixel(x, y)) > 48 ? 1 : 0;
            }
        }
        return count;
    }
    /// Expects that the first comment shows all of its texts, and none on another or on the bin. The boxes of date and
    /// bin lie on the picture's upper edge, that is meant.
    void expectBlockFits(bool hasPicture)
    {
        auto const last = groups().back();
        QWidget const& block = *orvplatform::widgetOf(last.window);
        for (auto const& sentence : restest::misfits(block)) {
            EXPECT_EQ(sentence.find(" needs "), std::string::npos) << sentence;
        }
        QImage const content = inkOf(block, resource::control::commentText);
        QImage const date = inkOf(block, resource::control::publishingDate);
        QImage const bin = inkOf(block, resource::control::deleteComment);
        QImage const picture = inkOf(block, resource::control::thumbnail);
        EXPECT_GT(pixelsOf(content, content), 100);
        EXPECT_GT(pixelsOf(bin, bin), 40);
        EXPECT_EQ(pixelsOf(date, date) > 40, hasPicture);
        EXPECT_EQ(pixelsOf(picture, picture) > 1000, hasPicture);
        EXPECT_EQ(pixelsOf(content, bin), 0);
        EXPECT_EQ(pixelsOf(content, date), 0);
        EXPECT_EQ(pixelsOf(content, picture), 0);
        EXPECT_EQ(pixelsOf(date, bin), 0);
        QImage below(content.size(), QImage::Format_ARGB32_Premultiplied);
        below.fill(Qt::transparent);
        QPainter(&below).fillRect(0, block.height(), below.width(), below.height(), Qt::black);
        EXPECT_EQ(pixelsOf(content, below), 0) << "cut off at the lower edge";
    }
    /// Expects that a window with so many texts shows all of them.
    static Look fits(int texts)
    {
        return [texts](CWnd& window) {
            orvplatform::testing::processEvents();
            QWidget const& widget = *orvplatform::widgetOf(window);
            EXPECT_EQ(sentencesOf(restest::misfits(widget)), "");
            EXPECT_GE(restest::textCount(widget), texts);
        };
    }
};

} // namespace

TEST_P(LayoutTest, RunsAtTheResolutionItIsNamedAfter)
{
    EXPECT_EQ(orvplatform::logicalDpi(), qEnvironmentVariableIntValue("QT_FONT_DPI"));
    EXPECT_EQ(orvsgutils::ResourceLoader::m_dpi, orvplatform::logicalDpi());
}

TEST_P(LayoutTest, SignInFits)
{
    showSignIn(fits(5)); // two labels, the web link, the button, the offer of an account
}

TEST_P(LayoutTest, OptionsOfASignedOutUserFit)
{
    showOptions(fits(3));
}

TEST_P(LayoutTest, OptionsOfASignedInUserFit)
{
    signIn();
    SessionFile().write(L"a.rather.long.name@engineering.example.com", token, L"Ann");
    showOptions(fits(3));
}

TEST_P(LayoutTest, ShareFits)
{
    showShare(fits(6)); // the two prompts, too
}

TEST_P(LayoutTest, PaneOfASignedOutUserFits)
{
    showPane(fits(3), {});
}

TEST_P(LayoutTest, PaneOfASignedInUserFits)
{
    signIn();
    showPane(fits(3), {});
}

TEST_P(LayoutTest, ABlockWithAPictureFits)
{
    signIn();
    std::wstring const sentence = text(129);
    std::wstring const date = L"Nov 30, 2026 23:59 PM";
    for (std::wstring const& content : {sentence, sentence + L" " + sentence + L" " + sentence}) {
        auto feeds = oneComment();
        feeds.front().comment.content = content;
        feeds.front().comment.publishedTime = date;
        showPane([&](CWnd&) { expectBlockFits(true); }, feeds);
    }
}

TEST_P(LayoutTest, ABlockWithoutAPictureFits)
{
    signIn();
    showPane([&](CWnd&) { expectBlockFits(false); }, {comment(text(129))});
}

TEST_P(LayoutTest, TheGroupsAreAsHighAsWhatTheyHold)
{
    signIn();
    showPane(
        [this](CWnd&) {
            for (std::size_t i = 0; i < groups().size(); ++i) {
                QWidget const& form = *orvplatform::widgetOf(childOf(i));
                for (auto const* control : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
                    EXPECT_LE(control->geometry().bottom(), form.height()) << i;
                    EXPECT_LE(control->geometry().right(), form.width()) << i;
                }
            }
        },
        {});
}

TEST_P(LayoutTest, TheWindowsAreOnAContactSheet)
{
    restest::ContactSheet sheet(static_cast<int>(1200 * orvplatform::logicalDpi() / 96.0));
    auto const keep = [&sheet](char const* title) -> Look {
        return [&sheet, title](CWnd& window) {
            orvplatform::testing::processEvents();
            sheet.add(title, orvplatform::widgetOf(window)->grab().toImage());
        };
    };
    auto const keepCards = [this, &sheet](char const* title) -> Look {
        return [this, &sheet, title](CWnd& window) {
            QWidget& widget = *orvplatform::widgetOf(window);
            QWidget const& last = *orvplatform::widgetOf(groups().back().window);
            int const end = last.mapTo(&widget, QPoint(0, last.height())).y() + orvplatform::scaled(16);
            sheet.add(title, widget.grab(QRect(0, 0, widget.width(), end)).toImage());
        };
    };
    showSignIn(keep("Sign in"));
    showShare(keep("Share"));
    showOptions(keep("Options, signed out"));
    signIn();
    showOptions(keep("Options, signed in"));
    user->userid.clear();
    showPane(keepCards("Side bar, signed out"), {});
    user->userid = token;
    showPane(keepCards("Side bar, signed in"), oneComment());

    QImage const picture = sheet.draw();
    QString const folder = QStringLiteral(ORV_BINARY_DIR "/pictures");
    ASSERT_TRUE(QDir().mkpath(folder));
    QString const name = QString("dialogs-%1-%2.png")
                             .arg(QString::fromWCharArray(GetParam()))
                             .arg(qRound(orvplatform::logicalDpi() / 0.96));
    EXPECT_TRUE(picture.save(folder + "/" + name));
    EXPECT_GT(picture.height(), picture.width() / 4);
}

INSTANTIATE_TEST_SUITE_P(Languages, LayoutTest, testing::Values(L"en", L"fr", L"de", L"ja", L"ko", L"zh", L"es", L"pt"),
                         [](auto const& test) {
                             std::wstring const code = test.param;
                             return std::string(code.begin(), code.end());
                         });
