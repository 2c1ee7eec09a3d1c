#include "service/CloudHelper.h"

#include "host/orv/FileUtils.h"
#include "host/orv/SCApplication.h"
#include "host/orvexp/ExportManager.h"
#include "host/orvsg/SCInfo.h"
#include "service/Exporters.h"
#include "service/ModelFiles.h"
#include "service/ModelName.h"
#include "service/PushFeedback.h"

#include <afxwin.h>

#include <exception>
#include <iostream>
#include <utility>

std::wstring CloudHelper::pushDirect(std::shared_ptr<orv::IDocument> const& document,
                                     std::shared_ptr<orvweb::UserInfo> userInfo)
{
    std::wstring result = uploadFailed;
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    if (!info || info->file()[0] == L'\0') {
        return result;
    }
    auto const record = orv::recordOf<orv::SCApplication>(document);
    PushFeedback feedback(record ? record->application : nullptr);
    feedback.showUploading();
    CWaitCursor busy;
    feedback.begin();
    feedback.advance(20);

    std::wstring const path = prcFilePath(info->file());
    if (exporter) {
        exporter->save(path.c_str(), document, exportPreferences(), feedback.statusManager());
    }
    feedback.advance(50);
    try {
        feedback.showUploading();
        result = uploadInput(modelName(info->file()), path, userInfo->username, userInfo->userid, L"prc");
        DeleteFileW(path.c_str());
        feedback.advance(80);
    } catch (std::exception const& error) {
        std::cout << error.what() << std::endl;
        feedback.showFailed();
    }
    feedback.showOutcome(result, info->file());
    feedback.advance(100);
    feedback.end();
    return result;
}

std::wstring CloudHelper::pushWithPreview(std::shared_ptr<orv::IDocument> const& document,
                                          std::shared_ptr<orv::IApplication> application,
                                          std::shared_ptr<orvweb::UserInfo> userInfo)
{
    PushFeedback feedback(std::move(application));
    feedback.showUploading();
    CWaitCursor busy;
    feedback.begin();
    feedback.advance(20);

    std::shared_ptr<orv::Preferences> const preferences = exportPreferences();
    auto const manager = std::make_shared<orvexp::ExportManager>(nullptr);
    loadExporters(manager);
    auto info = orv::recordOf<orvsg::SCInfo>(document);
    if (!info) {
        info = std::make_shared<orvsg::SCInfo>();
    }
    std::wstring const filename = modelName(info->file());
    CreateDirectoryW(orv::FileUtils::getTempPath().c_str(), nullptr);
    std::wstring result = uploadFailed;
    for (std::wstring const extension : {L"orvanta"}) {
        CreateDirectoryW(exportDirectory(extension).c_str(), nullptr);
        std::wstring const path = exportFilePath(info->file(), extension);
        if (std::shared_ptr<orvexp::ExportHelper> const plugin = manager->getPlugin(path.c_str())) {
            plugin->save(path.c_str(), document, preferences, feedback.statusManager());
        }
        feedback.advance(50);
        result = upload(filename, path, userInfo->username, userInfo->userid, extension);
        DeleteFileW(path.c_str());
        feedback.advance(80);
    }
    // The answer to the preview stands for the whole push, and the preview travels as "png" in spite of its name.
    result = upload(filename, previewFilePath(*info), userInfo->username, userInfo->userid, L"png");
    feedback.advance(100);
    feedback.showOutcome(result, info->file());
    feedback.end();
    return result;
}
