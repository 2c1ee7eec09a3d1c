#include "afxtoolbarimages.h"

#include "afxcmdtarget.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/ToolBarPictures.h"

IMPLEMENT_DYNAMIC(CMFCToolBarImages, CObject)

CMFCToolBarImages::CMFCToolBarImages() : list(std::make_unique<Pictures>()) {}
CMFCToolBarImages::~CMFCToolBarImages() = default;

void CMFCToolBarImages::SetImageSize(SIZE size, BOOL)
{
    list->size = QSize(size.cx, size.cy);
}
SIZE CMFCToolBarImages::GetImageSize() const
{
    return {list->size.width(), list->size.height()};
}

BOOL CMFCToolBarImages::Load(UINT id, HINSTANCE module, BOOL add)
{
    CPngImage image;
    if (!image.Load(id, module))
        return FALSE;
    if (!add)
        Clear();
    return AddImage(image) >= 0;
}

int CMFCToolBarImages::AddImage(HBITMAP bitmap, BOOL)
{
    const std::vector<QImage> pictures = orvplatform::cutPictures(orvplatform::imageOf(bitmap), list->size);
    if (pictures.empty())
        return -1;
    list->pictures.insert(list->pictures.end(), pictures.begin(), pictures.end());
    return GetCount() - static_cast<int>(pictures.size());
}

int CMFCToolBarImages::AddIcon(HICON icon, BOOL)
{
    const QImage image = orvplatform::imageOf(icon);
    if (image.isNull())
        return -1;
    list->pictures.push_back(image);
    return GetCount() - 1;
}

int CMFCToolBarImages::GetCount() const
{
    return static_cast<int>(list->pictures.size());
}

HICON CMFCToolBarImages::ExtractIcon(int index)
{
    return index >= 0 && index < GetCount() ? orvplatform::makeIcon(list->pictures[static_cast<std::size_t>(index)])
                                            : nullptr;
}

void CMFCToolBarImages::Clear()
{
    list->pictures.clear();
}
