#include <QtTest>

#include "platform/target.h"
class TstTarget : public QObject
{
    Q_OBJECT
private slots:
    void pathStandsUnderTheRoot() { QCOMPARE(Target::path("/mnt/storage/"), Target::root() + "/mnt/storage/"); }
};
QTEST_GUILESS_MAIN(TstTarget)
#include "tst_target.moc"
