#pragma once
#include "afxtoolbarimages.h"

#include <QIcon>
#include <QImage>

#include <vector>

struct CMFCToolBarImages::Pictures {
    QSize size{16, 16};
    std::vector<QImage> pictures;

    QIcon icon(int index) const
    {
        const bool inside = index >= 0 && index < static_cast<int>(pictures.size());
        return inside ? QIcon(QPixmap::fromImage(pictures[static_cast<std::size_t>(index)])) : QIcon();
    }
};
