#pragma once

#include <string>
#include <vector>

namespace orvviewer
{

enum class FileKind { step, iges, brep, stl, obj, gltf, native, unknown };

/// What a file turned out to be before anything of it is interpreted.
struct FileCheck {
    FileKind kind = FileKind::unknown;
    std::wstring error; ///< a whole sentence; empty where the file may be read
};

/// The kind that the extension stands for; letter case is ignored.
FileKind kindOfExtension(std::wstring const& path);

/// Looks at the extension and at the file's beginning and end, so that a renamed picture, an empty file or one that was
/// cut off is refused with a sentence rather than handed to a reader.
FileCheck checkFile(std::wstring const& path);

/// The extensions that can be opened, without the point, the most usual ones first.
std::vector<std::wstring> const& readableExtensions();

} // namespace orvviewer
