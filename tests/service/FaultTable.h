#pragma once

#include "host/orvweb/CurlTransport.h"
#include "host/orvweb/ITransport.h"
#include "support/PluginEnvironment.h"
#include "support/ScriptedHttpServer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace orvtest
{

/// One of the eleven requests, as the plug-in makes it for a signed-in user.
struct RequestRow {
    char const* name;
    char const* method;
    char const* path;
    std::wstring (*call)(std::wstring const& modelFile);
    wchar_t const* failed; ///< what the call gives where the request fails
    char const* ownFile;   ///< below the user's data, left behind empty; null where there is none
};

std::vector<RequestRow> const& elevenRequests();
RequestRow const& requestNamed(std::string const& name);

/// What a service may do to a request.
struct Fault {
    char const* name;
    Answer answer;
    bool isDelivered = false; ///< the web class takes it for an answer: the body below is the response
    std::string body = {};
    int redirect = 0;       ///< the answer sends elsewhere, with this status
    bool isRefused = false; ///< nobody listens
};

inline void PrintTo(RequestRow const& request, std::ostream* out)
{
    *out << request.name;
}
inline void PrintTo(Fault const& fault, std::ostream* out)
{
    *out << fault.name;
}

/// A signed-in user, the plug-in's operations and the web classes as they are, over loopback: one server for the
/// service and one that must never hear of anything.
class FaultTable : public testing::Test
{
protected:
    explicit FaultTable(orvweb::TransferLimits const& limits = {});
    ~FaultTable() override;

    /// Transfers are given up after two seconds.
    static orvweb::TransferLimits shortLimits();
    void SetUp() override;

    /// Makes the request, lets it meet the fault, and checks what the call gives, how long it took, what became of the
    /// files and where the secrets went.
    void meet(RequestRow const& request, Fault const& fault);

    std::wstring model() const { return modelFile.wstring(); } ///< of the file that is sent

    ScriptedHttpServer service;
    ScriptedHttpServer elsewhere;
    PluginEnvironment environment;

private:
    void expectRequest(RequestRow const& request, Fault const& fault);
    void checkFiles(RequestRow const& request, Fault const& fault);
    void checkSecrets(RequestRow const& request, Fault const& fault);

    orvweb::TransferLimits limits;
    std::filesystem::path modelFile;
    std::shared_ptr<orvweb::ITransport> transportBefore;
};

} // namespace orvtest
