#include "viewer/app/OptionsSheet.h"

#include "platform/qt/Native.h"

#include <QCheckBox>
#include <QVBoxLayout>
#include <QWidget>

#include <utility>

namespace orvviewer
{

OptionsSheet::OptionsSheet(CWnd* parent, ViewerPreferences initial, std::function<void(HWND)> addPages,
                           std::function<void(ViewerPreferences const&)> apply)
    : CMFCPropertySheet(L"Options", parent), preferences(initial), addPluginPages(std::move(addPages)),
      applyPreferences(std::move(apply))
{
}

BOOL OptionsSheet::OnInitDialog()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto const addSwitch = [&](QString const& text, bool isOn) {
        auto* box = new QCheckBox(text, page);
        box->setChecked(isOn);
        layout->addWidget(box);
        return box;
    };
    auto* axisCross = addSwitch(QObject::tr("Show the axis cross"), preferences.showAxisCross);
    auto* viewCube = addSwitch(QObject::tr("Show the view cube"), preferences.showViewCube);
    auto* perspective = addSwitch(QObject::tr("Open models in perspective"), preferences.startInPerspective);
    auto* tree = addSwitch(QObject::tr("Show the model tree"), preferences.showTree);
    layout->addStretch();

    orvplatform::addWidgetPage(*this, page, QObject::tr("General"), [=, this] {
        preferences.showAxisCross = axisCross->isChecked();
        preferences.showViewCube = viewCube->isChecked();
        preferences.startInPerspective = perspective->isChecked();
        preferences.showTree = tree->isChecked();
        applyPreferences(preferences);
    });
    addPluginPages(GetSafeHwnd());
    return CMFCPropertySheet::OnInitDialog();
}

} // namespace orvviewer
