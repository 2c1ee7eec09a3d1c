#pragma once

#include "host/orv/IOutlookPane.h"

#include <afxwin.h>

namespace orvui
{

/// Joins a pane with its window class. The creating operation is the last slot of the joined class.
template <class Window>
class IWOutlookPane : public Window, public orv::IOutlookPane
{
public:
    using Window::Create;

    /// Makes a visible child window with an empty title; false where the window can't be made.
    virtual BOOL Create(RECT const& rect, CWnd* parent, UINT id)
    {
        return Window::Create(nullptr, L"", WS_CHILD | WS_VISIBLE, rect, parent, id);
    }
};

} // namespace orvui
