// The six outputs that the service offers for a pushed model, clicked in the pane of the real viewer and saved.

#include "platform/testing/ModalExpectation.h"
#include "platform/text/Text.h"
#include "tests/e2e/RoadTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <afxdlgs.h>

#include <cstring>
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

    QString const folder = data.filePath(QString::fromUtf8("Modelle gr\u00f6\u00dfer"));
    std::unique_ptr<orvtour::Driver> driver;
    QString name; ///< that the last dialog proposed
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
    for (std::size_t entry = 0; entry < 6; ++entry) {
        QString const kind = download(entry, folder);
        EXPECT_EQ(name, kind == "bompdf" ? "planetary-gearbox_PartLevel.bompdf" : "planetary-gearbox." + kind);
        EXPECT_EQ(driver->status(), name + " saved");
        saved[kind] = contentOf(QDir(folder).filePath(name));
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
}

TEST_F(Downloads, FailedSaveEndsWithTheNameAlone)
{
    QString const missing = QDir(folder).filePath("missing");
    for (std::size_t entry = 0; entry < 6; ++entry) {
        download(entry, missing);
        EXPECT_EQ(driver->status(), name);
    }
    EXPECT_FALSE(QFileInfo::exists(missing));
    // The folder is made, and the same click saves.
    ASSERT_TRUE(QDir().mkpath(missing));
    download(0, missing);
    EXPECT_EQ(driver->status(), name + " saved");
    EXPECT_EQ(QDir(missing).entryList(QDir::Files | QDir::Hidden), QStringList{name});
}

} // namespace
