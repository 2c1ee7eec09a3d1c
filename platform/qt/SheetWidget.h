#pragma once
// The drawing side of a property sheet: the pages' titles at the left, the page, and the buttons below.

#include "winuser.h"

#include <functional>
#include <string>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orvplatform
{
struct SheetActions {
    std::function<bool(int page)> show;     // false keeps the page on show
    std::function<void(int command)> press; // IDOK, IDCANCEL, ID_APPLY_NOW
};

HWND createSheetWindow(HWND owner, const std::wstring& title, SheetActions actions,
                       const std::function<void(HWND)>& attach);
void addSheetPage(HWND sheet, const std::wstring& title);
void removeSheetPage(HWND sheet, int page);
void placeSheetPage(HWND sheet, int page, QWidget* content); // the page's widget, once it is made
void showSheetPage(HWND sheet, int page);
void enableApply(HWND sheet, bool enable);
} // namespace orvplatform
