#include "tests/support/ScopedVariables.h"
#include "tests/viewer/SessionFixture.h"
#include "tests/viewer/TranslationFiles.h"

#include "host/orvsgutils/ResourceLoader.h"
#include "host/orvsgutils/SceneQuery.h"
#include "host/runtime/Runtime.h"
#include "platform/qt/Native.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/Language.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/Preferences.h"
#include "viewer/commands/CommandId.h"

#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QMenu>
#include <QPushButton>

#include <afxcontrolbars.h>
#include <afxdlgs.h>

#include <cstdlib>
#include <map>

using namespace orvtest;
using orvviewer::chooseLanguage;

namespace
{

class LanguageTest : public SessionFixture
{
protected:
    void TearDown() override
    {
        SessionFixture::TearDown();
        orvviewer::useViewerLanguage(L"en");
        orvhost::configure({});
    }
    void startIn(std::wstring const& language)
    {
        session.reset();
        orvhost::Settings settings;
        settings.dataDirectory = (folder.path / "data").wstring();
        settings.libraryDirectory = (folder.path / "lib").wstring();
        settings.language = language;
        session = std::make_unique<orvviewer::ViewerSession>(settings);
    }
    std::wstring panelTitle(int panel) { return session->ribbonBar().GetActiveCategory()->GetPanel(panel)->GetName(); }
    /// Sets the language in the options, as a user does; gives what the list offered.
    QStringList chooseInOptions(QString const& ownName)
    {
        QStringList offered;
        orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
        script.expectModal<CMFCPropertySheet>([&](CMFCPropertySheet& sheet) {
            auto* const box = orvplatform::widgetOf(sheet.GetSafeHwnd())->findChild<QComboBox*>();
            EXPECT_NE(box, nullptr);
            for (int i = 0; i < box->count(); ++i) {
                offered << box->itemText(i);
            }
            box->setCurrentText(ownName);
            for (auto* button : orvplatform::widgetOf(sheet.GetSafeHwnd())->findChildren<QPushButton*>()) {
                if (button->text() == QObject::tr("OK")) {
                    button->click();
                }
            }
            return IDCANCEL;
        });
        session->runCommand(orvviewer::showOptions);
        return offered;
    }
};

} // namespace

TEST(Language, IsTheOneAskedForThenThePreferredThenTheSystems)
{
    orvtest::ScopedVariables const earlier{"LC_ALL", "LC_MESSAGES", "LANG"};
    setenv("LC_ALL", "fr_CA.UTF-8", 1);
    EXPECT_EQ(chooseLanguage(L"de", L"ja"), L"de");
    EXPECT_EQ(chooseLanguage(L"", L"ja"), L"ja");
    EXPECT_EQ(chooseLanguage(L"", L""), L"fr");
    setenv("LC_ALL", "it_IT.UTF-8", 1);
    EXPECT_EQ(chooseLanguage(L"", L""), L"en");
    EXPECT_EQ(chooseLanguage(L"xx", L"de"), L"en");
}

TEST(Language, OfTheSystemIsTheFirstVariablesThatSaysOne)
{
    orvtest::ScopedVariables const earlier{"LC_ALL", "LC_MESSAGES", "LANG"};
    auto const expect = [](char const* all, char const* messages, char const* lang, wchar_t const* language) {
        setenv("LC_ALL", all, 1);
        setenv("LC_MESSAGES", messages, 1);
        setenv("LANG", lang, 1);
        EXPECT_EQ(chooseLanguage(L"", L""), language) << all << ", " << messages << ", " << lang;
    };
    expect("fr_FR.UTF-8", "de_DE.UTF-8", "ja_JP.UTF-8", L"fr");
    expect("", "de_DE.UTF-8", "ja_JP.UTF-8", L"de");
    expect("", "", "ja_JP.UTF-8", L"ja");
    expect("", "", "", L"en");
    expect("C.UTF-8", "de_DE.UTF-8", "", L"en");
    expect("", "", "pt", L"pt");
    expect("", "", "es@euro", L"es");
    expect("", "", "deu_DE", L"en"); // three letters are no German
    expect("", "", "fil_PH.UTF-8", L"en");
    expect("", "", "kok_IN", L"en"); // Konkani isn't Korean
}

