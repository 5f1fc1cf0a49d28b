#pragma once

#include <QString>

/// Names of the pictures of the wirings in the resource tree.
namespace JoinPicture {

/// The small diagram of a join mode; empty outside 1 to 10.
QString icon(int joinMode);
/// The large one, with the leads and clamps; empty outside 1 to 10.
QString detail(int joinMode);

} // namespace JoinPicture
