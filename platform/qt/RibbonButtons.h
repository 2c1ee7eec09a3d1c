#pragma once
// The buttons and panels of the ribbon's row.

#include "platform/qt/RibbonWidget.h"

#include <QToolButton>

namespace orvplatform
{
// Large: picture over a caption of one or two lines. Small: picture before the caption, three in a column. Icons: the
// same without captions.
enum class RibbonLevel { Large, Small, Icons };

class RibbonToolButton final : public QToolButton
{
public:
    RibbonToolButton(const RibbonButton& source, QWidget* parent);

    int largePicture() const; // height in pixels
    // The measures depend on the texts, the font and the level alone.
    QSize sizeOf(RibbonLevel level) const;
    QSize sizeHint() const override { return sizeOf(level); }
    QSize minimumSizeHint() const override { return sizeHint(); }
    RibbonLevel shownAs() const { return level; }
    void showAs(RibbonLevel wanted);

    const UINT id;
    std::function<void()> onLeave; // Escape

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; // Enter does what the space bar does

private:
    QSize pictureSize(RibbonLevel of) const;
    const RibbonButton what;
    const QStringList caption; // the lines under the large picture
    RibbonLevel level = RibbonLevel::Large;
};

class RibbonGroup final : public QWidget
{
public:
    RibbonGroup(const RibbonPanel& source, QWidget* parent);

    int widthAs(RibbonLevel level) const;
    void showAs(RibbonLevel wanted);
    RibbonLevel shownAs() const { return level; }
    void setButtonArea(int height); // pixels between the panel's top and its title
    void arrange();                 // after a change of size

    const bool keepsLarge;
    std::vector<RibbonToolButton*> buttons;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { arrange(); }

private:
    const QString name;
    int area = 0;
    RibbonLevel level = RibbonLevel::Large;
};

// Heights of the row for a font and the largest picture.
int ribbonButtonArea(const QFontMetrics& metrics, int picture);
int ribbonRowHeight(const QFontMetrics& metrics, int picture);
} // namespace orvplatform