TEST_F(LanguageTest, APluginThatFailedSpeaksTheLanguage)
{
    startIn(L"de");
    EXPECT_NE(session->statusText().find(L"Die Bibliothek „cloudplugin.so“ fehlt."), std::wstring::npos)
        << QString::fromStdWString(session->statusText()).toStdString();
    writeFile(guiFolder() / "cloudplugin.so", "this is no library");
    startIn(L"de");
    EXPECT_EQ(session->statusText(), L"Die Bibliothek „cloudplugin.so“ kann nicht geladen werden: „file too short“. "
                                     L"Installieren Sie Orvanta erneut, und starten Sie es neu.");
}

TEST_F(LanguageTest, WhatALibraryDidWrongIsSaidInEachLanguage)
{
    for (auto const& code : translated) {
        orvviewer::useViewerLanguage(std::wstring(code.begin(), code.end()));
        for (wchar_t const* const sentence :
             {L"The library \"a.so\" is missing. Install Orvanta again and start it anew.",
              L"The library \"a.so\" can't be loaded: \"b\". Install Orvanta again and start it anew.",
              L"The library \"a.so\" lacks the function \"b\". Install Orvanta again and start it anew.",
              L"The library \"a.so\" failed to start: \"b\". Install Orvanta again and start it anew.",
              L"The library \"a.so\" failed to start. Install Orvanta again and start it anew.",
              L"The library \"a.so\" made no object. Install Orvanta again and start it anew.",
              L"The library \"a.so\" failed to end: \"b\". Save your work and start Orvanta anew.",
              L"The library \"a.so\" failed to end. Save your work and start Orvanta anew."}) {
            EXPECT_NE(orvviewer::localizedSentence(sentence), sentence) << code;
        }
    }
}

TEST_F(LanguageTest, NamesMayHoldQuotationMarks)
{
    startIn(L"de");
    EXPECT_EQ(orvviewer::localizedSentence(L"\"a \"b\".step\" was saved."), L"„a \"b\".step“ wurde gespeichert.");
    EXPECT_EQ(orvviewer::localizedSentence(L"\"a\".step\" was saved."), L"„a\".step“ wurde gespeichert.");
    EXPECT_EQ(
        orvviewer::localizedSentence(L"The library \"x\"y\" failed to start: \"no \"z\"\". Install Orvanta again and "
                                     L"start it anew."),
        L"Die Bibliothek „x\"y“ konnte nicht gestartet werden: „no \"z\"“. Installieren Sie Orvanta erneut, und "
        L"starten Sie es neu.");
}

TEST_F(LanguageTest, NumbersAndTheirNounsFollowTheLanguage)
{
    auto const facts = [](int parts, int triangles) {
        return QObject::tr("%Ln part(s)", nullptr, parts) + ", " + QObject::tr("%Ln triangle(s)", nullptr, triangles);
    };
    startIn(L"en");
    EXPECT_EQ(facts(1, 12345), "1 part, 12,345 triangles");
    startIn(L"de");
    EXPECT_EQ(facts(2, 12345), "2 Teile, 12.345 Dreiecke");
    EXPECT_EQ(facts(1, 1), "1 Teil, 1 Dreieck");
    EXPECT_EQ(QObject::tr("%Ln selected", nullptr, 2), "2 ausgewählt");
    startIn(L"fr");
    EXPECT_EQ(facts(0, 1), "0 pièce, 1 triangle");
}

