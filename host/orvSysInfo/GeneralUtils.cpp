#include "host/orvSysInfo/GeneralUtils.h"

#include "host/orv/FileUtils.h"
#include "host/orv/GUID.h"
#include "host/orvSysInfo/ReleaseFile.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <filesystem>
#include <sstream>
#include <utility>

#include <sys/utsname.h>

namespace orvSysInfo
{

namespace
{

/// The value of a key of the system's release file (shell-like assignments, one a line).
std::string releaseValue(std::string const& content, std::string const& key)
{
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(key + "=", 0) != 0) {
            continue;
        }
        std::string const value = line.substr(key.size() + 1);
        bool const isQuoted =
            value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
        return isQuoted ? value.substr(1, value.size() - 2) : value;
    }
    return {};
}

std::filesystem::path& releaseFile()
{
    static std::filesystem::path file;
    return file;
}

std::string releaseFileContent()
{
    constexpr std::size_t limit = 65536;
    if (!releaseFile().empty()) {
        return orvhost::readFile(releaseFile(), limit);
    }
    std::string content = orvhost::readFile("/etc/os-release", limit);
    return content.empty() ? orvhost::readFile("/usr/lib/os-release", limit) : content;
}

void addLine(std::wstring& body, wchar_t const* label, std::wstring const& text)
{
    if (!text.empty()) {
        body += label;
        body += text;
        body += L'\n';
    }
}

} // namespace

void setReleaseFile(std::filesystem::path file)
{
    releaseFile() = std::move(file);
}

std::wstring GeneralUtils::getApplicationInfo()
{
    return L"Orvanta " + orvtext::fromUtf8(ORV_VERSION);
}

std::wstring GeneralUtils::getSystemInfo()
{
    utsname system{};
    if (uname(&system) != 0) {
        return {};
    }
    return orvtext::fromUtf8(std::string(system.sysname) + " " + system.release + " " + system.machine);
}

std::wstring GeneralUtils::getHostID()
{
    std::wstring directory;
    orv::FileUtils::getAppDataPath(directory);
    auto const file = orvhost::nativePath(orv::FileUtils::join(directory, L"installation-id"));
    std::wstring const text = orvtext::fromUtf8(orvhost::readFile(file, 64));
    std::wstring id = text.substr(0, text.find(L'\n'));
    // Anything but an identity, a missing file included, is replaced.
    if (orv::GUID(id.c_str()).toString() != id || orv::GUID(id.c_str()) == orv::GUID(L"")) {
        id = orv::GUID().toString();
        orvhost::replaceFile(file, orvtext::toUtf8(id) + "\n");
    }
    return id;
}

std::wstring GeneralUtils::getSignature()
{
    return orvtext::fromUtf8("g++ " __VERSION__ ", released on " ORV_RELEASE_DATE);
}

bool GeneralUtils::getOSName(std::wstring& name, std::wstring& version)
{
    std::string const content = releaseFileContent();
    std::string const fullName = releaseValue(content, "PRETTY_NAME");
    if (fullName.empty()) {
        return false;
    }
    name = orvtext::fromUtf8(fullName);
    version = orvtext::fromUtf8(releaseValue(content, "VERSION_ID"));
    return true;
}

std::wstring GeneralUtils::compileSystemInfo(std::wstring const& application, std::wstring const& system,
                                             std::wstring const& hostId, std::wstring const& signature,
                                             std::wstring const& remark)
{
    std::wstring body;
    addLine(body, L"Application: ", application);
    addLine(body, L"System: ", system);
    addLine(body, L"Installation: ", hostId);
    addLine(body, L"Build: ", signature);
    addLine(body, L"Remark: ", remark);
    return body;
}

} // namespace orvSysInfo
