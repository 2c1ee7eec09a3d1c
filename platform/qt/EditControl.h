#pragma once
#include "winuser.h"

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
// Edit controls of one line and of several, by style.
HWND makeEdit(const CREATESTRUCTW& create, QWidget* parent);
} // namespace orvplatform
