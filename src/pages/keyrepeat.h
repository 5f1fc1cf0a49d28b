#pragma once

#include "widgets/controls/keyrepeat.h"
