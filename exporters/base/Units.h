#pragma once

namespace orv
{
class Preferences;
}

namespace orvexport
{

/// The unit of length of the file in millimetres, as the setting "EXPORT_UNIT" chooses it: 0 metres, 1 millimetres,
/// 2 centimetres, 3 inches, 4 feet; millimetres without settings and for any other choice.
double millimetresPerUnit(orv::Preferences const* preferences);

} // namespace orvexport
