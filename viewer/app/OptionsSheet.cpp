#include "viewer/app/OptionsSheet.h"

#include "platform/qt/Native.h"
#include "viewer/app/Language.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>

#include <utility>

namespace orvviewer
{

namespace
{

/// The choice of a language, with the present one on show.
QComboBox* addLanguages(QWidget& page, QVBoxLayout& layout, std::wstring const& present)
{
    auto* box = new QComboBox(&page);
    box->addItem(QObject::tr("The system's language"), QString());
    for (auto const& language : languages()) {
        box->addItem(QString::fromStdWString(language.ownName), QString::fromStdWString(language.code));
    }
    box->setCurrentIndex(std::max(box->findData(QString::fromStdWString(present)), 0));
    auto* caption = new QLabel(QObject::tr("Language"), &page);
    caption->setBuddy(box);
    box->setAccessibleName(caption->text());
    auto* note = new QLabel(QObject::tr("The new language is used when Orvanta is started again."), &page);
    note->setWordWrap(true);
    note->hide();
    QObject::connect(box, &QComboBox::currentIndexChanged, note, &QWidget::show);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(box, 1);
    layout.addSpacing(12);
    layout.addLayout(row);
    layout.addWidget(note);
    return box;
}

} // namespace

OptionsSheet::OptionsSheet(CWnd* parent, ViewerPreferences initial, std::function<void(HWND)> addPages,
                           std::function<void(ViewerPreferences const&)> apply)
    : CMFCPropertySheet(localized("Options").toStdWString().c_str(), parent), preferences(initial),
      addPluginPages(std::move(addPages)), applyPreferences(std::move(apply))
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
    auto* languageBox = addLanguages(*page, *layout, preferences.language);
    layout->addStretch();

    orvplatform::addWidgetPage(*this, page, QObject::tr("General"), [=, this] {
        preferences.showAxisCross = axisCross->isChecked();
        preferences.showViewCube = viewCube->isChecked();
        preferences.startInPerspective = perspective->isChecked();
        preferences.showTree = tree->isChecked();
        preferences.language = languageBox->currentData().toString().toStdWString();
        applyPreferences(preferences);
    });
    addPluginPages(GetSafeHwnd());
    return CMFCPropertySheet::OnInitDialog();
}

} // namespace orvviewer
