#pragma once

#include "widgets/dialogs/softkeydialog.h"

#include <memory>

namespace Ui {
class Message;
}

/// A message or a question with its soft keys. Which keys there are, and what they answer, is one row of a table.
class Message : public SoftKeyDialog
{
    Q_OBJECT

public:
    enum _TYPE {
        Info = 0, // Ok
        QuitQuestion = 1, // Quit, Cancel
        Warning = 2, // Ok, Cancel
        Error = 3, // Ok
        YesNo = 4, // Yes, No
        RestartChoice = 5, // Save & Restart, Discard & Restart, Cancel
        ExitChoice = 6, // Save & Exit, Discard & Exit, Cancel
        RecorderChoice = 7, // Exit, Restart, Save, Cancel
        EachOrAll = 8, // Yes to all, No to all, Yes, No
    };
    enum _RET {
        Ok = 0,
        Cancel = 1,
        Save = 2,
        Quit = 3,
        Yes = 4,
        No = 5,
        Discard = 6,
        Restart = 7,
        None = 8,
        YesToAll = 9,
        NoToAll = 10
    };

    /// Asks and answers the `_RET` of the key. A dialog closed by other means answers 0, which is Ok. An unknown type
    /// shows as Info.
    static int showMessage(int type, const QString &text);

    /// A question whose F4 carries the text of what a yes does. A dialog closed by other means is a no.
    static bool confirm(const QString &text, const QString &action);

    Message(int type, const QString &text, QWidget *parent = nullptr);
    ~Message() override;

    int getRet() const { return m_ret; } // None until a key was pressed

protected:
    void pressKey(int key) override;

private:
    std::unique_ptr<Ui::Message> m_ui;
    int m_type;
    int m_ret = None;
};
