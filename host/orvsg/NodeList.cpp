#include "host/orvsg/NodeList.h"

#include <utility>

namespace orvsg
{

namespace
{

constexpr int noNode = -1;

} // namespace

NodeList::NodeList(List content) : nodes(std::move(content))
{
    noteAll();
}

void NodeList::enter(int node)
{
    if (node == noNode || holds(node)) {
        return;
    }
    if (freePlaces.empty()) {
        append(node);
    } else {
        setValue(*freePlaces.begin(), node);
    }
}

void NodeList::leave(int node)
{
    auto const found = places.find(node);
    if (found != places.end()) {
        setValue(found->second, noNode);
    }
}

void NodeList::setValue(int key, int const& node)
{
    if (!contains(key)) {
        return;
    }
    bool const hasTwins = places.size() + freePlaces.size() != size();
    int const before = getValue(key);
    int const after = node; // `node` may stand in the list itself
    nodes.setValue(key, after);
    if (hasTwins) {
        noteAll();
        return;
    }
    places.erase(before);
    freePlaces.erase(key);
    note(key, after);
}

void NodeList::append(int node)
{
    nodes.append(node);
    note(static_cast<int>(size()) - 1, node);
}

void NodeList::clear()
{
    nodes.clear();
    places.clear();
    freePlaces.clear();
}

void NodeList::note(int place, int node)
{
    if (node == noNode) {
        freePlaces.insert(freePlaces.end(), place);
        return;
    }
    auto const [entry, isNew] = places.emplace(node, place);
    if (!isNew && place < entry->second) {
        entry->second = place;
    }
}

void NodeList::noteAll()
{
    places.clear();
    freePlaces.clear();
    int place = 0;
    for (int const node : *this) {
        note(place++, node);
    }
}

} // namespace orvsg
