#include "host/orvweb/CookieJar.h"

#include "host/orv/FileUtils.h"
#include "host/runtime/Files.h"
#include "host/runtime/Runtime.h"

#include <algorithm>
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

} // namespace

void CookieJar::load(CURL* handle)
{
    curl_easy_setopt(handle, CURLOPT_COOKIEFILE, ""); // switches the cookie engine on and reads nothing
    if (path == jarPath()) {
        return;
    }
    path = jarPath();
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
    for (curl_slist const* line = list; line != nullptr; line = line->next) {
        text.append(line->data).push_back('\n');
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
