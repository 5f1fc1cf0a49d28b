#include "widgets/controls/llistwidget.h"
#include "widgets/controls/loggercheckbox.h"
#include "widgets/controls/mcheckbox.h"
#include "widgets/controls/mpushbutton.h"
#include "widgets/controls/mradiobutton.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <QTest>

/// A page that notes the keys which reach it.
class Page : public QWidget
{
    Q_OBJECT

public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
};

class TstControls : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyReachesThePage_data();
    void everyKeyReachesThePage();
};

using Maker = QWidget *(*)(QWidget *);
Q_DECLARE_METATYPE(Maker)

template <typename Control> static QWidget *make(QWidget *parent)
{
    return new Control(parent);
}

void TstControls::everyKeyReachesThePage_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("MCheckBox") << Maker(make<MCheckBox>);
    QTest::newRow("MPushButton") << Maker(make<MPushButton>);
    QTest::newRow("MRadioButton") << Maker(make<MRadioButton>);
    QTest::newRow("LoggerCheckBox") << Maker(make<LoggerCheckBox>);
    QTest::newRow("LListWidget") << Maker(make<LListWidget>);
}

void TstControls::everyKeyReachesThePage()
{
    QFETCH(Maker, maker);
    Page page;
    QWidget *control = maker(&page);
    if (auto *list = qobject_cast<QListWidget *>(control)) {
        list->addItems({ "one", "two", "three" });
        list->setCurrentRow(0);
    }
    page.show();
    control->setFocus();
    const QList<int> keys { Qt::Key_W, Qt::Key_Q, Qt::Key_T, Qt::Key_K, Qt::Key_Space, Qt::Key_Down, Qt::Key_Return };
    for (const int key : keys)
        QTest::keyClick(control, Qt::Key(key));
    QCOMPARE(page.keys, keys);
    if (auto *list = qobject_cast<QListWidget *>(control))
        QCOMPARE(list->currentRow(), 0);
    if (auto *button = qobject_cast<QAbstractButton *>(control))
        QVERIFY(!button->isChecked());
}

QTEST_MAIN(TstControls)
#include "tst_controls.moc"
