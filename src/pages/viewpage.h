#pragma once

#include "pages/uitype.h"

#include <QDialog>

#include <functional>
#include <vector>

class QLabel;

/// A page that shows live records and reacts to the front keys: the pattern behind every measuring function. It offers
/// hold and run, the stop watch, navigation by F6 to F10 and a table of soft keys; a page's own file holds the rest.
/// A page computes no measurement; it reads the global display records, which may still be null.
class ViewPage : public QDialog
{
    Q_OBJECT

public:
    explicit ViewPage(_quvera_ui_type type, QWidget *parent = nullptr);

    _quvera_ui_type uiType() const { return m_type; }
    bool isRunning() const { return m_running; }

public slots:
    virtual void setPause();
    virtual void setContinue();
    /// Redraws from the global record; must be harmless when called twice. The argument is always 0.
    virtual void updateDisplay(void *) { }
    virtual void stopWatchChanged(const QString &text);
    /// A run begins: forget what was shown.
    virtual void init_parameter();
    virtual void retranslateUi();

signals:
    void goScope(_quvera_ui_type current, _quvera_ui_type target);
    void goMenu(_quvera_ui_type current, _quvera_ui_type target);
    void goMonitor(_quvera_ui_type current, _quvera_ui_type target);
    void goSetup(_quvera_ui_type current, _quvera_ui_type target);
    void goMemory(_quvera_ui_type current, _quvera_ui_type target);
    void run();
    void pause();

protected:
    /// One key of a page: what its label says and what it does. Without a caption the label stays as it is
    /// (a soft-key button paints its own).
    template <typename Page> struct KeyRow
    {
        int key; // Qt::Key_F1 to F5, arrows, Enter
        const char *caption;
        void (Page::*action)();
    };

    /// To be called once, after the form exists. F5 is Hold and Run unless the table has another use for it.
    template <typename Page, std::size_t N> void setKeys(const KeyRow<Page> (&rows)[N])
    {
        m_keys.clear();
        auto *page = static_cast<Page *>(this);
        for (const auto &row : rows)
            m_keys.push_back({ row.key, row.caption, [page, action = row.action] { (page->*action)(); } });
        finishKeys();
    }
    /// For a page without keys of its own.
    void setNoKeys();
    /// Text over the soft key F\a number, 1 to 5.
    void setKeyCaption(int number, const QString &text);
    void showHold();
    /// Sets a label's text only when it changed: a refresh must not lay out what stands still.
    static void setText(QLabel *label, const QString &text);

    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    /// Takes over phase colours that were chosen since: labels and charts must never tell a phase by two colours.
    void showEvent(QShowEvent *event) override;

    /// Handles a key that is already mapped; false: let it rise.
    virtual bool pressKey(int key);
    /// A key was let go; pages with repeating keys stop them here.
    virtual void releaseKey(int) { }

private:
    struct Key
    {
        int key;
        const char *caption;
        std::function<void()> action;
    };

    void finishKeys();
    bool hasOwnKey(int key) const;

    const _quvera_ui_type m_type;
    bool m_running = true;
    QString m_phaseColors; // digits of the palette that the labels have
    std::vector<Key> m_keys;
};
