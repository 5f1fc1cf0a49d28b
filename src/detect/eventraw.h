#pragma once

#include "model/pqaeventitem.h"
#include "record/pqa2format.h" // EventHead: the first fields of an event's raw form
