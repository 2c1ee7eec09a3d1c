#include "service/CloudHelper.h"

#include "host/orv/Authenticator.h"
#include "service/Request.h"
#include "ui/account/SessionStore.h"

#include <windows.h>

#include <utility>

namespace
{

std::wstring computerName()
{
    wchar_t buffer[124] = {};
    DWORD size = 124;
    GetComputerNameW(buffer, &size);
    return buffer;
}

} // namespace

std::wstring CloudHelper::login(std::wstring const& username, std::wstring const& password)
{
    SessionFile const session;
    session.createEmpty();
    orv::OmniInfo request = openRequest(session.path(), L"/api/Login/", username);
    addToken(request, L"password", password);

    StatusUpdator updator;
    orv::Authenticator authenticator(orvweb::APIUtils::rootUrl());
    if (authenticator.login(request, &updator) != orv::ErrorCode::none) {
        session.remove();
        session.removeDirectory();
        return L"";
    }
    // Whatever the service said: the caller tells a token by its length. The session stands before the device is
    // registered, and its registration never fails a login.
    std::wstring const answer = std::move(updator).getResponse(); // nobody reads what is answered from here on
    session.write(username, answer);

    orv::OmniInfo device = openRequest(session.path(), L"/api/InstalledDevice/", username);
    addToken(device, L"devicename", computerName());
    addToken(device, L"devicetype", L"pc");
    authenticator.login(device, &updator);
    return answer;
}

std::wstring CloudHelper::logout(std::wstring const& username)
{
    // Emptied before the service is asked: from here on the file names nobody, whether or not it answers.
    SessionFile const session;
    session.createEmpty();
    orv::OmniInfo request = openRequest(session.path(), L"/api/Logout/", username);
    addToken(request, L"tokenID", L"default");

    RequestResult const result = runRequest(&orv::Authenticator::login, request);
    if (result.code != orv::ErrorCode::none) {
        return logoutFailed;
    }
    session.remove();
    return result.response;
}
