// The six outputs that the service offers for a pushed model, clicked in the pane of the real viewer and saved.

#include "platform/testing/ModalExpectation.h"
#include "platform/text/Text.h"
#include "tests/e2e/RoadTest.h"
#include "tests/exporters/CommandOutput.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/StatusLine.h"
#include "viewer/app/ViewerSession.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <afxdlgs.h>

#include <cstring>
#include <functional>
#include <map>

namespace
{

using orvplatform::testing::choosePath;
using orvplatform::testing::ModalScript;

class Downloads : public RoadTest
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(startService());
        driver = startViewer();
        ASSERT_TRUE(driver->openModel(sampleModel())) << driver->status();
        ASSERT_TRUE(driver->signIn(email, password)) << driver->status(); // which pushes the model
        ASSERT_EQ(driver->blocks().size(), 6U);
        ASSERT_TRUE(QDir().mkpath(folder));
    }

    /// Clicks an entry of the feed and answers the dialog with the proposed name in `place`; gives the output's kind.
    QString download(std::size_t entry, QString const& place)
    {
        QString kind;
        ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
        script.expectModal<CFileDialog>([&](CFileDialog& dialog) -> INT_PTR {
            kind = QString::fromWCharArray(dialog.m_ofn.lpstrDefExt);
            name = QString::fromStdWString(std::wstring(dialog.GetFileName().GetString()));
            if (occupy) {
                occupy(QDir(place).filePath(name));
            }
            choosePath(dialog, QDir(place).filePath(name).toStdWString());
            return IDOK;
        });
        EXPECT_TRUE(driver->clickBlock(entry));
        return kind;
    }
    static QByteArray contentOf(QString const& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// What stands in the folder and is no folder, hidden or not.
    static QStringList filesIn(QString const& place) { return QDir(place).entryList(QDir::Files | QDir::Hidden); }
    void expectNothingToBeGoingOn()
    {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(driver->session().window().status().isProgressShown());
    }

    QString const folder = data.filePath(QString::fromUtf8("Modelle gr\u00f6\u00dfer"));
    std::unique_ptr<orvtour::Driver> driver;
    QString name;                               ///< that the last dialog proposed
    std::function<void(QString const&)> occupy; ///< puts something in the way of that path; empty for nothing
};

TEST_F(Downloads, EachOutputIsSavedAndOfItsKind)
{
    std::map<QString, QByteArray> const beginnings{{"3ds", "MM"},
                                                   {"obj", "# File produced"},
                                                   {"stl", ""},
                                                   {"pdf", "%PDF-1.7"},
                                                   {"csv", "\xEF\xBB\xBFItem,Level,Part,Quantity,Total\r\n"},
                                                   {"bompdf", "%PDF-1."}};
    std::map<QString, QByteArray> saved;
    std::map<QString, std::size_t> entries;
    for (std::size_t entry = 0; entry < 6; ++entry) {
        QString const kind = download(entry, folder);
        EXPECT_EQ(name, kind == "bompdf" ? "planetary-gearbox_PartLevel.bompdf" : "planetary-gearbox." + kind);
        EXPECT_EQ(driver->status(), name + " saved");
        saved[kind] = contentOf(QDir(folder).filePath(name));
        entries[kind] = entry;
        expectNothingToBeGoingOn();
        EXPECT_GT(saved[kind].size(), 500) << kind;
    }
    ASSERT_EQ(saved.size(), beginnings.size());
    for (auto const& [kind, beginning] : beginnings) {
        EXPECT_TRUE(saved.contains(kind)) << kind;
        EXPECT_TRUE(saved[kind].startsWith(beginning)) << kind;
    }
    // A binary STL file tells its own length: 80 bytes, a count, and 50 bytes a triangle.
    QByteArray const stl = saved["stl"];
    quint32 triangles = 0;
    std::memcpy(&triangles, stl.constData() + 80, sizeof triangles);
    EXPECT_GT(triangles, 10000U);
    EXPECT_EQ(static_cast<quint32>(stl.size()), 84 + 50 * triangles);
    EXPECT_TRUE(saved["pdf"].contains("/3DD"));
    EXPECT_FALSE(saved["bompdf"].contains("/3DD"));

    // The table by level doesn't make the printed one that follows it one by level.
    download(entries["csv"], folder);
    download(entries["bompdf"], folder);
    EXPECT_EQ(driver->status(), "planetary-gearbox_PartLevel.bompdf saved");
    auto const printed = orvtest::outputOf("pdftotext -layout '" + QDir(folder).filePath(name).toStdString() + "' -");
    EXPECT_NE(printed.find("Bill of materials by part"), std::string::npos) << printed;
    EXPECT_EQ(printed.find("by level"), std::string::npos) << printed;
}

TEST_F(Downloads, FailedSaveEndsWithTheNameAlone)
{
    QString const missing = QDir(folder).filePath("missing");
    for (std::size_t entry = 0; entry < 6; ++entry) {
        download(entry, missing);
        EXPECT_EQ(driver->status(), name);
        expectNothingToBeGoingOn();
    }
    EXPECT_FALSE(QFileInfo::exists(missing));
    // The folder is made, and the same click saves.
    ASSERT_TRUE(QDir().mkpath(missing));
    download(0, missing);
    EXPECT_EQ(driver->status(), name + " saved");
    QStringList const all = filesIn(missing);
    EXPECT_TRUE(all.contains(name));
    EXPECT_EQ(all.size(), name.endsWith(".obj") ? 2 : 1) << "and nothing else";
}

TEST_F(Downloads, SaveOntoAFolderOrAProtectedFileLeavesItAsItWas)
{
    QString const place = QDir(folder).filePath("taken");
    for (bool const isFolder : {true, false}) {
        for (std::size_t entry = 0; entry < 6; ++entry) {
            ASSERT_TRUE(QDir(place).removeRecursively() && QDir().mkpath(place));
            // The name is known once the dialog proposes it.
            occupy = [&](QString const& path) {
                if (isFolder) {
                    ASSERT_TRUE(QDir().mkpath(path));
                } else {
                    QFile file(path);
                    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("earlier") == 7);
                    ASSERT_TRUE(file.setPermissions(QFileDevice::ReadOwner));
                }
            };
            download(entry, place);
            occupy = nullptr;
            EXPECT_EQ(driver->status(), name);
            EXPECT_EQ(filesIn(place), isFolder ? QStringList() : QStringList{name});
            EXPECT_EQ(QDir(place).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
                      isFolder ? QStringList{name} : QStringList());
            if (isFolder) {
                EXPECT_TRUE(
                    QDir(QDir(place).filePath(name)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
            } else {
                EXPECT_EQ(contentOf(QDir(place).filePath(name)), "earlier");
            }
            expectNothingToBeGoingOn();
        }
    }
}

} // namespace
