#include "host/orvweb/Exchange.h"

#include "host/orv/IStatusUpdator.h"
#include "host/orvweb/CurlTransport.h"
#include "host/orvweb/RequestBuilder.h"
#include "host/orvweb/RequestObserver.h"
#include "platform/text/Text.h"

#include <memory>
#include <new>
#include <utility>

namespace orvweb
{

namespace
{

constexpr int uploadKind = 0;
constexpr int downloadKind = 1;

/// The transport that took the product's own place; empty while nobody did.
std::shared_ptr<ITransport>& replacement()
{
    static std::shared_ptr<ITransport> transport;
    return transport;
}

std::shared_ptr<ITransport> currentTransport()
{
    static auto const own = std::make_shared<CurlTransport>();
    return replacement() ? replacement() : own;
}

RequestObserver& currentObserver()
{
    static RequestObserver observer;
    return observer;
}

} // namespace

RequestObserver setRequestObserver(RequestObserver observer)
{
    return std::exchange(currentObserver(), std::move(observer));
}

std::shared_ptr<ITransport> setTransport(std::shared_ptr<ITransport> transport)
{
    return std::exchange(replacement(), std::move(transport));
}

orv::ErrorCode exchange(char const* operation, std::wstring const& root, orv::OmniInfo const& record,
                        HttpRequest::Kind kind, orv::IStatusUpdator* updater)
try {
    if (currentObserver()) {
        currentObserver()({operation, root, record});
    }
    auto const request = buildRequest(root, record, kind);
    if (!request) {
        return orv::ErrorCode::invalidRequest;
    }
    TransferProgress progress;
    if (updater != nullptr) {
        progress = [updater](bool isUpload, int percent) {
            updater->updateProgress(isUpload ? uploadKind : downloadKind, percent);
        };
    }
    HttpResponse response = currentTransport()->send(*request, progress);
    if (response.code == orv::ErrorCode::none && updater != nullptr) {
        // The bytes go as soon as they are widened: the text takes four times as much, and is copied.
        std::wstring const text = orvtext::widenBytes(std::exchange(response.body, {}));
        updater->updateResponse(downloadKind, text);
    }
    return response.code;
} catch (std::bad_alloc const&) {
    return orv::ErrorCode::tooLarge;
}

} // namespace orvweb
