#pragma once

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QTest>

#include <functional>

/// Drives dialogs that run their own event loop: each step waits until its dialog is on top, then acts on it.
class DialogDriver
{
public:
    using Step = std::function<void(QDialog *)>;

    explicit DialogDriver(const QList<Step> &steps) : m_steps(steps) { arm(); }

    bool isDone() const { return m_steps.isEmpty(); }

    /// Presses keys of the front panel by their letters.
    static Step press(const QByteArray &letters)
    {
        return [letters](QDialog *dialog) {
            for (const char letter : letters) {
                if (dialog->isVisible())
                    QTest::keyClick(dialog, letter);
            }
        };
    }

private:
    // A new shot for each look: a timer that is just being served would not fire inside the loop of a further dialog.
    void arm()
    {
        QTimer::singleShot(5, &m_context, [this] { run(); });
    }

    void run()
    {
        if (m_steps.isEmpty())
            return;
        arm();
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            m_steps.takeFirst()(dialog);
    }

    QList<Step> m_steps;
    QObject m_context;
};

/// Text of a label of a form.
inline QString labelText(const QDialog *dialog, const char *name)
{
    const auto *label = dialog->findChild<QLabel *>(QString::fromLatin1(name));
    return label ? label->text() : QStringLiteral("no such label");
}

/// Texts of the soft keys F1 to F5.
inline QStringList keyTexts(const QDialog *dialog)
{
    QStringList texts;
    for (int i = 1; i <= 5; ++i)
        texts << labelText(dialog, qPrintable(QStringLiteral("btn_f%1").arg(i)));
    return texts;
}
