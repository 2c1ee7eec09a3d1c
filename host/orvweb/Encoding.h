#pragma once

#include "host/orvweb/ITransport.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvweb
{

/// Every byte but the unreserved ones of RFC 3986 as "%" and two upper-case hexadecimal digits.
std::string percentEncoded(std::string_view bytes);

/// "name=value" pairs joined by "&", in order: a query or a form's body.
std::string encodedFields(std::vector<HttpRequest::Field> const& fields);

} // namespace orvweb