TEST_F(LanguageTest, TheToolkitsOwnDialogsSpeakTheLanguage)
{
    std::map<std::string, QString> const cancel{{"fr", "Annuler"}, {"de", "Abbrechen"}, {"ja", "キャンセル"},
                                                {"ko", "취소"},    {"zh", "取消"},      {"es", "Cancelar"},
                                                {"pt", "Cancelar"}};
    for (auto const& [code, word] : cancel) {
        orvviewer::useViewerLanguage(std::wstring(code.begin(), code.end()));
        EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").remove('&').section('(', 0, 0), word) << code;
        EXPECT_NE(QCoreApplication::translate("QColorDialog", "Hu&e:"), "Hu&e:") << code;
        EXPECT_NE(QCoreApplication::translate("QFileDialog", "Look in:"), "Look in:") << code;
    }
}

TEST_F(LanguageTest, TheColourDialogsButtonsSpeakTheLanguage)
{
    std::map<std::string, std::pair<QString, QString>> const words{
        {"fr", {"OK", "Annuler"}}, {"de", {"OK", "Abbrechen"}}, {"ja", {"OK", "キャンセル"}},
        {"ko", {"확인", "취소"}},  {"zh", {"确定", "取消"}},    {"es", {"Aceptar", "Cancelar"}},
        {"pt", {"OK", "Cancelar"}}};
    for (auto const& [code, captions] : words) {
        SCOPED_TRACE(code);
        startIn(std::wstring(code.begin(), code.end()));
        auto const translations = translationsOf(code);
        auto const menus = session->window().findChildren<QMenu*>();
        QAction* other = nullptr;
        for (auto const* menu : menus) {
            for (auto* action : menu->actions()) {
                other = action->text() == translations.at("&Other colour...") ? action : other;
            }
        }
        ASSERT_NE(other, nullptr);
        other->trigger();
        auto* const dialog = session->window().findChild<QColorDialog*>();
        ASSERT_NE(dialog, nullptr);
        auto const* const buttons = dialog->findChild<QDialogButtonBox*>();
        ASSERT_NE(buttons, nullptr);
        auto const caption = [buttons](QDialogButtonBox::StandardButton which) {
            return buttons->button(which)->text().remove('&').section('(', 0, 0);
        };
        EXPECT_EQ(caption(QDialogButtonBox::Ok), captions.first);
        EXPECT_EQ(caption(QDialogButtonBox::Cancel), captions.second);
        dialog->close();
    }
}

TEST_F(LanguageTest, TheColourMenuColoursInEachLanguage)
{
    for (char const* const code : {"de", "ja", "pt"}) {
        SCOPED_TRACE(code);
        auto const translations = translationsOf(code);
        startIn(QString(code).toStdWString());
        ASSERT_TRUE(session->openModel(writeThreeCubes(folder.path).wstring()));
        int const part = 1;
        session->context().select({part});
        auto const choose = [&](char const* english) {
            for (auto const* menu : session->window().findChildren<QMenu*>()) {
                for (auto* action : menu->actions()) {
                    if (action->text() == translations.at(english)) {
                        action->trigger();
                        return true;
                    }
                }
            }
            return false;
        };
        auto const scene = [this] { return orvsgutils::SceneQuery(session->document()); };
        auto const before = scene().color(part);
        ASSERT_TRUE(choose("Red"));
        EXPECT_EQ(scene().color(part), 0x4545D6U);
        EXPECT_TRUE(scene().isColoredByUser(part));
        ASSERT_TRUE(choose("&As in the file"));
        EXPECT_EQ(scene().color(part), before);
        EXPECT_FALSE(scene().isColoredByUser(part));
    }
}

