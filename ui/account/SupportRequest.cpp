#include "ui/account/SupportRequest.h"

#include "host/orv/Mail.h"
#include "host/orv/SCApplication.h"
#include "host/orvSysInfo/GeneralUtils.h"
#include "ui/DocumentServices.h"
#include "ui/account/BuildSettings.h"

#include <windows.h>

#include <string>

namespace
{

constexpr wchar_t subject[] = L"Orvanta Support Request";

std::wstring describeSystem()
{
    using orvSysInfo::GeneralUtils;
    std::wstring const application = GeneralUtils::getApplicationInfo();
    std::wstring system = GeneralUtils::getSystemInfo();
    std::wstring const hostId = GeneralUtils::getHostID();
    std::wstring const signature = GeneralUtils::getSignature();
    std::wstring name;
    std::wstring version;
    if (GeneralUtils::getOSName(name, version)) {
        system = name;
    }
    return GeneralUtils::compileSystemInfo(application, system, hostId, signature, L"");
}

} // namespace

void sendSupportRequest(std::shared_ptr<orv::IDocument> const& document)
{
    if (!orv::Mail::isClientAvailable()) {
        return;
    }
    auto const application = applicationOf(document);
    if (!application) {
        return;
    }
    wchar_t const* const own = application->supportText ? application->supportText->text() : nullptr;
    std::wstring const body = own != nullptr ? own : describeSystem();
    orv::Mail mail;
    mail.send(GetActiveWindow(), buildSettings::supportAddress, subject, body.c_str(), nullptr);
}
