#pragma once
#include "platform/qt/Window.h"

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
// The two parts of it, for a control whose widget is made later than its handle.
QWidget* makeLabel(HWND control, QWidget* parent);
std::unique_ptr<Behaviour> staticBehaviour();

// Where a label draws its text: all of its place that lies in its window, but what a shown button covers at its right
// end.
QRect textRoom(const QLabel& label);

// The font in which a label draws its text: its own, or a smaller one, by two fifths at most, where the text would be
// cut. A text of pages (LongText.h) keeps its own.
QFont fittedFont(const QLabel& label);
} // namespace orvplatform
