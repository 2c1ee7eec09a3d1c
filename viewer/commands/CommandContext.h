#pragma once

#include "host/orv/IDocument.h"

#include <memory>
#include <set>
#include <string>

namespace orvviewer
{

/// What a command needs of the application: never the main window.
class CommandContext
{
public:
    virtual ~CommandContext() = default;

    virtual std::shared_ptr<orv::IDocument> document() const = 0; ///< empty while no model is open
    virtual std::set<int> const& selection() const = 0;           ///< nodes
    virtual void select(std::set<int> const& nodes) = 0;          ///< raises the hint of a changed selection
    virtual void showStatus(std::wstring const& sentence) = 0;
    /// Tells all views, by a code of orv::HintCode, that the records of the open document have changed.
    virtual void raise(short hintCode) = 0;
    virtual double pictureAspect() const = 0; ///< width to height of the view
};

} // namespace orvviewer
