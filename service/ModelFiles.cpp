#include "service/ModelFiles.h"

#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orvsg/SCInfo.h"

namespace
{

std::wstring baseName(wchar_t const* modelPath)
{
    return orv::FilePath(modelPath).getFName();
}

} // namespace

std::wstring prcFilePath(wchar_t const* modelPath)
{
    return orv::FileUtils::join(orv::FileUtils::getTempPath(), baseName(modelPath) + L".prc");
}

std::wstring exportDirectory(std::wstring const& extension)
{
    return orv::FileUtils::join(orv::FileUtils::getTempPath(), extension);
}

std::wstring exportFilePath(wchar_t const* modelPath, std::wstring const& extension)
{
    return orv::FileUtils::join(exportDirectory(extension), baseName(modelPath) + L"." + extension);
}

std::wstring previewFilePath(orvsg::SCInfo const& info)
{
    std::wstring data;
    orv::FileUtils::getAppDataPath(data);
    std::wstring const recent = orv::FileUtils::join(orv::FileUtils::join(data, L"Orvanta"), L"RecentFile");
    std::wstring const kind = info.documentKind == orvsg::SCInfo::assembly ? L"asm_" : L"part_";
    return orv::FileUtils::join(recent, kind + baseName(info.file()) + L".bmp");
}
