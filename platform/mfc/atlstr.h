#pragma once
#include "cstringt.h"
