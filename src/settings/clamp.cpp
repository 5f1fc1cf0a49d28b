#include "settings/clamp.h"

Clamp::Clamp(const QString &name, int range, int ratio, bool flexible, bool editable, const QString &description)
    : m_name(name), m_range(range), m_ratio(ratio), m_flexible(flexible), m_editable(editable),
      m_description(description)
{ }

void Clamp::editClamp(const Clamp &other)
{
    m_name = other.m_name;
    m_range = other.m_range;
    m_ratio = other.m_ratio;
    m_flexible = other.m_flexible;
    m_description = other.m_description;
}

void Clamp::editClamp(const Clamp *other)
{
    if (other)
        editClamp(*other);
}
