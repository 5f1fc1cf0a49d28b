#pragma once

#include "record/exports/pqdifchannels.h"
#include "record/tables/recordtable.h"

/// What a column of a table is in the terms of PQDIF (the table in docs/formats/interchange.md).
struct PqdifQuantity
{
    PqdifMeasured measured = PqdifMeasured::None;
    PqdifId characteristic = PqdifValue::kQcNone;
    quint32 unit = 0;
    quint32 phase = 0;
    int group = -1; // order of a harmonic or interharmonic, -1: none
    QByteArray stem; // the quantity without its order: "Uh", one channel for all orders of a spectrum
};

PqdifQuantity pqdifQuantity(const RecordColumn &column);
