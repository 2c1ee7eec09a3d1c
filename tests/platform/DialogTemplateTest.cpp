#include "platform/windows/DialogTemplate.h"
#include "platform/windows/ResourceFile.h"
#include "windows.h"

#include <gtest/gtest.h>

#include <random>

using orvplatform::Bytes;
using orvplatform::DialogTemplate;
using orvplatform::readDialogTemplate;

namespace
{
const orvplatform::ResourceFile& file()
{
    static const orvplatform::ResourceFile resources = [] {
        bool readable = false;
        return orvplatform::ResourceFile(orvplatform::readResources(TEST_RESOURCES, readable));
    }();
    return resources;
}
Bytes bytesOf(std::uint16_t id)
{
    return file().find(orvplatform::ResourceName::of(RT_DIALOG), {id, {}}, 0x0409)->data;
}
std::wstring targetOf(const orvplatform::DialogItem& item)
{
    return orvtext::fromUtf16Le(item.creationData.data(), item.creationData.size() / 2);
}
} // namespace

TEST(DialogTemplate, ReadsTheExtendedForm)
{
    const auto dialog = readDialogTemplate(bytesOf(10));
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->caption, L"A form");
    EXPECT_EQ(dialog->x, 7);
    EXPECT_EQ(dialog->y, 9);
    EXPECT_EQ(dialog->width, 200);
    EXPECT_EQ(dialog->height, 160);
    EXPECT_EQ(dialog->points, 8);
    EXPECT_EQ(dialog->face, L"MS Shell Dlg");
    ASSERT_EQ(dialog->items.size(), 13u);
    EXPECT_EQ(dialog->items[0].className, L"Static");
    EXPECT_EQ(dialog->items[0].text, L"&Name");
    EXPECT_EQ(dialog->items[1].id, 51);
    EXPECT_EQ(dialog->items[1].className, L"Edit");
    EXPECT_EQ(dialog->items[1].width, 120);
    EXPECT_STRCASEEQ("mfcmaskededit", orvtext::toUtf8(dialog->items[2].className).c_str());
    EXPECT_TRUE(dialog->items[2].style & ES_PASSWORD);
    EXPECT_EQ(dialog->items[6].style & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    EXPECT_FALSE(dialog->items[9].style & WS_VISIBLE);
    EXPECT_EQ(targetOf(dialog->items[10]).substr(0, 26), L"https://example.test/reset");
    EXPECT_EQ(dialog->items[12].id, -1);
}

TEST(DialogTemplate, ReadsTheClassicForm)
{
    const auto dialog = readDialogTemplate(bytesOf(12));
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->caption, L"Classic");
    EXPECT_EQ(dialog->points, 10);
    EXPECT_EQ(dialog->face, L"DejaVu Sans");
    ASSERT_EQ(dialog->items.size(), 2u);
    EXPECT_EQ(dialog->items[0].text, L"Close");
    EXPECT_EQ(dialog->items[0].id, 1);
    EXPECT_EQ(dialog->items[1].id, 70);
}

TEST(DialogTemplate, RefusesWhatEndsEarly)
{
    const Bytes whole = bytesOf(10);
    for (std::size_t length = 0; length + 4 < whole.size(); ++length)
        EXPECT_FALSE(readDialogTemplate(whole.first(length))) << length;
}

TEST(DialogTemplate, SurvivesAnyBytes)
{
    std::mt19937 random(99);
    const Bytes whole = bytesOf(10);
    for (int round = 0; round < 2000; ++round) {
        std::vector<unsigned char> bytes(whole.begin(), whole.end());
        for (int i = 0; i < 6; ++i)
            bytes[random() % bytes.size()] = static_cast<unsigned char>(random());
        if (const auto dialog = readDialogTemplate(bytes)) {
            for (const auto& item : dialog->items)
                EXPECT_LE(item.creationData.size(), bytes.size());
        }
    }
}
