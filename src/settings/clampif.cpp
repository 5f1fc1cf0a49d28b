#include "settings/clampif.h"

#include <QDomDocument>

#include "storage/safefile.h"
#include "settings/xmlguard.h"
#include "settings/xmltext.h"
#include "platform/debuglog.h"
#include "platform/target.h"

namespace {

struct BuiltIn
{
    const char *name;
    int range; // A
    int ratio; // uV/A
    bool flexible;
    const char *description;
};
const BuiltIn kBuiltIns[] = {
    { "TARN-41A", 5, 10000, false, "TARN-41A, Not flexible, Uneditable" },
    { "TARN-42B", 5, 10000, false, "TARN-42B-5A, Not flexible, Uneditable" },
    { "TARN-43", 50, 10000, false, "TARN-43, Not flexible, Uneditable" },
    { "TARN-44", 100, 1000, false, "TARN-44, Not flexible, Uneditable" },
    { "TARN-45", 1000, 1000, false, "TARN-45, Not flexible, Uneditable" },
    { "TARN-46", 1000, 1000, false, "TARN-46, Not flexible, Uneditable" },
    { "TARN-F1", 1500, 100, true, "TARN-F1, flexible, Uneditable" },
    { "TARN-F2", 6000, 65, true, "TARN-F2, flexible, Uneditable" },
    { "TARN-F3", 3000, 65, true, "TARN-F3, flexible, Uneditable" },
};

bool isTrue(const QString &attribute)
{
    return attribute.toUpper() == QLatin1String("TRUE");
}

} // namespace

struct ClampIF::Record
{
    QString inUsed;
    bool unread = false; // the file holds clamps that could not be read
    Clamp *first = nullptr;
    Clamp *last = nullptr;
    Clamp *current = nullptr;
};

ClampIF::ClampIF() : m_record(std::make_unique<Record>()) { }

ClampIF::ClampIF(const QString &path) : ClampIF()
{
    load(path);
}

ClampIF::~ClampIF()
{
    clear();
}

void ClampIF::clear()
{
    for (Clamp *clamp = m_record->first; clamp;) {
        Clamp *next = clamp->nextNode;
        delete clamp;
        clamp = next;
    }
    *m_record = Record();
}

void ClampIF::load(const QString &path)
{
    clear();
    for (const BuiltIn &clamp : kBuiltIns) {
        addClamp(new Clamp(QLatin1String(clamp.name), clamp.range, clamp.ratio, clamp.flexible, false,
                           QLatin1String(clamp.description)));
    }
    m_record->inUsed = QLatin1String(kBuiltIns[0].name);
    loadClamp(path);
    setCurClamp(m_record->inUsed);
}

void ClampIF::loadClamp(const QString &path)
{
    QDomDocument document;
    const XmlGuard::Result result = XmlGuard::load(path, &document);
    m_record->unread = result == XmlGuard::Failed;
    if (result == XmlGuard::Ok)
        takeDocument(document);
}

void ClampIF::takeDocument(const QDomDocument &document)
{
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("PQA") || root.attribute(QStringLiteral("version")) != QLatin1String("1.0"))
        return;
    QString inUsed = root.attribute(QStringLiteral("inUsed"));
    for (QDomElement element = root.firstChildElement(QStringLiteral("clamp")); !element.isNull();
         element = element.nextSiblingElement(QStringLiteral("clamp"))) {
        bool rangeOk = false;
        bool ratioOk = false;
        const int range = element.attribute(QStringLiteral("range")).toInt(&rangeOk);
        const int ratio = element.attribute(QStringLiteral("ratio")).toInt(&ratioOk);
        if (!rangeOk || !ratioOk || !isTrue(element.attribute(QStringLiteral("editable"))))
            continue;
        const QString name = element.attribute(QStringLiteral("name"));
        addClamp(
            new Clamp(name, range, ratio, isTrue(element.attribute(QStringLiteral("flexible"))), true, element.text()));
        if (inUsed.isEmpty())
            inUsed = name;
    }
    if (!inUsed.isEmpty())
        m_record->inUsed = inUsed;
}

