#pragma once

#include <memory>
#include <utility>
#include <vector>

namespace orv
{

/// An ordered list of loaded plug-ins of one kind.
template <class T>
class PluginManager
{
public:
    virtual ~PluginManager() = default;

    void push_back(std::shared_ptr<T> plugin) { list.push_back(std::move(plugin)); }
    std::vector<std::shared_ptr<T>> const& plugins() const { return list; }

private:
    std::vector<std::shared_ptr<T>> list;
};

} // namespace orv
