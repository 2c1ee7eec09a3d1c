#include "viewer/app/CommandMenus.h"

#include "viewer/app/Language.h"

#include <QColorDialog>
#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>

#include <array>
#include <utility>

namespace orvviewer
{

namespace
{

struct NamedColour {
    char const* name;
    QRgb value;
};
constexpr std::array<NamedColour, 10> palette{{{QT_TRANSLATE_NOOP("Orvanta", "Red"), 0xFFD64545},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Orange"), 0xFFE8852E},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Yellow"), 0xFFE9C53A},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Green"), 0xFF4FA35A},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Teal"), 0xFF3FA7A0},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Blue"), 0xFF3B78D8},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Violet"), 0xFF8458C9},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Pink"), 0xFFD6679F},
                                               {QT_TRANSLATE_NOOP("Orvanta", "White"), 0xFFF2F2F2},
                                               {QT_TRANSLATE_NOOP("Orvanta", "Dark grey"), 0xFF55595E}}};

unsigned long packed(QColor const& colour)
{
    return static_cast<unsigned long>(colour.red()) | static_cast<unsigned long>(colour.green()) << 8 |
           static_cast<unsigned long>(colour.blue()) << 16;
}

/// A menu that goes when something in it was chosen, by whatever hand.
QMenu* makeMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    QObject::connect(menu, &QMenu::triggered, menu, &QMenu::hide);
    return menu;
}

/// Draws a menu's pictures large enough to tell models apart.
class LargePictures final : public QProxyStyle
{
public:
    LargePictures() : QProxyStyle("Fusion") {}
    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override
    {
        return metric == PM_SmallIconSize ? 48 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

QIcon swatch(QColor const& colour)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(130));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(0.5, 0.5, 15.0, 15.0), 3.0, 3.0);
    return QIcon(picture);
}

} // namespace

QMenu* makeColourMenu(QWidget* parent, std::function<void(unsigned long)> choose, std::function<void()> clear)
{
    auto* menu = makeMenu(parent);
    for (auto const& entry : palette) {
        QColor const colour(entry.value);
        menu->addAction(swatch(colour), localized(entry.name), [choose, colour] { choose(packed(colour)); });
    }
    menu->addSeparator();
    menu->addAction(QObject::tr("&Other colour..."), [parent, choose] {
        auto* dialog = new QColorDialog(parent);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setOption(QColorDialog::DontUseNativeDialog);
        QObject::connect(dialog, &QColorDialog::colorSelected, parent,
                         [choose](QColor const& colour) { choose(packed(colour)); });
        dialog->open();
    });
    menu->addAction(QObject::tr("&As in the file"), [clear] { clear(); });
    return menu;
}

QMenu* makeTransparencyMenu(QWidget* parent, std::function<void(float)> choose)
{
    auto* menu = makeMenu(parent);
    menu->addAction(QObject::tr("&Opaque"), [choose] { choose(0.0F); });
    for (int const percent : {25, 50, 75, 90}) {
        menu->addAction(QObject::tr("%1 %").arg(percent),
                        [choose, percent] { choose(static_cast<float>(percent) / 100.0F); });
    }
    return menu;
}

QMenu* makeRecentMenu(QWidget* parent, RecentFiles const& files, std::function<void(std::wstring const&)> open)
{
    auto* menu = makeMenu(parent);
    menu->setToolTipsVisible(true);
    auto* style = new LargePictures;
    style->setParent(menu);
    menu->setStyle(style);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &files, open] {
        menu->clear();
        for (auto const& path : files.paths()) {
            QFileInfo const file(QString::fromStdWString(path));
            auto const name = file.fileName().replace("&", "&&"); // else it would underline the next letter
            auto* action = menu->addAction(files.previewOf(path), name, [open, path] { open(path); });
            action->setToolTip(file.filePath());
        }
        if (menu->isEmpty()) {
            menu->addAction(QObject::tr("No model has been opened yet"))->setEnabled(false);
        }
    });
    return menu;
}

} // namespace orvviewer
