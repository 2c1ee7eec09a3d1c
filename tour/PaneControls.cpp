#include "tour/PaneControls.h"

#include "platform/qt/Native.h"
#include "platform/testing/Input.h"

#include <algorithm>

namespace orvtour
{

using orvplatform::testing::isVisible;
using orvplatform::testing::textOf;

std::vector<CWnd*> dialogsWith(QWidget& window, int controlId)
{
    std::vector<QWidget*> found;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        CWnd* const candidate = widget->isVisible() ? orvplatform::windowOf(widget) : nullptr;
        if (candidate != nullptr && candidate->GetDlgItem(controlId) != nullptr) {
            found.push_back(widget);
        }
    }
    std::stable_sort(found.begin(), found.end(), [](QWidget const* a, QWidget const* b) {
        return a->mapToGlobal(QPoint()).y() < b->mapToGlobal(QPoint()).y();
    });
    std::vector<CWnd*> dialogs;
    for (QWidget* const widget : found) {
        dialogs.push_back(orvplatform::windowOf(widget));
    }
    return dialogs;
}

CWnd* dialogWith(QWidget& window, int controlId)
{
    auto const dialogs = dialogsWith(window, controlId);
    return dialogs.empty() ? nullptr : dialogs.front();
}

std::vector<BlockOnShow> blocksOnShow(QWidget& window)
{
    std::vector<BlockOnShow> blocks;
    for (CWnd* const dialog : dialogsWith(window, control::blockText)) {
        BlockOnShow block;
        block.dialog = dialog;
        block.hasPicture = isVisible(*dialog, control::blockPicture);
        block.hasDelete = isVisible(*dialog, control::blockDelete);
        block.date = QString::fromStdWString(textOf(*dialog, control::blockDate));
        block.text = QString::fromStdWString(textOf(*dialog, control::blockText));
        blocks.push_back(block);
    }
    return blocks;
}

} // namespace orvtour
