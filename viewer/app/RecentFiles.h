#pragma once

#include "host/orv/IDocument.h"

#include <QIcon>
#include <QImage>

#include <memory>
#include <string>
#include <vector>

namespace orvviewer
{

/// The models opened last, newest first, and their previews. Both lie in the user's data, in "Orvanta/RecentFile":
/// previews as "asm_NAME.bmp" for assemblies and "part_NAME.bmp" for single parts.
class RecentFiles
{
public:
    static constexpr int limit = 10;

    std::vector<std::wstring> paths() const; ///< files that are gone since are left out
    void add(std::wstring const& path);
    void savePreview(std::shared_ptr<orv::IDocument> const& document, QImage const& picture);
    QIcon previewOf(std::wstring const& path) const; ///< empty where there is none

private:
    static std::wstring folder(); ///< empty where the user's data can't be reached
    static std::wstring previewPath(std::wstring const& modelPath, bool isAssembly);
};

} // namespace orvviewer
