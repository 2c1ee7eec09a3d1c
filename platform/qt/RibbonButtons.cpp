#include "platform/qt/RibbonButtons.h"

#include "platform/qt/Look.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
constexpr int rows = 3;
constexpr int narrowest = 56; // of a large button
constexpr int side = measures::gap;

// The two halves whose longer one is shortest; a short text stays on one line.
QStringList captionLines(const QString& text, const QFontMetrics& metrics)
{
    QStringList best{text};
    int width = metrics.horizontalAdvance(text);
    if (width <= narrowest - 2 * measures::grid)
        return best;
    for (qsizetype at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at + 1)) {
        const QStringList halves{text.left(at), text.mid(at + 1)};
        const int longer = std::max(metrics.horizontalAdvance(halves[0]), metrics.horizontalAdvance(halves[1]));
        if (longer < width) {
            width = longer;
            best = halves;
        }
    }
    return best;
}

void drawMenuMark(QPainter& painter, QPointF middle)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme().mutedText, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({middle + QPointF(-3, -1.5), middle + QPointF(0, 1.5), middle + QPointF(3, -1.5)}));
}
} // namespace

int ribbonButtonArea(const QFontMetrics& metrics, int picture)
{
    const int large = measures::grid + picture + measures::grid + 2 * metrics.height() + measures::grid;
    const int small = rows * std::max(metrics.height() + 2, measures::smallIcon + measures::grid);
    return std::max(large, small);
}

int ribbonRowHeight(const QFontMetrics& metrics, int picture)
{
    return measures::grid + ribbonButtonArea(metrics, picture) + metrics.height() + 2 * measures::grid;
}

RibbonToolButton::RibbonToolButton(const RibbonButton& source, QWidget* parent)
    : QToolButton(parent), id(source.id), what(source), caption(captionLines(source.text, fontMetrics()))
{
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setText(source.text);
    setToolTip(source.toolTip.isEmpty() ? source.text : source.toolTip);
    setAccessibleName(source.text);
    showAs(RibbonLevel::Large);
}

// A picture of a higher resolution keeps its size.
QSize RibbonToolButton::pictureSize(RibbonLevel of) const
{
    const bool large = of == RibbonLevel::Large;
    const QIcon& picture = large ? what.large : what.small;
    const int usual = large ? measures::largeIcon : measures::smallIcon;
    const QList<QSize> sizes = picture.availableSizes();
    return sizes.isEmpty() ? QSize(usual, usual) : sizes.first();
}

int RibbonToolButton::largePicture() const
{
    return pictureSize(RibbonLevel::Large).height();
}

QSize RibbonToolButton::sizeOf(RibbonLevel of) const
{
    const QFontMetrics metrics = fontMetrics();
    const QSize picture = pictureSize(of);
    if (of == RibbonLevel::Icons)
        return {picture.width() + 2 * measures::grid,
                std::max(metrics.height() + 2, measures::smallIcon + measures::grid)};
    if (of == RibbonLevel::Small)
        return {measures::grid + picture.width() + measures::grid + metrics.horizontalAdvance(what.text) + 2 * side,
                std::max(metrics.height() + 2, measures::smallIcon + measures::grid)};
    int width = picture.width();
    for (const QString& line : caption)
        width = std::max(width, metrics.horizontalAdvance(line));
    return {std::max(width + 2 * measures::grid, narrowest), ribbonButtonArea(metrics, picture.height())};
}

void RibbonToolButton::showAs(RibbonLevel wanted)
{
    level = wanted;
    const bool large = level == RibbonLevel::Large;
    setToolButtonStyle(large                         ? Qt::ToolButtonTextUnderIcon
                       : level == RibbonLevel::Small ? Qt::ToolButtonTextBesideIcon
                                                     : Qt::ToolButtonIconOnly);
    setIcon(large || what.small.isNull() ? what.large : what.small);
    setIconSize(pictureSize(level));
    update();
}

void RibbonToolButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const bool isOn = option.state & QStyle::State_On;
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    option.text.clear();
    option.icon = QIcon();
    option.features &= ~QStyleOptionToolButton::HasMenu;
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const QSize size = iconSize();
    const QPixmap picture = icon().pixmap(size, mode, isOn ? QIcon::On : QIcon::Off);
    painter.setPen(isEnabled() ? theme().text : theme().mutedText);
    if (level == RibbonLevel::Large) {
        const QRect place((width() - size.width()) / 2, measures::grid, size.width(), size.height());
        style()->drawItemPixmap(&painter, place, Qt::AlignCenter, picture);
        const QRect text = rect().adjusted(0, place.bottom() + 1 + measures::grid, 0, 0);
        painter.drawText(text, Qt::AlignHCenter | Qt::AlignTop, caption.join(u'\n'));
        if (menu())
            drawMenuMark(painter, QPointF(std::min(place.right() + 8, width() - 6), place.center().y()));
        return;
    }
    const QRect place(measures::grid, (height() - size.height()) / 2, size.width(), size.height());
    style()->drawItemPixmap(&painter, place, Qt::AlignCenter, picture);
    if (level == RibbonLevel::Icons)
        return;
    const QRect text = rect().adjusted(place.right() + 1 + measures::grid, 0, 0, 0);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, what.text);
    if (menu())
        drawMenuMark(painter, QPointF(width() - 7, height() / 2.0));
}

void RibbonToolButton::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (!event->isAutoRepeat())
            menu() ? showMenu() : click();
    } else if (key == Qt::Key_Escape && onLeave) {
        onLeave();
    } else {
        QToolButton::keyPressEvent(event);
    }
}

RibbonGroup::RibbonGroup(const RibbonPanel& source, QWidget* parent)
    : QWidget(parent), keepsLarge(source.keepsLarge), name(source.name)
{
    for (const RibbonButton& each : source.buttons)
        buttons.push_back(new RibbonToolButton(each, this));
}

int RibbonGroup::widthAs(RibbonLevel of) const
{
    int inner = 0;
    int column = 0;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const int width = buttons[i]->sizeOf(of).width();
        if (of == RibbonLevel::Large) {
            inner += width;
            continue;
        }
        column = std::max(column, width);
        if (i % rows == rows - 1 || i + 1 == buttons.size())
            inner += std::exchange(column, 0);
    }
    return std::max(inner, fontMetrics().horizontalAdvance(name)) + 2 * side;
}

void RibbonGroup::showAs(RibbonLevel wanted)
{
    level = wanted;
    for (RibbonToolButton* button : buttons)
        button->showAs(level);
    arrange();
}

void RibbonGroup::setButtonArea(int height)
{
    area = height;
    arrange();
}

void RibbonGroup::arrange()
{
    int inner = -2 * side + widthAs(level);
    int used = 0;
    for (const RibbonToolButton* button : buttons)
        used += level == RibbonLevel::Large ? button->sizeOf(level).width() : 0;
    // Large buttons under a longer title stand in its middle.
    int x = side + (level == RibbonLevel::Large ? std::max(inner - used, 0) / 2 : 0);
    for (std::size_t i = 0; i < buttons.size();) {
        if (level == RibbonLevel::Large) {
            const int width = buttons[i]->sizeOf(level).width();
            buttons[i++]->setGeometry(x, measures::grid, width, area);
            x += width;
            continue;
        }
        const std::size_t end = std::min(i + rows, buttons.size());
        int width = 0;
        for (std::size_t j = i; j < end; ++j)
            width = std::max(width, buttons[j]->sizeOf(level).width());
        for (int row = 0; i < end; ++i, ++row)
            buttons[i]->setGeometry(x, measures::grid + row * (area / rows), width, area / rows);
        x += width;
    }
}

void RibbonGroup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(theme().mutedText);
    painter.drawText(QRect(0, measures::grid + area + measures::grid, width(), fontMetrics().height()),
                     Qt::AlignCenter | Qt::TextSingleLine, name);
    painter.setPen(theme().border);
    painter.drawLine(width() - 1, measures::gap, width() - 1, height() - measures::gap);
}
} // namespace orvplatform
