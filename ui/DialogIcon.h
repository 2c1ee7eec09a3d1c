#pragma once

class CWnd;

/// Gives a dialog the plug-in's icon as its small icon. The picture belongs to the library, for its life.
void setDialogIcon(CWnd& dialog);
