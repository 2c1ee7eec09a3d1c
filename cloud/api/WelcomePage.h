#pragma once

#include "cloud/http/Exchange.h"

namespace orvcloud
{

/// The page behind an invitation's link. It is the same for every link, so that it tells nobody whether a model exists.
Answer welcomePage();

} // namespace orvcloud
