#include "FormMaps.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>

using namespace orvplatform::testing;

TEST(FileDialog, SavesUnderTheNameThatTheUserChose)
{
    registerTestResources();
    ModalScript script([](const std::string& why) { ADD_FAILURE() << why; });
    CFileDialog dialog(FALSE, L"stl", L"bracket.stl", 6, L"STL (*.stl)|*.stl||");
    EXPECT_EQ(dialog.GetPathName(), L"bracket.stl");
    EXPECT_FALSE(dialog.m_bOpenFileDialog);
    EXPECT_STREQ(dialog.m_ofn.lpstrDefExt, L"stl");
    EXPECT_EQ(dialog.m_ofn.Flags, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    EXPECT_STREQ(dialog.m_ofn.lpstrFilter, L"STL (*.stl)");
    EXPECT_STREQ(dialog.m_ofn.lpstrFilter + 12, L"*.stl");
    script.expectModal<CFileDialog>([](CFileDialog& asked) {
        choosePath(asked, L"/some/where/part one.v2.stl");
        return IDOK;
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), L"/some/where/part one.v2.stl");
    EXPECT_EQ(dialog.GetFileName(), L"part one.v2.stl");
    EXPECT_EQ(dialog.GetFileTitle(), L"part one.v2");
    EXPECT_EQ(dialog.GetFileExt(), L"stl");
    script.expectModal<CFileDialog>([](CFileDialog& asked) {
        choosePath(asked, L"/some/\u00e4/\u6b6f\u8eca.\U0001F600.st\u00e9");
        return IDOK;
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetFileName(), L"\u6b6f\u8eca.\U0001F600.st\u00e9");
    EXPECT_EQ(dialog.GetFileTitle(), L"\u6b6f\u8eca.\U0001F600");
    EXPECT_EQ(dialog.GetFileExt(), L"st\u00e9");
}

TEST(FileDialog, AsksForAFileWithTheGivenFilterAndExtension)
{
    registerTestResources();
    QTemporaryDir folder;
    struct User : CWnd {
        std::function<void(QFileDialog&)> act;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (dialog)
                    act(*dialog);
                else
                    PostMessage(WM_USER);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } user;
    user.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    const std::wstring directory = folder.path().toStdWString();
    const auto ask = [&](std::function<void(QFileDialog&)> act, CFileDialog& dialog) {
        user.act = std::move(act);
        dialog.m_ofn.lpstrInitialDir = directory.c_str();
        user.PostMessage(WM_USER);
        return dialog.DoModal();
    };

    CFileDialog save(FALSE, L"stl", L"bracket.stl", 6, L"STL (*.stl)|*.stl||");
    EXPECT_EQ(ask(
                  [](QFileDialog& dialog) {
                      EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
                      EXPECT_EQ(dialog.nameFilters(), QStringList{"STL (*.stl)"});
                      EXPECT_EQ(dialog.selectedFiles().value(0).section('/', -1), "bracket.stl");
                      EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
                      dialog.selectFile("other");
                      static_cast<QDialog&>(dialog).accept();
                  },
                  save),
              IDOK);
    EXPECT_EQ(save.GetPathName(), (directory + L"/other.stl").c_str());

    CFileDialog cancelled(FALSE, L"xyz", L"part. ", OFN_HIDEREADONLY, L"");
    EXPECT_EQ(ask(
                  [](QFileDialog& dialog) {
                      EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
                      dialog.reject();
                  },
                  cancelled),
              IDCANCEL);
    EXPECT_EQ(cancelled.GetPathName(), L"part. ");

    // A name from somebody else's record: it stays what was asked for, but chooses no folder and hides nothing.
    struct {
        const wchar_t* name;
        const wchar_t* extension;
        const char* proposed; // the name alone
        const char* suffix;
    } const names[] = {{L"bracket./../../x.csv", L"/../../x.csv", "x.csv", "csv"},
                       {L"bracket./etc/passwd", L"/etc/passwd", "passwd", "passwd"},
                       {L"bracket...", L"..", "bracket...", ""},
                       {L"bracket./..", L"/..", "", ""},
                       {L"bracket.s\ntl", L"s\ntl", "bracket.s_tl", "s_tl"},
                       // Shown, this would read as "bracketlts.exe" spelled backwards; and lines end here, too.
                       {L"bracket\u202Eexe.stl", L"s\u202Etl", "bracket_exe.stl", "s_tl"},
                       {L"a\u200B\u2066b\uFEFFc.stl", L"stl", "a__b_c.stl", "stl"},
                       {L"a\u2028b\u2029c.\U000E0041\U0001F600", L"\u2028csv", "a_b_c._\U0001F600", "_csv"}};
    for (const auto& one : names) {
        CFileDialog asked(FALSE, one.extension, one.name, 6, L"");
        EXPECT_EQ(ask(
                      [&](QFileDialog& dialog) {
                          EXPECT_EQ(dialog.directory().absolutePath(), folder.path());
                          const auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
                          EXPECT_EQ(edit ? edit->text().toStdString() : "no box for the name", one.proposed);
                          EXPECT_EQ(dialog.defaultSuffix().toStdString(), one.suffix);
                          dialog.reject();
                      },
                      asked),
                  IDCANCEL);
        EXPECT_EQ(asked.GetPathName(), one.name);
        EXPECT_STREQ(asked.m_ofn.lpstrDefExt, one.extension);
    }
}

TEST(FileDialog, KeepsAPathOfAnyLengthWhole)
{
    registerTestResources();
    std::wstring longPath;
    while (longPath.size() < MAX_PATH)
        longPath += L"/" + std::wstring(200, L'a');
    longPath += L"/c.stl"; // longer than the room that there is at first
    CFileDialog dialog(FALSE, L"stl", L"bracket.stl", 6, L"");
    dialog.TakePath(longPath);
    EXPECT_EQ(dialog.GetPathName(), longPath.c_str());
    EXPECT_EQ(dialog.GetFileName(), L"c.stl");
    wchar_t room[10];
    dialog.m_ofn.lpstrFile = room;
    dialog.m_ofn.nMaxFile = 10;
    dialog.TakePath(longPath);
    EXPECT_EQ(dialog.GetPathName(), std::wstring(longPath, 0, 9).c_str()) << "the caller's room is kept to";
}
