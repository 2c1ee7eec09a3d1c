#include "FormMaps.h"

#include "platform/qt/Native.h"

#include <QtWidgets>

using namespace orvplatform::testing;

namespace
{
class Controls : public ::testing::Test
{
protected:
    Controls()
    {
        registerTestResources();
        EXPECT_TRUE(form.Create(10, nullptr));
        form.log.clear();
    }
    Form form;
};
} // namespace

TEST_F(Controls, GiveAndTakeLineBreaksInPairs)
{
    typeText(form, 53, L"one\ntwo");
    EXPECT_EQ(textOf(form, 53), L"one\r\ntwo");
    form.SetDlgItemText(53, L"a\r\nb\nc");
    EXPECT_EQ(textOf(form, 53), L"a\r\nb\r\nc");
    EXPECT_EQ(form.GetDlgItem(53)->GetWindowTextLength(), 7);
}

TEST_F(Controls, ShowAPromptThatIsNoText)
{
    EXPECT_TRUE(form.edit.SetCueBanner(L"Enter a name", TRUE));
    EXPECT_EQ(promptOf(form, 51), L"Enter a name");
    EXPECT_EQ(textOf(form, 51), L"preset");
    form.edit.SetWindowText(L"");
    EXPECT_EQ(textOf(form, 51), L"");
    wchar_t prompt[32];
    EXPECT_TRUE(form.edit.SendMessage(EM_GETCUEBANNER, reinterpret_cast<WPARAM>(prompt), 32));
    EXPECT_STREQ(prompt, L"Enter a name");
}

TEST_F(Controls, HideAPasswordAndKeepItWhole)
{
    EXPECT_TRUE(form.password.GetStyle() & ES_PASSWORD);
    EXPECT_TRUE(typeText(form, 52, L"pässwörd 日本 😀"));
    CString text;
    form.password.GetWindowText(text);
    EXPECT_EQ(text, L"pässwörd 日本 😀");
}

TEST_F(Controls, LimitWhatIsTyped)
{
    form.password.SetValidChars(L"0123-]");
    EXPECT_TRUE(typeText(form, 52, L"2-1]"));
    EXPECT_EQ(textOf(form, 52), L"2-1]");
    typeText(form, 52, L"x");
    EXPECT_EQ(textOf(form, 52), L"2-1]");
}

TEST_F(Controls, TellWhenAnEditChanges)
{
    form.edit.SetWindowText(L"other");
    EXPECT_EQ(form.log, std::vector<std::string>{"changed"});
}

TEST_F(Controls, CheckAndUncheck)
{
    auto* box = static_cast<CButton*>(form.GetDlgItem(55));
    EXPECT_EQ(box->GetCheck(), BST_UNCHECKED);
    EXPECT_TRUE(clickButton(form, 55));
    EXPECT_EQ(box->GetCheck(), BST_CHECKED);
    box->SetCheck(BST_UNCHECKED);
    EXPECT_EQ(box->GetCheck(), BST_UNCHECKED);
}

TEST_F(Controls, FollowLinksOfAText)
{
    const std::wstring text =
        L"Visit  <a href=\"https://example.test\">https://example.test</a> or write to <A HREF=\"help@example.test\">"
        L"us</A>, a < b & c.";
    form.SetDlgItemText(57, text.c_str());
    EXPECT_EQ(textOf(form, 57), text);
    EXPECT_TRUE(clickLink(form, 57, L"help@example.test"));
    EXPECT_TRUE(clickLink(form, 57, L"https://example.test"));
    EXPECT_FALSE(clickLink(form, 57, L"https://elsewhere.test"));
    EXPECT_EQ(form.log, (std::vector<std::string>{"link help@example.test", "link https://example.test"}));
}

TEST_F(Controls, OpenTheAddressOfAWebLink)
{
    std::vector<std::wstring> opened;
    orvplatform::setOpenAddressHook([&](const std::wstring& address) {
        opened.push_back(address);
        return true;
    });
    EXPECT_TRUE(clickButton(form, 56)); // its address stands in the template
    CMFCLinkCtrl link;
    link.SubclassDlgItem(56, &form);
    EXPECT_EQ(link.GetURL(), L"https://example.test/reset");
    link.SetURL(L"help@example.test");
    link.SetURLPrefix(L"mailto:");
    clickButton(form, 56);
    link.SetURL(L"");
    link.SetURLPrefix(L"");
    clickButton(form, 56); // nothing to open
    EXPECT_EQ(opened, (std::vector<std::wstring>{L"https://example.test/reset", L"mailto:help@example.test"}));
    orvplatform::setOpenAddressHook({});
}

TEST_F(Controls, GiveButtonsPicturesAndToolTips)
{
    form.apply.SetTooltip(L"Applies everything");
    EXPECT_EQ(form.apply.GetTooltip(), L"Applies everything");
    form.apply.SetImage(6);
    form.apply.SetImage(9999); // no such resource: the picture stays
    form.apply.SetFaceColor(RGB(255, 0, 0));
    EXPECT_TRUE(clickButton(form, 1000));
    CMFCButton::EnableWindowsTheming(TRUE);
    EXPECT_TRUE(CMFCButton::IsWindowsThemingEnabled());
    CMFCButton::EnableWindowsTheming(FALSE);
}

