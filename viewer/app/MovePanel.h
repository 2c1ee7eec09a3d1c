#pragma once

#include <QDialog>

#include <array>
#include <functional>

class QDoubleSpinBox;
class QLabel;

namespace orvviewer
{

/// A small window beside the model: offsets along the three axes, in millimetres, that move the selected parts while
/// they are typed or turned.
class MovePanel : public QDialog
{
    Q_OBJECT

public:
    /// `move` is given how far to move from where the parts are now.
    MovePanel(QWidget* parent, std::function<void(double, double, double)> move);

    void start(QString const& what, double step); ///< from zero; `step` is that of the arrows, millimetres

private:
    void apply();

    std::function<void(double, double, double)> moveBy;
    QLabel* subject;
    std::array<QDoubleSpinBox*, 3> offsets{};
    std::array<double, 3> applied{};
};

} // namespace orvviewer
