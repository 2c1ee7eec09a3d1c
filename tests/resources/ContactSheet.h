#pragma once
// Pictures of windows, put side by side on one sheet with a title each, to be looked at.

#include <QImage>
#include <QString>

#include <vector>

namespace restest
{

class ContactSheet
{
public:
    // The width of a full row and the distance of pictures, in pixels.
    explicit ContactSheet(int width, int gap = 16) : rowWidth(width), distance(gap) {}

    void add(const QString& title, const QImage& picture) { entries.push_back({title, picture}); }
    QImage draw() const;

private:
    struct Entry {
        QString title;
        QImage picture;
    };

    int rowWidth;
    int distance;
    std::vector<Entry> entries;
};

} // namespace restest
