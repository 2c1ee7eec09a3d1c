#include "ui/PushModel.h"

#include "service/CloudHelper.h"

#include <utility>

std::wstring pushModel(CloudSettings const& settings, CloudHelper& helper,
                       std::shared_ptr<orv::IDocument> const& document, std::shared_ptr<orv::IApplication> application,
                       std::shared_ptr<orvweb::UserInfo> user)
{
    return settings.uploadDirect ? helper.pushDirect(document, std::move(user))
                                 : helper.pushWithPreview(document, std::move(application), std::move(user));
}
