#include "ui/feed/PictureComparison.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace orvtest
{

namespace
{

constexpr int square = 4;       // pixels
constexpr int tolerated = 24;   // of 255, of a square's mean
constexpr double limit = 0.002; // of all squares

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

double differenceOf(QImage const& one, QImage const& other)
{
    if (one.size() != other.size() || one.isNull()) {
        return 1.0;
    }
    QImage const first = squaresOf(one);
    QImage const second = squaresOf(other);
    int apart = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            QRgb const a = first.pixel(x, y);
            QRgb const b = second.pixel(x, y);
            bool const isApart = std::abs(qRed(a) - qRed(b)) > tolerated ||
                                 std::abs(qGreen(a) - qGreen(b)) > tolerated ||
                                 std::abs(qBlue(a) - qBlue(b)) > tolerated;
            apart += isApart ? 1 : 0;
        }
    }
    return static_cast<double>(apart) / (static_cast<double>(first.width()) * first.height());
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
    double const difference = differenceOf(picture, expected);
    if (difference > limit) {
        fs::path const kept = fs::path(ORV_BINARY_DIR) / "pictures/pane" / (name + ".png");
        fs::create_directories(kept.parent_path());
        picture.save(QString::fromStdString(kept.string()));
        ADD_FAILURE() << name << ": " << difference * 100 << " % of the picture differ; see " << kept << " and "
                      << committed;
    }
}

} // namespace orvtest
