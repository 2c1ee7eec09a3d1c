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

/// The file's lines that begin with the service and a tab, without both, or all others as they are.
std::string linesOf(std::wstring const& path, std::string const& service, bool isOwn)
{
    std::istringstream lines(orvhost::readFile(orvhost::nativePath(path), jarLimit));
    std::string const mark = service + '\t';
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        auto const end = line.find('\t');
        if (end == std::string::npos || !isCookieLine(line.substr(end + 1))) {
            continue;
        }
        if (line.starts_with(mark) == isOwn) {
            found.append(isOwn ? line.substr(mark.size()) : line).push_back('\n');
        }
    }
    return found;
}

} // namespace

void CookieJar::load(CURL* handle, std::string const& service)
{
    std::wstring const wanted = jarPath();
    auto const current = orvhost::stampOf(orvhost::nativePath(wanted)); // before the reading: a later change is seen
    if (path == wanted && owner == service && (current == stamp || !isSaved)) {
        return;
    }
    path = wanted;
    owner = service;
    stamp = current;
    isSaved = true;
    // A comment line switches the cookie engine on, for the handle's life, and adds nothing.
    curl_easy_setopt(handle, CURLOPT_COOKIELIST, "#");
    curl_easy_setopt(handle, CURLOPT_COOKIELIST, "ALL");
    content = linesOf(path, owner, true);
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        curl_easy_setopt(handle, CURLOPT_COOKIELIST, line.c_str());
    }
}

void CookieJar::save(CURL* handle)
{
    curl_slist* list = nullptr;
    curl_easy_getinfo(handle, CURLINFO_COOKIELIST, &list);
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> const listOwner(list, curl_slist_free_all);
    std::string own;
    std::string text;
    std::time_t const now = std::time(nullptr);
    for (curl_slist const* line = list; line != nullptr; line = line->next) {
        if (!hasExpired(line->data, now)) {
            own.append(line->data).push_back('\n');
            text.append(owner).append(1, '\t').append(line->data).push_back('\n');
        }
    }
    if (own == content) {
        isSaved = true; // what couldn't be written has been taken back, and the file may be read again
        return;
    }
    text += linesOf(path, owner, false);
    auto const file = orvhost::nativePath(path);
    std::error_code error;
    bool const isDone = text.empty() ? std::filesystem::remove(file, error) || !error
                                     : orvhost::makeDirectory(file.parent_path()) && orvhost::replaceFile(file, text);
    // What could not be written is tried again after the next request.
    isSaved = isDone;
    if (isDone) {
        content = own;
        stamp = orvhost::stampOf(file);
    }
}

} // namespace orvweb
