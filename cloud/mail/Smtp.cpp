#include "cloud/mail/Smtp.h"

#include "cloud/base/Address.h"

#include <algorithm>
#include <cstring>
#include <curl/curl.h>
#include <memory>
#include <string_view>

namespace orvcloud
{
namespace
{
std::size_t readMessage(char* target, std::size_t size, std::size_t count, void* source)
{
    auto& rest = *static_cast<std::string_view*>(source);
    const std::size_t length = std::min(size * count, rest.size());
    std::memcpy(target, rest.data(), length);
    rest.remove_prefix(length);
    return length;
}

bool isLoopback(const std::string& url)
{
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> parts(curl_url(), curl_url_cleanup);
    char* host = nullptr;
    if (!parts || curl_url_set(parts.get(), CURLUPART_URL, url.c_str(), CURLU_NON_SUPPORT_SCHEME) != CURLUE_OK ||
        curl_url_get(parts.get(), CURLUPART_HOST, &host, 0) != CURLUE_OK)
        return false;
    const bool loopback = isLoopbackHost(host);
    curl_free(host);
    return loopback;
}

/// libcurl asks about once a second, also while the server is silent; anything but zero ends the transfer.
int endIfStopped(void* stop, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    return static_cast<const std::stop_token*>(stop)->stop_requested() ? 1 : 0;
}
} // namespace

Delivery sendMail(const SmtpServer& server, const std::string& sender, const std::string& recipient,
                  const std::string& message, const std::stop_token& stop, std::string& reason)
{
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    const std::string to = "<" + recipient + ">";
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> recipients(curl_slist_append(nullptr, to.c_str()),
                                                                                 curl_slist_free_all);
    if (!curl || !recipients) {
        reason = "There isn't enough memory to send mail.";
        return Delivery::tryLater;
    }
    std::string_view rest = message;
    const std::string from = "<" + sender + ">";
    CURL* handle = curl.get();
    curl_easy_setopt(handle, CURLOPT_URL, server.url.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(handle, CURLOPT_USE_SSL,
                     static_cast<long>(isLoopback(server.url) ? CURLUSESSL_TRY : CURLUSESSL_ALL));
    if (!server.password.empty())
        curl_easy_setopt(handle, CURLOPT_PASSWORD, server.password.c_str());
    curl_easy_setopt(handle, CURLOPT_MAIL_FROM, from.c_str());
    curl_easy_setopt(handle, CURLOPT_MAIL_RCPT, recipients.get());
    curl_easy_setopt(handle, CURLOPT_READFUNCTION, readMessage);
    curl_easy_setopt(handle, CURLOPT_READDATA, &rest);
    curl_easy_setopt(handle, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, endIfStopped);
    curl_easy_setopt(handle, CURLOPT_XFERINFODATA, &stop);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT, 20L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT, 120L);
    const CURLcode code = curl_easy_perform(handle);
    if (code == CURLE_OK)
        return Delivery::taken;
    if (code == CURLE_ABORTED_BY_CALLBACK) {
        reason = "A mail waits until the service is started again.";
        return Delivery::tryLater;
    }
    long answer = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &answer);
    reason = std::string("The mail server didn't take a mail: ") + curl_easy_strerror(code) + " (" +
             std::to_string(answer) + ").";
    return answer >= 500 && answer < 600 && code != CURLE_LOGIN_DENIED ? Delivery::refusedForGood : Delivery::tryLater;
}

} // namespace orvcloud
