// What a click on a block and on its delete button does.

#include "feed/RaiseHint.h"
#include "feed/SceneRecords.h"
#include "feed/ViewReplay.h"
#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orvsgutils/BOMUtils.h"
#include "service/FeedRequests.h"
#include "service/PluginText.h"
#include "ui/ResourceIds.h"
#include "ui/feed/FeedBlock.h"

#include <afxdlgs.h>

#include <optional>

namespace
{

/// What an automatic entry's output needs of the save dialog and of the bill of materials.
struct Output {
    wchar_t const* kind;
    int filter;
    std::optional<int> reportLevel;
    wchar_t const* nameSuffix;
};

constexpr Output outputs[] = {
    {L"3ds", resource::text::threeDsFilter, std::nullopt, L""},
    {L"obj", resource::text::objFilter, std::nullopt, L""},
    {L"stl", resource::text::stlFilter, std::nullopt, L""},
    {L"pdf", resource::text::pdfFilter, std::nullopt, L""},
    {L"csv", resource::text::assemblyReportFilter, 1, L""},
    {L"bompdf", resource::text::partReportFilter, 0, L"_PartLevel"},
};

Output const* outputOf(std::wstring const& kind)
{
    for (Output const& output : outputs) {
        if (kind == output.kind) {
            return &output;
        }
    }
    return nullptr;
}

/// May be empty: a document without the record has the host asked to make one, which it needn't do.
std::shared_ptr<orvsg::SCBom> billOfMaterials(std::shared_ptr<orv::IDocument> const& document,
                                              SceneRecords const& records)
{
    if (records.bom) {
        return records.bom;
    }
    orvsgutils::BOMUtils::createBOM(records.topology, records.bom, 0);
    return orv::recordOf<orvsg::SCBom>(document, orvsg::SCBom::BOM);
}

} // namespace

void FeedBlock::OnLButtonDown(UINT flags, CPoint point)
{
    CDialogEx::OnLButtonDown(flags, point);
    if (!document) {
        return;
    }
    SceneRecords records(document);
    if (record.comment.commentType != L"auto") {
        restoreView(document, records, record);
        return;
    }
    if (record.action.type == L"download") {
        download(records.info, billOfMaterials(document, records), records.application);
    }
}

void FeedBlock::download(std::shared_ptr<orvsg::SCInfo> const& info, std::shared_ptr<orvsg::SCBom> const& bom,
                         std::shared_ptr<orv::SCApplication> const& application)
{
    if (!info || !application || !application->application) {
        return;
    }
    std::wstring const& kind = record.action.value;
    std::wstring name = orv::FilePath(info->file()).getFName();
    std::wstring filter; // stays empty for a kind that isn't known: the application decides what it makes of the path
    if (Output const* const output = outputOf(kind)) {
        filter = pluginText(output->filter);
        if (output->reportLevel && bom) {
            bom->reportLevel = *output->reportLevel;
        }
        name += output->nameSuffix;
    }
    name += L"." + kind;
    CFileDialog dialog(FALSE, kind.c_str(), name.c_str(), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, filter.c_str(),
                       nullptr, 0, TRUE);
    if (dialog.DoModal() == IDOK) {
        application->application->saveFile(dialog.GetPathName().GetString(), &FeedBlock::onSaved);
    }
}

void FeedBlock::onSaved(int const* status, wchar_t const* path, orv::IApplication* application)
{
    if (application == nullptr) {
        return;
    }
    std::wstring text = orv::FileUtils::getStatusFileName(path);
    if (status != nullptr && *status == 0) {
        text += pluginText(resource::text::savedSuffix);
    }
    application->showStatus(text.c_str(), 0);
}

void FeedBlock::OnDelete()
{
    if (!userInfo) {
        return;
    }
    // The answer isn't looked at: the feed that is reloaded shows whether the comment is gone.
    deleteFeed(userInfo->username, userInfo->userid, record.file.name, record.comment.id, record.file.id);
    raiseHint(document, orv::HintCode::commentDeleted);
}
