#pragma once

#include "host/orv/IDocument.h"

#include <memory>

/// Delivers a hint with the document to all views and panes, the sender's own included, before it returns. Without an
/// application or a notifier nothing is sent.
void raiseHint(std::shared_ptr<orv::IDocument> const& document, short code);
