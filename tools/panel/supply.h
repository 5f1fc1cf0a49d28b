#pragma once

#include "panel/bulletin.h"
#include "panel/processorline.h"

#include <QJsonObject>
#include <QStringList>
#include <QThread>

#include <mutex>

namespace panel {

/// What stands beside an instrument on a desk: the supply that the processor stand-in plays, and the board's files. Its
/// controls are a table (controltable.h); how it stands is put on the bulletin each second while somebody looks.
class Supply : public QThread
{
    Q_OBJECT
public:
    /// @param root of the desk; empty: there is no desk, and no controls.
    Supply(const QString &root, Bulletin &bulletin);
    ~Supply() override;

    /// The controls for the page; an empty list without a desk or a processor.
    QByteArray controls();
    /// Does what a control asks for. Empty, or one line why not.
    QString obey(const QJsonObject &wish);
    void end();

protected:
    void run() override;

private:
    QStringList scenarios();
    void report();
    QString boardFile(const char *path) const;

    const QString m_root;
    Bulletin &m_bulletin;
    const ProcessorLine m_line;
    std::mutex m_lock; // guards what follows
    std::condition_variable m_changed;
    QStringList m_scenarios;
    bool m_ends = false;
    bool m_reportsNow = false;
};

} // namespace panel
