#pragma once

namespace orvviewer
{

/// The viewer's own commands. Those of plug-ins are numbered from firstPluginCommand.
enum CommandId : unsigned int {
    openFile = 1001,
    recentFiles,
    closeFile,
    exportFile,
    saveViewPicture,
    fitAll = 1101,
    zoomIn,
    zoomOut,
    togglePerspective,
    fitSelection,
    viewFront = 1201,
    viewBack,
    viewLeft,
    viewRight,
    viewTop,
    viewBottom,
    viewIsometric,
    hideParts = 1301,
    isolateParts,
    showAllParts,
    colourParts,
    transparentParts,
    moveParts,
    resetParts,
    selectAllParts,
    selectNoParts,
    showOptions = 1401,
    toggleTree,
    toggleSideBar,
    nextPane,
    previousPane,

    firstPluginCommand = 40001
};

} // namespace orvviewer
