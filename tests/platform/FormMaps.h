#pragma once
// The form's message map, for the one source of a suite.
#include "Form.h"

IMPLEMENT_DYNAMIC(Form, CDialog)

BEGIN_MESSAGE_MAP(Form, CDialog)
ON_BN_CLICKED(1000, &Form::OnApply)
ON_BN_CLICKED(1001, &Form::OnOther)
ON_BN_CLICKED(1002, &Form::OnOther)
ON_EN_CHANGE(51, &Form::OnChanged)
ON_NOTIFY(NM_CLICK, 57, &Form::OnLink)
END_MESSAGE_MAP()
