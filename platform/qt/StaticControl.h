#pragma once
#include "winuser.h"

#include <QFont>

QT_BEGIN_NAMESPACE
class QLabel;
class QRect;
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Labels and pictures, by style.
HWND makeStatic(const CREATESTRUCTW& create, QWidget* parent);

// Where a label draws its text: all of its place that lies in its window, but what a shown button covers at its right
// end.
QRect textRoom(const QLabel& label);

// The font in which a label draws its text: its own, or a smaller one, by two fifths at most, where the text would be
// cut.
QFont fittedFont(const QLabel& label);
} // namespace orvplatform
