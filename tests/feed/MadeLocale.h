#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace orvtest
{

/// A folder in which the C library finds locales that a test has made, since a bare system has none but the plain ones.
class LocaleFolder
{
public:
    LocaleFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "orvanta-locale-XXXXXX").string();
        if (::mkdtemp(name.data()) != nullptr) {
            directory = name;
            setenv("LOCPATH", directory.c_str(), 1);
        }
    }
    ~LocaleFolder()
    {
        unsetenv("LOCPATH");
        std::error_code error;
        std::filesystem::remove_all(directory, error);
    }
    LocaleFolder(LocaleFolder const&) = delete;
    LocaleFolder& operator=(LocaleFolder const&) = delete;

    /// The file of a category, such as "LC_TIME", in the locale of that name.
    std::filesystem::path file(std::string const& locale, std::string const& category) const
    {
        std::filesystem::create_directories(directory / locale);
        return directory / locale / category;
    }

private:
    std::filesystem::path directory;
};

} // namespace orvtest
