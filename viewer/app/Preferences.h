#pragma once

#include <string>

namespace orvviewer
{

/// What the user has set in the options, kept in the user's data as "viewer.ini".
struct ViewerPreferences {
    bool showAxisCross = true;
    bool showViewCube = true;
    bool startInPerspective = true;
    bool showTree = true;
    std::wstring language; ///< two letters; empty for the system's

    static ViewerPreferences load(); ///< defaults where there is no file
    void save() const;
};

} // namespace orvviewer
