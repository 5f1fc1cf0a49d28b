#pragma once

#include "pages/uitype.h"
#include "widgets/controls/frontkeys.h"

#include <QByteArray>
#include <QDialog>

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

    /// What a saved file is called and which layout its data has; window 0: the page has nothing of its own to save.
    struct SaveIdentity
    {
        int windowId = 0;
        const char *defaultName = nullptr;
    };

    _quvera_ui_type uiType() const { return m_type; }
    /// What Save (F11) stores for this page. The page on top is asked first; the key rises from one that has none.
    virtual SaveIdentity saveIdentity() const { return {}; }
    /// The record that a data file of this page holds; empty: a picture is all there is.
    virtual QByteArray pqaData() const { return {}; }

public slots:
    /// Captions anew, after a change of the language or of the phase colours.
    virtual void retranslateUi();

signals:
    /// The user asks for another page. Whether this one is left decides who shows pages.
    void leave(_quvera_ui_type target);

protected:
    template <typename Owner> using KeyRow = FrontKeys::KeyRow<Owner>;

    /// To be called once the form exists; a page with modes has a table for each and sets the one in force.
    template <typename Owner, std::size_t N> void setKeys(const KeyRow<Owner> (&rows)[N])
    {
        finishKeys(FrontKeys::rowsOf(static_cast<Owner *>(this), rows));
    }
    /// For a page without keys of its own.
    void setNoKeys() { finishKeys({}); }
    /// Keys that all pages of a kind have; the rows of the page's own table go before them.
    virtual std::vector<FrontKeys::Row> commonKeys() { return {}; }
    bool hasOwnKey(int key) const { return m_keys.has(key); }
    /// What a held key repeats ends.
    void stopRepeat() { m_keys.stopRepeat(); }
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

private:
    void saveToFile();
    void finishKeys(std::vector<FrontKeys::Row> rows);

    const _quvera_ui_type m_type;
    QString m_phaseColors; // digits of the palette that the labels have
    FrontKeys m_keys;
};
