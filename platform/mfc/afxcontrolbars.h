#pragma once
// Ribbon, side bar, task pane, image buttons and links.

#include "afxbutton.h"
#include "afxlinkctrl.h"
#include "afxmaskededit.h"
#include "afxoutlookbar.h"
#include "afxpropertysheet.h"
#include "afxribbonbar.h"
#include "afxtaskspane.h"
