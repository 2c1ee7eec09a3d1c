#include "service/AccountName.h"

#include "platform/text/Text.h"
#include "service/JsonText.h"

bool readAccountName(std::wstring const& response, std::wstring& name)
{
    Json::Value root;
    if (!parseJson(orvtext::narrowLowBytes(response), root)) {
        return false;
    }
    name = orvtext::fromUtf8(root["name"].asString());
    return true;
}
