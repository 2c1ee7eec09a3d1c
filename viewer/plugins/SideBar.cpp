#include "viewer/plugins/SideBar.h"

#include "host/orv/IOutlookPane.h"

#include <memory>
#include <utility>

namespace orvviewer
{

SideTabs::SideTabs(Guard guard, std::function<void(std::wstring const&)> activated)
    : guarded(std::move(guard)), tabActivated(std::move(activated))
{
}

void SideTabs::tell(int index, bool active)
{
    if (auto* pane = dynamic_cast<orv::IOutlookPane*>(GetTabWnd(index))) {
        guarded([pane, active] { pane->OnActivateChange(active); });
    }
}

void SideTabs::announceActiveTab()
{
    if (GetActiveTab() >= 0) {
        tell(GetActiveTab(), true);
    }
}

void SideTabs::OnActiveTabChanged(int earlier, int now)
{
    COOutlookTabCtrl::OnActiveTabChanged(earlier, now);
    tell(earlier, false);
    tell(now, true);
    CString title;
    if (GetTabLabel(now, title)) {
        tabActivated(static_cast<wchar_t const*>(title));
    }
}

SideBar::SideBar(SideTabs::Guard guard, std::function<void(std::wstring const&)> activated)
    : guarded(std::move(guard)), tabActivated(std::move(activated))
{
}

std::unique_ptr<CMFCOutlookBarTabCtrl> SideBar::MakeTabCtrl()
{
    auto made = std::make_unique<SideTabs>(guarded, tabActivated);
    tabs = made.get();
    return made;
}

COOutlookTabCtrl* SideBar::getTabCtrl()
{
    return GetSafeHwnd() != nullptr ? tabs : nullptr;
}

void SideBar::OnUpdate(orv::IHint*) {}

int SideBar::paneCount() const
{
    return tabs != nullptr ? tabs->GetTabsNum() : 0;
}

void SideBar::announceActiveTab()
{
    if (tabs != nullptr) {
        tabs->announceActiveTab();
    }
}

} // namespace orvviewer
