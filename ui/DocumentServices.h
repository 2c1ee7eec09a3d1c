#pragma once

#include "host/orv/IHint.h"

#include <memory>
#include <string>

namespace orv
{
class IApplication;
class SCApplication;
} // namespace orv

/// What windows ask of the open document. An empty document is allowed everywhere.

/// Keeps the hint's document in `document`. A hint without one leaves the document as it is.
void takeDocument(orv::IHint& hint, std::shared_ptr<orv::IDocument>& document);

/// The document's way to its application, or empty.
std::shared_ptr<orv::SCApplication> applicationOf(std::shared_ptr<orv::IDocument> const& document);

/// The path of the model's file; empty when the model has none.
std::wstring modelPath(std::shared_ptr<orv::IDocument> const& document);

/// Shows a text to the user; nothing where there is no application.
void showStatus(std::shared_ptr<orv::SCApplication> const& application, std::wstring const& text);
void showStatus(std::shared_ptr<orv::IApplication> const& application, std::wstring const& text);

/// Tests the connection before a request. Without one the user is told and the answer is false.
bool isConnected(std::shared_ptr<orv::SCApplication> const& application);
bool isConnected(std::shared_ptr<orv::IApplication> const& application);