TEST_F(Controls, OwnThePictureOnShow)
{
    CWnd frame;
    frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 100, 100), nullptr, 0);
    CStatic picture;
    picture.Create(L"", WS_CHILD | SS_BITMAP, CRect(0, 0, 50, 50), &frame, 60);
    CPngImage first;
    CPngImage second;
    ASSERT_TRUE(first.Load(5));
    ASSERT_TRUE(second.Load(6));
    HBITMAP firstHandle = static_cast<HBITMAP>(first.Detach());
    HBITMAP secondHandle = static_cast<HBITMAP>(second.Detach());
    EXPECT_EQ(picture.SetBitmap(firstHandle), nullptr);
    EXPECT_EQ(picture.GetBitmap(), firstHandle);
    EXPECT_EQ(picture.SetBitmap(secondHandle), firstHandle); // the caller's again
    EXPECT_TRUE(::DeleteObject(firstHandle));
    frame.DestroyWindow();
    processEvents();
    EXPECT_FALSE(::DeleteObject(secondHandle)); // went with the control
}

TEST_F(Controls, AreFoundAsObjectsOfTheirClass)
{
    EXPECT_TRUE(form.GetDlgItem(1001)->IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_TRUE(form.GetDlgItem(53)->IsKindOf(RUNTIME_CLASS(CEdit)));
    EXPECT_TRUE(form.GetDlgItem(50)->IsKindOf(RUNTIME_CLASS(CStatic)));
    EXPECT_TRUE(form.GetDlgItem(57)->IsKindOf(RUNTIME_CLASS(CLinkCtrl)));
    EXPECT_EQ(form.GetDlgItem(51), &form.edit);
    EXPECT_EQ(form.GetDlgItem(777), nullptr);
    EXPECT_EQ(form.GetDlgItem(1001), form.GetDlgItem(1001));
}

TEST_F(Controls, MeasureTextInOneLine)
{
    CClientDC context(&form);
    EXPECT_NE(context.SelectObject(form.GetFont()), nullptr);
    const CSize one = context.GetTextExtent(L"abc", 3);
    const CSize broken = context.GetTextExtent(L"abc\nabc", 7);
    EXPECT_GT(one.cx, 0);
    EXPECT_EQ(broken.cy, one.cy);
    EXPECT_GT(broken.cx, 2 * one.cx); // the break counts as a character
    SIZE size{};
    EXPECT_FALSE(GetTextExtentPoint32W(nullptr, L"a", 1, &size));
    EXPECT_FALSE(GetTextExtentPoint32W(context, nullptr, 1, &size));
    EXPECT_TRUE(GetTextExtentPoint32W(context, L"", 0, &size));
    EXPECT_EQ(size.cx, 0);
}

namespace
{
// The accent is the only blue; letters are drawn in shades of their colour.
bool showsBlue(CWnd& window)
{
    const QImage picture = orvplatform::widgetOf(window.m_hWnd)->grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor each = picture.pixelColor(x, y); each.blue() - each.red() > 60)
                return true;
    return false;
}
} // namespace

TEST_F(Controls, DrawsAWebLinkInTheColourOfLinks)
{
    EXPECT_TRUE(showsBlue(*form.GetDlgItem(56)));
    EXPECT_FALSE(showsBlue(*form.GetDlgItem(50)));
    EXPECT_EQ(orvplatform::widgetOf(form.GetDlgItem(56)->m_hWnd)->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Controls, KeepsAnAddressInATextInOnePiece)
{
    CWnd frame;
    frame.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 400, 200), nullptr, 0);
    HWND text = CreateWindowExW(0, L"SysLink", L"See <a href=\"http://a.test:8640/b\">http://a.test:8640/b</a>",
                                WS_CHILD, 0, 0, 160, 80, frame.m_hWnd, nullptr, nullptr, nullptr);
    const auto* label = qobject_cast<QLabel*>(orvplatform::widgetOf(text));
    ASSERT_NE(label, nullptr);
    QTextDocument laidOut;
    laidOut.setDefaultFont(label->font());
    laidOut.setDocumentMargin(0);
    laidOut.setHtml(label->text());
    const QString plain = laidOut.toPlainText();
    const qsizetype from = plain.indexOf(u'h');
    for (int width = 160; width > QFontMetrics(label->font()).horizontalAdvance("http://a.test:8640/b"); --width) {
        laidOut.setTextWidth(width);
        ASSERT_GT(laidOut.size().height(), 0); // lays it out
        const QTextLayout* lines = laidOut.firstBlock().layout();
        for (int i = 0; i < lines->lineCount(); ++i)
            EXPECT_FALSE(lines->lineAt(i).textStart() > from) << "at " << width << " pixels";
    }
    // One that has no room breaks, but never within "http://".
    SetWindowTextW(text, L"<a href=\"x\">http://a.very.long.name.of.a.host.example.test/with/a/path</a>");
    laidOut.setHtml(label->text());
    laidOut.setTextWidth(60);
    ASSERT_GT(laidOut.size().height(), 0);
    ASSERT_GT(laidOut.firstBlock().layout()->lineCount(), 1);
    EXPECT_GE(laidOut.firstBlock().layout()->lineAt(1).textStart(), 8);
}
