#include "host/orv/Preferences.h"

#include <algorithm>

namespace orv
{

void Preferences::add(std::shared_ptr<orvsg::IValue> value, std::shared_ptr<IPreferenceUI> ui)
{
    if (value) {
        list.emplace_back(std::move(value), std::move(ui));
    }
}

std::shared_ptr<orvsg::IValue> Preferences::find(std::wstring_view name) const
{
    auto const found =
        std::find_if(list.begin(), list.end(), [name](Entry const& entry) { return entry.first->name() == name; });
    return found == list.end() ? nullptr : found->first;
}

} // namespace orv
