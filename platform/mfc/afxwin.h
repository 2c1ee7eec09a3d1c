#pragma once
// Windows, basic controls and dialogs.

#include "afx.h"
#include "afxcmdtarget.h"
#include "afxctl.h"
#include "afxdlg.h"
#include "afxgdi.h"
#include "afxmsg_.h"
#include "afxwnd.h"
