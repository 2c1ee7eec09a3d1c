#include "exporters/base/Progress.h"

#include "host/orv/IStatusManager.h"
#include "host/orvexp/IDelayExporter.h"

namespace orvexport
{

Progress::Progress(orv::IStatusManager* manager) : status(manager) {}

void Progress::set(double done)
{
    int const percent = static_cast<int>(done * 100);
    if (status != nullptr && percent > shown) {
        shown = percent;
        status->setProgress(shown, orvexp::exportChannel);
    }
}

} // namespace orvexport
