#pragma once

#include "memory/fileslist.h"
#include "pages/functionpage.h"
#include "pages/servicekeys.h"
#include "storage/filework.h"

#include <QPointer>
#include <QStringList>

#include <memory>

class CoverView;
namespace Ui {
class MemoryPage;
}

/// What is stored on the instrument: to be looked at, copied to a USB disk, deleted. It stands over another page, whose
/// measurement goes on. Keys and choices: docs/memory-page.md.
class MemoryPage : public FunctionPage
{
    Q_OBJECT

public:
    enum Mode { Browsing = 0, ChoosingForUsb = 1, ChoosingToDelete = 2 };

    explicit MemoryPage(QWidget *parent = nullptr);
    ~MemoryPage() override;

    void enter() override;
    Mode mode() const { return m_mode; }
    /// Something is being read, deleted or prepared; keys that would begin another thing wait for nobody and do
    /// nothing.
    bool isBusy() const { return m_busy; }
    /// Likewise, or the list is being read.
    bool isWorking() const { return m_work.isBusy(); }
    /// Folders of the USB disks (the board's paths), as they are when the page is made.
    void setMedias(const QStringList &disks) { m_medias = disks; }
    const QStringList &medias() const { return m_medias; }

    /// "812.5 M", from a gigabyte on "3.71 G".
    static QString roomText(float megabytes);

public slots:
    void massStorageMedias(const QStringList &disks) { setMedias(disks); }
    /// Reads the list and the room anew.
    void reflashFilesList();
    void retranslateUi() override;

signals:
    void goBack();

protected:
    bool pressKey(int key) override;
    std::vector<FrontKeys::Row> commonKeys() override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void setMode(Mode mode);
    void setModeKeys();
    void toUsb() { setMode(ChoosingForUsb); }
    void toDelete() { setMode(ChoosingToDelete); }
    void cancel() { setMode(Browsing); }
    void selectAll();
    void selectNone() { m_list->checkAll(false); }
    void toggle();
    void move(int rows);
    void checkPW();
    void deleteAllFile();
    void view();
    void viewPicture(const QString &path);
    void viewRecord(const QString &path);
    void actOnChosen();
    void delMultiFiles();
    void copyMultiFiles();
    /// \a standing: those whose place on the disk is taken.
    void askAndCopy(const QList<QByteArray> &files, const QString &disk, const QSet<QByteArray> &standing);
    /// Runs \a work off this thread while the page is busy with \a text, then \a then on this one.
    void work(const QString &text, std::function<void()> work, std::function<void()> then);
    void showCapacity();
    void showPlace();
    void highLightF4();

    std::unique_ptr<Ui::MemoryPage> m_ui;
    FilesList *m_list;
    Mode m_mode = Browsing;
    ServiceKeys m_pressed;
    QStringList m_medias;
    bool m_busy = false;
    bool m_acting = false; // a key that begins something has not returned
    bool m_atTop = false; // since the page was entered the list was read and shown from its top
    float m_used = 0, m_free = 0; // MB
    QPointer<CoverView> m_viewer;
    FileWork m_work; // ends first
};
