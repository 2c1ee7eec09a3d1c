#include "ui/feed/PictureComparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace orvtest
{

namespace
{

constexpr int square = 4;       // pixels
constexpr int tolerated = 24;   // of 255, of a square's mean
constexpr double limit = 0.002; // of all squares
constexpr int place = 8;        // squares a side
constexpr int placeLimit = 4;   // of a place's squares: a full stop may differ, a word may not

QImage squaresOf(QImage const& picture)
{
    QSize const size((picture.width() + square - 1) / square, (picture.height() + square - 1) / square);
    QImage whole(size * square, QImage::Format_RGB32);
    whole.fill(Qt::white);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            whole.setPixel(x, y, picture.pixel(x, y));
        }
    }
    return whole.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
}

} // namespace

bool PictureDifference::isTolerable() const
{
    return share <= limit && worstPlace <= placeLimit;
}

PictureDifference differenceOf(QImage const& one, QImage const& other)
{
    if (one.size() != other.size() || one.isNull()) {
        return {};
    }
    QImage const first = squaresOf(one);
    QImage const second = squaresOf(other);
    int const width = first.width();
    int const height = first.height();
    // How many squares count above and left of each, so that those of any place are told by its four corners.
    std::vector<int> sums(static_cast<std::size_t>(width + 1) * static_cast<std::size_t>(height + 1));
    auto const sum = [&](int x, int y) -> int& {
        return sums[static_cast<std::size_t>(y) * static_cast<std::size_t>(width + 1) + static_cast<std::size_t>(x)];
    };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            QRgb const a = first.pixel(x, y);
            QRgb const b = second.pixel(x, y);
            bool const isApart = std::abs(qRed(a) - qRed(b)) > tolerated ||
                                 std::abs(qGreen(a) - qGreen(b)) > tolerated ||
                                 std::abs(qBlue(a) - qBlue(b)) > tolerated;
            sum(x + 1, y + 1) = sum(x, y + 1) + sum(x + 1, y) - sum(x, y) + (isApart ? 1 : 0);
        }
    }
    PictureDifference difference;
    difference.share = static_cast<double>(sum(width, height)) / (static_cast<double>(width) * height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            int const right = std::min(x + place, width);
            int const bottom = std::min(y + place, height);
            int const apart = sum(right, bottom) - sum(x, bottom) - sum(right, y) + sum(x, y);
            if (apart > difference.worstPlace) {
                difference.worstPlace = apart;
                difference.worst = QPoint(x * square, y * square);
            }
        }
    }
    return difference;
}

void expectLooksLike(QImage const& picture, std::string const& name)
{
    namespace fs = std::filesystem;
    fs::path const committed = fs::path(ORV_SOURCE_DIR) / "tests/ui/feed/pictures" / (name + ".png");
    if (std::getenv("ORVANTA_WRITE_PICTURES") != nullptr) {
        constexpr int smallest = 0; // packed as tightly as can be
        QString const path = QString::fromStdString(committed.string());
        ASSERT_TRUE(picture.convertToFormat(QImage::Format_RGB888).save(path, "PNG", smallest));
        return;
    }
    QImage const expected(QString::fromStdString(committed.string()));
    ASSERT_FALSE(expected.isNull()) << committed << " is missing";
    PictureDifference const difference = differenceOf(picture, expected);
    if (!difference.isTolerable()) {
        fs::path const kept = fs::path(ORV_BINARY_DIR) / "pictures/pane" / (name + ".png");
        fs::create_directories(kept.parent_path());
        picture.save(QString::fromStdString(kept.string()));
        ADD_FAILURE() << name << ": " << difference.share * 100 << " % of the picture differ, most of it at "
                      << difference.worst.x() << ", " << difference.worst.y() << " (" << difference.worstPlace
                      << " of 64 squares); see " << kept << " and " << committed;
    }
}

} // namespace orvtest
