#pragma once

#include "viewer/app/CommandTable.h"

#include <afxcontrolbars.h>

#include <functional>
#include <initializer_list>

class QMenu;
class QWidget;

namespace orvviewer
{

/// The ribbon: one category with the viewer's panels. Plug-ins put theirs before the last one.
class Ribbon
{
public:
    struct Hooks {
        std::function<bool(UINT)> runOther; ///< commands that aren't in the table
        std::function<bool(UINT)> isOtherEnabled;
        std::function<QMenu*(UINT)> menuOf; ///< null for a plain button
    };

    /// The table must outlive the ribbon.
    Ribbon(QWidget* mainWindow, CommandTable& commands, Hooks hooks);

    QWidget* widget() const;
    CMFCRibbonBar& ribbonBar() { return bar; }
    HWND handle() const { return bar.GetSafeHwnd(); }
    void refresh();
    bool takeFocus(); ///< the keyboard goes to the first enabled button; false where there is none

private:
    void addPanel(CMFCRibbonCategory& category, char const* title, std::initializer_list<CommandId> ids);

    CommandTable& commands;
    CMFCRibbonBar bar;
};

} // namespace orvviewer