bool ClampIF::save(const QString &path) const
{
    if (m_record->unread) {
        QUVERA_DEBUG(path + ": could not be read, is not written over");
        return false;
    }
    XmlText text(QStringLiteral("version=\"1.0\" encoding=\"utf-8\""));
    QXmlStreamWriter &xml = text.writer();
    xml.writeStartElement(QStringLiteral("PQA"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    xml.writeAttribute(QStringLiteral("inUsed"), XmlText::plain(m_record->inUsed));
    for (const Clamp *clamp = m_record->first; clamp; clamp = clamp->nextNode) {
        if (!clamp->editable())
            continue;
        xml.writeStartElement(QStringLiteral("clamp"));
        xml.writeAttribute(QStringLiteral("name"), XmlText::plain(clamp->name()));
        xml.writeAttribute(QStringLiteral("range"), QString::number(clamp->range()));
        xml.writeAttribute(QStringLiteral("ratio"), QString::number(clamp->ratio()));
        xml.writeAttribute(QStringLiteral("editable"), QStringLiteral("true"));
        if (clamp->flexible())
            xml.writeAttribute(QStringLiteral("flexible"), QStringLiteral("true"));
        xml.writeCharacters(XmlText::plain(clamp->description()));
        xml.writeEndElement();
    }
    xml.writeEndElement();
    if (!SafeFile::replace(path, text.take()))
        return false;
    Target::shell(QStringLiteral("sync"));
    return true;
}

void ClampIF::copyFrom(const ClampIF &other)
{
    if (&other == this)
        return;
    clear();
    for (const Clamp *clamp = other.m_record->first; clamp; clamp = clamp->nextNode) {
        addClamp(new Clamp(*clamp)); // its place in the other list is written over
        if (clamp == other.m_record->current)
            m_record->current = m_record->last;
    }
    m_record->inUsed = other.m_record->inUsed;
    m_record->unread = other.m_record->unread;
}

void ClampIF::addClamp(Clamp *clamp)
{
    if (!clamp)
        return;
    clamp->prevNode = m_record->last;
    clamp->nextNode = nullptr;
    (m_record->last ? m_record->last->nextNode : m_record->first) = clamp;
    m_record->last = clamp;
}

void ClampIF::removeClamp(Clamp *clamp)
{
    const Clamp *found = m_record->first;
    while (found && found != clamp)
        found = found->nextNode;
    if (!found)
        return;
    (clamp->prevNode ? clamp->prevNode->nextNode : m_record->first) = clamp->nextNode;
    (clamp->nextNode ? clamp->nextNode->prevNode : m_record->last) = clamp->prevNode;
    if (m_record->current == clamp) {
        // From the head the new head takes over, from elsewhere the one before.
        m_record->current = clamp->prevNode ? clamp->prevNode : m_record->first;
        m_record->inUsed = m_record->current ? m_record->current->name() : QString();
    }
    delete clamp;
}

Clamp *ClampIF::findClamp(const QString &name) const
{
    Clamp *clamp = m_record->first;
    while (clamp && clamp->name() != name)
        clamp = clamp->nextNode;
    return clamp;
}

void ClampIF::setCurClamp(const QString &name)
{
    Clamp *clamp = findClamp(name);
    setCurClamp(clamp ? clamp : m_record->first);
}

void ClampIF::setCurClamp(Clamp *clamp)
{
    m_record->current = clamp;
    m_record->inUsed = clamp ? clamp->name() : QString();
}

Clamp *ClampIF::getCurClamp() const
{
    if (!m_record->current && m_record->first) {
        m_record->current = m_record->first;
        m_record->inUsed = m_record->current->name();
    }
    return m_record->current;
}

Clamp *ClampIF::first() const
{
    return m_record->first;
}

Clamp *ClampIF::last() const
{
    return m_record->last;
}

int ClampIF::count() const
{
    int n = 0;
    for (const Clamp *clamp = m_record->first; clamp; clamp = clamp->nextNode)
        ++n;
    return n;
}

QStringList ClampIF::names() const
{
    QStringList list;
    for (const Clamp *clamp = m_record->first; clamp; clamp = clamp->nextNode)
        list << clamp->name();
    return list;
}

QString ClampIF::inUsed() const
{
    return m_record->inUsed;
}
