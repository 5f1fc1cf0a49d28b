#pragma once

#include "storage/udiskstorage.h"
#include "widgets/dialogs/softkeydialog.h"

#include <memory>

class QListWidgetItem;

namespace Ui {
class FileManager;
}

/// Picks a file on a USB disk: first the disks, then their folders. Keys: docs/widgets.md.
class FileManager : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// The absolute path (the board's) of the chosen file; empty when cancelled.
    static QString getExistFileName();

    explicit FileManager(QWidget *parent = nullptr);
    ~FileManager() override;

    QString chosenFile() const { return m_chosen; }
    QString folder() const { return m_folder; } // empty: the list of disks

private:
    void refresh();
    void listDisks();
    void listFolder();
    void addItem(const char *icon, const QString &text, const QString &path, bool isFolder);
    void moveSelection(int step);
    void selectPrevious();
    void selectNext();
    void openSelected(); // the folder, or takes the file
    void cdSubDir();
    void cdParentDir();
    void chooseFile();
    void disksChanged(const QStringList &disks);
    void showKeys();
    void setKeyUsable(int number, bool usable);
    bool isFolder(const QListWidgetItem *item) const;

    std::unique_ptr<Ui::FileManager> m_ui;
    uDiskStorage m_disks;
    QString m_folder;
    QString m_chosen;
    int m_usable = -1; // bit of each soft key as last painted
};
