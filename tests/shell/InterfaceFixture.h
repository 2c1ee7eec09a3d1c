#pragma once

#include "shell/LoadedPlugin.h"

#include "platform/qt/Native.h"
#include "platform/qt/RibbonWidget.h"
#include "platform/qt/ToolBarPictures.h"

#include <QBuffer>

namespace orvtest
{

/// The loaded plug-in, and the viewer's ribbon and side bar that it finds its way into.
class InterfaceTest : public UiTest
{
protected:
    ~InterfaceTest() override
    {
        // The viewer's windows go before the plug-in's library does.
        if (sideBar.GetSafeHwnd() != nullptr) {
            sideBar.DestroyWindow();
        }
    }

    OrvantaCategory& openRibbon()
    {
        EXPECT_TRUE(ribbon.Create(&frame));
        auto* const category = dynamic_cast<OrvantaCategory*>(
            ribbon.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory)));
        EXPECT_NE(category, nullptr);
        category->AddPanel(L"File");
        category->AddPanel(L"Help");
        return *category;
    }
    void openSideBar()
    {
        EXPECT_TRUE(sideBar.Create(L"Side bar", &frame, CRect(0, 0, 320, 700), 7, WS_CHILD | WS_VISIBLE));
    }

    /// A module in which these numbers are red pictures.
    HINSTANCE moduleWithPictures(std::vector<UINT> const& ids) const
    {
        QImage red(24, 24, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QByteArray picture;
        QBuffer buffer(&picture);
        red.save(&buffer, "PNG");
        auto const little = [](UINT number, int bytes) {
            std::string text;
            for (int i = 0; i < bytes; ++i) {
                text += static_cast<char>(number >> (8 * i) & 0xFF);
            }
            return text;
        };
        std::string file = little(0, 4) + little(32, 4) + little(0xFFFF, 4) + little(0xFFFF, 4) + std::string(16, '\0');
        for (UINT const id : ids) {
            std::string const type("P\0N\0G\0\0\0", 8);
            std::string const header = type + little(0xFFFF, 2) + little(id, 2) + little(0, 6) + little(0x0409, 2);
            auto const size = static_cast<UINT>(picture.size());
            file += little(size, 4) + little(static_cast<UINT>(header.size()) + 16, 4) + header + little(0, 8);
            file += picture.toStdString();
            file.resize((file.size() + 3) / 4 * 4);
        }
        auto const path = dataDirectory / "viewer.res";
        std::ofstream(path, std::ios::binary) << file;
        EXPECT_TRUE(orvplatform::registerModuleFile(L"redviewer.dll", path.string()));
        return GetModuleHandleW(L"redviewer.dll");
    }

    /// True where the list's picture is the resource's.
    static bool isPicture(CMFCToolBarImages& list, int index, UINT id)
    {
        CMFCToolBarImages reference;
        reference.SetImageSize(list.GetImageSize());
        EXPECT_TRUE(reference.Load(id, ResourceModule::handle(), TRUE));
        auto const& pictures = list.pictures().pictures;
        return index < static_cast<int>(pictures.size()) &&
               pictures[static_cast<std::size_t>(index)] == reference.pictures().pictures.at(0);
    }
    /// The picture that a list of that size makes of the resource.
    static QImage paneImage(UINT id, int width, int height)
    {
        CPngImage picture;
        EXPECT_TRUE(picture.Load(id));
        CImageList list;
        EXPECT_TRUE(list.Create(width, height, ILC_COLOR32 | ILC_MASK, 1, 1));
        list.Add(&picture, 0xFF00FF);
        return list.GetSafeHandle()->pictures.at(0);
    }

    LoadedPlugin plugin;
    std::shared_ptr<FakeResourceManager> resources = std::make_shared<FakeResourceManager>();
    CMFCRibbonBar ribbon;
    SideBar sideBar;
};

} // namespace orvtest
