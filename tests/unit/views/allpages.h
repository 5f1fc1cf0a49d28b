#pragma once

#include "pagetest.h"
#include "views/dips/dswell.h"
#include "views/flicker/flicker.h"
#include "views/harmonics/harm.h"
#include "views/inrush/inrushpage.h"
#include "views/mainssignaling/mainssignaling.h"
#include "views/monitor/monitorpage.h"
#include "views/power/powen.h"
#include "views/powerinverter/powerinverter.h"
#include "views/scope/scopepage.h"
#include "views/transients/trans.h"
#include "views/unbalance/unbalan.h"
#include "views/vif/vifpage.h"
#include "views/wave/wave.h"

#include <functional>

// For tests that hold for every measuring function.

using MakePage = std::function<FunctionPage *()>;
Q_DECLARE_METATYPE(MakePage)

template <typename Page> FunctionPage *makePage()
{
    return new Page(PageTest::liveData());
}

/// A data row for each function that shows something in the colours of the phases; column "make".
inline void addColouredPages()
{
    QTest::addColumn<MakePage>("make");
    QTest::newRow("vif") << MakePage(makePage<VifPage>);
    QTest::newRow("scope") << MakePage(makePage<ScopePage>);
    QTest::newRow("dips and swells") << MakePage(makePage<dswell>);
    QTest::newRow("harmonics") << MakePage(makePage<harm>);
    QTest::newRow("power") << MakePage(makePage<powen>);
    QTest::newRow("flicker") << MakePage(makePage<flicker>);
    QTest::newRow("unbalance") << MakePage(makePage<unbalan>);
    QTest::newRow("transients") << MakePage(makePage<trans>);
    QTest::newRow("inrush") << MakePage(makePage<InrushPage>);
    QTest::newRow("mains signaling") << MakePage(makePage<MainsSignaling>);
    QTest::newRow("power inverter") << MakePage(makePage<PowerInverter>);
    QTest::newRow("monitor") << MakePage(makePage<MonitorPage>);
}

/// A data row for each function; column "make".
inline void addAllPages()
{
    addColouredPages();
    QTest::newRow("wave") << MakePage(makePage<Wave>);
}
