#pragma once
#define _T(text) L##text
#define TEXT(text) L##text
