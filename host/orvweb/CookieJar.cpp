#include "host/orvweb/CookieJar.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "host/runtime/Runtime.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <sstream>
#include <system_error>

namespace orvweb
{

namespace
{

constexpr std::size_t jarLimit = 1 << 20;

std::wstring jarPath()
{
    return orv::FileUtils::join(orvhost::settings().dataDirectory, L"session-cookie");
}

/// A cookie is a line of seven fields; anything else would be taken for a command of the cookie engine.
bool isCookieLine(std::string const& line)
{
    return std::count(line.begin(), line.end(), '\t') == 6;
}

/// The fifth field is the time of expiry in seconds since 1970; 0 stands for a session cookie. libcurl lists a cookie
/// that the service has just taken back until it next looks for one to send.
bool hasExpired(std::string const& line, std::time_t now)
{
    std::istringstream fields(line);
    std::string field;
    for (int i = 0; i < 5; ++i) {
        std::getline(fields, field, '\t');
    }
    long long const expiry = std::strtoll(field.c_str(), nullptr, 10);
    return expiry != 0 && expiry <= static_cast<long long>(now);
}

} // namespace

void CookieJar::load(CURL* handle)
{
    if (path == jarPath()) {
        return;
    }
    path = jarPath();
    // A comment line switches the cookie engine on, for the handle's life, and adds nothing.
    curl_easy_setopt(handle, CURLOPT_COOKIELIST, "#");
    curl_easy_setopt(handle, CURLOPT_COOKIELIST, "ALL");
    content = orvhost::readFile(orvhost::nativePath(path), jarLimit);
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (isCookieLine(line)) {
            curl_easy_setopt(handle, CURLOPT_COOKIELIST, line.c_str());
        }
    }
}

void CookieJar::save(CURL* handle)
{
    curl_slist* list = nullptr;
    curl_easy_getinfo(handle, CURLINFO_COOKIELIST, &list);
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> const owner(list, curl_slist_free_all);
    std::string text;
    std::time_t const now = std::time(nullptr);
    for (curl_slist const* line = list; line != nullptr; line = line->next) {
        if (!hasExpired(line->data, now)) {
            text.append(line->data).push_back('\n');
        }
    }
    if (text == content) {
        return;
    }
    auto const file = orvhost::nativePath(path);
    std::error_code error;
    bool const isDone = text.empty() ? std::filesystem::remove(file, error) || !error
                                     : orvhost::makeDirectory(file.parent_path()) && orvhost::replaceFile(file, text);
    // What could not be written is tried again after the next request.
    if (isDone) {
        content = text;
    }
}

} // namespace orvweb
