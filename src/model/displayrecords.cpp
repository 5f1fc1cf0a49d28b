#include "model/displayrecords.h"

// Null until the page that shows a record allocates it in its init_parameter().
__vif_data *g_vif_data = nullptr;
__power_data *g_power_data = nullptr;
__power_data *g_power_data_ui = nullptr;
harm_data *g_harm_data = nullptr;
__unbalance_data *g_unbalance_data = nullptr;
__scope_data *g_scope_data = nullptr;
__scope_data_ui *g_scope_data_ui = nullptr;
__flicker_data *g_flicker_data = nullptr;
__trans_data *g_trans_data = nullptr;
__rms_trend_data *g_inrush_data = nullptr;
__rms_trend_data *g_inrush_trend_data = nullptr;
__rms_trend_data *g_dipswell_trend = nullptr;
__rms_trend_data *g_dipswell_trend_ui = nullptr;
__mains_sig_data *g_mains_sig = nullptr;
__pi_data *g_pi_data = nullptr;
