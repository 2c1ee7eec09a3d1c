#include "host/orv/FilePath.h"

namespace orv
{

FilePath::FilePath(wchar_t const* path)
{
    std::wstring const whole(path == nullptr ? L"" : path);
    auto const slash = whole.rfind(L'/');
    std::size_t const start = slash == std::wstring::npos ? 0 : slash + 1;
    folder = whole.substr(0, start);
    name = whole.substr(start);
    auto const dot = name.rfind(L'.');
    if (dot != std::wstring::npos) {
        extension = name.substr(dot);
        name.resize(dot);
    }
}

} // namespace orv
