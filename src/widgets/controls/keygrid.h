#pragma once

#include <QPixmap>
#include <QWidget>

/// The keys of the virtual keyboard with a cursor that the arrows move. Made for 608 by 178 pixels. GUI thread.
class KeyGrid : public QWidget
{
public:
    explicit KeyGrid(QWidget *parent = nullptr);

    /// Moves the cursor to the neighbour in a direction, round the edge to the other side.
    void moveHorizontally(int step); // -1 or 1
    void moveVertically(int step); // -1 or 1
    void exchangeChar(); // upper or lower case letters
    bool isUpperCase() const { return m_upper; }
    /// The sign under the cursor; '<' erases.
    QChar currentChar() const;
    /// Puts the cursor on a sign of either case; false if there is no such key.
    bool setCurrentChar(QChar sign);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QChar charAt(int index) const;

    int m_current = 0;
    bool m_upper = false;
    QPixmap m_plain, m_selected, m_widePlain, m_wideSelected;
};
