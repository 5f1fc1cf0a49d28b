#pragma once

#include <QByteArray>
#include <QJsonObject>

namespace panel {

/// What the instrument wrote into a picture of its screen besides the dots: the page, its title, the texts on it, for
/// help and for those who cannot see the picture (docs/remote-control.md). Empty for an instrument that writes none.
QJsonObject notesOf(const QByteArray &png);

} // namespace panel
