#include "setup/joinpicture.h"

#include "model/channelset.h"

#include <iterator>

namespace {

/// In the order of the join modes.
const char *const kPictures[] = { "3p_wye",          "3p_it",      "1p_neutral", "3p_delta",     "1p_split",
                                  "1p_it_noneutral", "3p_highleg", "3p_openleg", "2_5p-element", "2-element" };
static_assert(std::size(kPictures) == std::size(kChannelSets), "one picture per wiring");

} // namespace

QString JoinPicture::icon(int joinMode)
{
    const ChannelSet *set = channelSet(joinMode);
    return set ? QStringLiteral(":/%1").arg(QLatin1String(kPictures[set->joinMode - 1])) : QString();
}

QString JoinPicture::detail(int joinMode)
{
    const QString name = icon(joinMode);
    return name.isEmpty() ? name : name + QLatin1String("_detail");
}
