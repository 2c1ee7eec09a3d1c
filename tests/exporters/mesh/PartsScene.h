#pragma once

#include "support/TestScene.h"

#include <string>
#include <vector>

namespace orvtest
{

/// A model of parts by these names, all of one geometry and in one place, below one root.
class PartsScene : public TestScene
{
public:
    explicit PartsScene(std::vector<std::wstring> const& names)
    {
        orvsg::Node root = topology->nodes.getValue(0);
        root.children.clear();
        std::vector<orvsg::Node> nodes{root};
        for (auto const& name : names) {
            nodes.front().children.push_back(static_cast<int>(nodes.size()));
            nodes.push_back({name, 0, {}, 2});
        }
        std::vector<int> const placements(nodes.size(), 0); // that of the root
        runtime->visibility.assign(nodes.size(), true);
        topology->nodes = orvsg::Container<int, orvsg::Node>(std::move(nodes));
        topology->transformOfNode = orvsg::Container<int, int>(placements);
    }
};

} // namespace orvtest
