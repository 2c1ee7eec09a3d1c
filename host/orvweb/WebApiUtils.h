#pragma once

#include <string>
#include <vector>

namespace orvweb
{

/// Makes request tokens.
class WebApiUtils
{
public:
    /// One token: its name and its value.
    static std::vector<std::wstring> createToken(std::wstring const& name, std::wstring const& value);
};

} // namespace orvweb
