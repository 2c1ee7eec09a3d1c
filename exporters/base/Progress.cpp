#include "exporters/base/Progress.h"

#include "host/orv/IStatusManager.h"

namespace orvexport
{

namespace
{
constexpr int channel = 1;
}

Progress::Progress(orv::IStatusManager* manager) : status(manager)
{
    if (status != nullptr) {
        status->showProgress(1, channel);
        status->setProgress(shown, channel);
    }
}

Progress::~Progress()
{
    if (status != nullptr) {
        status->showProgress(0, channel);
    }
}

void Progress::set(double done)
{
    int const percent = static_cast<int>(done * 100);
    if (status != nullptr && percent > shown) {
        shown = percent;
        status->setProgress(shown, channel);
    }
}

} // namespace orvexport
