#include "ui/feed/FeedBlock.h"

#include "feed/Thumbnail.h"
#include "service/PluginText.h"
#include "ui/DialogTemplate.h"
#include "ui/DocumentServices.h"
#include "ui/ResourceIds.h"

#include <atlimage.h>
#include <objbase.h>

#include <cstring>
#include <utility>

namespace
{

constexpr int columnWidth = 180; // of text and picture, pixels
constexpr int lineHeight = 20;
constexpr int aroundText = 35; // of a block's height what picture and text leave

/// Any format that the image class knows. False where the bytes hold no picture.
bool loadImage(CImage& image, std::string const& bytes)
{
    if (bytes.empty()) {
        return false;
    }
    HGLOBAL const block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (block == nullptr) {
        return false;
    }
    std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
    GlobalUnlock(block);
    bool loaded = false;
    IStream* stream = nullptr;
    if (CreateStreamOnHGlobal(block, FALSE, &stream) == S_OK) {
        loaded = SUCCEEDED(image.Load(stream));
        stream->Release();
    }
    GlobalFree(block);
    return loaded && image.GetWidth() > 0 && image.GetHeight() > 0;
}

/// Of the picture control to its dialog: the control's id and the bitmap. A toolkit that decodes pictures at once never
/// sends it.
UINT const pictureUnreadable = RegisterWindowMessageW(L"OrvPictureUnreadable");

} // namespace

BEGIN_MESSAGE_MAP(FeedBlock, CDialogEx)
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_REGISTERED_MESSAGE(pictureUnreadable, &FeedBlock::OnPictureUnreadable)
ON_BN_CLICKED(resource::control::deleteComment, &FeedBlock::OnDelete)
END_MESSAGE_MAP()

FeedBlock::FeedBlock() : CDialogEx(templateId()) {}

UINT FeedBlock::templateId()
{
    return DialogTemplate{203, 286, 287, 288, 289, 290, 291, 292}.forCurrentLanguage();
}

void FeedBlock::DoDataExchange(CDataExchange* exchange)
{
    CDialogEx::DoDataExchange(exchange);
    DDX_Control(exchange, resource::control::thumbnail, thumbnail);
    DDX_Control(exchange, resource::control::commentText, text);
    DDX_Control(exchange, resource::control::publishingDate, date);
    DDX_Control(exchange, resource::control::deleteComment, deleteButton);
}

BOOL FeedBlock::OnInitDialog()
{
    CDialogEx::OnInitDialog();
    deleteButton.SetTooltip(pluginText(resource::text::deleteComment).c_str());
    deleteButton.SetImage(resource::image::deleteComment);
    deleteButton.MoveWindow(180, 0, 24, 24);
    deleteButton.ShowWindow(SW_HIDE);
    return TRUE;
}

void FeedBlock::PostNcDestroy()
{
    CDialogEx::PostNcDestroy();
    delete this;
}

void FeedBlock::OnSize(UINT type, int width, int height)
{
    CDialogEx::OnSize(type, width, height); // the layout doesn't follow the size
}

void FeedBlock::OnUpdate(orv::IHint* hint)
{
    if (hint == nullptr) {
        return;
    }
    using namespace orv::HintCode;
    switch (hint->getCode()) {
    case documentOpened:
    case documentClosed:
    case visibilityChanged:
    case appearanceChanged:
    case sceneChanged:
    case viewRestored:
        takeDocument(*hint, document);
        break;
    default:
        break;
    }
}

int FeedBlock::setFeed(Feed const& newRecord, std::shared_ptr<orvweb::UserInfo> user)
{
    userInfo = std::move(user);
    record = newRecord;

    std::wstring const& content = record.comment.content;
    text.SetWindowTextW(content.c_str());
    int const textHeight = lineCount(content) * lineHeight;

    int height = 0;
    if (loadThumbnail(height)) {
        thumbnail.MoveWindow(15, 15, columnWidth, height);
        thumbnail.Invalidate();
        date.SetWindowTextW(record.comment.publishedTime.c_str());
        date.MoveWindow(15, 0, columnWidth, 30);
        text.MoveWindow(15, height + 20, columnWidth, textHeight + 20);
        thumbnail.ShowWindow(SW_SHOW);
        date.ShowWindow(SW_SHOW);
    } else {
        layOutWithoutThumbnail(textHeight);
    }
    // The record's own flags play no part: the author deletes, nobody else.
    bool const own = userInfo && userInfo->username == record.author.email;
    deleteButton.ShowWindow(own ? SW_SHOW : SW_HIDE);
    return height + aroundText + textHeight;
}

void FeedBlock::layOutWithoutThumbnail(int textHeight)
{
    // Without a picture there is no date either; that is meant.
    thumbnail.ShowWindow(SW_HIDE);
    date.ShowWindow(SW_HIDE);
    text.MoveWindow(15, 20, columnWidth, textHeight + 20);
}

LRESULT FeedBlock::OnPictureUnreadable(WPARAM control, LPARAM bitmap)
{
    // The next record's picture may have come in between.
    bool const isShown = static_cast<int>(control) == resource::control::thumbnail &&
                         reinterpret_cast<HBITMAP>(bitmap) == thumbnail.GetBitmap();
    if (!isShown) {
        return 0;
    }
    int const textHeight = lineCount(record.comment.content) * lineHeight;
    layOutWithoutThumbnail(textHeight);
    if (auto* const list = dynamic_cast<CMFCTasksPane*>(GetParent())) {
        list->SetWindowHeight(m_hWnd, aroundText + textHeight);
    }
    return 0;
}

/// Measured as one line, line breaks and all; the control does the wrapping.
int FeedBlock::lineCount(std::wstring const& content)
{
    CClientDC context(this);
    CFont* const previous = context.SelectObject(GetFont());
    SIZE size{};
    GetTextExtentPoint32W(context.GetSafeHdc(), content.c_str(), static_cast<int>(content.size()), &size);
    context.SelectObject(previous);
    return size.cx / columnWidth + 1;
}

/// Hands the record's picture to the control and tells the height at which it keeps its proportions. False, and height
/// 0, where there is none that can be shown.
bool FeedBlock::loadThumbnail(int& height)
{
    height = 0;
    if (!hasThumbnail(record)) {
        return false;
    }
    CImage image;
    if (!loadImage(image, decodeThumbnail(record))) {
        return false;
    }
    // The image class takes no side of more than 16,384 pixels, so neither the product nor a window gets too large.
    height = image.GetHeight() * columnWidth / image.GetWidth();
    if (HBITMAP const previous = thumbnail.SetBitmap(image.Detach())) {
        DeleteObject(previous);
    }
    return true;
}
