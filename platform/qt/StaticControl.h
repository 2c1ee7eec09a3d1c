#pragma once
#include "winuser.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Labels and pictures, by style.
HWND makeStatic(const CREATESTRUCTW& create, QWidget* parent);
} // namespace orvplatform
