#include "host/orvweb/CurlTransport.h"

#include "host/orvweb/AnswerBody.h"
#include "host/orvweb/Encoding.h"
#include "host/orvweb/UrlParts.h"
#include "host/runtime/Files.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace orvweb
{

namespace
{

using Headers = std::unique_ptr<curl_slist, void (*)(curl_slist*)>;
using Multipart = std::unique_ptr<curl_mime, void (*)(curl_mime*)>;

/// What the callbacks of one transfer share. None of them may let an exception into libcurl: it ends the transfer.
struct Transfer {
    TransferProgress const& progress;
    std::size_t largestAnswer;
    AnswerBody body;
    bool isTooLarge = false;
    bool isHeadWhole = false; ///< the answer's header came to its end
    int lastUpload = -1;
    int lastDownload = -1;

    void report(bool isUpload, curl_off_t now, curl_off_t total)
    {
        int& last = isUpload ? lastUpload : lastDownload;
        int const percent = total > 0 ? static_cast<int>(std::clamp<double>(
                                            100.0 * static_cast<double>(now) / static_cast<double>(total), 0.0, 100.0))
                                      : -1;
        if (percent >= 0 && percent != last) {
            last = percent;
            progress(isUpload, percent);
        }
    }
};

std::size_t onBody(char* data, std::size_t /*unit*/, std::size_t count, void* user) noexcept
{
    auto& transfer = *static_cast<Transfer*>(user);
    if (count > transfer.largestAnswer - transfer.body.size()) {
        transfer.isTooLarge = true;
        return 0;
    }
    try {
        return transfer.body.append(data, count) ? count : 0;
    } catch (std::exception const&) {
        transfer.isTooLarge = true;
        return 0;
    }
}

/// Called for each line of the header, and of interim answers before it.
std::size_t onHeader(char* line, std::size_t /*unit*/, std::size_t count, void* user) noexcept
{
    auto& transfer = *static_cast<Transfer*>(user);
    std::string_view const text(line, count);
    if (text.starts_with("HTTP/")) {
        transfer.isHeadWhole = false;
    } else if (text == "\r\n" || text == "\n") {
        transfer.isHeadWhole = true;
    }
    return count;
}

int onProgress(void* user, curl_off_t downloadTotal, curl_off_t downloaded, curl_off_t uploadTotal,
               curl_off_t uploaded) noexcept
{
    auto& transfer = *static_cast<Transfer*>(user);
    try {
        transfer.report(true, uploaded, uploadTotal);
        transfer.report(false, downloaded, downloadTotal);
    } catch (...) {
        return 1;
    }
    return 0;
}

orv::ErrorCode checkAddress(std::optional<UrlParts> const& parts)
{
    if (!parts || (parts->scheme != "http" && parts->scheme != "https")) {
        return orv::ErrorCode::invalidRequest;
    }
    return parts->scheme == "http" && !isLoopback(parts->host) ? orv::ErrorCode::insecureAddress : orv::ErrorCode::none;
}

bool isReadableFile(std::filesystem::path const& file)
{
    std::error_code error;
    return std::filesystem::is_regular_file(file, error) && ::access(file.c_str(), R_OK) == 0;
}

orv::ErrorCode codeOf(CURL* handle, CURLcode result, Transfer const& transfer)
{
    if (transfer.isTooLarge || result == CURLE_FILESIZE_EXCEEDED) {
        return orv::ErrorCode::tooLarge;
    }
    if (result != CURLE_OK) {
        // Nothing has been sent before a connection stands, its encryption included.
        curl_off_t ready = 0;
        curl_easy_getinfo(handle, CURLINFO_PRETRANSFER_TIME_T, &ready);
        return ready == 0 ? orv::ErrorCode::unreachable : orv::ErrorCode::broken;
    }
    if (!transfer.isHeadWhole) {
        return orv::ErrorCode::broken; // libcurl takes a connection that ends in the header for an answer without a
                                       // body
    }
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    return status == 200 ? orv::ErrorCode::none : orv::ErrorCode::refused;
}

/// The service that an address belongs to, with its port.
std::string serviceOf(UrlParts const& parts)
{
    return parts.scheme + "://" + parts.host + ':' + std::to_string(parts.port);
}

void setRules(CURL* handle, TransferLimits const& limits, bool isPlain)
{
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, limits.connectMilliseconds);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(handle, CURLOPT_LOW_SPEED_TIME, limits.slowSeconds);
    curl_easy_setopt(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.largestAnswer));
    curl_easy_setopt(handle, CURLOPT_USERAGENT, "Orvanta/" ORV_VERSION);
    if (isPlain) {
        curl_easy_setopt(handle, CURLOPT_PROXY, ""); // whatever the environment says
    }
}

