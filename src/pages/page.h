#pragma once

#include "pages/uitype.h"

#include <QDialog>

#include <functional>
#include <vector>

class QLabel;

/// A page that the front keys drive: what all pages have in common. A table says what each key does and what stands
/// over it; a press on a dimmed screen only wakes it; F6 to F10 leave by one signal; captions follow language and
/// colours. A page's own file holds the rest.
class Page : public QDialog
{
    Q_OBJECT

public:
    explicit Page(_quvera_ui_type type, QWidget *parent = nullptr);

    _quvera_ui_type uiType() const { return m_type; }

public slots:
    /// Captions anew, after a change of the language or of the phase colours.
    virtual void retranslateUi();

signals:
    /// The user asks for another page. Whether this one is left decides who shows pages.
    void leave(_quvera_ui_type target);

protected:
    /// One key of a page: what its label says and what it does. Without a caption the label stays as it is
    /// (a soft-key button paints its own).
    template <typename Owner> struct KeyRow
    {
        int key; // Qt::Key_F1 to F5, arrows, Enter
        const char *caption;
        void (Owner::*action)();
    };

    /// To be called once, after the form exists.
    template <typename Owner, std::size_t N> void setKeys(const KeyRow<Owner> (&rows)[N])
    {
        m_keys.clear();
        auto *page = static_cast<Owner *>(this);
        for (const auto &row : rows)
            m_keys.push_back({ row.key, row.caption, [page, action = row.action] { (page->*action)(); } });
        finishKeys();
    }
    /// For a page without keys of its own.
    void setNoKeys();
    bool hasOwnKey(int key) const;
    /// Text over the soft key F\a number, 1 to 5.
    void setKeyCaption(int number, const QString &text);
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

    const _quvera_ui_type m_type;
    QString m_phaseColors; // digits of the palette that the labels have
    std::vector<Key> m_keys;
};
