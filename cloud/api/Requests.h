#pragma once

#include "cloud/api/Call.h"

namespace orvcloud
{

// One function for each request that isn't an upload. Each gets a call that passed `checkParameters`.

Answer logIn(const Call& call);
Answer recordDevice(const Call& call);
Answer logOut(const Call& call);
Answer accountInfo(const Call& call);
Answer findFile(const Call& call);
Answer readFeed(const Call& call);
Answer addComment(const Call& call);
Answer deleteComment(const Call& call);
Answer shareModel(const Call& call);

} // namespace orvcloud
