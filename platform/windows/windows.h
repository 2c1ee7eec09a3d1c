#pragma once
// The system calls that the plug-in makes, under their names, on POSIX.

#include "winbase.h"
#include "windef.h"
#include "wingdi.h"
#include "winuser.h"

#include "objidl.h"
#include "shellapi.h"
#include "stringapi.h"
#include "tchar.h"
