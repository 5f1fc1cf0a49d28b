#pragma once

#include "widgets/controls/frontkeys.h"

#include <QDialog>
#include <QPixmap>
#include <QPointer>

class QLabel;

/// Base of the instrument's modal dialogs: 640 pixels wide, without a frame, at the bottom of the instrument's window
/// so that their keys stand over the soft keys, and driven by the front panel alone. A form with labels "btn_f1" to
/// "btn_f5" gets their look from here. While one is open the event loop goes on: data is received and recorded.
class SoftKeyDialog : public QDialog
{
    Q_OBJECT

public:
    void setVisible(bool visible) override;

    /// Texts that do not fit are set smaller, down to 10 pixels; `label` has its final size.
    static void fitText(QLabel *label, const QString &text, int largestPixels);

protected:
    explicit SoftKeyDialog(QWidget *parent = nullptr);

    /// A key of the front panel, by its Qt key: what the table says. What is not handled does nothing: no key reaches
    /// the page behind.
    virtual void pressKey(int key) { m_keys.act(key); }
    /// What each key does and says, by the dialog's table; to be called once, behind finishForm().
    template <typename Owner, std::size_t N> void setKeys(const FrontKeys::KeyRow<Owner> (&rows)[N])
    {
        takeKeys(FrontKeys::rowsOf(static_cast<Owner *>(this), rows));
    }

    /// Takes the form's size for good and sets the text of each soft key, dropping the picture of those without one.
    void finishForm();
    QLabel *softKey(int number) const; // 1 to 5; null if the form has none
    void setKeyText(int number, const QString &text);

    void keyPressEvent(QKeyEvent *event) final;
    void keyReleaseEvent(QKeyEvent *event) final;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeKeys(std::vector<FrontKeys::Row> rows);
    /// The window that a dialog opens over: the one with the keyboard, else that of the pages.
    static QWidget *openerWindow();

    static QPointer<QWidget> s_keyboardGoesTo; // the window that was activated last

    FrontKeys m_keys;
    QPointer<QWidget> m_opener;
    QPoint m_origin; // of the instrument's window on the desk's screen
    QPixmap m_background;
};
