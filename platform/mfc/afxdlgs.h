#pragma once
// The common file dialog, property pages and property sheets.

#include "afxfiledialog.h"
#include "afxpropertypage.h"
#include "afxpropertysheetbase.h"
