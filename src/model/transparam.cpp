#include "model/transparam.h"

int TransParam::m_trans_threshold = 50;

QList<__trans_data *> g_trans_events;
