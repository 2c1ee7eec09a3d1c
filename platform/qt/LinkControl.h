#pragma once
#include "winuser.h"

#include <string>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
HWND makeTextWithLinks(const CREATESTRUCTW& create, QWidget* parent); // "SysLink"
HWND makeWebLink(const CREATESTRUCTW& create, QWidget* parent);       // "MfcLink"

// What a click on one of the text's links does. False when the text has no link with that address.
bool followLink(HWND textWithLinks, const std::wstring& address);
} // namespace orvplatform
