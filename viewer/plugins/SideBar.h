#pragma once

#include "host/orvui/IWView.h"

#include <functional>
#include <string>

namespace orvviewer
{

/// The tabs of the side bar. Tells panes when their tab is activated and left.
class SideTabs : public COOutlookTabCtrl
{
public:
    using Guard = std::function<void(std::function<void()> const&)>;

    /// `guard` runs a call into a pane so that no exception comes out; `activated` is told the tab's title.
    SideTabs(Guard guard, std::function<void(std::wstring const&)> activated);

    /// Tells the pane of the active tab that it is activated (again).
    void announceActiveTab();

protected:
    void OnActiveTabChanged(int earlier, int now) override;

private:
    void tell(int index, bool active);

    Guard guarded;
    std::function<void(std::wstring const&)> tabActivated;
};

/// The side bar at the right, in which plug-ins put their panes.
class SideBar : public orvui::IWView<CMFCOutlookBar>
{
public:
    SideBar(SideTabs::Guard guard, std::function<void(std::wstring const&)> activated);

    COOutlookTabCtrl* getTabCtrl() override;
    void OnUpdate(orv::IHint* hint) override;
    int paneCount() const;
    void announceActiveTab();

protected:
    std::unique_ptr<CMFCOutlookBarTabCtrl> MakeTabCtrl() override;

private:
    SideTabs::Guard guarded;
    std::function<void(std::wstring const&)> tabActivated;
    SideTabs* tabs = nullptr; ///< the base's; null before the bar has its window
};

} // namespace orvviewer
