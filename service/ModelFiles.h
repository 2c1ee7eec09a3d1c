#pragma once

#include <string>

namespace orvsg
{
class SCInfo;
}

/// Where the model at `modelPath` is written for an upload: in the temporary directory, and for the exporter plug-ins
/// in a directory below it that bears the extension's name.
std::wstring prcFilePath(wchar_t const* modelPath);
std::wstring exportDirectory(std::wstring const& extension);
std::wstring exportFilePath(wchar_t const* modelPath, std::wstring const& extension);

/// The picture of the model among the viewer's recent files. It is only sent, never made or deleted here.
std::wstring previewFilePath(orvsg::SCInfo const& info);
