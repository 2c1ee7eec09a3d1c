#include "afxribbonbar.h"

#include "platform/qt/RibbonWidget.h"
#include "platform/qt/ToolBarPictures.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CMFCRibbonBaseElement, CObject)
IMPLEMENT_DYNAMIC(CMFCRibbonButton, CMFCRibbonBaseElement)
IMPLEMENT_DYNCREATE(CMFCRibbonPanel, CObject)
IMPLEMENT_DYNCREATE(CMFCRibbonCategory, CObject)
IMPLEMENT_DYNAMIC(CMFCRibbonBar, CDockablePane)

namespace
{
void changed(const CMFCRibbonCategory* category)
{
    if (category && category->GetParentRibbonBar())
        category->GetParentRibbonBar()->ForceRecalcLayout();
}
template <class Element>
Element* elementAt(const std::vector<std::unique_ptr<Element>>& list, int index)
{
    return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(index)].get() : nullptr;
}
} // namespace

void CMFCRibbonBaseElement::SetText(LPCWSTR text)
{
    m_strText = text;
    changed(m_pParent);
}

void CMFCRibbonBaseElement::SetToolTipText(LPCWSTR text)
{
    m_strToolTip = text;
    changed(m_pParent);
}

void CMFCRibbonBaseElement::SetDescription(LPCWSTR text)
{
    m_strDescription = text;
    changed(m_pParent);
}

CMFCRibbonButton::CMFCRibbonButton(UINT id, LPCWSTR text, int smallImageIndex, int largeImageIndex,
                                   BOOL alwaysShowDescription)
    : m_nSmallImageIndex(smallImageIndex), m_nLargeImageIndex(largeImageIndex),
      m_bAlwaysShowDescription(alwaysShowDescription)
{
    m_nID = id;
    m_strText = text;
}

void CMFCRibbonButton::SetImageIndex(int index, BOOL large)
{
    (large ? m_nLargeImageIndex : m_nSmallImageIndex) = index;
    changed(m_pParent);
}

CMFCRibbonPanel::CMFCRibbonPanel(LPCWSTR name, HICON panelIcon) : m_strName(name), icon(panelIcon) {}
CMFCRibbonPanel::~CMFCRibbonPanel() = default;

void CMFCRibbonPanel::Add(CMFCRibbonBaseElement* element)
{
    if (!element)
        return;
    element->m_pParentPanel = this;
    element->m_pParent = category;
    elements.emplace_back(element);
    changed(category);
}

CMFCRibbonBaseElement* CMFCRibbonPanel::GetElement(int index) const
{
    return elementAt(elements, index);
}

CMFCRibbonCategory::CMFCRibbonCategory() = default;

CMFCRibbonCategory::CMFCRibbonCategory(CMFCRibbonBar* ribbon, LPCWSTR name, UINT smallImagesId, UINT largeImagesId,
                                       CSize smallSize, CSize largeSize)
{
    initialise(ribbon, name, smallImagesId, largeImagesId, smallSize, largeSize);
}

CMFCRibbonCategory::~CMFCRibbonCategory() = default;

void CMFCRibbonCategory::initialise(CMFCRibbonBar* ribbon, LPCWSTR name, UINT smallImagesId, UINT largeImagesId,
                                    CSize smallSize, CSize largeSize)
{
    m_pParentRibbonBar = ribbon;
    m_strName = name;
    m_SmallImages.SetImageSize(smallSize);
    m_LargeImages.SetImageSize(largeSize);
    if (smallImagesId)
        m_SmallImages.Load(smallImagesId);
    if (largeImagesId)
        m_LargeImages.Load(largeImagesId);
}

CMFCRibbonPanel* CMFCRibbonCategory::AddPanel(LPCWSTR name, HICON icon, CRuntimeClass* runtimeClass)
{
    CMFCRibbonPanel* panel = InsertPanelAt(GetPanelCount(), name, icon, runtimeClass);
    panel->inserted = false;
    return panel;
}

CMFCRibbonPanel* CMFCRibbonCategory::InsertPanelAt(int index, LPCWSTR name, HICON icon, CRuntimeClass* runtimeClass)
{
    std::unique_ptr<CMFCRibbonPanel> panel;
    if (runtimeClass)
        panel.reset(dynamic_cast<CMFCRibbonPanel*>(runtimeClass->CreateObject()));
    if (!panel)
        panel = std::make_unique<CMFCRibbonPanel>();
    panel->m_strName = name;
    panel->icon.reset(icon);
    panel->category = this;
    panel->inserted = true;
    const auto place = panels.begin() + std::clamp(index, 0, GetPanelCount());
    CMFCRibbonPanel* added = panels.insert(place, std::move(panel))->get();
    changed(this);
    return added;
}

