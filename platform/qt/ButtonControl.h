#pragma once
#include "winuser.h"

#include <QFont>
#include <QString>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Push buttons, check boxes, radio buttons and group boxes, by style.
HWND makeButton(const CREATESTRUCTW& create, QWidget* parent);

// How a push button's caption is drawn so that all of it is seen: its lines, and its font or a smaller one. A caption
// for which nothing is small enough stays as it is.
struct FittedCaption {
    QString text;
    QFont font;
};
FittedCaption fittedCaption(const QPushButton& button);
} // namespace orvplatform
