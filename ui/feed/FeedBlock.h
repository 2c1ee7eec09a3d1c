#pragma once

#include "feed/Feed.h"
#include "host/orv/IHint.h"
#include "host/orvweb/UserInfo.h"

#include <afxcontrolbars.h>
#include <afxdialogex.h>

#include <memory>
#include <string>

namespace orv
{
class IApplication;
class SCApplication;
} // namespace orv
namespace orvsg
{
class SCBom;
class SCInfo;
} // namespace orvsg

/// One comment as a control: picture, date, text and, on the reader's own comments, a delete button. A click brings the
/// comment's view back in the model, or offers an automatic entry's output for saving. Deletes itself with its window.
class FeedBlock : public CDialogEx
{
public:
    FeedBlock();

    static UINT templateId();

    /// Fills and lays out the block; returns its height in pixels. Nothing is scaled with the display's resolution.
    int setFeed(Feed const& newRecord, std::shared_ptr<orvweb::UserInfo> user);

    /// Told of the outcome of a save. Uses nothing but its arguments.
    static void onSaved(int const* status, wchar_t const* path, orv::IApplication* application);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}
    void PostNcDestroy() override;

    void OnLButtonDown(UINT flags, CPoint point);
    void OnSize(UINT type, int width, int height);
    void OnDelete();
    /// The picture control found, when it was about to draw, that a bitmap's pixels can't be read.
    LRESULT OnPictureUnreadable(WPARAM control, LPARAM bitmap);
    DECLARE_MESSAGE_MAP()

private:
    void download(std::shared_ptr<orvsg::SCInfo> const& info, std::shared_ptr<orvsg::SCBom> const& bom,
                  std::shared_ptr<orv::SCApplication> const& application);
    int lineCount(std::wstring const& content);
    bool loadThumbnail(int& height);
    void layOutWithoutThumbnail(int textHeight);

    void* spare = nullptr; ///< never read; its place is given
    CStatic thumbnail;
    CStatic text;
    CStatic date;
    CMFCButton deleteButton;
    Feed record;
    std::shared_ptr<orv::IDocument> document;
    std::shared_ptr<orvweb::UserInfo> userInfo;

public:
    /// Takes the document from codes 3, 5, 14, 15, 19 and 20. Null is ignored.
    virtual void OnUpdate(orv::IHint* hint);
};
