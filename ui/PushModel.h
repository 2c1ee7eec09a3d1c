#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/orvweb/UserInfo.h"
#include "service/CloudSettings.h"

#include <memory>
#include <string>

class CloudHelper;

/// The ribbon's push, by the route that the settings name. Gives what the route's operation gives. The pane's buttons
/// and the login don't come by here: they push directly whatever the settings say.
std::wstring pushModel(CloudSettings const& settings, CloudHelper& helper,
                       std::shared_ptr<orv::IDocument> const& document, std::shared_ptr<orv::IApplication> application,
                       std::shared_ptr<orvweb::UserInfo> user);
