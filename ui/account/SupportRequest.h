#pragma once

#include "host/orv/IDocument.h"

#include <memory>

/// Opens a mail to the support address whose body describes the system. Nothing, silently, without a mail client or an
/// application.
void sendSupportRequest(std::shared_ptr<orv::IDocument> const& document);