CMFCRibbonPanel* CMFCRibbonCategory::GetPanel(int index) const
{
    return elementAt(panels, index);
}

CMFCRibbonBar::CMFCRibbonBar() = default;

CMFCRibbonBar::~CMFCRibbonBar()
{
    orvplatform::setRibbonSource(m_hWnd, {}, {});
}

LPCWSTR CMFCRibbonBar::GetWindowClass() const
{
    return orvplatform::ribbonClass;
}

BOOL CMFCRibbonBar::Create(CWnd* parent, DWORD style, UINT id)
{
    if (!CWnd::Create(GetWindowClass(), L"", style, CRect(0, 0, 600, 110), parent, id))
        return FALSE;
    const auto describe = [](const CMFCRibbonCategory& category) {
        orvplatform::RibbonPage page{QString::fromStdWString(category.GetName()), {}};
        const auto& large = const_cast<CMFCRibbonCategory&>(category).GetLargeImages().pictures();
        const auto& small = const_cast<CMFCRibbonCategory&>(category).GetSmallImages().pictures();
        for (int i = 0; i < category.GetPanelCount(); ++i) {
            const CMFCRibbonPanel& panel = *category.GetPanel(i);
            page.panels.push_back({QString::fromStdWString(panel.GetName()), {}, panel.inserted});
            for (int j = 0; j < panel.GetCount(); ++j) {
                const auto* button = dynamic_cast<const CMFCRibbonButton*>(panel.GetElement(j));
                if (!button)
                    continue;
                page.panels.back().buttons.push_back({button->GetID(), QString::fromStdWString(button->GetText()),
                                                      QString::fromStdWString(button->GetToolTipText().GetString()),
                                                      large.icon(button->GetImageIndex(TRUE)),
                                                      small.icon(button->GetImageIndex(FALSE))});
            }
        }
        return page;
    };
    orvplatform::setRibbonSource(
        m_hWnd,
        [this, describe] {
            std::vector<orvplatform::RibbonPage> pages;
            for (const auto& category : categories)
                pages.push_back(describe(*category));
            return pages;
        },
        [this](int page) { activeCategory = GetCategory(page); });
    return TRUE;
}

CMFCRibbonCategory* CMFCRibbonBar::AddCategory(LPCWSTR name, UINT smallImagesId, UINT largeImagesId, CSize smallSize,
                                               CSize largeSize, int insertAt, CRuntimeClass* runtimeClass)
{
    std::unique_ptr<CMFCRibbonCategory> category;
    if (runtimeClass)
        category.reset(dynamic_cast<CMFCRibbonCategory*>(runtimeClass->CreateObject()));
    if (!category)
        category = std::make_unique<CMFCRibbonCategory>();
    category->initialise(this, name, smallImagesId, largeImagesId, smallSize, largeSize);
    const int last = GetCategoryCount();
    const auto place = categories.begin() + (insertAt < 0 ? last : std::min(insertAt, last));
    CMFCRibbonCategory* added = categories.insert(place, std::move(category))->get();
    if (!activeCategory)
        activeCategory = added;
    ForceRecalcLayout();
    return added;
}

CMFCRibbonCategory* CMFCRibbonBar::GetCategory(int index) const
{
    return elementAt(categories, index);
}

int CMFCRibbonBar::GetCategoryIndex(CMFCRibbonCategory* category) const
{
    for (int i = 0; i < GetCategoryCount(); ++i)
        if (GetCategory(i) == category)
            return i;
    return -1;
}

CMFCRibbonCategory* CMFCRibbonBar::GetActiveCategory() const
{
    return activeCategory;
}

BOOL CMFCRibbonBar::SetActiveCategory(CMFCRibbonCategory* category, BOOL)
{
    const int index = GetCategoryIndex(category);
    if (index < 0)
        return FALSE;
    activeCategory = category;
    orvplatform::showRibbonPage(m_hWnd, index);
    return TRUE;
}

CMFCRibbonBaseElement* CMFCRibbonBar::FindByID(UINT id, BOOL) const
{
    for (const auto& category : categories)
        for (int i = 0; i < category->GetPanelCount(); ++i)
            for (int j = 0; j < category->GetPanel(i)->GetCount(); ++j)
                if (category->GetPanel(i)->GetElement(j)->GetID() == id)
                    return category->GetPanel(i)->GetElement(j);
    return nullptr;
}

void CMFCRibbonBar::ForceRecalcLayout()
{
    orvplatform::ribbonChanged(m_hWnd);
}
