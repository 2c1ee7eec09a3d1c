#include "ui/DocumentServices.h"

#include "host/orv/SCApplication.h"
#include "host/orvsg/SCInfo.h"
#include "service/PluginText.h"
#include "ui/ResourceIds.h"

#include <windows.h>

#include <wininet.h>

#include <utility>

void takeDocument(orv::IHint& hint, std::shared_ptr<orv::IDocument>& document)
{
    if (auto current = hint.getDocument()) {
        document = std::move(current);
    }
}

std::shared_ptr<orv::SCApplication> applicationOf(std::shared_ptr<orv::IDocument> const& document)
{
    return orv::recordOf<orv::SCApplication>(document);
}

std::wstring modelPath(std::shared_ptr<orv::IDocument> const& document)
{
    auto const info = orv::recordOf<orvsg::SCInfo>(document);
    return info ? info->file() : L"";
}

void showStatus(std::shared_ptr<orv::SCApplication> const& application, std::wstring const& text)
{
    showStatus(application ? application->application : nullptr, text);
}

void showStatus(std::shared_ptr<orv::IApplication> const& application, std::wstring const& text)
{
    if (application) {
        application->showStatus(text.c_str(), 0);
    }
}

bool isConnected(std::shared_ptr<orv::SCApplication> const& application)
{
    return isConnected(application ? application->application : nullptr);
}

bool isConnected(std::shared_ptr<orv::IApplication> const& application)
{
    DWORD flags = 0;
    if (InternetGetConnectedState(&flags, 0)) {
        return true;
    }
    showStatus(application, pluginText(resource::text::noConnection));
    return false;
}
