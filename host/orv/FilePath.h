#pragma once

#include <string>

namespace orv
{

/// Splits a path. getFName and getExt joined give the file's name with its extension.
class FilePath
{
public:
    explicit FilePath(wchar_t const* path);

    /// Without folder and extension: "part.v2" of "/a/part.v2.step".
    std::wstring const& getFName() const { return name; }
    /// From the last dot on: ".step"; empty without one.
    std::wstring const& getExt() const { return extension; }
    /// With its closing separator; empty for a bare name.
    std::wstring const& getFolder() const { return folder; }

private:
    std::wstring folder;
    std::wstring name;
    std::wstring extension;
};

} // namespace orv
