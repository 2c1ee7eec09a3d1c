#pragma once

#include <string>

namespace orv
{

/// Splits a path. getFName and getExt joined give the file's name with its extension.
class FilePath
{
public:
    explicit FilePath(wchar_t const* path);

    std::wstring const& getFName() const
    {
        return name;
    } ///< without folder and extension: "part.v2" of "/a/part.v2.step"
    std::wstring const& getExt() const { return extension; } ///< from the last dot on, ".step"; empty without one
    std::wstring const& getFolder() const { return folder; } ///< with its closing separator; empty for a bare name

private:
    std::wstring folder;
    std::wstring name;
    std::wstring extension;
};

} // namespace orv
