#include "afxcmn.h"

#include <unordered_map>

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList* CImageList::FromHandle(HIMAGELIST list)
{
    static auto& made = *new std::unordered_map<HIMAGELIST, CImageList*>;
    if (!list)
        return nullptr;
    CImageList*& object = made[list];
    if (!object)
        object = new CImageList;
    object->m_hImageList = list;
    return object;
}

BOOL CImageList::Create(int width, int height, UINT flags, int initial, int grow)
{
    DeleteImageList();
    return Attach(ImageList_Create(width, height, flags, initial, grow));
}

BOOL CImageList::DeleteImageList()
{
    return ImageList_Destroy(Detach());
}

BOOL CImageList::Attach(HIMAGELIST list)
{
    m_hImageList = list;
    return list != nullptr;
}

HIMAGELIST CImageList::Detach()
{
    return std::exchange(m_hImageList, nullptr);
}
int CImageList::GetImageCount() const
{
    return ImageList_GetImageCount(m_hImageList);
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask)
{
    return ImageList_Add(m_hImageList, bitmap ? static_cast<HBITMAP>(*bitmap) : nullptr,
                         mask ? static_cast<HBITMAP>(*mask) : nullptr);
}

int CImageList::Add(CBitmap* bitmap, COLORREF mask)
{
    return ImageList_AddMasked(m_hImageList, bitmap ? static_cast<HBITMAP>(*bitmap) : nullptr, mask);
}

int CImageList::Add(HICON icon)
{
    return ImageList_ReplaceIcon(m_hImageList, -1, icon);
}
HICON CImageList::ExtractIcon(int index)
{
    return ImageList_GetIcon(m_hImageList, index, ILD_NORMAL);
}
