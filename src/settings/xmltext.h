#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

/// An XML file being put together: indented by 4, attributes in the order in which they are written.
class XmlText
{
public:
    /// `instruction` is the content of the leading processing instruction "xml", letter for letter.
    explicit XmlText(const QString &instruction);

    QXmlStreamWriter &writer() { return m_writer; }
    /// The whole file; call it once, when all elements are closed.
    QByteArray take();

    /// Text without the characters that XML cannot carry: one of them would make the whole file unreadable.
    static QString plain(const QString &text);

private:
    QByteArray m_head;
    QByteArray m_body;
    QXmlStreamWriter m_writer;
};
