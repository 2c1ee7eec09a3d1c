#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace orvsg
{

/// What a container answers for a key outside it: a default value, and for integers -1, which stands for no node and no
/// index.
template <class V>
struct ContainerDefault {
    static V make() { return V(); }
};
template <>
struct ContainerDefault<int> {
    static int make() { return -1; }
};

/// Values numbered from 0. Keys come from records that other people wrote, so every integer is accepted: reading
/// outside the container gives the default value, writing there changes nothing.
template <class K, class V>
class Container
{
public:
    using const_iterator = typename std::vector<V>::const_iterator;

    Container() = default;
    explicit Container(std::vector<V> content) : values(std::move(content)) {}

    std::size_t size() const { return values.size(); }
    bool contains(K key) const { return key >= 0 && static_cast<std::size_t>(key) < values.size(); }

    V const& getValue(K key) const { return contains(key) ? values[static_cast<std::size_t>(key)] : none(); }
    void setValue(K key, V const& value)
    {
        if (contains(key)) {
            values[static_cast<std::size_t>(key)] = value;
        }
    }
    void append(V value) { values.push_back(std::move(value)); }
    void clear() { values.clear(); }

    const_iterator begin() const { return values.begin(); }
    const_iterator end() const { return values.end(); }

private:
    static V const& none()
    {
        static V const value = ContainerDefault<V>::make();
        return value;
    }

    std::vector<V> values;
};

} // namespace orvsg
