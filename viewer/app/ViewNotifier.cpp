#include "viewer/app/ViewNotifier.h"

#include "host/orvui/Hint.h"

#include <utility>

namespace orvviewer
{

ViewNotifier::ViewNotifier(std::shared_ptr<Barrier> wall) : barrier(std::move(wall)) {}

void ViewNotifier::add(void const* owner, Receiver receiver)
{
    entries.push_back(std::make_shared<Entry>(Entry{owner, std::move(receiver)}));
}

void ViewNotifier::remove(void const* owner)
{
    std::erase_if(entries, [owner](auto const& entry) {
        bool const isGone = entry->owner == owner;
        entry->isRemoved = entry->isRemoved || isGone;
        return isGone;
    });
}

void ViewNotifier::removeAll()
{
    for (auto const& entry : entries) {
        entry->isRemoved = true;
    }
    entries.clear();
}

void ViewNotifier::notify(orvui::Hint& hint)
{
    // The list may change while the hint is under way.
    auto const receivers = entries;
    for (auto const& entry : receivers) {
        if (!entry->isRemoved) {
            barrier->run([&] { entry->receive(&hint); });
        }
    }
}

} // namespace orvviewer
