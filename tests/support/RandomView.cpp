#include "tests/support/RandomView.h"

#include "host/orv/IHint.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneTopo.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"

#include <random>

namespace orvtest
{

namespace
{

/// Numbers by our own arithmetic: the library's distributions differ from one version to the next.
class Random
{
public:
    explicit Random(unsigned int seed) : engine(seed) {}

    int below(int end) { return static_cast<int>(engine() % static_cast<unsigned int>(end)); }
    double between(double low, double high)
    {
        return low + (high - low) * static_cast<double>(engine()) / 4294967295.0;
    }

    /// One in `part` of the nodes, one at least.
    std::set<int> nodes(int count, int part)
    {
        std::set<int> chosen;
        for (int left = count / part + 1; left > 0; --left) {
            chosen.insert(below(count));
        }
        return chosen;
    }

private:
    std::mt19937 engine;
};

} // namespace

void arrangeRandomView(orvviewer::CommandContext& context, unsigned int seed)
{
    auto const document = context.document();
    int const count = static_cast<int>(orv::recordOf<orvsg::SCSceneTopo>(document)->nodes.size());
    Random random(seed);
    if (count > 1) {
        auto hidden = random.nodes(count, 10);
        hidden.erase(0); // something stays to be seen
        orvviewer::hideNodes(context, hidden);
    }
    orvviewer::makeTransparent(context, random.nodes(count, 20), 0.5F);
    for (int color = 0; color < 4; ++color) {
        orvviewer::colourNodes(context, random.nodes(count, 80), static_cast<unsigned long>(random.below(0x1000000)));
    }
    auto& camera = *orv::recordOf<orvgl::SCRenderer>(document)->camera;
    double const far = 0.1 * orvviewer::pictureHeight(camera); // however small the model, it stays in sight
    for (int move = 0; move < 2; ++move) {
        orvviewer::moveNodes(context, random.nodes(count, 200), random.between(-far, far), random.between(-far, far),
                             random.between(-far, far));
    }
    orvviewer::orbit(camera, random.between(-3.0, 3.0), random.between(-1.0, 1.0));
    orvviewer::pan(camera, random.between(-0.1, 0.1), random.between(-0.1, 0.1));
    orvviewer::zoom(camera, random.between(0.7, 1.4));
    context.raise(orv::HintCode::viewChanged);
}

} // namespace orvtest
