#pragma once
#include "winuser.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Push buttons, check boxes, radio buttons and group boxes, by style.
HWND makeButton(const CREATESTRUCTW& create, QWidget* parent);
} // namespace orvplatform
