#include "language/Languages.h"

#include "language/Catalogue.h"
#include "support/Print.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

namespace velvane {

TEST(Languages, SixLanguagesAreAvailable)
{
    EXPECT_EQ(Languages::available(), (QStringList{"de", "en", "es", "fr", "ja", "zh_CN"}));
}

TEST(Languages, TheFirstAvailableWishIsGranted)
{
    EXPECT_EQ(Languages::best({"de"}), "de");
    EXPECT_EQ(Languages::best({"nl", "fr_CA", "de"}), "fr");
    EXPECT_EQ(Languages::best({"en_GB", "de"}), "en");
    EXPECT_EQ(Languages::best({"es_MX.UTF-8"}), "es");
    EXPECT_EQ(Languages::best({"de_DE@euro"}), "de");
    EXPECT_EQ(Languages::best({"ja-JP"}), "ja");
    EXPECT_EQ(Languages::best({"zh_CN.UTF-8"}), "zh_CN");
    EXPECT_EQ(Languages::best({"zh-Hans-SG"}), "zh_CN");
}

TEST(Languages, WhatIsNotThereIsEnglish)
{
    for (const char *wish : {"", "C", "C.UTF-8", "POSIX", "nl", "tlh", "?"})
        EXPECT_EQ(Languages::best({wish}), "en") << wish;
    EXPECT_EQ(Languages::best({}), "en");
    EXPECT_EQ(Languages::best({"zh_TW"}), "en") << "written in other characters";
}

TEST(Languages, TheArgumentsMayAskForOne)
{
    const auto asked = [](std::vector<const char *> arguments) {
        arguments.insert(arguments.begin(), "velvane");
        return Languages::asked(int(arguments.size()), arguments.data());
    };
    EXPECT_EQ(asked({}), "");
    EXPECT_EQ(asked({"demo.velvane"}), "");
    EXPECT_EQ(asked({"--lang", "de"}), "de");
    EXPECT_EQ(asked({"--lang=zh_CN", "doctor"}), "zh_CN");
    EXPECT_EQ(asked({"--lang"}), "");
    EXPECT_EQ(asked({"--language", "de"}), "");
}

TEST(Languages, TextsAreThereBeforeAnyApplicationAsksForThem)
{
    Languages::choose("de");
    EXPECT_EQ(Languages::chosen(), "de");
    EXPECT_EQ(Languages::text("Cancel"), "Abbrechen");
    EXPECT_EQ(Languages::text("no text of this program"), "no text of this program");
    Languages::choose("en");
    EXPECT_EQ(Languages::text("Cancel"), "Cancel");
}

TEST(Languages, LanguageComesBeforeTheLocale)
{
    const QByteArray before = qgetenv("LANGUAGE");
    qputenv("LANGUAGE", "nl:ja:de");
    Languages::choose();
    EXPECT_EQ(Languages::chosen(), "ja");
    Languages::choose("klingon");
    EXPECT_EQ(Languages::chosen(), "ja");
    Languages::choose("fr");
    EXPECT_EQ(Languages::chosen(), "fr");
    qputenv("LANGUAGE", before);
    Languages::choose("en");
}

TEST(Languages, ATextIsFoundWhateverClassShowsIt)
{
    Catalogue german(":/translations/velvane_de");
    EXPECT_EQ(german.translate("velvane::EditorWindow", "Cancel"), "Abbrechen");
    EXPECT_EQ(german.translate("Anything", "Cancel"), "Abbrechen");
    EXPECT_TRUE(german.translate("Anything", "no text of this program").isEmpty());
    QCoreApplication::installTranslator(&german);
    EXPECT_EQ(QCoreApplication::translate("Anything", "Cancel"), "Abbrechen");
    QCoreApplication::removeTranslator(&german);
    EXPECT_EQ(QCoreApplication::translate("Anything", "Cancel"), "Cancel");
}

TEST(Languages, WordsOfQtsOwnPanelsAreQts)
{
    const QLocale before;
    Languages::choose("de");
    Languages::install();
    EXPECT_EQ(QCoreApplication::translate("QFileSystemModel", "Type"), "Typ");
    EXPECT_EQ(QCoreApplication::translate("StepKind", "Type"), "Tippen");
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    EXPECT_EQ(QCoreApplication::translate("StepKind", "Type"), "Type");
    Languages::choose("en");
    QLocale::setDefault(before);
}

TEST(Languages, ACatalogueThatIsNotThereHasNoTexts)
{
    EXPECT_TRUE(Catalogue(":/translations/velvane_nl").isEmpty());
}

} // namespace velvane
