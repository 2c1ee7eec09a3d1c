#pragma once

namespace orvui
{
class Hint;
}

namespace orv
{

/// Delivers hints.
class IViewNotifier
{
public:
    virtual ~IViewNotifier() = default;

    /// Delivers the hint to all views and panes before it returns, the sender's own included.
    virtual void notify(orvui::Hint& hint) = 0;
};

} // namespace orv
