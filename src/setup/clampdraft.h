#pragma once

#include "settings/clampif.h"
#include "setup/ratiochoice.h"

/// What the clamp page works on: copies of both catalogues and of the transformers' ratios. Nothing is stored, and
/// nothing measured changes, until saveConfig().
class ClampDraft
{
public:
    enum Channel { Phases, Neutral };

    /// One side of the page: the phases or the neutral channel.
    struct Side
    {
        ClampIF clamps;
        RatioChoice ratioI, ratioV;
    };

    ClampDraft() { exitConfig(); }

    Side &side(Channel channel) { return channel == Phases ? m_phases : m_neutral; }
    /// The clamp chosen for a channel; never null, for built-in clamps are never taken away.
    Clamp *clamp(Channel channel) { return side(channel).clamps.getCurClamp(); }

    // Steps along the catalogue; the ends stay.
    void changeClampPrev(Channel channel);
    void changeClampNext(Channel channel);
    /// Appends a user's clamp and chooses it. False: the name is taken.
    bool addClamp(Channel channel, const Clamp &clamp);
    /// Changes the chosen clamp. False: another one has the name.
    bool editClamp(Channel channel, const Clamp &clamp);
    void removeClamp(Channel channel) { side(channel).clamps.removeClamp(clamp(channel)); }

    /// Stores ratios, catalogues and the clamps chosen: the settings in use follow.
    void saveConfig();
    /// Takes what is in use.
    void exitConfig();

private:
    Side m_phases, m_neutral;
};
