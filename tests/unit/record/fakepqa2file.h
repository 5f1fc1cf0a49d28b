#pragma once

#include "fakepqa2device.h"
#include "record/pqa2ff.h"

#include <memory>

/// A writer on a file in memory.
struct FakePqa2File
{
    FakePqa2File()
    {
        auto owned = std::make_unique<FakePqa2Device>(&state);
        device = owned.get();
        file = std::make_unique<Pqa2FF>(std::move(owned));
    }
    int open() { return file->open(QStringLiteral("/mnt/storage/x.pqa2")); }
    FakePqa2Device::State state;
    FakePqa2Device *device;
    std::unique_ptr<Pqa2FF> file;
};
