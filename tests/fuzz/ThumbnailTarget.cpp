#include "feed/Thumbnail.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "platform/qt/Gdi.h"
#include "platform/text/Text.h"

#include <QCoreApplication>

#include <string>

namespace orvfuzz
{

namespace
{

/// The toolkit finds its picture formats through an application, and reports every bad picture in words.
void startToolkit()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication const application(count, arguments);
    static auto const before = qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});
    static_cast<void>(before);
}

void decodePixels(std::string const& file)
{
    constexpr int longestSide = 16384;
    startToolkit();
    QByteArray const bytes(file.data(), static_cast<qsizetype>(file.size()));
    QImage const image = orvplatform::decodePicture(bytes);
    check(image.width() <= longestSide && image.height() <= longestSide &&
              image.sizeInBytes() <= qsizetype{64} * 1024 * 1024,
          "a picture out of bounds is refused");
    QSize const announced = orvplatform::pictureSize(bytes);
    check(announced.width() <= longestSide && announced.height() <= longestSide, "and so is its header");
    check(image.isNull() || announced == image.size(), "a picture is as large as it was said to be");
    // The last line is read whole, so that a short buffer shows.
    for (int x = 0; x < image.width(); ++x) {
        static_cast<void>(image.pixel(x, image.height() - 1));
    }
}

} // namespace

void fuzzThumbnail(Input input)
{
    if (input.empty()) {
        return;
    }
    std::string const bytes(input.begin() + 1, input.end());
    if (input[0] >= '2') {
        check(decodeBase64(encodeBase64(bytes)) == bytes, "base64 brings every byte back");
        decodePixels(bytes);
        return;
    }
    Feed feed;
    feed.source = input[0] == '1' ? L"web" : L"desktop";
    feed.thumbnail = orvtext::fromUtf8(bytes);
    std::string const file = decodeThumbnail(feed);
    check(file.size() <= orvtext::utf16Length(feed.thumbnail) / 4 * 3 + 2,
          "no more bytes come out than the text holds");
    if (hasThumbnail(feed) && !file.empty()) {
        decodePixels(file);
    }
}

} // namespace orvfuzz
