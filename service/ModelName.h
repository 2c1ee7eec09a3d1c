#pragma once

#include "host/orv/FilePath.h"

#include <string>

/// The name under which the service knows a model: its file's name and extension, without the folder.
inline std::wstring modelName(wchar_t const* path)
{
    orv::FilePath const parts(path);
    return parts.getFName() + parts.getExt();
}
