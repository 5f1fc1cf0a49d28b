#pragma once

#include "widgets/dialogs/softkeydialog.h"

#include <QRegularExpression>

#include <memory>

namespace Ui {
class VirtualKeyBoard;
}

/// A keyboard on the screen: the arrows choose a key, Enter presses it. On a desk the PC's keyboard types as well.
/// Keys: docs/widgets.md.
class VirtualKeyBoard : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// Edits `text` and answers the new one, or `text` as it was after "Cancel". With an expression only a full match
    /// is taken, and a sign that can no longer lead to one is refused. `*accepted` tells the two ends apart.
    static QString getKeyBoardInput(const QString &title, const QString &text, const QString &expression = QString(),
                                    int maxLength = 64, bool *accepted = nullptr);
    /// Likewise for the name of a file or a folder, without suffix: at most 32 plain signs and no dot in front, as it
    /// goes into a comma-separated index and onto USB disks. Only an empty name that was empty before comes back empty.
    static QString getFileName(const QString &title, const QString &name);

    VirtualKeyBoard(const QString &title, const QString &text, const QString &expression, int maxLength,
                    QWidget *parent = nullptr);
    ~VirtualKeyBoard() override;

    QString text() const { return m_text; }

protected:
    /// Signs of a PC's keyboard (platform/deskkeys.h).
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    void handleKeyPress();
    void exchangeChar();
    void clearInput();
    void appendSpace();
    void moveLeft();
    void moveRight();
    void moveUp();
    void moveDown();
    void append(QChar sign);
    void setInput(const QString &text);
    void accept() override;

    std::unique_ptr<Ui::VirtualKeyBoard> m_ui;
    QString m_text;
    QRegularExpression m_expression; // anchored; empty pattern: any text
    int m_maxLength;
    bool m_typed = false; // on the PC's keyboard last: Enter then ends the text
};
