// Makes the pictures that platformtest.rc embeds: a row of two, a single one, and an icon of two sizes in the classic
// form.
#include <QFile>
#include <QImage>
#include <QString>

#include <cstdint>

namespace
{
void append(QByteArray& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.append(static_cast<char>(value >> 8 * i & 0xFF));
}

// A bitmap icon of one colour, 32 bits a pixel, with its mask.
QByteArray plainIcon(int side, std::uint32_t colour)
{
    QByteArray bytes;
    append(bytes, 40, 4);
    append(bytes, static_cast<std::uint32_t>(side), 4);
    append(bytes, static_cast<std::uint32_t>(2 * side), 4);
    append(bytes, 1, 2);
    append(bytes, 32, 2);
    for (int i = 0; i < 6; ++i)
        append(bytes, 0, 4);
    for (int i = 0; i < side * side; ++i)
        append(bytes, colour, 4);
    bytes.append(QByteArray((side + 31) / 32 * 4 * side, '\0'));
    return bytes;
}
} // namespace

int main(int, char** arguments)
{
    const QString folder = QString::fromLocal8Bit(arguments[1]) + QLatin1Char('/');
    QImage row(48, 24, QImage::Format_ARGB32);
    row.fill(Qt::red);
    for (int y = 0; y < 24; ++y)
        for (int x = 24; x < 48; ++x)
            row.setPixelColor(x, y, x == 24 ? QColor(255, 0, 255) : QColor(Qt::blue));
    QImage single(20, 20, QImage::Format_ARGB32);
    single.fill(Qt::green);

    QByteArray icon;
    const QByteArray images[] = {plainIcon(16, 0xFFFF0000u), plainIcon(32, 0xFF0000FFu)};
    append(icon, 0, 2);
    append(icon, 1, 2);
    append(icon, 2, 2);
    std::uint32_t offset = 6 + 2 * 16;
    for (int i = 0; i < 2; ++i) {
        append(icon, i == 0 ? 16 : 32, 1);
        append(icon, i == 0 ? 16 : 32, 1);
        append(icon, 0, 2);
        append(icon, 1, 2);
        append(icon, 32, 2);
        append(icon, static_cast<std::uint32_t>(images[i].size()), 4);
        append(icon, offset, 4);
        offset += static_cast<std::uint32_t>(images[i].size());
    }
    icon += images[0] + images[1];
    QFile file(folder + "test.ico");
    const bool written = file.open(QIODevice::WriteOnly) && file.write(icon) == icon.size();
    return written && row.save(folder + "row.png") && single.save(folder + "single.png") ? 0 : 1;
}
