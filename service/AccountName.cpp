#include "service/AccountName.h"

#include "platform/text/Text.h"

#include <json/json.h>

// The same reader as for the feed: what counts as JSON is one answer throughout.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

bool readAccountName(std::wstring const& response, std::wstring& name)
{
    Json::Value root;
    if (!Json::Reader().parse(orvtext::narrowLowBytes(response), root, true)) {
        return false;
    }
    name = orvtext::fromUtf8(root["name"].asString());
    return true;
}
