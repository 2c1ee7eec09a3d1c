#pragma once

#include "host/orv/IDocument.h"

#include <memory>

namespace orv
{

/// A short message to all views: what happened, and in which document.
class IHint
{
public:
    virtual ~IHint() = default;
    virtual short getCode() = 0;
    virtual std::shared_ptr<IDocument> getDocument() = 0; ///< may be empty
};

/// What a hint says.
namespace HintCode
{
inline constexpr short documentActivated = 1;
inline constexpr short documentOpened = 3;
inline constexpr short documentClosed = 5;
inline constexpr short documentChanged = 7;
inline constexpr short documentReplaced = 8;
inline constexpr short viewChanged = 9;
inline constexpr short selectionChanged = 10;
inline constexpr short visibilityChanged = 14;
inline constexpr short appearanceChanged = 15;
inline constexpr short documentReloaded = 18;
inline constexpr short sceneChanged = 19;
inline constexpr short viewRestored = 20; ///< a comment's view was brought back
inline constexpr short documentImported = 25;
inline constexpr short documentSaved = 26;
inline constexpr short commentAdded = 37;
inline constexpr short unitsChanged = 38;
inline constexpr short commentDeleted = 39;
inline constexpr short feedReloaded = 40;
inline constexpr short signedIn = 41;
inline constexpr short signedOut = 42;
} // namespace HintCode

} // namespace orv
