#include "ui/DialogIcon.h"

#include "ui/ResourceIds.h"
#include "ui/ResourceModule.h"

#include <afxwin.h>

void setDialogIcon(CWnd& dialog)
{
    dialog.SetIcon(LoadIconW(ResourceModule::handle(), MAKEINTRESOURCEW(resource::image::dialogIcon)), FALSE);
}
