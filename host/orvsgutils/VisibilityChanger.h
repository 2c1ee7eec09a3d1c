#pragma once

#include <vector>

namespace orvsgutils
{

/// Shows or hides nodes one by one. A node outside the model is ignored.
class VisibilityChanger
{
public:
    VisibilityChanger(std::vector<bool>& visibility, bool visible) : bits(visibility), value(visible) {}
    void operator()(int node);

private:
    std::vector<bool>& bits;
    bool value;
};

} // namespace orvsgutils
