#include "service/AccountName.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

#include <new>

bool readAccountName(std::wstring const& response, std::wstring& name)
try {
    Json::Value root;
    if (!parseJson(orvtext::narrowLowBytes(response), root) || !root.isObject()) {
        return false;
    }
    name = orvtext::fromUtf8(root["name"].asString());
    return true;
} catch (Json::Exception const&) {
    return false; // nested too deeply, or a name that is a list or an object
} catch (std::bad_alloc const&) {
    return false; // longer than the memory holds: the user is signed in all the same
}
