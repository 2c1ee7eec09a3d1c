#include "afxoutlookbar.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/OutlookWidget.h"

#include <QIcon>

IMPLEMENT_DYNAMIC(CMFCOutlookBarTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CMFCOutlookBar, CDockablePane)

BEGIN_MESSAGE_MAP(CMFCOutlookBarTabCtrl, CWnd)
ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMFCOutlookBar, CDockablePane)
ON_WM_CREATE()
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{
QIcon iconAt(HIMAGELIST list, int index)
{
    if (!list || index < 0 || index >= ImageList_GetImageCount(list))
        return {};
    return QIcon(QPixmap::fromImage(list->pictures[static_cast<std::size_t>(index)]));
}

// One index stands for both lists. Where one of them ends before it, the other's picture is better than none.
QIcon iconAt(HIMAGELIST list, HIMAGELIST other, int index)
{
    const QIcon icon = iconAt(list, index);
    return icon.isNull() ? iconAt(other, index) : icon;
}

BOOL append(CImageList& own, HIMAGELIST list, int size, COLORREF mask)
{
    if (ImageList_GetImageCount(list) == 0 || (!own.m_hImageList && !own.Create(size, size, ILC_COLOR32, 1, 1)))
        return FALSE;
    for (const QImage& picture : list->pictures)
        for (const QImage& masked : orvplatform::cutPictures(picture, picture.size(), mask))
            own.m_hImageList->pictures.push_back(masked);
    return TRUE;
}
} // namespace

CMFCOutlookBarTabCtrl::CMFCOutlookBarTabCtrl() = default;
CMFCOutlookBarTabCtrl::~CMFCOutlookBarTabCtrl()
{
    orvplatform::onPaneChosen(m_hWnd, {});
    orvplatform::gatherPanes(m_hWnd);
}

void CMFCOutlookBarTabCtrl::OnDestroy()
{
    orvplatform::gatherPanes(m_hWnd);
    CWnd::OnDestroy();
}

BOOL CMFCOutlookBarTabCtrl::Create(const RECT& rect, CWnd* parent, UINT id)
{
    if (!CWnd::Create(orvplatform::outlookTabsClass, L"", WS_CHILD | WS_VISIBLE, rect, parent, id))
        return FALSE;
    orvplatform::onPaneChosen(m_hWnd, [this](int index) { activate(index); });
    return TRUE;
}

void CMFCOutlookBarTabCtrl::AddControl(CWnd* control, LPCWSTR title, int image, BOOL detachable, DWORD style)
{
    if (!control || !control->m_hWnd)
        return;
    HWND wrapper =
        orvplatform::addPane(m_hWnd, control->m_hWnd, title ? title : L"", detachable && (style & AFX_CBRS_FLOAT),
                             (style & AFX_CBRS_AUTOHIDE) != 0, (style & AFX_CBRS_RESIZE) != 0);
    if (!wrapper)
        return;
    tabs.push_back({control->m_hWnd, wrapper, image, style});
    showImages();
    if (activeTab < 0)
        SetActiveTab(0);
}

CWnd* CMFCOutlookBarTabCtrl::GetTabWnd(int index) const
{
    return index >= 0 && index < GetTabsNum() ? CWnd::FromHandle(tabs[static_cast<std::size_t>(index)].control)
                                              : nullptr;
}

BOOL CMFCOutlookBarTabCtrl::GetTabLabel(int index, CString& label) const
{
    if (index < 0 || index >= GetTabsNum())
        return FALSE;
    CWnd::FromHandle(tabs[static_cast<std::size_t>(index)].wrapper)->GetWindowText(label);
    return TRUE;
}

BOOL CMFCOutlookBarTabCtrl::SetTabLabel(int index, const CString& label)
{
    if (index < 0 || index >= GetTabsNum())
        return FALSE;
    ::SetWindowTextW(tabs[static_cast<std::size_t>(index)].wrapper, label);
    return TRUE;
}

CWnd* CMFCOutlookBarTabCtrl::GetActiveWnd() const
{
    return GetTabWnd(activeTab);
}

BOOL CMFCOutlookBarTabCtrl::SetActiveTab(int index)
{
    if (index < 0 || index >= GetTabsNum())
        return FALSE;
    orvplatform::showPane(m_hWnd, index);
    activate(index);
    return TRUE;
}

void CMFCOutlookBarTabCtrl::activate(int index)
{
    if (index == activeTab)
        return;
    const int earlier = std::exchange(activeTab, index);
    OnActiveTabChanged(earlier, index);
}

void CMFCOutlookBarTabCtrl::OnActiveTabChanged(int, int) {}

int CMFCOutlookBarTabCtrl::GetImageListCount() const
{
    return images.GetImageCount();
}
int CMFCOutlookBarTabCtrl::GetToolbarImageListCount() const
{
    return toolbarImages.GetImageCount();
}

BOOL CMFCOutlookBarTabCtrl::AddImageList(_IMAGELIST* list, int size, COLORREF mask)
{
    const BOOL added = append(images, list, size, mask);
    showImages();
    return added;
}

BOOL CMFCOutlookBarTabCtrl::AddToolbarImageList(_IMAGELIST* list, int size, COLORREF mask)
{
    const BOOL added = append(toolbarImages, list, size, mask);
    showImages();
    return added;
}

void CMFCOutlookBarTabCtrl::showImages() const
{
    HIMAGELIST large = images.m_hImageList;
    HIMAGELIST small = toolbarImages.m_hImageList;
    for (int i = 0; i < GetTabsNum(); ++i) {
        const int image = tabs[static_cast<std::size_t>(i)].image;
        orvplatform::setPaneIcons(m_hWnd, i, iconAt(large, small, image), iconAt(small, large, image));
    }
}

CMFCOutlookBar::CMFCOutlookBar() = default;
CMFCOutlookBar::~CMFCOutlookBar() = default;

LPCWSTR CMFCOutlookBar::GetWindowClass() const
{
    return orvplatform::outlookBarClass;
}
std::unique_ptr<CMFCOutlookBarTabCtrl> CMFCOutlookBar::MakeTabCtrl()
{
    return std::make_unique<CMFCOutlookBarTabCtrl>();
}

BOOL CMFCOutlookBar::Create(LPCWSTR caption, CWnd* parent, const RECT& rect, UINT id, DWORD style, DWORD barStyle,
                            CCreateContext* context)
{
    return CDockablePane::Create(caption, parent, rect, FALSE, id, style, AFX_CBRS_OUTLOOK_TABS, barStyle, context);
}

int CMFCOutlookBar::OnCreate(LPCREATESTRUCT create)
{
    if (CDockablePane::OnCreate(create) == -1)
        return -1;
    tabControl = MakeTabCtrl();
    return tabControl && tabControl->Create(CRect(0, 0, create->cx, create->cy), this, 1) ? 0 : -1;
}

void CMFCOutlookBar::OnSize(UINT type, int width, int height)
{
    CDockablePane::OnSize(type, width, height);
    if (tabControl)
        tabControl->MoveWindow(0, 0, width, height);
}
