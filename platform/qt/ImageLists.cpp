#include "platform/qt/Gdi.h"

#include <unordered_set>

namespace
{
std::unordered_set<HIMAGELIST>& lists()
{
    static std::unordered_set<HIMAGELIST> set;
    return set;
}
int append(HIMAGELIST list, std::vector<QImage> pictures)
{
    if (!lists().contains(list) || pictures.empty())
        return -1;
    const int first = static_cast<int>(list->pictures.size());
    list->pictures.insert(list->pictures.end(), pictures.begin(), pictures.end());
    return first;
}
} // namespace

HIMAGELIST ImageList_Create(int width, int height, UINT, int, int)
{
    if (width <= 0 || height <= 0)
        return nullptr;
    HIMAGELIST list = new _IMAGELIST{{width, height}, {}};
    lists().insert(list);
    return list;
}

BOOL ImageList_Destroy(HIMAGELIST list)
{
    if (!lists().erase(list))
        return FALSE;
    delete list;
    return TRUE;
}

int ImageList_AddMasked(HIMAGELIST list, HBITMAP bitmap, COLORREF mask)
{
    return lists().contains(list)
               ? append(list, orvplatform::cutPictures(orvplatform::imageOf(bitmap), list->size, mask))
               : -1;
}

int ImageList_Add(HIMAGELIST list, HBITMAP bitmap, HBITMAP)
{
    return ImageList_AddMasked(list, bitmap, CLR_NONE);
}

int ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon)
{
    const QImage image = orvplatform::imageOf(icon);
    if (image.isNull())
        return -1;
    if (index < 0)
        return append(list, {image});
    if (index >= ImageList_GetImageCount(list))
        return -1;
    list->pictures[static_cast<std::size_t>(index)] = image;
    return index;
}

int ImageList_GetImageCount(HIMAGELIST list)
{
    return lists().contains(list) ? static_cast<int>(list->pictures.size()) : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height)
{
    if (!lists().contains(list) || !width || !height)
        return FALSE;
    *width = list->size.width();
    *height = list->size.height();
    return TRUE;
}

HICON ImageList_GetIcon(HIMAGELIST list, int index, UINT)
{
    if (index < 0 || index >= ImageList_GetImageCount(list))
        return nullptr;
    return orvplatform::makeIcon(list->pictures[static_cast<std::size_t>(index)]);
}
