#pragma once

#include "model/displayrecords.h"

/// Copies a decoded aggregation record into the records that the pages show, and keeps the one-second trends.
/// Plain functions of records: no globals, no settings.
namespace DisplayFeed {

constexpr int kMainsSignalMeans = 15; // datagrams behind a mains-signalling mean

/// R.m.s., peak, offset and crest fields; the signed frequency is set apart.
void feedVif(const __datagram_aggregation &from, __vif_data &to);
/// Voltages, currents, powers and energies.
void feedPower(const __datagram_aggregation &from, __power_data &to);
/// \a orders: how many orders are copied; what lies beyond keeps its old contents.
void feedHarmonics(const __datagram_aggregation &from, int orders, harm_data &to);
void feedUnbalance(const __datagram_aggregation &from, __unbalance_data &to);
/// Current values and the means of the last kMainsSignalMeans; \a signedFrequency in Hz.
void feedMainsSignal(const __datagram_aggregation &from, float signedFrequency, __mains_sig_data &to);

/// Appends to a list that holds at most \a limit values, dropping the oldest first.
void appendLimited(QList<float> &list, float value, int limit);

// One point of each trend, called once a second.
void trendVif(__vif_data &data);
void trendPower(__power_data &data);
void trendMainsSignal(__mains_sig_data &data);

} // namespace DisplayFeed
