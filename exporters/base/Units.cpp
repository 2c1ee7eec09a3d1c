#include "exporters/base/Units.h"

#include "host/orv/Preferences.h"
#include "host/orvsg/Value.h"

#include <array>
#include <cstddef>
#include <memory>

namespace orvexport
{

double millimetresPerUnit(orv::Preferences const* preferences)
{
    constexpr std::array<double, 5> units{1000, 1, 10, 25.4, 304.8};
    constexpr double fallback = 1;
    if (preferences == nullptr) {
        return fallback;
    }
    auto const choice = std::dynamic_pointer_cast<orvsg::Value<int, 3>>(preferences->find(L"EXPORT_UNIT"));
    if (!choice || choice->get() < 0 || static_cast<std::size_t>(choice->get()) >= units.size()) {
        return fallback;
    }
    return units[static_cast<std::size_t>(choice->get())];
}

} // namespace orvexport
