#include "viewer/app/Ribbon.h"

#include "host/orvui/OrvantaCategory.h"
#include "platform/qt/Native.h"

#include <QMenu>
#include <QWidget>

#include <utility>

namespace orvviewer
{

Ribbon::Ribbon(QWidget* mainWindow, CommandTable& table, Hooks hooks) : commands(table)
{
    bar.Create(orvplatform::windowOf(mainWindow));
    auto* category = bar.AddCategory(L"Home", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(OrvantaCategory));
    addPanel(*category, L"File", {openFile, recentFiles, closeFile, exportFile, saveViewPicture});
    addPanel(*category, L"View", {fitAll, togglePerspective});
    // The other sides are on the view cube and on the keys.
    addPanel(*category, L"Standard views", {viewFront, viewLeft, viewRight, viewTop, viewIsometric});
    addPanel(*category, L"Parts",
             {hideParts, isolateParts, showAllParts, colourParts, transparentParts, moveParts, resetParts});
    addPanel(*category, L"Options", {showOptions});

    auto const onCommand = [this, run = hooks.runOther](UINT id) { commands.run(id) || (run && run(id)); };
    auto const isEnabled = [this, other = hooks.isOtherEnabled](UINT id) {
        return commands.action(id) != nullptr ? commands.isEnabled(id) : other && other(id);
    };
    auto const isChecked = [this](UINT id) { return commands.isChecked(id); };
    orvplatform::setRibbonHooks(bar, {onCommand, isEnabled, isChecked, std::move(hooks.menuOf)});
}

void Ribbon::addPanel(CMFCRibbonCategory& category, wchar_t const* title, std::initializer_list<CommandId> ids)
{
    auto* panel = category.AddPanel(title);
    for (auto const id : ids) {
        auto const* action = commands.action(id);
        int const small = orvplatform::addPicture(category.GetSmallImages(), action->icon());
        int const large = orvplatform::addPicture(category.GetLargeImages(), action->icon());
        auto* button = new CMFCRibbonButton(id, action->text().toStdWString().c_str(), small, large);
        button->SetToolTipText(action->toolTip().toStdWString().c_str());
        panel->Add(button);
    }
}

QWidget* Ribbon::widget() const
{
    return orvplatform::widgetOf(bar.GetSafeHwnd());
}

void Ribbon::refresh()
{
    orvplatform::refreshRibbon(bar);
}

} // namespace orvviewer
