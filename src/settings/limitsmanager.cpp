#include "settings/limitsmanager.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>

#include "storage/safefile.h"
#include "settings/xmlguard.h"
#include "settings/xmltext.h"
#include "platform/debuglog.h"
#include "platform/target.h"

namespace {

/// The file that a set of this name is stored in.
QString pathOf(const QString &name)
{
    return LimitsManager::folder().chopped(1) + QDir::separator() + name + QStringLiteral(".xml");
}

/// The file that would bring a set back at the next start; empty when there is none.
QString storedFileOf(const MonitorLimits2 &set)
{
    if (!set.file().isEmpty() || !LimitsManager::isPlainName(set.name()))
        return set.file();
    // A save that was lost leaves the file of before.
    MonitorLimits2 stored;
    return stored.loadFile(pathOf(set.name())) && stored.name() == set.name() ? stored.file() : QString();
}

} // namespace

QString LimitsManager::folder()
{
    return QStringLiteral("/mnt/userfs/sys//limits/"); // Kept: with the double slash
}

QString LimitsManager::confPath()
{
    return QStringLiteral("/mnt/userfs/sys/limits.xml");
}

bool LimitsManager::isPlainName(const QString &name)
{
    constexpr int longest = 240; // bytes; a folder's entry holds 255, with ".xml.bak"
    if (name.isEmpty() || QFile::encodeName(name).size() > longest || name.startsWith(QLatin1Char('.')))
        return false;
    for (const QChar c : name) {
        if (c == QLatin1Char('/') || c.unicode() < 0x20 || c.unicode() == 0xfffe || c.unicode() == 0xffff)
            return false;
    }
    // Where the system's names cannot carry a letter, two sets could meet in one file.
    return name.isValidUtf16() && QFile::decodeName(QFile::encodeName(name)) == name;
}

LimitsManager::LimitsManager()
{
    QDir().mkpath(Target::path(folder()));
    m_en50160.initEN50160();
    m_active = m_en50160;
    m_sets.push_back(std::make_unique<MonitorLimits2>(m_en50160));
    m_sets.push_back(std::make_unique<MonitorLimits2>());
    m_sets.back()->initGOST32144();
    loadAllLimitsFile();
    initActiveLimits(loadLimitsConf());
}

void LimitsManager::loadAllLimitsFile()
{
    const QDir dir(Target::path(folder()));
    QStringList files = dir.entryList({ QStringLiteral("*.xml") }, QDir::Files | QDir::NoDotAndDotDot);
    if (files.size() > XmlGuard::kMaxFiles) {
        QUVERA_DEBUG(folder()
                     + QStringLiteral(": %1 files, only %2 are read").arg(files.size()).arg(XmlGuard::kMaxFiles));
        files = files.mid(0, XmlGuard::kMaxFiles);
    }
    for (const QString &file : qAsConst(files)) {
        auto set = std::make_unique<MonitorLimits2>();
        if (set->loadFile(folder() + file))
            m_sets.push_back(std::move(set));
    }
}

QString LimitsManager::loadLimitsConf() const
{
    QDomDocument document;
    if (XmlGuard::load(confPath(), &document) != XmlGuard::Ok)
        return builtin_en50160;
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("LimitsConfig")) {
        QUVERA_DEBUG("Unkown Config file");
        return builtin_en50160;
    }
    return root.firstChildElement(QStringLiteral("Active")).text();
}

void LimitsManager::changeLimitsConf(const QString &name) const
{
    XmlText text(QStringLiteral("version = \"1.0\" encoding=\"utf-8\""));
    QXmlStreamWriter &xml = text.writer();
    xml.writeStartElement(QStringLiteral("LimitsConfig"));
    xml.writeAttribute(QStringLiteral("verison"), QStringLiteral("1.0")); // Kept: spelled so
    xml.writeTextElement(QStringLiteral("Active"), XmlText::plain(name));
    xml.writeEndElement();
    SafeFile::replace(confPath(), text.take());
}

MonitorLimits2 *LimitsManager::find(const QString &name) const
{
    for (const auto &set : m_sets) {
        if (set->name() == name)
            return set.get();
    }
    return nullptr;
}

QStringList LimitsManager::allLimitsList() const
{
    QStringList names;
    for (const auto &set : m_sets)
        names << set->name();
    return names;
}

void LimitsManager::getLimits(monitor_limit_int *target, const QString &name) const
{
    if (const MonitorLimits2 *set = find(name))
        limit_float2int(set->limit(), target);
}

bool LimitsManager::getLimits(monitor_limit *target, const QString &name) const
{
    const MonitorLimits2 *set = find(name);
    if (set)
        *target = set->limit();
    return set != nullptr;
}

bool LimitsManager::store(MonitorLimits2 *set)
{
    // A name that would leave the folder gets no file; the set then lasts until the program ends.
    if (!isPlainName(set->name()))
        return false;
    const QString path = pathOf(set->name());
    // A set of another name that came from this very file moves to one of its own name first.
    for (const auto &other : m_sets) {
        if (other->file() == path && other->name() != set->name() && isPlainName(other->name())
            && !QFile::exists(Target::path(pathOf(other->name()))))
            other->saveFile(pathOf(other->name()));
    }
    if (!set->saveFile(path))
        return false;
    const MonitorLimits2 *present = find(set->name());
    if (present && !present->file().isEmpty() && present->file() != path)
        QFile::remove(Target::path(present->file())); // it would come before the new one at the next start
    return true;
}

void LimitsManager::take(const MonitorLimits2 &set)
{
    if (MonitorLimits2 *present = find(set.name()))
        *present = set;
    else
        m_sets.push_back(std::make_unique<MonitorLimits2>(set));
    if (m_active.name() == set.name())
        m_active = set;
}

bool LimitsManager::add(MonitorLimits2 *set)
{
    if (!set)
        return false;
    const bool stored = store(set);
    take(*set);
    return stored;
}

bool LimitsManager::add(const QString &name, const monitor_limit &limit)
{
    MonitorLimits2 set(name, limit);
    return add(&set);
}

bool LimitsManager::add(const QString &name, const monitor_limit_int &limit)
{
    monitor_limit converted {};
    limit_int2float(limit, &converted);
    return add(name, converted);
}

bool LimitsManager::rename(const QString &from, const QString &to)
{
    const MonitorLimits2 *present = find(from);
    if (!present || from == to)
        return false;
    MonitorLimits2 renamed(to, present->limit());
    if (!store(&renamed))
        return false;
    take(renamed);
    if (m_active.name() == from)
        changeActiveLimits(to); // before the old file goes: at every moment the stored name has a set
    remove(from);
    return true;
}

void LimitsManager::remove(const QString &name)
{
    for (auto it = m_sets.begin(); it != m_sets.end(); ++it) {
        if ((*it)->name() != name)
            continue;
        const QString file = storedFileOf(**it);
        m_sets.erase(it);
        if (!file.isEmpty())
            QFile::remove(Target::path(file));
        if (m_active.name() == name) {
            m_active = m_en50160;
            changeLimitsConf(m_active.name());
        }
        return;
    }
}

void LimitsManager::changeActiveLimits(const QString &name)
{
    initActiveLimits(name);
    changeLimitsConf(m_active.name());
}

void LimitsManager::initActiveLimits(const QString &name)
{
    if (const MonitorLimits2 *set = find(name))
        m_active = *set;
}
