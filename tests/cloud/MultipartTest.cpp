#include "cloud/http/Multipart.h"

#include <gtest/gtest.h>
#include <string>

using namespace orvcloud;

namespace
{
/// Notes what it's told, in short.
struct Notes final : MultipartEvents {
    std::string text;
    std::string data;
    std::string refusedPart;

    bool beginPart(std::string_view name, bool isFile) override
    {
        text.append("[").append(name).append(isFile ? "*" : "").append(":");
        data.clear();
        return name != refusedPart;
    }
    bool partData(std::string_view bytes) override
    {
        data += bytes;
        return true;
    }
    bool endPart() override
    {
        text.append(data).append("]");
        return true;
    }
};

const std::string whole = "--xx\r\nContent-Disposition: form-data; name=\"a\"\r\n\r\n1\r\n--x\r\n"
                          "\r\n--xx\r\ncontent-disposition: form-data; name=empty\r\n\r\n\r\n--xx\r\n"
                          "Content-Type: application/octet-stream\r\nContent-Disposition: form-data; name=\"file\"; "
                          "filename=\"q\\\"; name=z\"\r\n\r\nDA\r\nTA\r\n--xx--\r\nbehind";
const std::string expected = "[a:1\r\n--x\r\n][empty:][file*:DA\r\nTA]";
} // namespace

TEST(Multipart, ReadsPiecesOfAnySize)
{
    for (std::size_t size = 1; size <= whole.size(); ++size) {
        Notes notes;
        MultipartReader reader("xx", notes);
        for (std::size_t at = 0; at < whole.size(); at += size)
            ASSERT_TRUE(reader.read(std::string_view(whole).substr(at, size))) << size;
        EXPECT_TRUE(reader.complete());
        EXPECT_EQ(notes.text, expected) << size;
    }
}

TEST(Multipart, IsIncompleteUntilItsClosingBoundary)
{
    Notes notes;
    MultipartReader reader("xx", notes);
    EXPECT_TRUE(reader.read(std::string_view(whole).substr(0, whole.find("--xx--"))));
    EXPECT_FALSE(reader.complete());
}

TEST(Multipart, RefusesOtherText)
{
    for (const std::string bad : {"preamble\r\n--xx\r\n", "--xxy\r\n\r\n", "--xx\r\n\r\nno name\r\n--xx--",
                                  "--xx\r\nnonsense\r\n\r\n", "--xx\r\nContent-Disposition: attachment; name=a\r\n\r\n",
                                  "--xx\r\nContent-Disposition: form-data; name=\"a\r\n\r\n",
                                  "--xx\r\nContent-Disposition: form-data\r\n\r\n"}) {
        Notes notes;
        EXPECT_FALSE(MultipartReader("xx", notes).read(bad)) << bad;
    }
}

TEST(Multipart, LimitsAPartsHeader)
{
    Notes notes;
    MultipartReader reader("xx", notes);
    EXPECT_TRUE(reader.read("--xx\r\n"));
    EXPECT_FALSE(reader.read(std::string(8193, 'h')));
}

TEST(Multipart, EndsWhenItsReceiverSaysSo)
{
    Notes notes;
    notes.refusedPart = "empty";
    EXPECT_FALSE(MultipartReader("xx", notes).read(whole));
    EXPECT_EQ(notes.text, "[a:1\r\n--x\r\n][empty:");
}

TEST(Multipart, FindsTheBoundary)
{
    EXPECT_EQ(multipartBoundary("multipart/form-data; boundary=abc").value_or(""), "abc");
    EXPECT_EQ(multipartBoundary("Multipart/Form-Data; charset=utf-8; Boundary=\"a b\"").value_or(""), "a b");
    for (const char* bad : {"", "text/plain; boundary=x", "multipart/form-data",
                            "multipart/form-data; boundary=", "multipart/form-data; boundary=\"x"})
        EXPECT_FALSE(multipartBoundary(bad)) << bad;
    EXPECT_FALSE(multipartBoundary("multipart/form-data; boundary=" + std::string(71, 'x')));
}
