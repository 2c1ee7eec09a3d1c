#pragma once
#include <QtWidgets>