Headers headersOf(HttpRequest const& request)
{
    // Without this a larger body would wait a second for a leave that the service need not give.
    Headers list(curl_slist_append(nullptr, "Expect:"), curl_slist_free_all);
    for (auto const& [name, value] : request.headers) {
        if (curl_slist* const longer = curl_slist_append(list.get(), (name + ": " + value).c_str())) {
            static_cast<void>(list.release());
            list.reset(longer);
        }
    }
    return list;
}

/// The parameters in order, then the file.
bool fillMultipart(curl_mime* mime, HttpRequest const& request, std::filesystem::path const& file)
{
    bool isFilled = true;
    for (auto const& [name, value] : request.fields) {
        curl_mimepart* const part = curl_mime_addpart(mime);
        isFilled = isFilled && curl_mime_name(part, name.c_str()) == CURLE_OK &&
                   curl_mime_data(part, value.data(), value.size()) == CURLE_OK;
    }
    curl_mimepart* const part = curl_mime_addpart(mime);
    return isFilled && curl_mime_name(part, "file") == CURLE_OK && curl_mime_filedata(part, file.c_str()) == CURLE_OK &&
           curl_mime_filename(part, file.filename().c_str()) == CURLE_OK &&
           curl_mime_type(part, "application/octet-stream") == CURLE_OK;
}

CURL* makeHandle()
{
    // The library's one-time set-up, before the first handle.
    static CURLcode const isReady = curl_global_init(CURL_GLOBAL_DEFAULT);
    return isReady == CURLE_OK ? curl_easy_init() : nullptr;
}

HttpResponse failure(orv::ErrorCode code)
{
    HttpResponse response;
    response.code = code;
    return response;
}

} // namespace

CurlTransport::CurlTransport(TransferLimits transferLimits, std::filesystem::path authoritiesFile)
    : limits(transferLimits), authorities(std::move(authoritiesFile)), handle(makeHandle())
{
}

CurlTransport::~CurlTransport()
{
    curl_easy_cleanup(handle);
}

HttpResponse CurlTransport::send(HttpRequest const& request, TransferProgress const& progress)
try {
    auto const address = urlParts(request.url);
    if (auto const code = checkAddress(address); code != orv::ErrorCode::none) {
        return failure(code);
    }
    auto const file = orvhost::nativePath(request.file);
    bool const hasFile = request.kind == HttpRequest::Kind::multipart;
    if (hasFile && !isReadableFile(file)) {
        return failure(orv::ErrorCode::unreadableFile);
    }
    if (handle == nullptr) {
        return failure(orv::ErrorCode::unreachable);
    }
    curl_easy_reset(handle); // options alone: connections and cookies stay
    setRules(handle, limits, address->scheme == "http");
    if (!authorities.empty()) {
        curl_easy_setopt(handle, CURLOPT_CAINFO, authorities.c_str());
        curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
    }
    jar.load(handle, serviceOf(*address));

    Headers const headers = headersOf(request);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers.get());
    std::string const fields = encodedFields(request.fields);
    std::string url = request.url;
    Multipart const mime(hasFile ? curl_mime_init(handle) : nullptr, curl_mime_free);
    if (request.kind == HttpRequest::Kind::get) {
        url += fields.empty() ? "" : "?" + fields;
    } else if (hasFile) {
        if (!mime || !fillMultipart(mime.get(), request, file)) {
            return failure(orv::ErrorCode::unreadableFile);
        }
        curl_easy_setopt(handle, CURLOPT_MIMEPOST, mime.get());
    } else {
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(fields.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, fields.c_str());
    }
    if (hasFile || request.kind == HttpRequest::Kind::formOnce) {
        // No file, no login and no invitation is sent twice: on a kept connection that ends without an answer libcurl
        // would begin again by itself.
        curl_easy_setopt(handle, CURLOPT_FRESH_CONNECT, 1L);
        // Nor is it left beside a kept one: what may be sent again would be tried on each.
        curl_easy_setopt(handle, CURLOPT_FORBID_REUSE, 1L);
    }
    curl_easy_setopt(handle, CURLOPT_URL, url.c_str());

    Transfer transfer{progress, limits.largestAnswer, {}};
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, onBody);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &transfer);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, onHeader);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &transfer);
    if (progress) {
        curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
        curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, onProgress);
        curl_easy_setopt(handle, CURLOPT_XFERINFODATA, &transfer);
    }
    CURLcode const result = curl_easy_perform(handle);

    HttpResponse response;
    response.code = codeOf(handle, result, transfer);
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &response.status);
    jar.save(handle);
    if (response.code == orv::ErrorCode::none) {
        response.body = transfer.body.take();
        response.code = transfer.body.isLost() ? orv::ErrorCode::broken : orv::ErrorCode::none;
    }
    return response;
} catch (std::bad_alloc const&) {
    return failure(orv::ErrorCode::tooLarge);
} catch (std::exception const&) {
    return failure(orv::ErrorCode::broken);
}

} // namespace orvweb
