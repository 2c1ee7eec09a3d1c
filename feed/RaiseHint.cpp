#include "feed/RaiseHint.h"

#include "host/orv/SCApplication.h"
#include "host/orvui/Hint.h"

void raiseHint(std::shared_ptr<orv::IDocument> const& document, short code)
{
    auto const record = orv::recordOf<orv::SCApplication>(document);
    if (!record || !record->application) {
        return;
    }
    if (std::shared_ptr<orv::IViewNotifier> const notifier = record->application->getViewNotifier()) {
        orvui::Hint hint(code, document);
        notifier->notify(hint);
    }
}
