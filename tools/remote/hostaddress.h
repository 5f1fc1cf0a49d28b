#pragma once

#include <QHostAddress>
#include <QString>

/// The address of an instrument by its name or its address; null when there is none.
QHostAddress hostAddress(const QString &host);