TEST_F(LanguageTest, TheOpenDialogNamesTheModelsInTheLanguage)
{
    orvplatform::testing::ModalScript script([](std::string const& why) { ADD_FAILURE() << why; });
    auto const model = writeThreeCubes(folder.path);
    for (auto const& code : translated) {
        SCOPED_TRACE(code);
        startIn(std::wstring(code.begin(), code.end()));
        auto const models = translationsOf(code).at("Models").toStdWString();
        script.expectModal<CFileDialog>([&](CFileDialog& dialog) {
            std::wstring const name = dialog.m_ofn.lpstrFilter;
            EXPECT_EQ(name, models);
            std::wstring const patterns = dialog.m_ofn.lpstrFilter + name.size() + 1;
            EXPECT_NE((L";" + patterns + L";").find(L";*.obj;"), std::wstring::npos);
            orvplatform::testing::choosePath(dialog, model.wstring());
            return IDOK;
        });
        EXPECT_TRUE(session->runCommand(orvviewer::openFile));
        EXPECT_NE(session->document(), nullptr);
    }
}

TEST_F(LanguageTest, TheWindowSpeaksTheLanguageThatWasAskedFor)
{
    startIn(L"de");
    EXPECT_EQ(panelTitle(0), L"Datei");
    EXPECT_EQ(session->ribbonBar().GetActiveCategory()->GetName(), std::wstring(L"Start"));
    startIn(L"ja");
    EXPECT_EQ(panelTitle(0), L"ファイル");
    startIn(L"en");
    EXPECT_EQ(panelTitle(0), L"File");
}

TEST_F(LanguageTest, EveryLanguageHasARibbonOfItsOwn)
{
    for (auto const& code : translated) {
        SCOPED_TRACE(code);
        startIn(std::wstring(code.begin(), code.end()));
        auto const translations = translationsOf(code);
        EXPECT_EQ(panelTitle(0), translations.at("File").toStdWString());
        auto* const panel = session->ribbonBar().GetActiveCategory()->GetPanel(0);
        EXPECT_EQ(panel->GetElement(0)->GetText(), translations.at("Open").toStdWString());
        EXPECT_EQ(std::wstring(panel->GetElement(0)->GetToolTipText().GetString())
                      .rfind(translations.at("Open a model").toStdWString(), 0),
                  0U);
        // To be looked at, in pictures/ of the build.
        auto& window = session->window();
        window.resize(1440, 760);
        window.show();
        orvplatform::testing::processEvents();
        auto const pictures = QStringLiteral(ORV_BINARY_DIR "/pictures");
        EXPECT_TRUE(QDir().mkpath(pictures));
        EXPECT_TRUE(window.grab().save(pictures + "/viewer-" + QString::fromStdString(code) + ".png"));
    }
}

TEST_F(LanguageTest, SentencesNameTheFileInTheLanguage)
{
    startIn(L"de");
    writeFile(folder.path / "leer %1.step", "");
    EXPECT_FALSE(session->openModel((folder.path / "leer %1.step").wstring()));
    EXPECT_EQ(session->statusText(),
              L"„leer %1.step“ ist leer. Exportieren Sie das Modell erneut, und öffnen Sie die neue Datei.");
    EXPECT_EQ(orvviewer::localizedSentence(L"A sentence that nobody knows."), L"A sentence that nobody knows.");
}

TEST_F(LanguageTest, TheOptionsOfferTheEightLanguagesAndTheSystems)
{
    startIn(L"de");
    EXPECT_EQ(chooseInOptions("Français"), (QStringList{"Sprache des Systems", "English", "Français", "Deutsch",
                                                        "日本語", "한국어", "简体中文", "Español", "Português"}));
    EXPECT_EQ(orvviewer::ViewerPreferences::load().language, L"fr");
    EXPECT_EQ(panelTitle(0), L"Datei") << "windows that stand keep their language";
    startIn(L"");
    EXPECT_EQ(panelTitle(0), L"Fichier");
    EXPECT_EQ(orvsgutils::ResourceLoader::getCurrentLocaleID(), L"fr") << "the plug-ins, too";
    startIn(L"de");
    EXPECT_EQ(panelTitle(0), L"Datei") << "what is asked for on the command line comes first";
    chooseInOptions("Sprache des Systems");
    EXPECT_EQ(orvviewer::ViewerPreferences::load().language, L"");
}
