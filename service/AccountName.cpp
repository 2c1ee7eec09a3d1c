#include "service/AccountName.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

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
}
