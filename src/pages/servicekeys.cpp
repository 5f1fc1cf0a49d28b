#include "pages/servicekeys.h"

#include <qnamespace.h>

void ServiceKeys::press(int key)
{
    constexpr int kLength = 8;
    if (key == Qt::Key_Left)
        m_pressed += 'L';
    else if (key == Qt::Key_Right)
        m_pressed += 'R';
    else
        m_pressed.clear();
    m_pressed = m_pressed.right(kLength);
}

bool ServiceKeys::were(std::initializer_list<char> letters) const
{
    QByteArray sequence;
    for (const char letter : letters)
        sequence += letter;
    return m_pressed == sequence;
}
