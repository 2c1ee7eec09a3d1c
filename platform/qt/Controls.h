#pragma once
// The widgets behind the classes of controls, and what only their drawing side can set.

#include "winuser.h"

#include <QImage>
#include <QString>

namespace orvplatform
{
// Makes the window of a class; names are compared without case.
HWND makeControl(const CREATESTRUCTW& create, HWND parent);
// Only controls that are reached by the Tab key take part in the chain.
void limitFocus(QWidget& widget, DWORD style);

// A button's picture before its text. A flat one has no frame until the pointer is over it.
void setButtonPicture(HWND button, const QImage& picture);
void setButtonFlat(HWND button, bool flat);
void setButtonColours(HWND button, COLORREF face, COLORREF text); // CLR_DEFAULT: the look's own
void setDefaultButton(HWND button, bool isDefault);
void setToolTip(HWND window, const std::wstring& text);
std::wstring toolTip(HWND window);
void setHandCursor(HWND window);

// The address that a web link opens; a prefix goes before it.
void setLinkAddress(HWND link, const std::wstring& address);
void setLinkPrefix(HWND link, const std::wstring& prefix);
std::wstring linkAddress(HWND link);

void setValidCharacters(HWND edit, const std::wstring& characters); // empty: any
} // namespace orvplatform
