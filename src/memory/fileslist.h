#pragma once

#include "storage/storeditems.h"
#include "widgets/controls/scrollmodel.h"

#include <QPixmap>
#include <QSet>
#include <QWidget>

#include <vector>

/// One row: what is stored, and whether the measurement has it open.
struct FileListItem
{
    StoredItem item;
    bool inUse = false;

    const char *icon() const; // ":/file", ":/folder" or ":/bmp"
    bool isPicture() const;
    QString description() const; // of a recording its name without the time, which has a column
};

/// The list of what is stored: type, time and description, twelve rows at a time with a selection bar, and check marks
/// while files are chosen. Only the rows that are seen are drawn. What is in use cannot be checked.
class FilesList : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRows = 12;

    explicit FilesList(QWidget *parent = nullptr);

    /// Shows \a items. The selection stays on its item, check marks stay with theirs.
    void setItems(const QVector<StoredItem> &items, const QSet<QByteArray> &inUse);
    int count() const { return m_scroll.count(); }
    /// The selected one; null while the list is empty.
    const FileListItem *current() const;
    const FileListItem &at(int row) const { return m_items[std::size_t(row)]; }
    const ScrollModel &scroll() const { return m_scroll; }

    void selectPrevItem() { move(-1); }
    void selectNextItem() { move(1); }
    void move(int rows);
    void toTop();

    /// While on, each row has a check box; on and off begin without a mark.
    void setEditing(bool on);
    /// The current row's mark; false where it is in use.
    bool toggleCurrent();
    void checkAll(bool on);
    bool isChecked(int row) const { return m_scroll.isChecked(row); }
    /// Names of the checked rows, from the top.
    QList<QByteArray> checkedFiles() const;
    void uncheck(const QList<QByteArray> &files);
    /// What is open by now; it loses its mark.
    void setInUse(const QSet<QByteArray> &files);

    void refresh() { update(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void markSelected();
    void drawHeader(QPainter &painter) const;
    void drawRow(QPainter &painter, int top, int row) const;

    std::vector<FileListItem> m_items;
    ScrollModel m_scroll { kRows };
    bool m_editing = false;
    QPixmap m_background; // scaled to the widget
    QPixmap m_bar; // scaled to a row
};
