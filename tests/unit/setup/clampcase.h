#pragma once

#include "setupcase.h"
#include "typing.h"

#include "setup/clampeditor.h"
#include "setup/setupclamp2.h"
#include "setup/setupclamps.h"
#include "unit/storage/rootfiles.h"

#include <memory>

// What the tests of the clamp pages share.

namespace ClampCase {

using namespace PageTest;
using namespace Typing;

const QString kPath = QStringLiteral("/mnt/userfs/sys/clamps.xcl");
const QString kPathN = QStringLiteral("/mnt/userfs/sys/clampsN.xcl");

enum ChoiceField { Channel, ClampName, Ratio, Range, Flexible, RatioI, RatioV };
enum EditorField { Name, Sensitivity, FullScale, IsFlexible };

/// The clamp pages over empty files, and what a user does on them.
class Pages : public QObject
{
protected:
    void openPage()
    {
        RootFiles::clean();
        m_settingConfig_g.loadSettingConfig();
        m_page = std::make_unique<SetupClamps>(liveData());
        m_page->enter();
    }

    /// Moves to a field of the page on top from wherever it stands.
    void selectField(int field)
    {
        auto *page = static_cast<EditorPage *>(m_page->currentPage());
        for (int i = 0; i < 10 && page->field() > 0; ++i)
            press(page, Up);
        for (int i = 0; i < 10 && page->field() < field; ++i)
            press(page, Down);
        QCOMPARE(page->field(), field);
    }

    void chooseClamp(const char *name)
    {
        selectField(ClampName);
        press(choice(), Left, 30);
        for (int i = 0; i < 30 && shown("clamp") != QLatin1String(name); ++i)
            press(choice(), Right);
        QCOMPARE(shown("clamp"), QString::fromLatin1(name));
    }

    void fillEditor(const QString &name, const QString &ratio = {}, const QString &range = {})
    {
        QVERIFY(inEditor());
        const QString texts[] = { name, ratio, range };
        for (int field = Name; field <= FullScale; ++field) {
            if (texts[field].isNull())
                continue;
            selectField(field);
            DialogDriver driver({ typed(texts[field]) });
            press(editor(), Enter);
            QVERIFY(driver.isDone());
        }
    }

    void addClamp(const QString &name, const QString &ratio = {}, const QString &range = {})
    {
        press(choice(), F1);
        fillEditor(name, ratio, range);
        press(editor(), F4);
        QVERIFY(!inEditor());
    }

    QWidget *choice() { return m_page->findChild<SetupClamp2 *>(); }
    QWidget *editor() { return m_page->findChild<ClampEditor *>(); }
    QString shown(const char *row) { return text(m_page->currentPage(), row); }
    bool inEditor() const { return m_page->currentIndex() == SetupClamps::Editor; }

    std::unique_ptr<SetupClamps> m_page;
};

} // namespace ClampCase
