#pragma once

#include "host/orv/IPreferenceUI.h"
#include "host/orvsg/IValue.h"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace orv
{

/// An ordered list of settings for an exporter or a plug-in.
class Preferences
{
public:
    using Entry = std::pair<std::shared_ptr<orvsg::IValue>, std::shared_ptr<IPreferenceUI>>;

    void add(std::shared_ptr<orvsg::IValue> value, std::shared_ptr<IPreferenceUI> ui);

    std::vector<Entry> const& entries() const { return list; }
    /// The first setting of that name, or null.
    std::shared_ptr<orvsg::IValue> find(std::wstring_view name) const;

private:
    std::vector<Entry> list;
};

} // namespace orv
