#include "viewer/app/MovePanel.h"

#include "platform/qt/Look.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace orvviewer
{

using orvplatform::scaled;

MovePanel::MovePanel(QWidget* parent, std::function<void(double, double, double)> move)
    : QDialog(parent, Qt::Tool), moveBy(std::move(move)), subject(new QLabel(this))
{
    setWindowTitle(tr("Move"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(scaled(12), scaled(12), scaled(12), scaled(12));
    layout->setSpacing(scaled(8));
    subject->setWordWrap(true);
    layout->addWidget(subject);
    auto* form = new QFormLayout;
    char const* const names[] = {"&X", "&Y", "&Z"};
    for (std::size_t axis = 0; axis < offsets.size(); ++axis) {
        auto* box = new QDoubleSpinBox(this);
        box->setRange(-1e6, 1e6);
        box->setDecimals(2);
        box->setSuffix(tr(" mm"));
        box->setKeyboardTracking(false);
        connect(box, &QDoubleSpinBox::valueChanged, this, [this] { apply(); });
        form->addRow(tr(names[axis]), box);
        offsets[axis] = box;
    }
    layout->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setIcon({});
    auto* undo = buttons->addButton(tr("&Back to start"), QDialogButtonBox::ResetRole);
    undo->setIcon({});
    connect(undo, &QPushButton::clicked, this, [this] {
        for (auto* box : offsets) {
            box->setValue(0.0);
        }
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(scaled(240));
}

void MovePanel::start(QString const& what, double step)
{
    subject->setText(what);
    applied = {};
    for (auto* box : offsets) {
        QSignalBlocker const quiet(box);
        box->setValue(0.0);
        box->setSingleStep(step);
    }
    show();
    raise();
    activateWindow();
    offsets[0]->setFocus();
    offsets[0]->selectAll();
}

void MovePanel::apply()
{
    std::array<double, 3> change{};
    for (std::size_t axis = 0; axis < offsets.size(); ++axis) {
        change[axis] = offsets[axis]->value() - applied[axis];
        applied[axis] = offsets[axis]->value();
    }
    if (change[0] != 0.0 || change[1] != 0.0 || change[2] != 0.0) {
        moveBy(change[0], change[1], change[2]);
    }
}

} // namespace orvviewer
