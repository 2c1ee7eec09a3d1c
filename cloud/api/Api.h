#pragma once

#include "cloud/api/Parts.h"
#include "cloud/http/Exchange.h"

namespace orvcloud
{

/// The service's addresses: which there are, who may use them, and what each does.
class Api final : public Application
{
public:
    explicit Api(Parts serviceParts);
    Admission admit(const RequestHead& head) override;

private:
    Parts parts;
};

} // namespace orvcloud
