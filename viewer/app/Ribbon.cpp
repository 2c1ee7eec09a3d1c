#include "viewer/app/Ribbon.h"

#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvui/OrvantaCategory.h"
#include "platform/qt/Native.h"

#include "viewer/app/Language.h"

#include <QMenu>
#include <QWidget>

#include <utility>

namespace orvviewer
{

namespace
{

std::wstring word(char const* english)
{
    return localized(english).toStdWString();
}

} // namespace

Ribbon::Ribbon(QWidget* mainWindow, CommandTable& table, Hooks hooks) : commands(table)
{
    bar.Create(orvplatform::windowOf(mainWindow));
    // The same step as the plug-ins' pictures.
    auto const& pixels = orvsgutils::ResourceLoader::m_Pixel;
    auto* category = bar.AddCategory(word("Home").c_str(), 0, 0, CSize(pixels.smallWidth, pixels.smallHeight),
                                     CSize(pixels.largeWidth, pixels.largeHeight), -1, RUNTIME_CLASS(OrvantaCategory));
    addPanel(*category, "File", {openFile, recentFiles, closeFile, exportFile, saveViewPicture});
    addPanel(*category, "View", {fitAll, togglePerspective});
    // The other sides are on the view cube and on the keys.
    addPanel(*category, "Standard views", {viewFront, viewLeft, viewRight, viewTop, viewIsometric});
    addPanel(*category, "Parts",
             {hideParts, isolateParts, showAllParts, colourParts, transparentParts, moveParts, resetParts});
    addPanel(*category, "Options", {showOptions});

    auto const onCommand = [this, run = hooks.runOther](UINT id) { commands.run(id) || (run && run(id)); };
    auto const isEnabled = [this, other = hooks.isOtherEnabled](UINT id) {
        return commands.action(id) != nullptr ? commands.isEnabled(id) : other && other(id);
    };
    auto const isChecked = [this](UINT id) { return commands.isChecked(id); };
    orvplatform::setRibbonHooks(bar, {onCommand, isEnabled, isChecked, std::move(hooks.menuOf)});
}

void Ribbon::addPanel(CMFCRibbonCategory& category, char const* title, std::initializer_list<CommandId> ids)
{
    auto* panel = category.AddPanel(word(title).c_str());
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

bool Ribbon::takeFocus()
{
    return orvplatform::focusRibbon(bar);
}

void Ribbon::refresh()
{
    orvplatform::refreshRibbon(bar);
}

} // namespace orvviewer
