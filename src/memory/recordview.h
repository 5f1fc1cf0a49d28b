#pragma once

#include "memory/coverview.h"
#include "report/judgerecord.h"

#include <QTimer>

#include <atomic>
#include <memory>

struct StoredItem;

/// What a recording is made of as far as one wants to know it in front of the instrument: what, when, how long, in
/// which state; of a monitor's file the verdict by quantity, too. Up and Down move through the table.
class RecordView : public CoverView
{
    Q_OBJECT

public:
    /// What is read, by another thread than the one that shows it.
    struct Reading
    {
        std::atomic<bool> givenUp { false }; // nobody wants it any more
        std::atomic<int> percent { 0 };
        // From here on once the reading is through.
        std::unique_ptr<Judgement> judgement; // null: given up
        ReportSource source;
        bool isJudged = false;
    };

    /// Whether an item is of a kind that can be shown.
    static bool canShow(const StoredItem &item);
    /// Any thread; \a path is the file's real name.
    static void read(Reading *reading, const QString &path, const MonitorLimits2 &limits);

    /// Shows how far the reading is until it is through.
    RecordView(const std::shared_ptr<Reading> &reading, QWidget *page);
    ~RecordView() override;
    /// Shows what was read.
    void showReading();

    /// What stands in the table, for those who look at it otherwise.
    const ReportTable &table() const { return m_table; }
    const QVector<QPair<QString, QString>> &facts() const { return m_facts; }
    QString headline() const { return m_headline; }

protected:
    void paintEvent(QPaintEvent *event) override;
    bool pressKey(int key) override;

private:
    int rowsShown() const;
    void paintFacts(QPainter &painter) const;
    void paintTable(QPainter &painter) const;

    const std::shared_ptr<Reading> m_reading;
    QTimer m_progress;
    bool m_isThrough = false;
    QVector<QPair<QString, QString>> m_facts;
    QString m_headline, m_note;
    Tone m_tone = Tone::Plain;
    ReportTable m_table;
    int m_first = 0; // row
};
