#pragma once

#include "cloud/api/Call.h"

#include <memory>

namespace orvcloud
{

/// Takes an upload: the parameters, then the part "file", which goes to disk as it comes. Null if the request's content
/// type isn't a form with parts. Nothing of the upload is seen by anybody before `finish` has stored all of it.
std::unique_ptr<BodySink> makeUploadSink(const Parts& parts, const RequestHead& head, const Account& account);

} // namespace orvcloud
