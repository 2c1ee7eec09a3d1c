#pragma once

/// How the ribbon's push goes. Nothing changes it during a run.
class CloudSettings
{
public:
    bool uploadDirect = true; ///< CloudHelper::pushDirect, rather than pushWithPreview
};
