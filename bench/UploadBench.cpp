// What an upload of 2 GiB does to the client's memory: through the web class to a server that drains it, and to the
// real service. Ends non-zero where the largest resident set grows by more than a few MiB:
// build/release/bin/bench_upload

#include "bench/Aims.h"
#include "bench/DrainingServer.h"
#include "bench/TemporaryData.h"
#include "host/orv/IStatusUpdator.h"
#include "host/orv/Uploader.h"
#include "host/orvweb/APIUtils.h"
#include "host/orvweb/WebApiUtils.h"
#include "service/CloudHelper.h"
#include "tour/ServiceProcess.h"
#include "ui/account/SessionStore.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>

namespace
{

constexpr std::uint64_t fileSize = std::uint64_t{2} << 30;
constexpr double limit = 8.0; // MiB; the buffers of both ends and what the allocator rounds up

/// Of this process; resets the mark first, so that only what follows counts.
void resetPeak()
{
    std::ofstream("/proc/self/clear_refs") << 5;
}
double peakMebibytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == "VmHWM:") {
            double kibibytes = 0.0;
            status >> kibibytes;
            return kibibytes / 1024.0;
        }
    }
    return 0.0;
}

/// Keeps the answer, and checks that progress came.
struct Updator final : orv::IStatusUpdator {
    void updateResponse(int, std::wstring const& text) override { response = text; }
    void updateProgress(int kind, int const& percent) override { last = kind == 0 ? percent : last; }

    std::wstring response;
    int last = -1;
};

orv::OmniInfo request(std::filesystem::path const& file, std::wstring const& username, std::wstring const& token)
{
    orv::OmniInfo record;
    record.file = file.wstring();
    auto const add = [&record](wchar_t const* name, std::wstring const& value) {
        record.tokens.push_back(orvweb::WebApiUtils::createToken(name, value));
    };
    add(L"/api/UploadInput/", L"");
    add(L"name", orvweb::APIUtils::apiId());
    add(L"key", orvweb::APIUtils::apiKey());
    add(L"username", username);
    add(L"userid", token);
    add(L"type", L"prc");
    add(L"filename", L"huge.step");
    return record;
}

/// A file of that size that takes no room.
std::filesystem::path makeFile(std::filesystem::path const& directory, std::uint64_t size)
{
    auto const file = directory / ("sparse-" + std::to_string(size) + ".prc");
    std::ofstream(file, std::ios::binary).put('P');
    std::filesystem::resize_file(file, size);
    return file;
}

struct Measured {
    orv::ErrorCode code = orv::ErrorCode::broken;
    std::wstring response;
    int lastPercent = -1;
    double before = 0.0; ///< MiB
    double after = 0.0;
};

/// A small upload first, so that what is made once is not taken for growth.
Measured upload(std::filesystem::path const& directory, std::wstring const& username, std::wstring const& token)
{
    auto const send = [&](std::uint64_t size) {
        Updator updator;
        Measured result;
        orv::Uploader uploader(orvweb::APIUtils::rootUrl());
        result.code = uploader.uploadFile(request(makeFile(directory, size), username, token), &updator);
        result.response = updator.response;
        result.lastPercent = updator.last;
        return result;
    };
    send(std::uint64_t{1} << 20);
    resetPeak();
    double const before = peakMebibytes();
    auto const start = std::chrono::steady_clock::now();
    Measured result = send(fileSize);
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.before = before;
    result.after = peakMebibytes();
    std::printf("largest resident set %.1f MiB before, %.1f MiB after; %.1f s, %.0f MiB/s\n", result.before,
                result.after, seconds, static_cast<double>(fileSize >> 20) / seconds);
    return result;
}

void check(orvbench::Aims& aims, std::string const& where, Measured const& measured)
{
    aims.expect(where + ": taken", measured.code == orv::ErrorCode::none);
    aims.expect(where + ": progress to the end", measured.lastPercent == 100);
    aims.expectUnder(where + ": growth of the client's memory", measured.after - measured.before, limit, " MiB");
}

void uploadToDrain(orvbench::Aims& aims)
{
    orvbench::DrainingServer server;
    server.answerWith("0f8fad5b-d9cb-469f-a165-70867728950e");
    orvbench::TemporaryData const data(server.url());
    check(aims, "draining server", upload(data.directory(), L"ann@example.com", L"token"));
    aims.expect("draining server: every byte arrived", server.bodyBytes() > fileSize + (std::uint64_t{1} << 20));
}

void uploadToService(orvbench::Aims& aims)
{
    orvbench::TemporaryData data("http://127.0.0.1:9");
    QString const place = QString::fromStdString((data.directory() / "service").string());
    orvtour::ServiceProcess service(ORV_BINARY_DIR "/bin/orvanta-cloud", place);
    bool const started = service.addUser("ann@example.com", "Ann", "planet carrier 42") && service.start();
    aims.expect("real service: started", started);
    if (!started) {
        return;
    }
    data.setService(service.url().toStdString());
    CloudHelper::login(L"ann@example.com", L"planet carrier 42");
    orvweb::UserInfo user;
    aims.expect("real service: signed in", SessionFile().readTwo(user));
    Measured const measured = upload(data.directory(), user.username, user.userid);
    check(aims, "real service", measured);
    aims.expect("real service: a job id came back", measured.response.size() == 36);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    orvbench::Aims aims;
    std::printf("An upload of 2 GiB to a server that drains it:\n");
    uploadToDrain(aims);
    std::printf("An upload of 2 GiB to the real service:\n");
    uploadToService(aims);
    return aims.exitStatus();
}
