#pragma once

#include "host/orv/IHint.h"
#include "host/orv/IViewNotifier.h"
#include "viewer/app/Barrier.h"

#include <functional>
#include <memory>
#include <vector>

namespace orvviewer
{

/// Delivers hints to all views and panes, in the order in which they were added, before notify returns. A receiver may
/// raise a hint of its own meanwhile, or take a receiver away; an exception out of one doesn't reach the others.
class ViewNotifier final : public orv::IViewNotifier
{
public:
    using Receiver = std::function<void(orv::IHint*)>;

    explicit ViewNotifier(std::shared_ptr<Barrier> barrier);

    /// `owner` names the receiver for remove.
    void add(void const* owner, Receiver receiver);
    void remove(void const* owner);
    void removeAll();

    void notify(orvui::Hint& hint) override;

private:
    struct Entry {
        void const* owner;
        Receiver receive;
        bool isRemoved = false;
    };

    std::shared_ptr<Barrier> barrier;
    std::vector<std::shared_ptr<Entry>> entries;
};

} // namespace orvviewer
