#include "board/softpower.h"

#include "device/gpiofiles.h"

void SoftPower::powerOff()
{
    constexpr int kSupplyLatch = 47;
    GpioFiles::exportLine(kSupplyLatch);
    GpioFiles::setDirection(kSupplyLatch, QStringLiteral("out"));
    GpioFiles::writeValue(kSupplyLatch, true);
}
