#pragma once

#include <string>

namespace orvsg
{
class SCInfo;
}

/// The files that an upload works with, for a model's path. Both lie in the temporary directory.
std::wstring prcFilePath(wchar_t const* modelPath);
std::wstring nativeFilePath(wchar_t const* modelPath);

/// The directory of nativeFilePath, for files of that extension.
std::wstring nativeDirectory(std::wstring const& extension);

/// The picture of the model among the viewer's recent files. It is only sent, never made or deleted here.
std::wstring previewFilePath(orvsg::SCInfo const& info);
