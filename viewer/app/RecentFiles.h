#pragma once

#include "host/orv/IDocument.h"
#include "host/runtime/Files.h"

#include <QIcon>
#include <QImage>

#include <memory>
#include <string>
#include <vector>

namespace orvviewer
{

/// The models opened last, newest first, and their previews. Both lie in the user's data, in "Orvanta/RecentFile":
/// previews as "asm_NAME.bmp" for assemblies and "part_NAME.bmp" for single parts, where NAME is the model's file name
/// without its extension. The content of a preview is PNG in spite of its name, since it is sent to the service as
/// such. The list is kept in memory and read again when the file has changed, by another viewer say.
class RecentFiles
{
public:
    static constexpr int limit = 10;

    /// The folder of the list and the previews; made on demand, empty where the user's data can't be reached.
    static std::wstring folder();

    /// True where nothing was opened yet. Doesn't look at the disk once the list is known.
    bool isEmpty() const;
    std::vector<std::wstring> paths() const; ///< files that are gone since are left out
    bool refresh() const;                    ///< reads the list where it has changed; false where it hasn't
    void add(std::shared_ptr<orv::IDocument> const& document);
    /// Where there is no picture, or it can't be written, there is no preview afterwards.
    void savePreview(std::shared_ptr<orv::IDocument> const& document, QImage const& picture);
    /// Empty where there is none, or where the picture shows a model of the same name that was opened later.
    QIcon previewOf(std::wstring const& path) const;

private:
    enum class Kind { unknown, part, assembly };
    struct Entry {
        std::wstring path;
        Kind kind = Kind::unknown; ///< unknown in lists that earlier versions wrote
    };

    static std::wstring listPath();
    static std::wstring previewPath(std::wstring const& modelPath, Kind kind);
    static Entry parsed(std::string const& line);
    static std::string line(Entry const& entry);

    mutable std::vector<Entry> entries;
    mutable orvhost::FileStamp stamp{};
    mutable bool isKnown = false;
};

} // namespace orvviewer
