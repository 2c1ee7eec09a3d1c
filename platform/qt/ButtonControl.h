#pragma once
#include "platform/qt/Window.h"

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
// The parts of it for a push button whose widget is made later than its handle.
bool isPushButtonStyle(DWORD style);
QWidget* makePushButton(HWND control, QWidget* parent);
std::unique_ptr<Behaviour> buttonBehaviour();

// How a push button's caption is drawn so that all of it is seen: its lines, and its font or a smaller one. A caption
// for which nothing is small enough stays as it is.
struct FittedCaption {
    QString text;
    QFont font;
};
FittedCaption fittedCaption(const QPushButton& button);
} // namespace orvplatform
