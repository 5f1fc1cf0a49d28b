#pragma once

#include "widgets/dialogs/softkeydialog.h"

#include <memory>

namespace Ui {
class SaveDialog;
}

/// Asks for the name and the kind of a file when a page is saved.
class SaveDialog : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// Kinds that a page offers; in this release all offer the picture only.
    enum __filter_type { FilterScreen = 1, FilterData = 2 };
    /// Kinds of a saved file.
    enum __file_type { NoFile = 0, ScreenFile = 1, DataFile = 2 };

    /// Runs the dialog with a default made of `*name`. On accept the file is entered in the index, `name` gets the
    /// chosen name with its extension, without folder, and the answer is 1 or 2. Otherwise the answer is 0.
    static int save(int filter, QString &name);

    SaveDialog(int filter, const QString &name, QWidget *parent = nullptr);
    ~SaveDialog() override;

    int fileType() const; // ScreenFile or DataFile
    QString name() const { return m_name; } // with extension
    QString fileName() const; // full path, the board's

private:
    static QString suffix(int type);
    void setName(const QString &name);
    void getDefaultFileName();
    void changeFileType();
    void editName();
    void takeName();
    bool CoverorNot(const QString &name);

    std::unique_ptr<Ui::SaveDialog> m_ui;
    QString m_prefix; // what the default names are made of
    QString m_name;
    bool m_dataOffered;
};
