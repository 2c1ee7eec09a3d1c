#include "bench/PlainRequest.h"

#include <sstream>

namespace orvbench
{

namespace
{

std::size_t append(char* data, std::size_t /*unit*/, std::size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, count);
    return count;
}

} // namespace

PlainRequest::PlainRequest(std::string const& headers) : handle(curl_easy_init())
{
    std::istringstream lines(headers);
    for (std::string line; std::getline(lines, line);) {
        list = curl_slist_append(list, line.c_str());
    }
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, list);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, append);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer);
}

PlainRequest::~PlainRequest()
{
    curl_easy_cleanup(handle);
    curl_slist_free_all(list);
}

std::string const& PlainRequest::get(std::string const& address)
{
    curl_easy_setopt(handle, CURLOPT_HTTPGET, 1L);
    return perform(address);
}

std::string const& PlainRequest::post(std::string const& address, std::string const& body)
{
    curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    curl_easy_setopt(handle, CURLOPT_POSTFIELDS, body.c_str());
    return perform(address);
}

std::string const& PlainRequest::perform(std::string const& address)
{
    answer.clear();
    curl_easy_setopt(handle, CURLOPT_URL, address.c_str());
    if (curl_easy_perform(handle) != CURLE_OK) {
        answer.clear();
    }
    return answer;
}

} // namespace orvbench
