#include "model/transparam.h"

int TransParam::m_trans_threshold = 50;
