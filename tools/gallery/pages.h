#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One picture: the keys that lead to it from the picture before, and its name. "Wait<seconds>" among the keys waits.
struct Shot
{
    QStringList keys;
    QString name;
};

/// One function of the instrument and the pictures of its pages.
struct Page
{
    QString name; // of the pictures' files: "vif", "setup"
    QString menuItem; // object name of the menu's item; empty: reached by `key` from the menu, or the menu itself
    QString key;
    QVector<Shot> shots; // the first has no keys: the page as it opens
    QStringList leave; // from the last shot to where F7 leads to the menu
    bool at400Hz; // false: the function does not exist at 400 Hz
    bool everyWiring; // false: looks the same in all wirings, so that one is enough
    bool endsMeasurement = false; // a running measurement is ended before, so that no question stands in front
    bool onRequest = false; // takes hours: only when it is asked for by name
};

/// All functions, in the order of the menu.
const QVector<Page> &galleryPages();

/// The arrow keys that lead from one menu item to another on the menu's torus.
/// @param at400Hz the flicker item is then left out of its row and column.
QStringList menuPath(const QString &from, const QString &to, bool at400Hz);

/// The wirings by their JOINMODE: 1 to 10.
QString wiringName(int joinMode);

/// The key words of the languages in their order; the first, EN, is built in.
const QStringList &languageWords();
